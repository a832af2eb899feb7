// Rectangles and bevels, pixel by pixel.
#include "draw/Resource.h"
#include "tests/draw/Drawing.h"

using namespace tessary;

namespace
{

class DrawRect : public Drawing
{
};

TEST_F(DrawRect, is_filled_and_outlined_by_every_format_and_width)
{
    for (const int fomt : {CENTRED, INSIDE, OUTSIDE, 3, -1}) {
        for (const int wide : {0, 1, 2, 3, 4, 7}) {
            for (const int fill : {NONE, 8}) {
                canvas.clear();
                canvas->DrawRect(10, 9, 30, 21, wide, fomt, 5, fill);
                Picture expected = canvas.blank();
                if (fill != NONE)
                    expected.fill(10, 9, 30, 21, color(8));
                for (const int inset : frameInsets(fomt, wide)) {
                    if (9 + inset < 21 - inset)
                        expected.frame(10 + inset, 9 + inset, 30 - inset, 21 - inset, color(5));
                    else // the seventh of a box twelve high is a line
                        expected.row(10 + inset, 30 - inset, 15, color(5));
                }
                EXPECT_TRUE(same(canvas.picture(), expected))
                    << "fomt " << fomt << " wide " << wide << " fill " << fill;
            }
        }
    }
}

TEST_F(DrawRect, fills_one_pixel_less_than_it_outlines)
{
    canvas->DrawRect(10, 10, 20, 20, 0, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 10, 20, 20, color(8))));
    canvas.clear();
    canvas->DrawRect(10, 10, 20, 20, 1, INSIDE, 5, NONE);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().frame(10, 10, 20, 20, color(5))));
}

TEST_F(DrawRect, of_two_centred_outlines_has_one_on_the_box_and_one_around_it)
{
    canvas->DrawRect(10, 10, 20, 20, 2, CENTRED, 5, NONE);
    EXPECT_TRUE(
        same(canvas.picture(), canvas.blank().frame(10, 10, 20, 20, color(5)).frame(9, 9, 21, 21, color(5))));
}

TEST_F(DrawRect, without_outline_and_fill_draws_nothing)
{
    canvas->DrawRect(10, 10, 20, 20, 0, CENTRED, 5, NONE);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawRect, without_extent_has_no_fill)
{
    canvas->DrawRect(10, 10, 20, 10, 0, CENTRED, 5, 8);
    canvas->DrawRect(10, 10, 10, 20, 0, CENTRED, 5, 8);
    canvas->DrawRect(10, 10, 10, 10, 0, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawRect, without_height_or_width_is_outlined_as_a_line)
{
    // Whether such an outline has its last pixel is the display's affair.
    canvas->DrawRect(10, 10, 20, 10, 1, INSIDE, 5, NONE);
    canvas->DrawRect(30, 10, 30, 20, 1, INSIDE, 6, NONE);
    const Picture drawn = canvas.picture().set(20, 10, Canvas::GROUND).set(30, 20, Canvas::GROUND);
    EXPECT_TRUE(same(drawn, canvas.blank().row(10, 20, 10, color(5)).column(30, 10, 20, color(6))));
}

TEST_F(DrawRect, without_any_extent_is_outlined_around_itself)
{
    canvas->DrawRect(10, 10, 10, 10, 2, OUTSIDE, 5, NONE);
    EXPECT_TRUE(
        same(canvas.picture(), canvas.blank().frame(9, 9, 11, 11, color(5)).frame(8, 8, 12, 12, color(5))));
}

TEST_F(DrawRect, turns_inside_out_when_its_outlines_are_wider_than_the_box)
{
    // Outlines at 0, 1, 2, 3 from the box: (10, 10, 13, 13), (11, 11, 12, 12), then ordered again
    // (11, 11, 12, 12) and (10, 10, 13, 13).
    canvas->DrawRect(10, 10, 13, 13, 4, INSIDE, 5, NONE);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 10, 14, 14, color(5))));
}

TEST_F(DrawRect, is_cut_at_the_edge_of_the_drawable)
{
    canvas->DrawRect(-5, -5, 10, 10, 2, INSIDE, 5, 8);
    canvas->DrawRect(30, 20, 60, 60, 2, INSIDE, 6, 9);
    const Picture expected = canvas.blank()
                                 .fill(0, 0, 10, 10, color(8))
                                 .frame(-5, -5, 10, 10, color(5))
                                 .frame(-4, -4, 9, 9, color(5))
                                 .fill(30, 20, 60, 60, color(9))
                                 .frame(30, 20, 60, 60, color(6))
                                 .frame(31, 21, 59, 59, color(6));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawRect, far_beyond_the_display_does_not_wrap_around)
{
    canvas->DrawRect(5, 5, 2000000000, 2000000000, 3, INSIDE, 5, 8);
    const Picture expected = canvas.blank().fill(5, 5, 40, 30, color(5)).fill(8, 8, 40, 30, color(8));
    EXPECT_TRUE(same(canvas.picture(), expected));
    canvas.clear();
    canvas->DrawRect(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, 98, OUTSIDE, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 40, 30, color(8))));
    canvas.clear();
    canvas->DrawRect(65536, 65536, 65536 + 20, 65536 + 20, 98, INSIDE, 5, 8);
    canvas->DrawRect(-65536, -65536, -65536 + 20, -65536 + 20, 3, CENTRED, 5, 8);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawRect, takes_a_rectangle_without_its_width_and_height)
{
    const RECT rect = {10, 10, 20, 20, 1, -1};
    canvas->DrawRect(rect, 1, INSIDE, 5, 8);
    EXPECT_TRUE(same(canvas.picture(),
                     canvas.blank().fill(10, 10, 20, 20, color(8)).frame(10, 10, 20, 20, color(5))));
}

TEST_F(DrawRect, orders_the_corners_of_a_single_one)
{
    gdk_gc_set_foreground(canvas->gc, &DrawColr[4]);
    canvas->DrawRect1(1, 20, 15, 10, 5);
    canvas->DrawRect1(0, 35, 25, 25, 5);
    EXPECT_TRUE(
        same(canvas.picture(), canvas.blank().fill(10, 5, 20, 15, color(4)).frame(25, 5, 35, 25, color(4))));
}

TEST_F(DrawRect, of_a_single_one_fills_for_any_mode_but_zero)
{
    gdk_gc_set_foreground(canvas->gc, &DrawColr[4]);
    canvas->DrawRect1(-3, 10, 5, 20, 15);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 5, 20, 15, color(4))));
}

class ClearScreen : public Drawing
{
};

TEST_F(ClearScreen, fills_the_whole_drawable_or_a_part)
{
    canvas->ClearScreen(3);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 40, 30, color(3))));
    canvas->ClearScreen(5, 6, 20, 12, 4);
    canvas->ClearScreen(RECT{25, 20, 35, 25, 0, 0}, 5);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()
                                           .fill(0, 0, 40, 30, color(3))
                                           .fill(5, 6, 20, 12, color(4))
                                           .fill(25, 20, 35, 25, color(5))));
}

class DrawGbox : public Drawing
{
};

TEST_F(DrawGbox, covers_the_pixels_of_its_face_with_edges_in_the_order_top_bottom_left_right)
{
    canvas->DrawGbox(5, 6, 35, 26, 2, 3, 4, 5, 11, 12, 13, 14, 15);
    const Picture expected = canvas.blank()
                                 .fill(5, 6, 35, 26, color(15))
                                 .fill(5, 6, 35, 8, color(11))
                                 .fill(5, 23, 35, 26, color(12))
                                 .fill(5, 6, 9, 26, color(13))
                                 .fill(30, 6, 35, 26, color(14));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawGbox, without_edges_is_its_face)
{
    canvas->DrawGbox(5, 6, 35, 26, 0, 0, 0, 0, 11, 12, 13, 14, 15);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(5, 6, 35, 26, color(15))));
}

TEST_F(DrawGbox, draws_edges_that_are_wider_than_the_box_beyond_it)
{
    canvas->DrawGbox(10, 10, 14, 14, 6, 0, 0, 1, 11, 12, 13, 14, 15);
    const Picture expected = canvas.blank().fill(10, 10, 14, 16, color(11)).column(13, 10, 14, color(14));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawGbox, without_extent_draws_nothing)
{
    canvas->DrawGbox(10, 10, 10, 10, 0, 0, 0, 0, 11, 12, 13, 14, 15);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawGbox, far_beyond_the_display_does_not_wrap_around)
{
    canvas->DrawGbox(-2000000000, 5, 2000000000, 2000000000, 2, 98, 98, 98, 11, 12, 13, 14, 15);
    EXPECT_TRUE(
        same(canvas.picture(), canvas.blank().fill(0, 5, 40, 30, color(15)).fill(0, 5, 40, 7, color(11))));
}

TEST_F(DrawGbox, takes_a_rectangle)
{
    canvas->DrawGbox(RECT{5, 6, 35, 26, 3, 3}, 1, 1, 1, 1, 11, 12, 13, 14, 15);
    const Picture expected = canvas.blank()
                                 .fill(5, 6, 35, 26, color(15))
                                 .row(5, 35, 6, color(11))
                                 .row(5, 35, 25, color(12))
                                 .column(5, 6, 26, color(13))
                                 .column(34, 6, 26, color(14));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST(PaintDraw, has_a_context_of_its_own_and_keeps_it_when_destroyed)
{
    Canvas canvas(4, 4);
    GdkGC* gc = nullptr;
    {
        CPaintDraw draw(canvas.pixmap());
        EXPECT_EQ(draw.window, canvas.pixmap());
        EXPECT_NE(draw.gc, canvas->gc);
        gc = draw.gc;
    }
    EXPECT_EQ(G_OBJECT(gc)->ref_count, 1u);
    g_object_unref(gc);
    {
        CClientDraw draw(canvas.pixmap());
        EXPECT_EQ(draw.window, canvas.pixmap());
        gc = draw.gc;
    }
    EXPECT_EQ(G_OBJECT(gc)->ref_count, 1u);
    g_object_unref(gc);
}

TEST(ClientDraw, draws_on_a_window)
{
    usePalette();
    GdkWindowAttr attributes{};
    attributes.window_type = GDK_WINDOW_TEMP;
    attributes.wclass = GDK_INPUT_OUTPUT;
    attributes.width = 40;
    attributes.height = 30;
    GdkWindow* const window = gdk_window_new(nullptr, &attributes, 0);
    gdk_window_show(window);
    CClientDraw draw(window);
    draw.ClearScreen(3);
    draw.DrawRect(10, 9, 30, 21, 2, INSIDE, 5, 8);

    GdkImage* const image = gdk_drawable_get_image(window, 0, 0, 40, 30);
    Picture drawn(40, 30, 0);
    for (int y = 0; y < 30; y++)
        for (int x = 0; x < 40; x++)
            drawn.set(x, y, gdk_image_get_pixel(image, x, y));
    Picture expected(40, 30, color(3));
    expected.fill(10, 9, 30, 21, color(8)).frame(10, 9, 30, 21, color(5)).frame(11, 10, 29, 20, color(5));
    EXPECT_TRUE(same(drawn, expected));
    g_object_unref(image);
    g_object_unref(draw.gc);
    gdk_window_destroy(window);
}

TEST(PaintDraw, is_released_with_its_context_by_its_pointer)
{
    Canvas canvas(4, 4);
    PaintDrawPtr draw(new CPaintDraw(canvas.pixmap()));
    gpointer watched = draw->gc;
    g_object_add_weak_pointer(G_OBJECT(draw->gc), &watched);
    draw.reset();
    EXPECT_EQ(watched, nullptr);
}

} // namespace
