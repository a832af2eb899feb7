// The frame of a pattern: title bar, body, band and outer frame, and what a point in the bar hits.
#include "draw/Images.h"
#include "tests/pattern/TitleFrame.h"

using namespace tessary;

namespace
{

constexpr int NONE = -1;

void expectRect(const RECT& rect, int left, int top, int right, int bottom)
{
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
}

class TitleBar : public Frame
{
};

TEST_F(TitleBar, has_its_title_at_the_left)
{
    show(titled());
    modelGround();
    model->DrawText(7, 8, 0, 9, 10, "Plant"); // margin (30 - 14) / 2, indent 14 / 2
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleBar, has_its_title_in_the_middle_when_told_to)
{
    for (const int centred : {1, -4}) {
        canvas.clear();
        model.clear();
        show(titled("漢字 Plant").header(HEDR_TITLE_CENTERED, centred));
        modelGround();
        const int width = model->GetTextSize(0, "漢字 Plant").cx;
        model->DrawText((W - width) / 2, 8, 0, 9, 10, "漢字 Plant");
        EXPECT_TRUE(asModelled());
    }
}

TEST_F(TitleBar, divides_an_odd_margin_towards_zero)
{
    show(titled().header(HEDR_TITLE_HEIGHT, 29));
    modelGround(29);
    model->DrawText(7, 7, 0, 9, 10, "Plant");
    EXPECT_TRUE(asModelled());
    canvas.clear();
    model.clear();
    show(titled().header(HEDR_TITLE_HEIGHT, 11)); // (11 - 14) / 2 = -1
    modelGround(11);
    model->DrawRect(0, 0, W, 11, 0, 0, 10, 10);
    model->DrawText(7, -1, 0, 9, 10, "Plant");
    model->DrawRect(0, 11, W, H, 0, 0, 19, 19);
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleBar, has_a_logo_in_a_square_as_high_as_the_title)
{
    show(titled().header(HEDR_LOGO, 1).logo("dot.ppm"));
    modelGround();
    model->DrawBmap(8, 8, 22, 22, NONE, "dot.ppm");
    model->DrawText(29, 8, 0, 9, 10, "Plant"); // 14 + 8 + 14 / 2
    EXPECT_TRUE(asModelled());
    expectRect(data().LogoMarkButn, 8, 8, 22, 22);
    EXPECT_EQ(canvas.picture().at(8, 8), 0x112233u);
}

TEST_F(TitleBar, has_no_logo_without_a_name_or_without_the_flag)
{
    show(titled().header(HEDR_LOGO, 1));
    modelGround();
    model->DrawText(7, 8, 0, 9, 10, "Plant");
    EXPECT_TRUE(asModelled());
    expectRect(data().LogoMarkButn, 0, 0, 0, 0);
    show(titled().logo("dot.ppm"));
    EXPECT_TRUE(asModelled());
    expectRect(data().LogoMarkButn, 0, 0, 0, 0);
}

TEST_F(TitleBar, moves_its_title_right_of_a_logo_whose_file_is_missing)
{
    show(titled().header(HEDR_LOGO, 1).logo("none.ppm"));
    modelGround();
    model->DrawText(29, 8, 0, 9, 10, "Plant");
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleBar, has_a_hard_copy_button_at_the_right)
{
    show(titled().header(HEDR_HARDCOPY, 1));
    modelGround();
    model->DrawText(7, 8, 0, 9, 10, "Plant");
    model->DrawXpm(618, 8, 632, 22, XPM_Printer);
    EXPECT_TRUE(asModelled());
    expectRect(data().HardCopyButn, 618, 8, 632, 22);
    EXPECT_EQ(data().PtrnCalnPos, 30); // two margins and the button
}

TEST_F(TitleBar, keeps_one_margin_free_without_a_hard_copy_button)
{
    show(titled());
    EXPECT_EQ(data().PtrnCalnPos, 8);
    expectRect(data().HardCopyButn, 0, 0, 0, 0);
}

TEST_F(TitleBar, of_no_height_leaves_the_whole_pattern_to_the_body)
{
    setClock(2025, 3, 2, 0, 9, 5, 7);
    show(titled()
             .header(HEDR_TITLE_HEIGHT, 0)
             .header(HEDR_LOGO, 1)
             .logo("dot.ppm")
             .header(HEDR_HARDCOPY, 1)
             .header(HEDR_CLOCK, 3));
    modelGround(0);
    EXPECT_TRUE(asModelled());
    data().DispCalender(canvas.draw());
    EXPECT_TRUE(asModelled());
}

TEST_F(TitleBar, in_a_font_that_is_not_loaded_is_bare)
{
    show(titled().header(HEDR_TITLE_FONT, 5).header(HEDR_LOGO, 1).logo("dot.ppm").header(HEDR_HARDCOPY, 1));
    modelGround();
    EXPECT_TRUE(asModelled());
    expectRect(data().LogoMarkButn, 15, 15, 15, 15);
    expectRect(data().HardCopyButn, W - 15, 15, W - 15, 15);
}

class Body : public Frame
{
};

TEST_F(Body, may_be_shaded)
{
    show(titled("").header(HEDR_BODY_SHADED, 1));
    model->DrawRect(0, 0, W, T, 0, 0, 10, 10);
    model->DrawRect(0, T, W, H, 19);
    EXPECT_TRUE(asModelled());
}

TEST_F(Body, may_be_a_bitmap)
{
    for (const int shaded : {0, 1}) {
        show(titled("").bitmap("dot.ppm").header(HEDR_BODY_SHADED, shaded).header(HEDR_BAND_HEIGHT, 20));
        const Picture expected = canvas.blank()
                                     .fill(0, 0, W, T, color(10))
                                     .fill(0, T, W, 70, 0x112233)
                                     .fill(0, 70, W, H, color(22));
        EXPECT_TRUE(same(canvas.picture(), expected));
    }
}

TEST_F(Body, keeps_the_ground_where_its_bitmap_is_missing)
{
    show(titled("").bitmap("none.ppm"));
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, W, T, color(10))));
}

TEST_F(Body, ends_above_the_band)
{
    show(titled("").header(HEDR_BAND_HEIGHT, 20));
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()
                                           .fill(0, 0, W, T, color(10))
                                           .fill(0, T, W, 70, color(19))
                                           .fill(0, 70, W, H, color(22))));
    show(titled("").header(HEDR_BAND_HEIGHT, 20).header(HEDR_BODY_SHADED, 1));
    model->DrawRect(0, 0, W, T, 0, 0, 10, 10);
    model->DrawRect(0, T, W, 70, 19);
    model->DrawRect(0, 70, W, H, 0, 0, 22, 22);
    EXPECT_TRUE(asModelled());
}

TEST_F(Body, is_framed_inside_the_pattern_of_kind_one)
{
    show(titled("").header(HEDR_KIND, 1).header(HEDR_FRAME_WIDTH, 3));
    modelGround();
    model->DrawRect(0, 0, W, H, 3, 1, 24, NONE);
    EXPECT_TRUE(asModelled());
    EXPECT_EQ(canvas.picture().at(W, H),
              color(24)); // an outline has both corners; a window does not show them
    EXPECT_EQ(canvas.picture().at(W - 3, 50), color(19));
}

TEST_F(Body, has_no_frame_of_another_kind_or_without_a_width)
{
    modelGround();
    for (const int kind : {0, 2, -1}) {
        show(titled("").header(HEDR_KIND, kind).header(HEDR_FRAME_WIDTH, 3));
        EXPECT_TRUE(asModelled()) << kind;
    }
    show(titled("").header(HEDR_KIND, 1));
    EXPECT_TRUE(asModelled());
}

class TestTitleBar : public Frame
{
  protected:
    int test(int x, int y, int butn) { return data().TestTitle(POINT{x, y}, butn); }
};

TEST_F(TestTitleBar, includes_all_edges_of_the_bar)
{
    load(titled());
    for (const auto& [x, y] :
         {std::pair{0, 0}, std::pair{W, T}, std::pair{W, 0}, std::pair{0, T}, std::pair{300, 20}})
        EXPECT_EQ(test(x, y, 0), 1) << x << ' ' << y;
    for (const auto& [x, y] :
         {std::pair{-1, 0}, std::pair{0, -1}, std::pair{W + 1, T}, std::pair{W, T + 1}}) {
        for (const int butn : {0, 1, 2})
            EXPECT_EQ(test(x, y, butn), 0) << x << ' ' << y;
    }
}

TEST_F(TestTitleBar, is_a_drag_area_of_kind_one_only)
{
    for (const int kind : {0, 1, 2}) {
        load(titled().header(HEDR_KIND, kind));
        EXPECT_EQ(test(300, 20, 0), 1);
        EXPECT_EQ(test(300, 20, 1), kind == 1 ? 3 : 0);
        EXPECT_EQ(test(300, 20, 2), kind == 1 ? 3 : 0);
    }
}

TEST_F(TestTitleBar, lets_the_logo_answer_each_button_by_its_flag)
{
    for (const int left : {0, 1, -2}) {
        for (const int right : {0, 1, 5}) {
            show(titled()
                     .header(HEDR_KIND, 1)
                     .header(HEDR_LOGO, 1)
                     .logo("dot.ppm")
                     .header(HEDR_LOGO_LEFT, left)
                     .header(HEDR_LOGO_RIGHT, right));
            for (const int corner : {8, 22}) {
                EXPECT_EQ(test(corner, corner, 0), 1);
                EXPECT_EQ(test(corner, corner, 1), left != 0);
                EXPECT_EQ(test(corner, corner, 2), right != 0);
                EXPECT_EQ(test(corner, corner, 3), 0);
            }
            EXPECT_EQ(test(23, 8, 1), 3);
            EXPECT_EQ(test(7, 8, 1), 3);
        }
    }
}

TEST_F(TestTitleBar, answers_for_the_hard_copy_button)
{
    show(titled().header(HEDR_KIND, 1).header(HEDR_HARDCOPY, 1));
    for (const int butn : {1, 2}) {
        EXPECT_EQ(test(618, 8, butn), 2);
        EXPECT_EQ(test(632, 22, butn), 2);
        EXPECT_EQ(test(617, 8, butn), 3);
        EXPECT_EQ(test(633, 22, butn), 3);
    }
    EXPECT_EQ(test(618, 8, 0), 1);
    load(titled().header(HEDR_HARDCOPY, 1));
    EXPECT_EQ(test(618, 8, 1), 0); // not drawn yet: the button has no place
}

TEST_F(TestTitleBar, tests_the_logo_before_the_hard_copy_button)
{
    show(titled().header(HEDR_LOGO, 1).logo("dot.ppm").header(HEDR_HARDCOPY, 1));
    data().LogoMarkButn = data().HardCopyButn;
    EXPECT_EQ(test(620, 10, 1), 0);
    data().PtrnHedr.Parm1[HEDR_LOGO] = 0;
    EXPECT_EQ(test(620, 10, 1), 2);
}

TEST_F(TestTitleBar, has_a_logo_without_a_name_where_the_last_one_was)
{
    show(titled().header(HEDR_KIND, 1).header(HEDR_LOGO, 1).header(HEDR_LOGO_LEFT, 1));
    EXPECT_EQ(test(0, 0, 1), 1); // its rectangle is still the initial one
    EXPECT_EQ(test(8, 8, 1), 3);
}

TEST_F(TestTitleBar, without_a_bar_is_nothing_everywhere)
{
    show(titled()
             .header(HEDR_TITLE_HEIGHT, 0)
             .header(HEDR_KIND, 1)
             .header(HEDR_LOGO, 1)
             .header(HEDR_HARDCOPY, 1));
    for (const int butn : {0, 1, 2}) {
        EXPECT_EQ(test(0, 0, butn), 0);
        EXPECT_EQ(test(300, 20, butn), 0);
    }
}

class DamagedHeader : public Frame
{
};

TEST_F(DamagedHeader, draws_what_fits_and_does_no_harm)
{
    const int sizes[] = {INT32_MIN, -2000000000, -1, 0, 1, 50, 65536, 2000000000, INT32_MAX};
    for (const int width : sizes) {
        for (const int height : sizes) {
            for (const int other : sizes) {
                load(Pattern("p")
                         .size(width, height)
                         .title("Plant")
                         .logo("dot.ppm")
                         .header(HEDR_TITLE_HEIGHT, other)
                         .header(HEDR_BAND_HEIGHT, other)
                         .header(HEDR_KIND, 1)
                         .header(HEDR_FRAME_WIDTH, 3)
                         .header(HEDR_LOGO, 1)
                         .header(HEDR_HARDCOPY, 1)
                         .header(HEDR_CLOCK, 3)
                         .header(HEDR_TITLE_CENTERED, other & 1));
                data().DispTitle(canvas.draw());
                for (const int butn : {0, 1, 2})
                    data().TestTitle(POINT{other, width}, butn);
            }
        }
    }
    canvas.clear();
    show(titled(""));
    modelGround();
    EXPECT_TRUE(asModelled());
}

TEST_F(DamagedHeader, with_a_bar_or_band_higher_than_the_pattern_has_no_body)
{
    show(titled("").header(HEDR_TITLE_HEIGHT, H + 5));
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, W, H + 5, color(10))));
    canvas.clear();
    show(titled("").header(HEDR_BAND_HEIGHT, H));
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, W, H, color(22))));
}

TEST_F(DamagedHeader, with_a_shade_of_no_colour_has_no_body)
{
    show(titled("").header(HEDR_BODY_SHADED, 1).header(HEDR_BODY_COLOR, 100));
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, W, T, color(10))));
}

using DamagedHeaderDeathTest = DamagedHeader;

TEST_F(DamagedHeaderDeathTest, with_a_number_out_of_range_meets_the_contract)
{
    load(titled().header(HEDR_TITLE_BACK, 100));
    EXPECT_DEATH(data().DispTitle(canvas.draw()), "DrawRect.*colr1 < CONT_COLR");
    load(titled().header(HEDR_TITLE_FONT, 20));
    EXPECT_DEATH(data().DispTitle(canvas.draw()), "DrawText.*font < CONT_FONT");
}

} // namespace
