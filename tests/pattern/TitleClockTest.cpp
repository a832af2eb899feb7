// Date and time in the title bar.
#include "config/Settings.h"
#include "draw/Images.h"
#include "pattern/TitleBar.h"
#include "tests/pattern/TitleFrame.h"

using namespace tessary;

namespace
{

class TitleClock : public Frame
{
  protected:
    static Pattern clock(int format) { return titled("").header(HEDR_CLOCK, format); }

    /// The bar, the body and the clock's text, ending `free` pixels left of the edge.
    void modelClock(const char* text, int free, int font = 0)
    {
        model.clear();
        modelGround();
        const SIZE size = model->GetTextSize(font, text);
        model->DrawText(W - size.cx - free, (T - size.cy) / 2, font, 9, 10, text);
    }
};

TEST_F(TitleClock, has_six_formats)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    const char* const texts[] = {
        "2025/03/02 (Sun)",    "2025/03/02 (Sun) 09:05",       "2025/03/02 (Sun) 09:05:07",
        "2025年03月02日 (日)", "2025年03月02日 (日) 09時05分", "2025年03月02日 (日) 09時05分07秒",
    };
    for (int format = 1; format <= 6; format++) {
        show(clock(format));
        modelClock(texts[format - 1], 8);
        EXPECT_TRUE(asModelled()) << format;
    }
}

TEST_F(TitleClock, names_every_day_of_the_week)
{
    const char* const english[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    const char* const japanese[] = {"日", "月", "火", "水", "木", "金", "土"};
    for (int weekday = 0; weekday < 7; weekday++) {
        EXPECT_STREQ(Week1[weekday], english[weekday]);
        EXPECT_STREQ(Week2[weekday], japanese[weekday]);
        setClock(2025, 11, 23, weekday, 0, 0, 0);
        show(clock(1));
        modelClock(("2025/11/23 (" + std::string(english[weekday]) + ")").c_str(), 8);
        EXPECT_TRUE(asModelled()) << weekday;
        show(clock(4));
        modelClock(("2025年11月23日 (" + std::string(japanese[weekday]) + ")").c_str(), 8);
        EXPECT_TRUE(asModelled()) << weekday;
    }
}

TEST_F(TitleClock, chooses_its_language_by_the_format_alone)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    Language = 1;
    show(clock(4));
    modelClock("2025年03月02日 (日)", 8);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleClock, ends_left_of_the_hard_copy_button)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    show(clock(3).header(HEDR_HARDCOPY, 1));
    modelClock("2025/03/02 (Sun) 09:05:07", 30);
    model->DrawXpm(618, 8, 632, 22, XPM_Printer);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleClock, has_a_font_of_its_own)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    show(clock(2).header(HEDR_CLOCK_FONT, 1));
    modelClock("2025/03/02 (Sun) 09:05", 8, 1);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleClock, is_drawn_once_a_second)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    show(clock(1)); // even in a format without seconds
    EXPECT_EQ(data().PtrnCalnSec, 7);
    canvas.clear();
    data().DispCalender(canvas.draw());
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
    Set_iData(DTNO_SYSCALN + 5, 6, nullptr, 0); // another minute, the same second
    data().DispCalender(canvas.draw());
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
    Set_iData(DTNO_SYSCALN + 6, 8, nullptr, 0);
    data().DispCalender(canvas.draw());
    EXPECT_FALSE(same(canvas.picture(), canvas.blank()));
    EXPECT_EQ(data().PtrnCalnSec, 8);
}

TEST_F(TitleClock, is_missing_from_a_bar_repainted_in_the_same_second)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    show(clock(3));
    data().DispTitle(canvas.draw());
    modelGround();
    EXPECT_TRUE(asModelled());
    Set_iData(DTNO_SYSCALN + 6, 8, nullptr, 0);
    data().DispCalender(canvas.draw());
    modelClock("2025/03/02 (Sun) 09:05:08", 8);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleClock, is_drawn_in_the_first_second_of_a_minute)
{
    setClock(2025, 3, 2, 0, 0, 0, 0);
    show(clock(3));
    modelClock("2025/03/02 (Sun) 00:00:00", 8);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleClock, erases_the_text_before_it)
{
    setClock(2025, 3, 2, 0, 8, 8, 8);
    show(clock(3));
    setClock(2025, 3, 2, 1, 11, 11, 11);
    data().DispCalender(canvas.draw());
    modelClock("2025/03/02 (Mon) 11:11:11", 8);
    // The ink of the two texts ends at different columns, and the box reaches as far as the ink before.
    const int before = model->GetTextSize(0, "2025/03/02 (Sun) 08:08:08").cx;
    const int after = model->GetTextSize(0, "2025/03/02 (Mon) 11:11:11").cx;
    EXPECT_EQ(before, after);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleClock, without_a_format_is_not_shown)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    modelGround();
    for (const int format : {0, 7, -1, INT32_MAX, INT32_MIN}) {
        show(clock(format));
        EXPECT_TRUE(asModelled()) << format;
    }
}

TEST_F(TitleClock, shows_what_damaged_cells_hold)
{
    setClock(-16777216, 16777216, 16777216, 9, -16777216, 16777216, 16777216);
    show(clock(6));
    modelClock("-16777216年16777216月16777216日 () -16777216時16777216分16777216秒", 8);
    EXPECT_TRUE(asModelled());
}

} // namespace
