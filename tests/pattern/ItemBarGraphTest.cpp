// Bar graph. The bar's colour is 4, its background 8, the frame 12.
#include "comndata/LimtData.h"
#include "tests/pattern/ItemCanvas.h"

#include <limits>

using namespace tessary;

namespace
{

class BarGraphItem : public ItemCanvas
{
  protected:
    /// A graph at (10, 10)-(60, 80) from 0 to 100.
    static Pattern graph() { return Pattern("p").item(PTRN_BARG, 10, 10, 60, 80); }

    /// The picture of that graph with this value.
    Picture drawn(const Pattern& pattern, float value, int state = 0)
    {
        canvas.clear();
        PTRNDATA item = make(pattern, state);
        item.fData = value;
        draw(item);
        return canvas.picture();
    }

    Picture background() const { return canvas.blank().fill(10, 10, 60, 80, color(8)); }
};

TEST_F(BarGraphItem, grows_upwards_from_the_bottom)
{
    // 70 pixels for 100.
    EXPECT_TRUE(same(drawn(graph(), 50), background().fill(10, 45, 60, 80, color(4))));
    EXPECT_TRUE(same(drawn(graph(), 0), background()));
    EXPECT_TRUE(same(drawn(graph(), 100), background().fill(10, 10, 60, 80, color(4))));
}

TEST_F(BarGraphItem, grows_rightwards_from_the_left_when_horizontal)
{
    // 50 pixels for 100.
    for (const int horizontal : {1, 9, -1}) {
        const Pattern pattern = graph().parm(BARG_HORIZONTAL, horizontal);
        EXPECT_TRUE(same(drawn(pattern, 50), background().fill(10, 10, 35, 80, color(4))));
        EXPECT_TRUE(same(drawn(pattern, 0), background()));
        EXPECT_TRUE(same(drawn(pattern, 100), background().fill(10, 10, 60, 80, color(4))));
    }
}

TEST_F(BarGraphItem, truncates_the_level_towards_zero)
{
    EXPECT_TRUE(
        same(drawn(graph().parm(BARG_HORIZONTAL, 1), 51.9f), background().fill(10, 10, 35, 80, color(4))));
    EXPECT_TRUE(
        same(drawn(graph().parm(BARG_HORIZONTAL, 1), 52), background().fill(10, 10, 36, 80, color(4))));
    EXPECT_TRUE(same(drawn(graph(), 1.4f), background()));
    EXPECT_TRUE(same(drawn(graph(), 1.5f), background().fill(10, 79, 60, 80, color(4))));
}

TEST_F(BarGraphItem, has_colours_for_each_selection)
{
    for (int c = 0; c < 4; c++)
        EXPECT_TRUE(
            same(drawn(graph(), 50, c),
                 canvas.blank().fill(10, 10, 60, 80, color(8 + c)).fill(10, 45, 60, 80, color(4 + c))))
            << c;
}

TEST_F(BarGraphItem, scales_over_the_whole_item_and_holds_the_bar_inside_the_frame)
{
    // Frame 5 wide: the bar may reach from 15 to 55 and from 15 to 75; the scale stays 50 and 70 pixels.
    const Pattern framed = graph().parm(BARG_FRAME_WIDTH, 5);
    const auto frame = [](Picture picture) {
        for (int i = 0; i < 5; i++)
            picture.frame(10 + i, 10 + i, 60 - i, 80 - i, color(12));
        return picture;
    };
    EXPECT_TRUE(same(drawn(framed, 0), frame(background())));
    EXPECT_TRUE(same(drawn(framed, 50), frame(background().fill(15, 40, 55, 75, color(4)))));
    EXPECT_TRUE(same(drawn(framed, 90), frame(background().fill(15, 15, 55, 75, color(4)))));
    EXPECT_TRUE(same(drawn(framed, 1000), frame(background().fill(15, 15, 55, 75, color(4)))));
    EXPECT_TRUE(same(drawn(framed, -1000), frame(background())));
    const Pattern horizontal = graph().parm(BARG_FRAME_WIDTH, 5).parm(BARG_HORIZONTAL, 1);
    EXPECT_TRUE(same(drawn(horizontal, 50), frame(background().fill(15, 15, 40, 75, color(4)))));
    EXPECT_TRUE(same(drawn(horizontal, 1000), frame(background().fill(15, 15, 55, 75, color(4)))));
    EXPECT_TRUE(same(drawn(horizontal, -1000), frame(background())));
}

TEST_F(BarGraphItem, without_a_range_is_empty)
{
    EXPECT_TRUE(same(drawn(graph().parm(BARG_MINIMUM, 5).parm(BARG_MAXIMUM, 5), 5), background()));
    EXPECT_TRUE(same(drawn(graph().parm(BARG_MINIMUM, 9).parm(BARG_MAXIMUM, 5), 7), background()));
    EXPECT_TRUE(same(drawn(graph().parm(BARG_MINIMUM, 0).parm(BARG_MAXIMUM, -5), -2), background()));
}

TEST_F(BarGraphItem, without_range_and_limits_is_empty)
{
    EXPECT_TRUE(same(drawn(graph().parm(BARG_MAXIMUM, 0).code("A", 2), 7), background()));
}

TEST_F(BarGraphItem, with_a_range_of_two_zeros_takes_the_limit_table)
{
    LIMTDATA row{};
    row.DataNo1 = 20;
    row.DataNo2 = 1;
    row.MIN_Data = 20;
    row.MAX_Data = 60;
    LimtData[0] = &row;
    EXPECT_TRUE(same(drawn(graph().parm(BARG_MAXIMUM, 0).code("A", 2), 40),
                     background().fill(10, 45, 60, 80, color(4))));
    // Number 21 is not covered.
    EXPECT_TRUE(same(drawn(graph().parm(BARG_MAXIMUM, 0).code("B", 0), 40), background()));
    // A range of its own comes first.
    EXPECT_TRUE(same(drawn(graph().code("A", 2), 50), background().fill(10, 45, 60, 80, color(4))));
    LimtData[0] = nullptr;
}

TEST_F(BarGraphItem, of_a_range_below_zero_scales_by_its_length)
{
    const Pattern pattern = graph().parm(BARG_MINIMUM, -200).parm(BARG_MAXIMUM, -100);
    EXPECT_TRUE(same(drawn(pattern, -150), background().fill(10, 45, 60, 80, color(4))));
}

TEST_F(BarGraphItem, shows_a_full_or_empty_bar_for_values_without_measure)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_TRUE(same(drawn(graph(), infinity), background().fill(10, 10, 60, 80, color(4))));
    EXPECT_TRUE(same(drawn(graph(), -infinity), background()));
    EXPECT_TRUE(same(drawn(graph(), std::numeric_limits<float>::quiet_NaN()), background()));
    EXPECT_TRUE(
        same(drawn(graph(), std::numeric_limits<float>::max()), background().fill(10, 10, 60, 80, color(4))));
}

TEST_F(BarGraphItem, with_a_needle_shows_a_line_at_the_level)
{
    for (const int wide : {1, 2, 3, 4}) {
        clear();
        PTRNDATA item = make(graph().parm(BARG_NEEDLE_WIDTH, wide));
        item.fData = 50;
        draw(item);
        model->DrawRect(10, 10, 60, 80, 0, 0, 8, 8);
        model->DrawLine(10, 45, 60, 45, 0, wide, 0, 4);
        EXPECT_TRUE(asModelled()) << wide;
        clear();
        item = make(graph().parm(BARG_NEEDLE_WIDTH, wide).parm(BARG_HORIZONTAL, 1));
        item.fData = 50;
        draw(item);
        model->DrawRect(10, 10, 60, 80, 0, 0, 8, 8);
        model->DrawLine(35, 10, 35, 80, 0, wide, 0, 4);
        EXPECT_TRUE(asModelled()) << wide;
    }
}

TEST_F(BarGraphItem, holds_a_needle_of_three_inside_its_ends)
{
    // Inner height 10: ya = 11, yb = 21, so that the level stays from 13 to 20.
    const Pattern vertical =
        Pattern("p").item(PTRN_BARG, 10, 10, 60, 22).parm(BARG_NEEDLE_WIDTH, 3).parm(BARG_FRAME_WIDTH, 1);
    for (const auto& [value, level] : {std::pair{1000.0f, 13}, std::pair{-1000.0f, 20}}) {
        clear();
        PTRNDATA item = make(vertical);
        item.fData = value;
        draw(item);
        model->DrawRect(10, 10, 60, 22, 0, 0, 8, 8);
        model->DrawLine(11, level, 59, level, 0, 3, 0, 4);
        model->DrawRect(10, 10, 60, 22, 1, 1, 12, -1);
        EXPECT_TRUE(asModelled()) << value;
    }
    // Inner width 10: xa = 11, xb = 21, so that the level stays from 12 to 19.
    const Pattern horizontal = Pattern("p")
                                   .item(PTRN_BARG, 10, 10, 22, 60)
                                   .parm(BARG_NEEDLE_WIDTH, 3)
                                   .parm(BARG_FRAME_WIDTH, 1)
                                   .parm(BARG_HORIZONTAL, 1);
    for (const auto& [value, level] : {std::pair{1000.0f, 19}, std::pair{-1000.0f, 12}}) {
        clear();
        PTRNDATA item = make(horizontal);
        item.fData = value;
        draw(item);
        model->DrawRect(10, 10, 22, 60, 0, 0, 8, 8);
        model->DrawLine(level, 11, level, 59, 0, 3, 0, 4);
        model->DrawRect(10, 10, 22, 60, 1, 1, 12, -1);
        EXPECT_TRUE(asModelled()) << value;
    }
}

TEST_F(BarGraphItem, with_a_negative_needle_shows_no_bar)
{
    EXPECT_TRUE(same(drawn(graph().parm(BARG_NEEDLE_WIDTH, -3), 50), background()));
}

TEST_F(BarGraphItem, with_exchanged_corners_grows_the_other_way)
{
    const Pattern vertical = Pattern("p").item(PTRN_BARG, 60, 80, 10, 10);
    EXPECT_TRUE(same(drawn(vertical, 50), background().fill(10, 10, 60, 45, color(4))));
    EXPECT_TRUE(same(drawn(Pattern(vertical).parm(BARG_HORIZONTAL, 1), 50),
                     background().fill(35, 10, 60, 80, color(4))));
}

TEST_F(BarGraphItem, in_a_frame_wider_than_itself_is_all_frame)
{
    const Picture picture = drawn(Pattern("p").item(PTRN_BARG, 30, 30, 40, 40).parm(BARG_FRAME_WIDTH, 8), 50);
    EXPECT_EQ(picture.at(35, 33), color(12));
    EXPECT_EQ(picture.at(29, 29), Canvas::GROUND);
}

TEST_F(BarGraphItem, is_erased_as_a_filled_box)
{
    PTRNDATA item = make(graph().parm(BARG_FRAME_WIDTH, 5));
    erase(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 10, 60, 80, color(29))));
}

} // namespace
