#include "base/Types.h"

#include <climits>
#include <gtest/gtest.h>

namespace
{

void expectRect(const RECT& rect, int left, int top, int right, int bottom)
{
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
    EXPECT_EQ(rect.width, right - left);
    EXPECT_EQ(rect.height, bottom - top);
}

} // namespace

TEST(SetRect, orders_the_corners_whichever_way_they_come)
{
    expectRect(SetRect(10, 20, 30, 50), 10, 20, 30, 50);
    expectRect(SetRect(30, 50, 10, 20), 10, 20, 30, 50);
    expectRect(SetRect(30, 20, 10, 50), 10, 20, 30, 50);
    expectRect(SetRect(-5, 7, -9, 7), -9, 7, -5, 7);
}

TEST(SetRect, counts_no_extra_pixel)
{
    EXPECT_EQ(SetRect(10, 0, 20, 0).width, 10);
    EXPECT_EQ(SetRect(10, 0, 20, 0).height, 0);
}

TEST(SetRect, wraps_at_corners_too_far_apart_for_an_int)
{
    const RECT rect = SetRect(INT_MIN, INT_MAX, INT_MAX, INT_MIN);
    EXPECT_EQ(rect.left, INT_MIN);
    EXPECT_EQ(rect.right, INT_MAX);
    EXPECT_EQ(rect.width, -1);
    EXPECT_EQ(rect.height, -1);
}

TEST(Records, have_the_sizes_of_plain_ints)
{
    EXPECT_EQ(sizeof(RECT), 24u);
    EXPECT_EQ(sizeof(POINT), 8u);
    EXPECT_EQ(sizeof(SIZE), 8u);
    EXPECT_EQ(sizeof(WORD), 2u);
    EXPECT_EQ(sizeof(BYTE), 1u);
    EXPECT_EQ(sizeof(UINT), 4u);
    EXPECT_EQ(sizeof(BOOL), 4u);
}
