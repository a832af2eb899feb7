// Which item lies under the pointer.
#include "draw/Resource.h"
#include "tests/pattern/LoadedPattern.h"

#include <algorithm>
#include <limits>
#include <vector>

using namespace tessary;

namespace
{

using testing::ElementsAreArray;

constexpr int INT_HIGH = std::numeric_limits<int>::max();
constexpr int INT_LOW = std::numeric_limits<int>::min();

class ItemHit : public LoadedPattern
{
  protected:
    ItemHit() { FontSize[0] = {8, 16}; }
    ~ItemHit() override { std::fill(std::begin(FontSize), std::end(FontSize), SIZE{0, 0}); }

    int at(int x, int y) { return data().TestPtrnData(POINT{x, y}); }
    bool hits(int x, int y) { return at(x, y) == 0; }
};

} // namespace

TEST_F(ItemHit, is_the_item_of_the_type_that_is_drawn_last)
{
    // Every type at the same place; the font's cell is large enough for texts and labels to cover the point.
    FontSize[0] = {20, 100};
    Pattern pattern("p");
    for (int type = 1; type <= PTRN_SPIN; ++type)
        pattern.item(type, 0, 0, 100, 100).action(1).parm(FIELD_WIDTH, 5);
    load(pattern);

    std::vector<int> hit;
    for (int recd = at(50, 50); recd >= 0; recd = at(50, 50)) {
        hit.push_back(item(recd).Type);
        item(recd).wData |= STATE_HIDDEN;
    }

    EXPECT_THAT(hit, ElementsAreArray({8, 7, 6, 11, 10, 9, 15, 14, 13, 12, 2, 5, 4, 3, 1}));
}

TEST_F(ItemHit, is_an_item_of_pass_1_before_any_of_pass_0)
{
    load(Pattern("p").item(PTRN_BUTN, 0, 0, 99, 99).action(1).item(PTRN_GBOX, 0, 0, 50, 50).action(1).top());

    EXPECT_EQ(at(20, 20), 1);
    EXPECT_EQ(at(80, 80), 0);
    EXPECT_EQ(data().TestPtrnData(POINT{20, 20}, 0), 0);
    EXPECT_EQ(data().TestPtrnData(POINT{80, 80}, 1), -1);
}

TEST_F(ItemHit, is_the_earlier_in_the_file_of_one_type_although_the_later_lies_on_top)
{
    load(Pattern("p").item(PTRN_BUTN, 0, 0, 99, 99).action(1).item(PTRN_BUTN, 0, 0, 99, 99).action(1));

    EXPECT_EQ(at(20, 20), 0);
}

TEST_F(ItemHit, is_the_earlier_in_the_file_among_many_too)
{
    Pattern pattern("p");
    for (int i = 0; i < 300; ++i)
        pattern.item(i % 3 == 0 ? PTRN_BUTN : PTRN_RECT, 0, 0, 99, 99).action(1).top(i % 2);
    load(pattern);

    // Pass 1 are the odd ones, and of these 3, 9, 15... are buttons.
    for (int expected = 3; expected < 300; expected += 6) {
        ASSERT_EQ(at(20, 20), expected);
        item(expected).wData = STATE_HIDDEN;
    }
    EXPECT_EQ(at(20, 20), 1) << "the first rectangle of pass 1";
}

TEST_F(ItemHit, skips_hidden_and_frozen_items_but_not_disabled_ones)
{
    load(Pattern("p").item(PTRN_BUTN, 0, 0, 99, 99).action(1).item(PTRN_RECT, 0, 0, 99, 99).action(1));
    ASSERT_EQ(at(20, 20), 0);

    item(0).wData = STATE_HIDDEN;
    EXPECT_EQ(at(20, 20), 1);
    item(0).wData = STATE_FROZEN;
    EXPECT_EQ(at(20, 20), 1);
    item(0).wData = STATE_DISABLE | STATE_FLICKER | STATE_NEVER | STATE_COLOR;
    EXPECT_EQ(at(20, 20), 0);
}

TEST_F(ItemHit, uses_the_state_of_the_last_display_not_the_cell)
{
    setState(1, STATE_HIDDEN);
    load(Pattern("p").item(PTRN_BUTN, 0, 0, 99, 99).code("A"));

    EXPECT_EQ(at(20, 20), 0);
}

TEST_F(ItemHit, goes_through_items_without_action_and_data)
{
    load(Pattern("p")
             .item(PTRN_BUTN, 0, 0, 99, 99)
             .item(PTRN_MARK, 0, 0, 99, 99)
             .code("A")
             .item(PTRN_RECT, 100, 0, 199, 99)
             .action(-1)
             .item(PTRN_RECT, 200, 0, 299, 99)
             .code("unknown"));

    EXPECT_EQ(at(20, 20), 1) << "bound, no action";
    EXPECT_EQ(at(120, 20), 2) << "action, not bound";
    EXPECT_EQ(at(220, 20), 3) << "the number of an unknown code is not 0";
    EXPECT_EQ(data().TestPtrnData(POINT{20, 20}, &item(0)), 1) << "the item's own test does not ask";
}

TEST_F(ItemHit, is_never_an_item_of_another_pass_or_type)
{
    load(Pattern("p")
             .item(PTRN_RECT, 0, 0, 99, 99)
             .action(1)
             .top(2)
             .item(PTRN_RECT, 0, 0, 99, 99)
             .action(1)
             .top(-1)
             .item(CONT_PTRN + 1, 0, 0, 99, 99)
             .action(1)
             .item(0, 0, 0, 99, 99)
             .action(1));

    EXPECT_EQ(at(20, 20), -1);
    EXPECT_EQ(data().TestPtrnData(POINT{20, 20}, 2), 0);
    EXPECT_EQ(data().TestPtrnData(POINT{20, 20}, &item(2)), 0);
}

TEST_F(ItemHit, takes_both_edges_of_a_rectangle)
{
    for (const int type : {PTRN_GBOX, PTRN_RECT, PTRN_CRCL, PTRN_BARG, PTRN_BUTN, PTRN_BMAP, PTRN_MARK,
                           PTRN_SBAR, PTRN_SPIN}) {
        load(Pattern("p").item(type, 30, 40, 10, 20).action(1));
        EXPECT_TRUE(hits(10, 20)) << type;
        EXPECT_TRUE(hits(30, 40)) << type;
        EXPECT_FALSE(hits(9, 20)) << type;
        EXPECT_FALSE(hits(31, 40)) << type;
        EXPECT_FALSE(hits(10, 19)) << type;
        EXPECT_FALSE(hits(30, 41)) << type;
    }
}

TEST_F(ItemHit, is_forgiving_beside_a_line)
{
    load(Pattern("p").item(PTRN_LINE, 100, 10, 100, 50).action(1));

    EXPECT_TRUE(hits(105, 30));
    EXPECT_FALSE(hits(106, 30));
}

TEST_F(ItemHit, tests_a_rising_line_along_the_falling_diagonal_of_its_box)
{
    load(Pattern("p").item(PTRN_LINE, 0, 100, 100, 0).action(1));

    EXPECT_TRUE(hits(20, 20));
    EXPECT_FALSE(hits(20, 80)) << "a point of the line itself";
}

TEST_F(ItemHit, takes_a_field_as_wide_as_its_characters)
{
    // Five cells of 8 x 16; the second corner does not matter.
    for (const int type : {PTRN_FCHR, PTRN_CHAR, PTRN_NUMR}) {
        load(Pattern("p").item(type, 10, 20, 500, 500).action(1).parm(FIELD_WIDTH, 5));
        EXPECT_TRUE(hits(10, 20)) << type;
        EXPECT_TRUE(hits(50, 36)) << type;
        EXPECT_FALSE(hits(51, 36)) << type;
        EXPECT_FALSE(hits(50, 37)) << type;
        EXPECT_FALSE(hits(9, 20)) << type;
    }
}

TEST_F(ItemHit, takes_a_fixed_text_without_a_width_at_its_left_edge_only)
{
    load(Pattern("p").item(PTRN_FCHR, 10, 20, 100, 40).action(1).text("a long text"));

    EXPECT_TRUE(hits(10, 30));
    EXPECT_FALSE(hits(11, 30));
}

TEST_F(ItemHit, takes_mark_and_label_of_a_radio_button_or_check_box_but_not_the_gap)
{
    // Mark 16 x 16, label from 24 = 3 x 16 / 2 on, three cells wide.
    for (const int type : {PTRN_RDIO, PTRN_CHCK}) {
        load(Pattern("p").item(type, 100, 50, 101, 51).action(1).text("abc"));
        EXPECT_TRUE(hits(100, 50)) << type;
        EXPECT_TRUE(hits(116, 66)) << type;
        EXPECT_FALSE(hits(117, 60)) << type;
        EXPECT_FALSE(hits(123, 60)) << type;
        EXPECT_TRUE(hits(124, 50)) << type;
        EXPECT_TRUE(hits(148, 66)) << type;
        EXPECT_FALSE(hits(149, 60)) << type;
        EXPECT_FALSE(hits(110, 67)) << type;
    }
}

TEST_F(ItemHit, shrinks_to_a_corner_without_a_font)
{
    for (const int type : {PTRN_NUMR, PTRN_CHCK})
        for (const int font : {1, 20, -1, INT_HIGH, INT_LOW}) {
            load(Pattern("p").item(type, 10, 20, 50, 60).action(1).parm(TEXT_FONT, font));
            EXPECT_TRUE(hits(10, 20)) << type << " " << font;
            EXPECT_FALSE(hits(11, 20)) << type << " " << font;
            EXPECT_FALSE(hits(10, 21)) << type << " " << font;
        }
}

TEST_F(ItemHit, is_found_for_any_corners_and_widths)
{
    const std::vector<int> values{INT_LOW, -1, 0, 100, INT_HIGH};
    for (int type = 1; type <= CONT_PTRN; ++type)
        for (const int low : values)
            for (const int high : values) {
                load(Pattern("p")
                         .item(type, low, low, high, high)
                         .action(1)
                         .parm(FIELD_WIDTH, high)
                         .text("abc"));
                for (const int x : values)
                    for (const int y : values) {
                        const int found = at(x, y);
                        ASSERT_TRUE(found == 0 || found == -1);
                    }
                // A box beside a line is cut at the end of the int range.
                ASSERT_EQ(type == PTRN_LINE ? 0 : at(low, low), 0)
                    << "the first corner of type " << type << ": " << low << ", " << high;
            }
}
