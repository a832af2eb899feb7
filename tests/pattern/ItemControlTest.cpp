// Push button, radio button, check box, scroll bar and spin button.
#include "draw/Images.h"
#include "tests/pattern/ItemCanvas.h"

#include <limits>

using namespace tessary;

namespace
{

constexpr int NONE = -1;

class PushButton : public ItemCanvas
{
  protected:
    static Pattern button() { return Pattern("p").item(PTRN_BUTN, 10, 20, 90, 60).text("Start"); }
};

TEST_F(PushButton, changes_its_captions_colour_by_the_lock_alone)
{
    for (const int state : {0, 1, 2, 3}) {
        clear();
        PTRNDATA item = make(button().parm(BUTN_WIDTH, 3).parm(BUTN_FONT, 1), state);
        draw(item);
        model->DrawButn(10, 20, 90, 60, 3, 4, 5, 6, state & 1 ? 8 : 7, NONE, 1, "Start");
        EXPECT_TRUE(asModelled()) << state;
    }
}

TEST_F(PushButton, places_its_caption_when_it_is_told_to)
{
    for (const int post : {0, 12, -1}) {
        clear();
        PTRNDATA item = make(button().parm(BUTN_POST_ON, 1).parm(BUTN_POST, post));
        draw(item);
        model->DrawButn(10, 20, 90, 60, 2, 4, 5, 6, 7, post, 0, "Start");
        EXPECT_TRUE(asModelled()) << post;
    }
    clear();
    PTRNDATA item = make(button().parm(BUTN_POST, 12));
    draw(item);
    model->DrawButn(10, 20, 90, 60, 2, 4, 5, 6, 7, NONE, 0, "Start");
    EXPECT_TRUE(asModelled());
}

TEST_F(PushButton, vanishes_when_disabled_or_erased)
{
    PTRNDATA item = make(button(), STATE_DISABLE | 1);
    draw(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 90, 60, color(29))));
    canvas.clear();
    erase(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 90, 60, color(29))));
}

/// Radio button and check box differ in the mark and its condition.
class CheckItem : public ItemCanvas
{
  protected:
    static Pattern check(int type) { return Pattern("p").item(type, 10, 20, 90, 60).text("Auto"); }

    void drawValue(const Pattern& pattern, float value, int state = 0, int updt = 0)
    {
        PTRNDATA item = make(pattern, state);
        item.fData = value;
        draw(item, updt);
    }

    /// The font is 16 high: the mark's edge, and the text half of that further right.
    void modelCheck(int mark, int colr, int back)
    {
        model->DrawMark(10, 20, 26, 36, colr, back, mark);
        model->DrawText(10 + 24, 20, 0, colr, back, "Auto");
    }
};

TEST_F(CheckItem, has_colours_by_the_lock_alone)
{
    for (const int type : {PTRN_RDIO, PTRN_CHCK}) {
        for (const int backed : {0, 1, 5}) {
            for (const int state : {0, 1, 2, 3}) {
                for (const int updt : {0, 1}) {
                    clear();
                    drawValue(check(type).parm(CHECK_BACKED, backed), 0, state, updt);
                    const int locked = state & 1;
                    modelCheck(type == PTRN_RDIO ? 350 : 352, 4 + locked, backed ? 6 + locked : NONE);
                    EXPECT_TRUE(asModelled()) << type << ' ' << backed << ' ' << state;
                }
            }
        }
    }
}

TEST_F(CheckItem, takes_its_measures_from_the_font)
{
    FontSize[1] = {7, 15}; // an odd height: half of it is cut
    PTRNDATA item = make(check(PTRN_CHCK).parm(CHECK_FONT, 1));
    draw(item);
    model->DrawMark(10, 20, 25, 35, 4, NONE, 352);
    model->DrawText(10 + 22, 20, 1, 4, NONE, "Auto");
    EXPECT_TRUE(asModelled());
}

TEST_F(CheckItem, of_a_radio_button_is_on_while_the_truncated_value_is_its_own)
{
    const struct {
        float value;
        int own;
        bool on;
    } cases[] = {{2, 2, true},
                 {2.7f, 2, true},
                 {3, 2, false},
                 {1.9f, 2, false},
                 {-2.7f, -2, true},
                 {-3, -2, false},
                 {0.9f, 0, true},
                 {-0.9f, 0, true},
                 {1e20f, 0, false},
                 {-1e20f, INT32_MIN, false},
                 {std::numeric_limits<float>::quiet_NaN(), 0, false},
                 {std::numeric_limits<float>::infinity(), INT32_MAX, false}};
    for (const auto& [value, own, on] : cases) {
        clear();
        drawValue(check(PTRN_RDIO).parm(RDIO_VALUE, own), value);
        modelCheck(on ? 351 : 350, 4, NONE);
        EXPECT_TRUE(asModelled()) << value << ' ' << own;
    }
}

TEST_F(CheckItem, of_a_check_box_is_off_at_exactly_zero_only)
{
    for (const float value :
         {0.0f, -0.0f, 0.001f, -1.0f, 1.0f, 1e-40f, std::numeric_limits<float>::quiet_NaN()}) {
        clear();
        drawValue(check(PTRN_CHCK), value);
        modelCheck(value == 0 ? 352 : 353, 4, NONE);
        EXPECT_TRUE(asModelled()) << value;
    }
}

TEST_F(CheckItem, is_blanked_when_disabled_or_erased)
{
    for (const int type : {PTRN_RDIO, PTRN_CHCK}) {
        for (const int backed : {0, 1}) {
            cover(50);
            PTRNDATA item = make(check(type).parm(CHECK_BACKED, backed), STATE_DISABLE | 1);
            draw(item);
            model->DrawRect(10, 20, 26, 36, 0, 0, 29, 29);
            model->ClearText(10 + 24, 20, 0, 29, "Auto");
            EXPECT_TRUE(asModelled()) << type;
            cover(50);
            erase(item);
            model->DrawRect(10, 20, 26, 36, 0, 0, 29, 29);
            model->ClearText(10 + 24, 20, 0, 29, "Auto");
            EXPECT_TRUE(asModelled()) << type;
        }
    }
}

TEST_F(CheckItem, in_a_font_that_is_not_there_draws_nothing)
{
    for (const int type : {PTRN_RDIO, PTRN_CHCK}) {
        PTRNDATA item = make(check(type).parm(CHECK_FONT, 7).parm(CHECK_BACKED, 1));
        draw(item);
        erase(item);
        EXPECT_TRUE(untouched());
    }
}

class ScrollBarItem : public ItemCanvas
{
};

TEST_F(ScrollBarItem, is_drawn_by_the_scroll_bar_in_any_state)
{
    for (const int state : {0, 3, STATE_DISABLE}) {
        for (const int updt : {0, 1}) {
            clear();
            PTRNDATA item = make(Pattern("p").item(PTRN_SBAR, 10, 20, 110, 40).code("A"), state);
            draw(item, updt);
            data().DispScrollBar(model.draw(), &item);
            EXPECT_TRUE(asModelled()) << state;
            EXPECT_NE(canvas.picture().bounds(Canvas::GROUND), "");
        }
    }
}

class SpinButton : public ItemCanvas
{
};

TEST_F(SpinButton, is_one_picture_in_any_state)
{
    for (const int state : {0, 3, STATE_DISABLE}) {
        clear();
        PTRNDATA item = make(Pattern("p").item(PTRN_SPIN, 40, 60, 10, 20), state);
        draw(item);
        model->DrawXpm(10, 20, 40, 60, XPM_SpinButn);
        EXPECT_TRUE(asModelled()) << state;
        EXPECT_EQ(canvas.picture().bounds(Canvas::GROUND), "10,20-39,59");
    }
}

TEST_F(SpinButton, and_scroll_bar_are_erased_as_a_filled_box)
{
    for (const int type : {PTRN_SBAR, PTRN_SPIN}) {
        canvas.clear();
        PTRNDATA item = make(Pattern("p").item(type, 40, 60, 10, 20));
        erase(item);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 40, 60, color(29)))) << type;
    }
}

} // namespace
