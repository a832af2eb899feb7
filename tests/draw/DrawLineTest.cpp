// Lines, pixel by pixel.
#include "tests/draw/Drawing.h"

#include <array>

namespace
{

class DrawLine : public Drawing
{
};

/// Offsets that a thick line's parts have, as the rules list them.
std::vector<int> straightOffsets(int fomt, int wide)
{
    const std::vector<int> centred = {0, -1, 1, -2, 2, -3, 3};
    const std::vector<int> inside = {-1, -2, -3, -4, -5, -6, -7};
    const std::vector<int> outside = {0, 1, 2, 3, 4, 5, 6};
    const auto& all = fomt == CENTRED ? centred : fomt == INSIDE ? inside : outside;
    if (wide == 1)
        return {0};
    return {all.begin(), all.begin() + wide};
}

TEST_F(DrawLine, leaves_its_end_point_out)
{
    canvas->DrawLine(5, 10, 15, 10, SOLID, 1, CENTRED, 3);
    canvas->DrawLine(20, 5, 20, 12, SOLID, 1, CENTRED, 4);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().row(5, 15, 10, color(3)).column(20, 5, 12, color(4))));
}

TEST_F(DrawLine, of_one_pixel_is_not_shifted_by_any_format)
{
    for (const int fomt : {CENTRED, INSIDE, OUTSIDE, 3, -1, 1000}) {
        canvas.clear();
        canvas->DrawLine(5, 10, 15, 10, SOLID, 1, fomt, 3);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank().row(5, 15, 10, color(3)))) << "fomt " << fomt;
    }
}

TEST_F(DrawLine, grows_sideways_when_vertical)
{
    for (const int fomt : {CENTRED, INSIDE, OUTSIDE}) {
        for (const int wide : {1, 2, 3, 4, 7}) {
            canvas.clear();
            canvas->DrawLine(10, 5, 10, 25, SOLID, wide, fomt, 7);
            Picture expected = canvas.blank();
            for (const int offset : straightOffsets(fomt, wide))
                expected.column(10 + offset, 5, 25, color(7));
            EXPECT_TRUE(same(canvas.picture(), expected)) << "fomt " << fomt << " wide " << wide;
        }
    }
}

TEST_F(DrawLine, grows_up_and_down_when_horizontal)
{
    for (const int fomt : {CENTRED, INSIDE, OUTSIDE}) {
        for (const int wide : {1, 2, 3, 4, 7}) {
            canvas.clear();
            canvas->DrawLine(5, 15, 35, 15, SOLID, wide, fomt, 7);
            Picture expected = canvas.blank();
            for (const int offset : straightOffsets(fomt, wide))
                expected.row(5, 35, 15 + offset, color(7));
            EXPECT_TRUE(same(canvas.picture(), expected)) << "fomt " << fomt << " wide " << wide;
        }
    }
}

TEST_F(DrawLine, is_centred_by_a_format_without_meaning)
{
    for (const int fomt : {3, -1, 2000000000}) {
        canvas.clear();
        canvas->DrawLine(10, 5, 10, 25, SOLID, 4, fomt, 7);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(8, 5, 12, 25, color(7)))) << "fomt " << fomt;
    }
}

/// One line of a single pixel's width, drawn with the display's own call.
Picture plainLines(const std::vector<std::array<int, 4>>& lines, std::uint32_t rgb)
{
    Canvas canvas(40, 30);
    gdk_gc_set_line_attributes(canvas->gc, 1, GDK_LINE_SOLID, GDK_CAP_BUTT, GDK_JOIN_MITER);
    GdkColor pen{};
    pen.pixel = rgb;
    gdk_gc_set_foreground(canvas->gc, &pen);
    for (const auto& [x1, y1, x2, y2] : lines)
        gdk_draw_line(canvas.pixmap(), canvas->gc, x1, y1, x2, y2);
    return canvas.picture();
}

TEST_F(DrawLine, of_any_other_direction_ignores_the_format_and_leans_to_the_negative_side)
{
    const std::vector<int> offsets = {0, -1, -1, 0, -2, 1, -3};
    for (const int fomt : {CENTRED, INSIDE, OUTSIDE}) {
        for (const int wide : {1, 2, 3, 4, 7}) {
            std::vector<std::array<int, 4>> flat;
            std::vector<std::array<int, 4>> steep;
            for (int i = 0; i < wide; i++) {
                const int offset = offsets[static_cast<std::size_t>(i)];
                flat.push_back({5, 8 + offset, 30, 20 + offset});
                steep.push_back({12 + offset, 25, 20 + offset, 6});
            }
            canvas.clear();
            canvas->DrawLine(5, 8, 30, 20, SOLID, wide, fomt, 9);
            EXPECT_TRUE(same(canvas.picture(), plainLines(flat, color(9))))
                << "fomt " << fomt << " wide " << wide;
            canvas.clear();
            canvas->DrawLine(12, 25, 20, 6, SOLID, wide, fomt, 9);
            EXPECT_TRUE(same(canvas.picture(), plainLines(steep, color(9))))
                << "fomt " << fomt << " wide " << wide;
        }
    }
}

TEST_F(DrawLine, at_45_degrees_is_shifted_up_and_down)
{
    canvas->DrawLine(5, 5, 20, 20, SOLID, 2, CENTRED, 9);
    EXPECT_TRUE(same(canvas.picture(), plainLines({{5, 5, 20, 20}, {5, 4, 20, 19}}, color(9))));
}

TEST_F(DrawLine, of_four_diagonal_lines_shows_two)
{
    canvas->DrawLine(5, 8, 30, 20, SOLID, 4, CENTRED, 9);
    EXPECT_TRUE(same(canvas.picture(), plainLines({{5, 8, 30, 20}, {5, 7, 30, 19}}, color(9))));
}

/// A row of dashes from x1 on.
Picture& dashes(Picture& picture, int x1, int x2, int y, int on, int off, std::uint32_t rgb)
{
    for (int x = x1; x < x2; x++)
        if ((x - x1) % (on + off) < on)
            picture.set(x, y, rgb);
    return picture;
}

TEST_F(DrawLine, has_long_and_short_dashes)
{
    canvas->DrawLine(2, 10, 38, 10, 1, 1, CENTRED, 5);
    canvas->DrawLine(2, 20, 38, 20, 2, 1, CENTRED, 6);
    Picture expected = canvas.blank();
    dashes(expected, 2, 38, 10, 12, 4, color(5));
    dashes(expected, 2, 38, 20, 4, 2, color(6));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawLine, repeats_its_dashes_in_every_part_of_a_thick_line)
{
    canvas->DrawLine(2, 10, 38, 10, 2, 3, OUTSIDE, 6);
    Picture expected = canvas.blank();
    for (const int y : {10, 11, 12})
        dashes(expected, 2, 38, y, 4, 2, color(6));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawLine, leaves_no_dashes_to_what_is_drawn_next)
{
    canvas->DrawLine(2, 1, 38, 1, 1, 1, CENTRED, 5);
    canvas->DrawRect(4, 4, 34, 9, 1, INSIDE, 6, NONE);
    canvas->DrawLine(2, 1, 38, 1, 2, 1, CENTRED, 5);
    canvas->DrawGbox(4, 12, 34, 20, 1, 1, 1, 1, 7, 7, 7, 7, 8);
    canvas->DrawLine(2, 1, 38, 1, 1, 1, CENTRED, 5);
    setColor(50, 0, 0, 0);
    canvas->DrawRect(4, 22, 34, 24, 50);
    canvas->DrawLine(2, 1, 38, 1, 1, 1, CENTRED, 5);
    canvas->DrawLine(4, 27, 34, 27, SOLID, 1, CENTRED, 9);
    Picture expected = canvas.blank();
    dashes(expected, 2, 38, 1, 12, 4, color(5));
    dashes(expected, 2, 38, 1, 4, 2, color(5));
    expected.frame(4, 4, 34, 9, color(6));
    expected.fill(4, 12, 34, 20, color(7)).fill(5, 13, 33, 19, color(8));
    expected.fill(4, 22, 34, 24, 0);
    expected.row(4, 34, 27, color(9));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawLine, without_length_draws_no_more_than_its_parts_side_by_side)
{
    canvas->DrawLine(10, 10, 10, 10, SOLID, 3, CENTRED, 5);
    EXPECT_TRUE(same(canvas.picture().fill(9, 10, 12, 11, Canvas::GROUND), canvas.blank()));
}

TEST_F(DrawLine, takes_its_ends_in_either_order)
{
    canvas->DrawLine(15, 10, 5, 10, SOLID, 1, CENTRED, 3);
    canvas->DrawLine(20, 12, 20, 5, SOLID, 1, CENTRED, 4);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().row(5, 15, 10, color(3)).column(20, 5, 12, color(4))));
}

TEST_F(DrawLine, is_cut_at_the_edge_of_the_drawable)
{
    canvas->DrawLine(-10, 5, 100, 5, SOLID, 1, CENTRED, 3);
    canvas->DrawLine(8, -50, 8, 100, SOLID, 3, INSIDE, 4);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().row(0, 40, 5, color(3)).fill(5, 0, 8, 30, color(4))));
}

TEST_F(DrawLine, far_beyond_the_display_does_not_wrap_around)
{
    const int far = 2000000000;
    canvas->DrawLine(-far, 5, far, 5, SOLID, 1, CENTRED, 3);
    canvas->DrawLine(7, INT32_MIN, 7, INT32_MAX, SOLID, 3, OUTSIDE, 4);
    canvas->DrawLine(65536 + 10, 0, 65536 + 10, 30, SOLID, 1, CENTRED, 5);
    canvas->DrawLine(0, 65536 + 10, 40, 65536 + 10, SOLID, 1, CENTRED, 5);
    canvas->DrawLine(INT32_MIN, 0, INT32_MIN, 30, SOLID, 4, INSIDE, 5);
    canvas->DrawLine(INT32_MAX, 0, INT32_MAX, 30, SOLID, 98, OUTSIDE, 5);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().row(0, 40, 5, color(3)).fill(7, 0, 10, 30, color(4))));
}

TEST_F(DrawLine, far_beyond_the_display_keeps_its_slope)
{
    const int far = 1000000000;
    canvas->DrawLine(-far, -far, far, far, SOLID, 1, CENTRED, 3);
    const Picture drawn = canvas.picture();
    for (int y = 0; y < 30; y++)
        for (int x = 0; x < 40; x++)
            ASSERT_EQ(drawn.at(x, y), x == y ? color(3) : Canvas::GROUND) << x << ' ' << y;
}

TEST_F(DrawLine, takes_a_rectangle_without_its_width_and_height)
{
    const RECT rect = {5, 10, 15, 10, 999, -7};
    canvas->DrawLine(rect, SOLID, 2, OUTSIDE, 3);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(5, 10, 15, 12, color(3))));
}

} // namespace
