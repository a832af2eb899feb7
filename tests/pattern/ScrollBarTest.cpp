// Layout, parts and dragging of scroll bars.
#include "tests/pattern/LoadedPattern.h"

#include <limits>
#include <string>
#include <vector>

using namespace tessary;

namespace
{

constexpr int INT_HIGH = std::numeric_limits<int>::max();
constexpr int INT_LOW = std::numeric_limits<int>::min();

std::string text(const RECT& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "-" + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

class Bar : public LoadedPattern
{
  protected:
    static Pattern vertical()
    {
        // Inner area 1..19 x 1..199, buttons of 18: trough 37..163 with both pairs, thumb 12 long.
        return Pattern("p")
            .item(PTRN_SBAR, 0, 0, 20, 200)
            .code("A")
            .parm(SBAR_VERTICAL, 1)
            .parm(SBAR_WIDTH, 0)
            .parm(SBAR_ARROWS, 1)
            .parm(SBAR_PAGES, 1);
    }
    static Pattern horizontal()
    {
        return Pattern("p").item(PTRN_SBAR, 0, 0, 200, 20).code("A").parm(SBAR_WIDTH, 0).parm(SBAR_PAGES, 1);
    }

    int part(int x, int y) { return data().TestScrollBar(POINT{x, y}, &item()); }
    int drag(int x, int y) { return data().SetScrollPos(POINT{x, y}, &item()); }
    std::vector<std::string> layout()
    {
        data().SetScrollBar(&item());
        std::vector<std::string> parts;
        for (const RECT& rect :
             {data().SCrect1, data().SCrect2, data().SCrect3, data().SCrect4, data().SCrect5, data().SCrect6})
            parts.push_back(text(rect));
        return parts;
    }
};

using testing::ElementsAre;

} // namespace

TEST_F(Bar, is_laid_out_downwards_with_page_buttons_outside_arrow_buttons)
{
    load(vertical());
    set(1, 45.0F);

    // Thumb: 126 x 10 / 100 = 12 long, (126 - 12) x 45 / 90 = 57 from the trough's begin.
    EXPECT_THAT(layout(), ElementsAre("1,1-19,19", "1,181-19,199", "1,19-19,37", "1,163-19,181",
                                      "3,94-17,106", "1,37-19,163"));
    EXPECT_EQ(data().SCrect5.height, 12);
    EXPECT_EQ(data().SCrect6.height, 126);
}

TEST_F(Bar, is_laid_out_to_the_right_in_the_same_way)
{
    load(horizontal());
    set(1, 45.0F);

    EXPECT_THAT(layout(), ElementsAre("1,1-19,19", "181,1-199,19", "19,1-37,19", "163,1-181,19",
                                      "94,3-106,17", "37,1-163,19"));
    EXPECT_EQ(data().SCrect5.width, 12);
}

TEST_F(Bar, has_its_arrow_buttons_at_the_ends_when_there_are_no_page_buttons)
{
    load(vertical().parm(SBAR_PAGES, 0));

    // Trough 19..181: thumb 162 x 10 / 100 = 16. The absent buttons are empty, at the trough's ends.
    EXPECT_THAT(layout(), ElementsAre("1,19-19,19", "1,181-19,181", "1,1-19,19", "1,181-19,199", "3,19-17,35",
                                      "1,19-19,181"));
}

TEST_F(Bar, has_its_trough_between_the_page_buttons_when_there_are_no_arrow_buttons)
{
    load(vertical().parm(SBAR_ARROWS, 0));

    EXPECT_THAT(layout(), ElementsAre("1,1-19,19", "1,181-19,199", "1,19-19,19", "1,181-19,181", "3,19-17,35",
                                      "1,19-19,181"));
}

TEST_F(Bar, is_all_trough_without_buttons)
{
    load(horizontal().parm(SBAR_PAGES, 0).parm(SBAR_ARROWS, 0));

    // 198 x 10 / 100 = 19.
    EXPECT_THAT(layout(), ElementsAre("1,1-1,19", "199,1-199,19", "1,1-1,19", "199,1-199,19", "1,3-20,17",
                                      "1,1-199,19"));
}

TEST_F(Bar, forgets_the_buttons_of_the_bar_laid_out_before)
{
    load(vertical().item(PTRN_SBAR, 100, 0, 120, 200).parm(SBAR_VERTICAL, 1).parm(SBAR_ARROWS, 0));
    data().SetScrollBar(&item(0));
    data().SetScrollBar(&item(1));

    EXPECT_EQ(text(data().SCrect1), "101,1-119,1");
    EXPECT_EQ(text(data().SCrect4), "101,199-119,199");
}

TEST_F(Bar, is_inset_by_its_frame)
{
    load(vertical().parm(SBAR_WIDTH, 3).parm(SBAR_PAGES, 0).parm(SBAR_ARROWS, 0));

    EXPECT_EQ(layout()[5], "3,3-17,197");
}

TEST_F(Bar, uses_the_corners_as_they_are_written)
{
    load(Pattern("p").item(PTRN_SBAR, 200, 20, 0, 0).code("A").parm(SBAR_ARROWS, 0));

    // Insets go outwards: 201 to -1 and 21 to -1.
    EXPECT_EQ(layout()[5], "-1,-1-201,21");
}

TEST_F(Bar, reads_its_value_afresh_and_does_not_hold_it_to_the_range)
{
    load(vertical());
    EXPECT_EQ(layout()[4], "3,37-17,49");
    set(1, 90.0F);
    EXPECT_EQ(layout()[4], "3,151-17,163");
    set(1, 180.0F);
    EXPECT_EQ(layout()[4], "3,265-17,277") << "past the end of the trough";
    set(1, 45.9F);
    EXPECT_EQ(layout()[4], "3,94-17,106") << "the value is an integer";
}

TEST_F(Bar, may_have_a_thumb_without_length)
{
    load(vertical().parm(SBAR_VISIBLE, 1).parm(SBAR_TOTAL, 1000));

    EXPECT_EQ(layout()[4], "3,37-17,37");
}

TEST_F(Bar, tells_its_parts)
{
    load(vertical());
    set(1, 45.0F);

    EXPECT_EQ(part(10, 10), 1);
    EXPECT_EQ(part(10, 190), 2);
    EXPECT_EQ(part(10, 28), 3);
    EXPECT_EQ(part(10, 172), 4);
    EXPECT_EQ(part(10, 100), 5);
    EXPECT_EQ(part(10, 60), 6);
    EXPECT_EQ(part(10, 140), 7);
}

TEST_F(Bar, tells_its_parts_when_it_lies)
{
    load(horizontal());
    set(1, 45.0F);

    EXPECT_EQ(part(10, 10), 1);
    EXPECT_EQ(part(190, 10), 2);
    EXPECT_EQ(part(28, 10), 3);
    EXPECT_EQ(part(172, 10), 4);
    EXPECT_EQ(part(100, 10), 5);
    EXPECT_EQ(part(60, 10), 6);
    EXPECT_EQ(part(140, 10), 7);
}

TEST_F(Bar, gives_a_common_edge_to_the_part_that_is_tested_first)
{
    load(vertical());
    set(1, 45.0F);

    EXPECT_EQ(part(10, 19), 1) << "page button and arrow button";
    EXPECT_EQ(part(10, 181), 2) << "arrow button and page button";
    EXPECT_EQ(part(10, 37), 3) << "arrow button and trough";
    EXPECT_EQ(part(10, 163), 4);
    EXPECT_EQ(part(10, 94), 5) << "trough and thumb";
    EXPECT_EQ(part(10, 106), 5);
}

TEST_F(Bar, has_margins_that_are_no_part)
{
    load(vertical());
    set(1, 45.0F);

    EXPECT_EQ(part(0, 10), 0) << "the frame";
    EXPECT_EQ(part(2, 100), 0) << "left of the thumb";
    EXPECT_EQ(part(18, 100), 0) << "right of it";
    EXPECT_EQ(part(17, 60), 6) << "the trough before the thumb is as wide as arrow button to thumb";
    EXPECT_EQ(part(18, 60), 0);
    EXPECT_EQ(part(1, 60), 6);
    EXPECT_EQ(part(2, 140), 0) << "the trough behind it from thumb to arrow button";
    EXPECT_EQ(part(3, 140), 7);
    EXPECT_EQ(part(19, 140), 7);
}

TEST_F(Bar, is_no_part_outside_its_rectangle)
{
    load(vertical());

    EXPECT_EQ(part(21, 10), 0);
    EXPECT_EQ(part(10, 201), 0);
    EXPECT_EQ(part(-1, 10), 0);
}

TEST_F(Bar, has_no_parts_for_buttons_that_are_absent)
{
    load(vertical().parm(SBAR_PAGES, 0).parm(SBAR_ARROWS, 0));
    set(1, 45.0F);

    // Trough 1..199, thumb 19 long from 1 + 179 x 45 / 90 = 90 on.
    EXPECT_EQ(part(10, 1), 6);
    EXPECT_EQ(part(10, 199), 7);
    EXPECT_EQ(part(10, 89), 6);
    EXPECT_EQ(part(10, 90), 5);
    EXPECT_EQ(part(10, 109), 5);
    EXPECT_EQ(part(10, 110), 7);
}

TEST_F(Bar, has_no_parts_while_everything_is_visible)
{
    for (const int visible : {100, 101, INT_HIGH}) {
        load(vertical().parm(SBAR_VISIBLE, visible));
        for (int y = 0; y <= 200; ++y)
            ASSERT_EQ(part(10, y), 0) << visible << " " << y;
    }
}

TEST_F(Bar, remembers_where_its_thumb_was_grabbed)
{
    load(vertical());
    set(1, 45.0F);

    ASSERT_EQ(part(10, 99), 5);
    EXPECT_EQ(data().SCoffset.cx, 7);
    EXPECT_EQ(data().SCoffset.cy, 5);
    part(10, 140);
    EXPECT_EQ(data().SCoffset.cy, 46) << "any part sets it";
}

TEST_F(Bar, is_dragged_by_the_point_that_was_grabbed)
{
    load(vertical());
    set(1, 45.0F);
    ASSERT_EQ(part(10, 99), 5);

    // The thumb can move 126 - 12 = 114 pixels for 90 positions.
    EXPECT_EQ(drag(10, 99), 0) << "not moved";
    EXPECT_EQ(drag(10, 99 + 38), 1);
    EXPECT_EQ(value(1), (57 + 38) * 90 / 114);
    EXPECT_EQ(drag(500, 99 + 38), 0) << "across the bar nothing moves";
    EXPECT_EQ(drag(10, 99 - 57), 1);
    EXPECT_EQ(value(1), 0.0F);
}

TEST_F(Bar, is_dragged_sideways_when_it_lies)
{
    load(horizontal());
    set(1, 45.0F);
    ASSERT_EQ(part(96, 10), 5);

    EXPECT_EQ(drag(96 + 19, 500), 1);
    EXPECT_EQ(value(1), 76 * 90 / 114);
}

TEST_F(Bar, stops_a_drag_at_the_ends)
{
    load(vertical());
    set(1, 45.0F);
    ASSERT_EQ(part(10, 99), 5);

    EXPECT_EQ(drag(10, -1000), 1);
    EXPECT_EQ(value(1), 0.0F);
    EXPECT_EQ(drag(10, -2000), 0);
    EXPECT_EQ(drag(10, 1000), 1);
    EXPECT_EQ(value(1), 90.0F);
    EXPECT_EQ(drag(10, INT_HIGH), 0);
}

TEST_F(Bar, drags_with_the_layout_of_the_press)
{
    load(vertical());
    set(1, 45.0F);
    ASSERT_EQ(part(10, 99), 5);
    set(1, 0.0F); // the thumb would lie elsewhere now

    EXPECT_EQ(drag(10, 99), 1);
    EXPECT_EQ(value(1), 45.0F);
}

TEST_F(Bar, can_not_be_dragged_when_the_thumb_fills_the_trough)
{
    // Buttons of 18 on 74 pixels leave a trough of 0.
    load(vertical().item(PTRN_SBAR, 0, 0, 20, 74).code("A", 1).parm(SBAR_VERTICAL, 1).parm(SBAR_PAGES, 1));
    set(2, 45.0F);
    ASSERT_EQ(data().TestScrollBar(POINT{10, 37}, &item(1)), 3);

    EXPECT_EQ(data().SetScrollPos(POINT{10, 500}, &item(1)), 0);
    EXPECT_EQ(value(2), 45.0F);
}

TEST_F(Bar, survives_any_numbers)
{
    const std::vector<int> values{INT_LOW, -3, 0, 1, 100, INT_HIGH};
    for (const int upright : {0, 1})
        for (const int corner : values)
            for (const int frame : values)
                for (const int visible : values)
                    for (const int total : values) {
                        load(Pattern("p")
                                 .item(PTRN_SBAR, corner, -corner / 2, total, visible)
                                 .code("A")
                                 .parm(SBAR_VERTICAL, upright)
                                 .parm(SBAR_PAGES, 1)
                                 .parm(SBAR_WIDTH, frame)
                                 .parm(SBAR_VISIBLE, visible)
                                 .parm(SBAR_TOTAL, total));
                        for (const float cell : {-3e38F, 0.0F, 3e38F}) {
                            set(1, cell);
                            layout();
                            for (const int at : values) {
                                const int hit = part(at, at);
                                ASSERT_TRUE(hit >= 0 && hit <= 7);
                                drag(at, at);
                            }
                        }
                    }
}

TEST(SpinHalves, are_told_by_the_middle_of_the_rectangle)
{
    CPtrnData data("");
    PTRNDATA spin{};
    spin.Type = PTRN_SPIN;
    spin.Rect = SetRect(10, 0, 40, 21);

    EXPECT_EQ(data.TestSpinButn(POINT{20, 0}, &spin), 1);
    EXPECT_EQ(data.TestSpinButn(POINT{20, 10}, &spin), 1) << "the middle belongs to the upper half";
    EXPECT_EQ(data.TestSpinButn(POINT{20, 11}, &spin), 2);
    EXPECT_EQ(data.TestSpinButn(POINT{40, 21}, &spin), 2);
    EXPECT_EQ(data.TestSpinButn(POINT{20, 22}, &spin), 0);
    EXPECT_EQ(data.TestSpinButn(POINT{9, 5}, &spin), 0);

    spin.Rect = SetRect(INT_LOW, INT_LOW, INT_HIGH, INT_HIGH);
    EXPECT_EQ(data.TestSpinButn(POINT{0, -2}, &spin), 1);
    EXPECT_EQ(data.TestSpinButn(POINT{0, 1}, &spin), 2);
}
