// Hit geometry over whole grids of points, against the rules in exact arithmetic.
#include "draw/HitTest.h"

#include "draw/Resource.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace
{

RECT box(int left, int top, int right, int bottom)
{
    return {left, top, right, bottom, -1, -1}; // width and height are not read
}

/// Calls `check` for every point of a grid.
template <class Check> void forGrid(int x1, int y1, int x2, int y2, Check check)
{
    for (int y = y1; y <= y2; y++)
        for (int x = x1; x <= x2; x++)
            check(POINT{x, y});
}

TEST(PointInRect, includes_all_four_edges_and_takes_corners_in_any_order)
{
    forGrid(-3, -3, 30, 20, [](POINT p) {
        const int inside = p.x >= 2 && p.x <= 20 && p.y >= 3 && p.y <= 12;
        EXPECT_EQ(PointInRect(p, 2, 3, 20, 12), inside) << p.x << ' ' << p.y;
        EXPECT_EQ(PointInRect(p, 20, 3, 2, 12), inside) << p.x << ' ' << p.y;
        EXPECT_EQ(PointInRect(p, 2, 12, 20, 3), inside) << p.x << ' ' << p.y;
        EXPECT_EQ(PointInRect(p, 20, 12, 2, 3), inside) << p.x << ' ' << p.y;
        EXPECT_EQ(PointInRect(p, box(20, 12, 2, 3)), inside) << p.x << ' ' << p.y;
        EXPECT_EQ(TestRect(p, box(2, 3, 20, 12)), inside) << p.x << ' ' << p.y;
        EXPECT_EQ(TestRect(p, box(20, 12, 2, 3)), inside) << p.x << ' ' << p.y;
    });
}

TEST(PointInRect, of_a_box_without_extent_is_its_point)
{
    forGrid(0, 0, 10, 10, [](POINT p) { EXPECT_EQ(PointInRect(p, 5, 6, 5, 6), p.x == 5 && p.y == 6); });
}

TEST(PointInRect, takes_any_coordinate)
{
    EXPECT_EQ(PointInRect({INT32_MIN, INT32_MAX}, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX), 1);
    EXPECT_EQ(PointInRect({0, 0}, INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN), 1);
    EXPECT_EQ(PointInRect({INT32_MIN, 0}, INT32_MIN + 1, 0, INT32_MAX, 0), 0);
}

class TestTextArea : public testing::Test
{
  protected:
    TestTextArea() { FontSize[3] = {7, 14}; }
    ~TestTextArea() override { FontSize[3] = {0, 0}; }
};

TEST_F(TestTextArea, is_one_cell_per_byte)
{
    for (const auto& [text, bytes] :
         {std::pair{"abc", 3}, std::pair{"漢字", 4}, std::pair{"a漢", 3}, std::pair{"", 0}}) {
        forGrid(0, 0, 60, 40, [&, text = text, bytes = bytes](POINT p) {
            const int inside = p.x >= 10 && p.x <= 10 + 7 * bytes && p.y >= 12 && p.y <= 26;
            EXPECT_EQ(TestText(p, 10, 12, 3, text), inside) << p.x << ' ' << p.y << ' ' << bytes;
        });
    }
}

TEST_F(TestTextArea, of_an_empty_text_is_its_left_edge)
{
    EXPECT_EQ(TestText({10, 12}, 10, 12, 3, ""), 1);
    EXPECT_EQ(TestText({10, 26}, 10, 12, 3, ""), 1);
    EXPECT_EQ(TestText({11, 20}, 10, 12, 3, ""), 0);
    EXPECT_EQ(TestText({10, 20}, 10, 12, 3, nullptr), 1);
}

TEST_F(TestTextArea, of_a_font_that_is_not_there_is_one_point)
{
    for (const int font : {4, -1, CONT_FONT, INT32_MAX, INT32_MIN})
        forGrid(5, 5, 20, 20, [font](POINT p) {
            EXPECT_EQ(TestText(p, 10, 12, font, "abc"), p.x == 10 && p.y == 12) << font;
        });
}

TEST_F(TestTextArea, takes_any_coordinate)
{
    EXPECT_EQ(TestText({INT32_MAX, INT32_MAX}, INT32_MAX, INT32_MAX, 3, "abc"), 1);
    EXPECT_EQ(TestText({INT32_MIN, INT32_MIN}, INT32_MAX, INT32_MAX, 3, "abc"), 0);
}

/// The diagonal test of a line in exact arithmetic: 1 hit, 0 no hit, -1 exactly on the limit.
int diagonalHit(POINT p, RECT r)
{
    const int x1 = r.left - 5;
    const int y1 = r.top - 5;
    const int x2 = r.right + 5;
    const int y2 = r.bottom + 5;
    const int left = std::min(x1, x2);
    const int right = std::max(x1, x2);
    const int top = std::min(y1, y2);
    const int bottom = std::max(y1, y2);
    if (p.x < left || p.x > right || p.y < top || p.y > bottom || left == right || top == bottom)
        return 0;
    const long long width = right - left;
    const long long height = bottom - top;
    const long long distance = std::llabs((p.y - top) * width - (p.x - left) * height);
    return distance == 10 * width ? -1 : distance < 10 * width;
}

/// The same on the limit, step by step, each step rounded to single precision.
int roundedHit(POINT p, RECT r)
{
    const RECT b = SetRect(r.left - 5, r.top - 5, r.right + 5, r.bottom + 5);
    volatile float s = static_cast<float>(b.top - b.bottom) / static_cast<float>(b.left - b.right);
    volatile float product = static_cast<float>(b.left) * s;
    volatile float c = static_cast<float>(b.top) - product;
    volatile float along = static_cast<float>(p.x) * s;
    volatile float rest = static_cast<float>(p.y) - along;
    volatile float d = rest - c;
    return d < 10.0f && d > -10.0f;
}

int lineHit(POINT p, RECT r)
{
    const bool straightUp = r.left == r.right && r.top != r.bottom && std::abs(p.x - r.left) <= 5 &&
                            p.y >= std::min(r.top, r.bottom) && p.y <= std::max(r.top, r.bottom);
    const bool level = r.top == r.bottom && r.left != r.right && std::abs(p.y - r.top) <= 4 &&
                       p.x >= std::min(r.left, r.right) && p.x <= std::max(r.left, r.right);
    if (straightUp || level)
        return 1;
    const int exact = diagonalHit(p, r);
    return exact >= 0 ? exact : roundedHit(p, r);
}

TEST(TestLine, decides_every_point_around_lines_of_every_direction)
{
    const std::vector<RECT> lines = {
        box(40, 30, 40, 70), box(40, 70, 40, 30), box(20, 50, 80, 50), box(80, 50, 20, 50),
        box(20, 30, 80, 70), box(80, 70, 20, 30), box(20, 70, 80, 30), box(80, 30, 20, 70),
        box(45, 20, 52, 80), box(20, 45, 80, 52), box(50, 50, 50, 50), box(50, 50, 40, 40),
        box(50, 50, 40, 60), box(50, 50, 41, 41), box(50, 50, 39, 90), box(33, 41, 60, 44),
        box(50, 40, 40, 60), box(40, 40, 47, 43),
    };
    for (const RECT& line : lines) {
        int hits = 0;
        forGrid(0, 0, 100, 100, [&](POINT p) {
            const int hit = TestLine(p, line);
            hits += hit;
            EXPECT_EQ(hit, lineHit(p, line)) << p.x << ' ' << p.y << " of " << line.left << ',' << line.top
                                             << '-' << line.right << ',' << line.bottom;
        });
        EXPECT_LT(hits, 101 * 101);
    }
}

TEST(TestLine, is_hit_five_pixels_beside_a_vertical_one)
{
    const RECT line = box(100, 10, 100, 50);
    EXPECT_EQ(TestLine({105, 30}, line), 1);
    EXPECT_EQ(TestLine({95, 30}, line), 1);
    EXPECT_EQ(TestLine({106, 30}, line), 0);
    EXPECT_EQ(TestLine({94, 30}, line), 0);
    EXPECT_EQ(TestLine({105, 10}, line), 1);
    EXPECT_EQ(TestLine({105, 50}, line), 1);
    EXPECT_EQ(TestLine({100, 51}, line), 0); // in the padded box, but 21 from its diagonal
    EXPECT_EQ(TestLine({105, 53}, line), 1); // near the lower end of that diagonal
}

TEST(TestLine, is_hit_four_pixels_beside_a_horizontal_one)
{
    const RECT line = box(10, 100, 200, 100);
    EXPECT_EQ(TestLine({15, 104}, line), 1);
    EXPECT_EQ(TestLine({200, 96}, line), 1);
    // Five below passes to the diagonal, which runs through the upper left of the box.
    EXPECT_EQ(TestLine({15, 105}, line), 1);
    EXPECT_EQ(TestLine({15, 106}, line), 0);
    EXPECT_EQ(TestLine({5, 105}, line), 0);
    EXPECT_EQ(TestLine({10, 105}, line), 1);
}

TEST(TestLine, that_rises_to_the_right_is_tested_against_the_falling_diagonal)
{
    const RECT line = SetRect(0, 100, 100, 0); // as an item keeps it: ordered
    EXPECT_EQ(TestLine({50, 50}, line), 1);
    EXPECT_EQ(TestLine({10, 90}, line), 0);
    EXPECT_EQ(TestLine({10, 10}, line), 1);
    const RECT asDrawn = box(0, 100, 100, 0);
    EXPECT_EQ(TestLine({50, 50}, asDrawn), 1);
    EXPECT_EQ(TestLine({10, 90}, asDrawn), 0);
}

TEST(TestLine, drawn_upwards_has_a_lower_box)
{
    // Padded before it is ordered: (15, 65)-(85, 45) becomes 15..85 x 45..65.
    EXPECT_EQ(TestLine({15, 40}, box(20, 70, 80, 40)), 0);
    EXPECT_EQ(TestLine({15, 45}, box(20, 70, 80, 40)), 1);
    EXPECT_EQ(TestLine({15, 40}, box(20, 40, 80, 70)), 1);
}

TEST(TestLine, without_length_is_a_diagonal_through_a_small_box)
{
    EXPECT_EQ(TestLine({50, 50}, box(50, 50, 50, 50)), 1);
    EXPECT_EQ(TestLine({45, 45}, box(50, 50, 50, 50)), 1);
    EXPECT_EQ(TestLine({45, 54}, box(50, 50, 50, 50)), 1);
    EXPECT_EQ(TestLine({45, 55}, box(50, 50, 50, 50)), 0); // exactly 10 from the diagonal
    EXPECT_EQ(TestLine({44, 44}, box(50, 50, 50, 50)), 0);
}

TEST(TestLine, whose_padding_leaves_no_box_is_not_hit)
{
    EXPECT_EQ(TestLine({45, 60}, box(50, 50, 40, 80)), 0); // left - 5 = right + 5
    EXPECT_EQ(TestLine({60, 45}, box(50, 50, 80, 40)), 0);
}

TEST(TestLine, takes_any_coordinate)
{
    const RECT all = box(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX);
    EXPECT_EQ(TestLine({INT32_MIN, INT32_MAX}, all), 0);
    EXPECT_EQ(TestLine({INT32_MAX, INT32_MIN}, all), 0);
    EXPECT_EQ(TestLine({0, 0}, box(INT32_MAX, 0, INT32_MAX, 10)), 0);
    EXPECT_EQ(TestLine({INT32_MIN, 5}, box(INT32_MAX, 0, INT32_MAX, 10)), 0);
    EXPECT_EQ(TestLine({INT32_MAX, 5}, box(INT32_MAX, 0, INT32_MAX, 10)), 1);
    EXPECT_EQ(TestLine({5, INT32_MIN}, box(0, INT32_MIN, 10, INT32_MIN)), 1);
}

/// The ellipse's test in exact arithmetic: 1 hit, 0 no hit, -1 exactly on the limit.
int ellipseHit(POINT p, RECT r)
{
    if (!PointInRect(p, r) || r.left == r.right || r.top == r.bottom)
        return 0;
    const long long width = r.right - r.left;
    const long long height = r.bottom - r.top;
    const long long x = 2LL * p.x - r.left - r.right;
    const long long y = 2LL * p.y - r.top - r.bottom;
    const long long radius = 10 * (x * x * height * height + y * y * width * width);
    const long long limit = 11 * width * width * height * height;
    return radius == limit ? -1 : radius < limit;
}

TEST(TestCrcl, decides_every_point_of_circles_and_ellipses)
{
    for (const RECT& r : {box(0, 0, 100, 50), box(10, 10, 60, 60), box(100, 50, 0, 0), box(7, 3, 8, 90),
                          box(20, 20, 31, 28), box(0, 40, 99, 41)}) {
        forGrid(-2, -2, 102, 102, [&](POINT p) {
            const int exact = ellipseHit(p, r);
            if (exact >= 0) {
                EXPECT_EQ(TestCrcl(p, r), exact) << p.x << ' ' << p.y << " of " << r.right << ' ' << r.bottom;
            }
        });
    }
}

TEST(TestCrcl, is_larger_than_its_ellipse_by_a_tenth_of_the_squared_radius)
{
    const RECT r = box(0, 0, 100, 50);
    EXPECT_EQ(TestCrcl({50, 25}, r), 1);
    EXPECT_EQ(TestCrcl({0, 0}, r), 0);
    EXPECT_EQ(TestCrcl({99, 25}, r), 1);
    EXPECT_EQ(TestCrcl({100, 25}, r), 1);
    EXPECT_EQ(TestCrcl({101, 25}, r), 0); // cut at the rectangle
    EXPECT_EQ(TestCrcl({100, 32}, r), 1); // 1 + 49/625
    EXPECT_EQ(TestCrcl({100, 33}, r), 0); // 1 + 64/625
}

TEST(TestCrcl, counts_the_limit_itself_as_a_hit)
{
    // 0.3 squared and 0.1 squared of ten: 1 + 0.1 is the limit, and double precision finds it there.
    const RECT r = box(-10, -10, 10, 10);
    EXPECT_EQ(TestCrcl({10, 3}, r), 1);
    EXPECT_EQ(TestCrcl({10, 4}, r), 0);
    const RECT exact = box(-100, -100, 100, 100);
    const double limit = 100.0 * 100 / 10000 + 31.0 * 31 / 10000;
    EXPECT_EQ(TestCrcl({100, 31}, exact), limit <= 1.1);
    EXPECT_EQ(TestCrcl({100, 32}, exact), 0);
}

TEST(TestCrcl, without_width_or_height_is_never_hit)
{
    forGrid(0, 0, 20, 20, [](POINT p) {
        EXPECT_EQ(TestCrcl(p, box(10, 5, 10, 15)), 0);
        EXPECT_EQ(TestCrcl(p, box(5, 10, 15, 10)), 0);
        EXPECT_EQ(TestCrcl(p, box(10, 10, 10, 10)), 0);
    });
}

TEST(TestCrcl, takes_any_coordinate)
{
    const RECT all = box(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX);
    EXPECT_EQ(TestCrcl({0, 0}, all), 1);
    EXPECT_EQ(TestCrcl({INT32_MIN, INT32_MIN}, all), 0);
    EXPECT_EQ(TestCrcl({INT32_MAX, 0}, all), 1);
}

} // namespace
