// What a tick sends to the display server when little or nothing has changed.
#include "tests/support/Screen.h"
#include "tests/support/UseEdition.h"
#include "tests/support/XProbe.h"

#include "comndata/ComnData.h"
#include "draw/Resource.h"
#include "window/Request.h"

using namespace tessary;

namespace
{

constexpr int FIRST = 100; ///< cells of the boxes

class QuietTick : public Screen
{
  protected:
    void SetUp() override { project.code("SYSTEM", 99).code("D", 20); }

    /// Two boxes, at 20,20 and at 120,120, of 40 x 40 pixels.
    static Pattern boxes()
    {
        Pattern pattern("p");
        pattern.size(200, 200).header(HEDR_KIND, 2).header(HEDR_LEFT, 300).header(HEDR_TOP, 200);
        for (int i = 0; i < 2; i++)
            pattern.item(PTRN_RECT, 20 + 100 * i, 20 + 100 * i, 60 + 100 * i, 60 + 100 * i)
                .parm(SHAPE_WIDTH, 0)
                .parm(SHAPE_FILLED, 1)
                .parm4(SHAPE_FILL4, 40, 41, 42, 43)
                .code("D", i);
        return pattern;
    }

    CPtrnDisp* open()
    {
        know(boxes());
        start();
        CPtrnDisp* wnd = openTop("p");
        tick(2);
        return wnd;
    }

    /// Draws on the window itself, behind its back buffer: the next copy of that part shows.
    static void scribble(const CPtrnDisp* wnd)
    {
        CClientDraw draw(wnd->DrawArea->window);
        draw.ClearScreen(60);
        g_object_unref(draw.gc);
        gdk_flush();
    }

    /// Gives the window a pointer behind its back.
    static void usePlainCursor(GdkWindow* window)
    {
        GdkCursor* cursor = gdk_cursor_new(GDK_X_CURSOR);
        gdk_window_set_cursor(window, cursor);
        gdk_cursor_unref(cursor);
        gdk_flush();
    }

    /// Whether a tick has left a place of the window alone.
    bool untouched(const CPtrnDisp* wnd, int x, int y) { return pixel(wnd, x, y) == color(60); }
};

} // namespace

TEST_F(QuietTick, copies_nothing_when_nothing_was_drawn)
{
    CPtrnDisp* wnd = open();
    scribble(wnd);
    ASSERT_TRUE(untouched(wnd, 100, 100));
    tick();
    EXPECT_FALSE(untouched(wnd, 100, 100)) << "edition 1 copies everything";
    wnd->PtrnExit();

    const UseEdition edition;
    wnd = openTop("p");
    tick(2);
    scribble(wnd);
    tick(5);
    for (const POINT pt : {POINT{0, 0}, {30, 30}, {100, 100}, {199, 199}})
        EXPECT_TRUE(untouched(wnd, pt.x, pt.y)) << pt.x;
}

TEST_F(QuietTick, copies_what_was_drawn_and_nothing_else)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    scribble(wnd);
    Set_wData(FIRST, 1, nullptr, 0);
    tick();
    EXPECT_EQ(pixel(wnd, 20, 20), color(41));
    EXPECT_EQ(pixel(wnd, 59, 59), color(41));
    for (const POINT pt : {POINT{19, 19}, {60, 60}, {61, 30}, {130, 130}})
        EXPECT_TRUE(untouched(wnd, pt.x, pt.y)) << pt.x << "," << pt.y;
}

TEST_F(QuietTick, copies_the_place_of_the_view_where_it_was_drawn)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    wnd->PtrnSetOffset(0, 110, 100, nullptr, 0);
    tick();
    EXPECT_EQ(pixel(wnd, 10, 20), color(40));
    scribble(wnd);
    Set_wData(FIRST, 1, nullptr, 0); // out of view
    Set_wData(FIRST + 1, 2, nullptr, 0);
    tick();
    EXPECT_EQ(pixel(wnd, 10, 20), color(42));
    EXPECT_EQ(pixel(wnd, 49, 59), color(42));
    EXPECT_TRUE(untouched(wnd, 9, 20));
    EXPECT_TRUE(untouched(wnd, 150, 150));
}

TEST_F(QuietTick, copies_everything_when_another_part_comes_into_view)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    scribble(wnd);
    wnd->Offset = {100, 100};
    tick();
    EXPECT_EQ(pixel(wnd, 30, 30), color(40));
    EXPECT_EQ(pixel(wnd, 5, 5), color(HEDR_BODY_COLOR));
    EXPECT_FALSE(untouched(wnd, 150, 150)) << "outside the pattern";
}

TEST_F(QuietTick, copies_everything_of_a_new_back_buffer)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    wnd->PaintEvent();
    scribble(wnd);
    tick();
    EXPECT_EQ(pixel(wnd, 30, 30), color(40));
    EXPECT_EQ(pixel(wnd, 199, 199), color(HEDR_BODY_COLOR));
}

TEST_F(QuietTick, shows_what_a_screen_class_draws)
{
    const UseEdition edition;
    bool drawing = false;
    hooks.disp = [&](CPtrnDisp&, CDraw* draw, int mode) {
        if (mode == 1 && drawing)
            draw->DrawRect(80, 90, 90, 100, 0, 0, 50, 50);
    };
    CPtrnDisp* wnd = open();
    scribble(wnd);
    tick();
    EXPECT_TRUE(untouched(wnd, 85, 95));
    drawing = true;
    tick();
    EXPECT_EQ(pixel(wnd, 85, 95), color(50));
    EXPECT_TRUE(untouched(wnd, 79, 95));
}

TEST_F(QuietTick, shows_what_a_screen_class_draws_by_other_means)
{
    const UseEdition edition;
    bool drawing = false;
    hooks.disp = [&](CPtrnDisp& wnd, CDraw* draw, int mode) {
        if (mode != 1 || !drawing)
            return;
        gdk_gc_set_foreground(draw->gc, &DrawColr[50]);
        gdk_draw_rectangle(draw->window, draw->gc, TRUE, 80, 90, 10, 10);
        CPaintDraw own(wnd.Pixmap);
        own.DrawRect(140, 20, 150, 30, 0, 0, 51, 51);
        g_object_unref(own.gc);
    };
    CPtrnDisp* wnd = open();
    scribble(wnd);
    drawing = true;
    tick();
    EXPECT_EQ(pixel(wnd, 85, 95), color(50));
    EXPECT_EQ(pixel(wnd, 145, 25), color(51));
}

TEST_F(QuietTick, shows_what_was_drawn_between_two_ticks)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    scribble(wnd);
    CPaintDraw own(wnd->Pixmap);
    own.DrawRect(140, 20, 150, 30, 0, 0, 51, 51);
    g_object_unref(own.gc);
    tick();
    EXPECT_EQ(pixel(wnd, 145, 25), color(51));
    EXPECT_TRUE(untouched(wnd, 139, 25));
}

TEST_F(QuietTick, what_another_window_has_covered_comes_back)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    {
        const ForeignWindow cover(310, 210, 40, 40);
        ASSERT_TRUE(user.waitFor([&] { return pixel(wnd, 30, 30) != color(40); }, "the other window"));
    }
    EXPECT_TRUE(user.waitFor([&] { return pixel(wnd, 30, 30) == color(40); }, "the expose"));
    EXPECT_EQ(pixel(wnd, 15, 15), color(HEDR_BODY_COLOR));
}

TEST_F(QuietTick, an_exposed_part_outside_the_pattern_is_cleared)
{
    know(boxes());
    start();
    const UseEdition edition;
    RecordingWnd wnd(calls, hooks);
    wnd.PtrnDispInit(nullptr, "p", KIND_CHILD1, SetRect(50, 60, 350, 360));
    waitShown(&wnd);
    tick(2);
    scribble(&wnd);
    gdk_window_invalidate_rect(wnd.DrawArea->window, nullptr, FALSE);
    user.settle();
    EXPECT_EQ(pixel(&wnd, 30, 30), color(40));
    EXPECT_NE(pixel(&wnd, 250, 250), color(60));
}

TEST_F(QuietTick, the_pointer_is_sent_only_when_it_has_changed)
{
    const auto resent = [&](CPtrnDisp* wnd) {
        moveTo(wnd, 100, 100);
        wnd->CursorType = 1;
        tick();
        usePlainCursor(wnd->DrawArea->window);
        const std::vector<std::uint32_t> plain = pointerPicture().pixels;
        tick(2);
        const bool again = pointerPicture().pixels != plain;
        wnd->CursorType = 2;
        tick();
        EXPECT_NE(pointerPicture().pixels, plain);
        return again;
    };
    EXPECT_TRUE(resent(open()));
    AppliWnd->PtrnExit();
    const UseEdition edition;
    EXPECT_FALSE(resent(openTop("p")));
}

TEST_F(QuietTick, sends_no_request_at_all)
{
    const UseEdition edition;
    CPtrnDisp* wnd = open();
    user.settle();
    tick(2);
    const unsigned long before = requestsSent();
    for (int i = 0; i < 10; i++)
        wnd->TimrEvent();
    while (g_main_context_iteration(nullptr, FALSE))
        ;
    EXPECT_EQ(requestsSent() - before, 0U);
}
