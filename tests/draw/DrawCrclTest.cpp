// Ellipses.
#include "draw/Resource.h"
#include "tests/draw/Drawing.h"

namespace
{

class DrawCrcl : public Drawing
{
};

/// Whether a pixel's place is inside the ellipse in a box, widened by `margin` pixels.
bool inEllipse(int x, int y, const RECT& box, double margin)
{
    const double a = (box.right - box.left) / 2.0 + margin;
    const double b = (box.bottom - box.top) / 2.0 + margin;
    if (a <= 0 || b <= 0)
        return false;
    const double dx = (x - (box.left + box.right) / 2.0) / a;
    const double dy = (y - (box.top + box.bottom) / 2.0) / b;
    return dx * dx + dy * dy <= 1;
}

/// The picture of a filled ellipse. A pixel's width along the edge is the display's affair and taken as
/// drawn.
Picture filledEllipse(const Picture& drawn, const RECT& box, std::uint32_t rgb)
{
    Picture expected = drawn;
    for (int y = 0; y < drawn.height(); y++) {
        for (int x = 0; x < drawn.width(); x++) {
            if (inEllipse(x, y, box, -1.0))
                expected.set(x, y, rgb);
            else if (!inEllipse(x, y, box, 1.0))
                expected.set(x, y, Canvas::GROUND);
        }
    }
    return expected;
}

TEST_F(DrawCrcl, fills_the_ellipse_in_its_box)
{
    canvas->DrawCrcl(6, 5, 36, 25, 0, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), filledEllipse(canvas.picture(), {6, 5, 36, 25, 0, 0}, color(8))));
    EXPECT_EQ(canvas.picture().bounds(Canvas::GROUND), "6,5-35,24");
    EXPECT_EQ(canvas.picture().count(color(5)), 0);
}

TEST_F(DrawCrcl, outlines_through_both_corners_of_its_box)
{
    canvas->DrawCrcl(6, 5, 36, 25, 1, INSIDE, 5, NONE);
    const Picture drawn = canvas.picture();
    EXPECT_EQ(drawn.bounds(Canvas::GROUND), "6,5-36,25");
    EXPECT_EQ(drawn.at(6, 15), color(5));
    EXPECT_EQ(drawn.at(36, 15), color(5));
    EXPECT_EQ(drawn.at(21, 5), color(5));
    EXPECT_EQ(drawn.at(21, 25), color(5));
    EXPECT_EQ(drawn.at(21, 15), Canvas::GROUND);
}

TEST_F(DrawCrcl, puts_its_outlines_where_a_rectangle_puts_them)
{
    for (const int fomt : {CENTRED, INSIDE, OUTSIDE, 3}) {
        for (const int wide : {0, 1, 2, 3, 4, 7}) {
            canvas.clear();
            canvas->DrawCrcl(12, 8, 28, 22, wide, fomt, 5, 8);
            Canvas plain(40, 30);
            gdk_gc_set_line_attributes(plain->gc, 1, GDK_LINE_SOLID, GDK_CAP_BUTT, GDK_JOIN_MITER);
            gdk_gc_set_foreground(plain->gc, &DrawColr[8]);
            gdk_draw_arc(plain.pixmap(), plain->gc, TRUE, 12, 8, 16, 14, 0, 360 * 64);
            gdk_gc_set_foreground(plain->gc, &DrawColr[5]);
            for (const int inset : frameInsets(fomt, wide))
                gdk_draw_arc(plain.pixmap(), plain->gc, FALSE, 12 + inset, 8 + inset, 16 - 2 * inset,
                             14 - 2 * inset, 0, 360 * 64);
            EXPECT_TRUE(same(canvas.picture(), plain.picture())) << "fomt " << fomt << " wide " << wide;
        }
    }
}

TEST_F(DrawCrcl, without_outline_and_fill_draws_nothing)
{
    canvas->DrawCrcl(6, 5, 36, 25, 0, CENTRED, 5, NONE);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawCrcl, without_extent_has_no_fill)
{
    canvas->DrawCrcl(10, 10, 20, 10, 0, CENTRED, 5, 8);
    canvas->DrawCrcl(10, 10, 10, 20, 0, CENTRED, 5, 8);
    canvas->DrawCrcl(10, 10, 10, 10, 0, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawCrcl, is_cut_at_the_edge_of_the_drawable)
{
    canvas->DrawCrcl(-20, -15, 20, 15, 0, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), filledEllipse(canvas.picture(), {-20, -15, 20, 15, 0, 0}, color(8))));
}

TEST_F(DrawCrcl, takes_a_rectangle_and_a_single_one_in_any_order)
{
    canvas->DrawCrcl(RECT{6, 5, 36, 25, 0, 0}, 0, CENTRED, 5, 8);
    const Picture filled = canvas.picture();
    EXPECT_TRUE(same(filled, filledEllipse(filled, {6, 5, 36, 25, 0, 0}, color(8))));
    canvas.clear();
    gdk_gc_set_foreground(canvas->gc, &DrawColr[8]);
    canvas->DrawCrcl1(1, 36, 25, 6, 5);
    EXPECT_TRUE(same(canvas.picture(), filled));
    canvas.clear();
    canvas->DrawCrcl1(0, 36, 25, 6, 5);
    EXPECT_EQ(canvas.picture().bounds(Canvas::GROUND), "6,5-36,25");
}

TEST_F(DrawCrcl, far_beyond_the_display_is_drawn_without_harm)
{
    canvas->DrawCrcl(-2000000000, -2000000000, 2000000000, 2000000000, 0, INSIDE, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 40, 30, color(8))));
    canvas.clear();
    canvas->DrawCrcl(65536, 65536, 65536 + 20, 65536 + 20, 3, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

} // namespace
