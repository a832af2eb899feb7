// The drawing order follows the public item array, however that was changed.
#include "tests/pattern/DisplayFixture.h"

#include <vector>

using namespace tessary;

namespace
{

/// A filled box that covers the point (8, 8).
PTRNDATA filledBox(int recd, int colr)
{
    PTRNDATA item{};
    item.Type = PTRN_RECT;
    item.Parm[PARM_X2] = 40;
    item.Parm[PARM_Y2] = 40;
    for (int c = 0; c < 4; ++c) {
        item.Parm[SHAPE_OUTLINE4 + c] = colr;
        item.Parm[SHAPE_FILL4 + c] = colr;
    }
    item.Parm[SHAPE_FILLED] = 1;
    item.Recd = recd;
    item.ID_Type = 1;
    item.Rect = SetRect(0, 0, 40, 40);
    return item;
}

} // namespace

TEST_F(Display, follows_an_array_that_was_put_in_the_place_of_the_loaded_one)
{
    load(Pattern("empty"));
    data().PtrnData = new PTRNDATA[2]{filledBox(0, 41), filledBox(1, 42)};
    data().PtrnCont = 2;
    EXPECT_EQ(data().TestPtrnData({8, 8}), 0) << "the earlier in the file";
    EXPECT_EQ(display().at(8, 8), color(42)) << "the later in the file lies on top";
}

TEST_F(Display, follows_a_pass_that_was_changed_in_the_array_itself)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 50, 50).parm(SHAPE_FILL4, 33);
    box(pattern, 0, 0, 50, 50).parm(SHAPE_FILL4, 34);
    load(pattern);
    ASSERT_EQ(display().at(8, 8), color(34));

    data().PtrnData[0].Parm[PARM_PASS] = 1;
    EXPECT_EQ(display().at(8, 8), color(33)) << "pass 1 lies on top";
    data().PtrnData[0].Parm[PARM_PASS] = 2;
    EXPECT_EQ(display().at(8, 8), color(34)) << "pass 2 is never drawn";
}

TEST_F(Display, hits_an_item_in_the_pass_to_which_it_was_moved_in_the_array_itself)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 50, 50).action(1);
    box(pattern, 0, 0, 50, 50).action(1);
    load(pattern);
    ASSERT_EQ(data().TestPtrnData({8, 8}), 0);

    data().PtrnData[1].Parm[PARM_PASS] = 1;
    EXPECT_EQ(data().TestPtrnData({8, 8}), 1) << "pass 1 lies on top";
    data().PtrnData[1].Type = PTRN_CHAR; // a field without width: only its left edge is hit
    EXPECT_EQ(data().TestPtrnData({8, 8}), 0);
}
