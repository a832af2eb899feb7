// The back buffer, what of it is on the screen, and the tick.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "window/Buffer.h"
#include "window/Request.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Painting : public Screen
{
  protected:
    void SetUp() override { project.code("SYSTEM", 99).code("D", 20); }

    /// Four quarters of 100 x 100 in colours 40 to 43, row by row.
    static Pattern quarters(const std::string& name)
    {
        Pattern pattern(name);
        pattern.size(200, 200).header(HEDR_KIND, 2).header(HEDR_LEFT, 300).header(HEDR_TOP, 200);
        for (int i = 0; i < 4; i++)
            pattern.item(PTRN_RECT, i % 2 * 100, i / 2 * 100, i % 2 * 100 + 100, i / 2 * 100 + 100)
                .parm(SHAPE_WIDTH, 0)
                .parm(SHAPE_FILLED, 1)
                .parm(SHAPE_FILL4, 40 + i);
        return pattern;
    }

    CPtrnDisp* open(const Pattern& pattern)
    {
        know(pattern);
        start();
        CPtrnDisp* wnd = openTop(pattern.name());
        project.clearLog();
        return wnd;
    }

    std::uint32_t ground(const CPtrnDisp* wnd)
    {
        const GdkColor& normal = wnd->DrawArea->style->bg[GTK_STATE_NORMAL];
        return static_cast<std::uint32_t>(normal.red >> 8) << 16 |
               static_cast<std::uint32_t>(normal.green >> 8) << 8 |
               static_cast<std::uint32_t>(normal.blue >> 8);
    }

    std::pair<int, int> bufferSize(const CPtrnDisp* wnd)
    {
        std::pair<int, int> size;
        gdk_drawable_get_size(wnd->Pixmap, &size.first, &size.second);
        return size;
    }
};

} // namespace

TEST_F(Painting, draws_title_bar_then_items_then_calls_the_hook)
{
    std::vector<std::uint32_t> seen;
    hooks.disp = [&](CPtrnDisp& wnd, CDraw* draw, int mode) {
        if (mode != 0)
            return;
        for (const auto& [x, y] : {std::pair{150, 10}, {20, 10}, {150, 60}})
            seen.push_back(bufferPixel(&wnd, x, y));
        draw->DrawRect(10, 5, 30, 15, 0, 0, 60, 60);
    };
    CPtrnDisp* wnd = open(Pattern("p")
                              .size(200, 100)
                              .header(HEDR_TITLE_HEIGHT, 30)
                              .item(PTRN_RECT, 10, 5, 30, 20)
                              .parm(SHAPE_FILLED, 1));
    ASSERT_GE(seen.size(), 3u);
    EXPECT_EQ(seen[0], color(HEDR_TITLE_BACK));
    EXPECT_EQ(seen[1], color(SHAPE_FILL4)) << "an item lies on the title bar";
    EXPECT_EQ(seen[2], color(HEDR_BODY_COLOR));
    EXPECT_EQ(pixel(wnd, 20, 10), color(60)) << "the hook's drawing is on the screen";
}

TEST_F(Painting, makes_the_back_buffer_as_large_as_the_pattern)
{
    know(quarters("p"));
    start();
    RecordingWnd wnd(calls, hooks);
    wnd.PtrnDispInit(nullptr, "p", KIND_CHILD1, SetRect(50, 60, 120, 90));
    waitShown(&wnd);
    EXPECT_EQ(bufferSize(&wnd), std::pair(200, 200));
    EXPECT_EQ(pixel(&wnd, 69, 29), color(40));
}

TEST_F(Painting, shows_the_plain_background_where_the_body_s_bitmap_is_missing)
{
    const auto body = [&](CPtrnDisp* wnd) { return bufferPicture(wnd, 0, 0, 200, 200).count(ground(wnd)); };
    know(quarters("painted"));
    know(Pattern("bare").size(200, 200).bitmap("missing"));
    start();
    EXPECT_EQ(body(openTop("painted")), 0);
    AppliWnd->PtrnExit(); // the server is likely to give its buffer's memory away next
    gdk_flush();
    EXPECT_EQ(body(openTop("bare")), 200 * 200);
    AppliWnd->PaintEvent();
    EXPECT_EQ(body(AppliWnd), 200 * 200);
}

TEST_F(Painting, shows_the_part_of_the_pattern_that_the_offset_says)
{
    know(quarters("p"));
    start();
    RecordingWnd wnd(calls, hooks);
    wnd.PtrnDispInit(nullptr, "p", KIND_CHILD1, SetRect(50, 60, 110, 120));
    waitShown(&wnd);
    wnd.PtrnSetOffset(0, 70, 80, nullptr, 0);
    user.settle();
    EXPECT_EQ(pixel(&wnd, 29, 19), color(40));
    EXPECT_EQ(pixel(&wnd, 30, 19), color(41));
    EXPECT_EQ(pixel(&wnd, 29, 20), color(42));
    EXPECT_EQ(pixel(&wnd, 30, 20), color(43));
    EXPECT_EQ(pixel(&wnd, 59, 59), color(43));
}

TEST_F(Painting, shows_the_plain_background_where_the_view_leaves_the_pattern)
{
    CPtrnDisp* wnd = open(quarters("p"));
    wnd->PtrnSetOffset(0, -50, 150, nullptr, 0);
    user.settle();
    EXPECT_EQ(pixel(wnd, 49, 10), ground(wnd));
    EXPECT_EQ(pixel(wnd, 50, 10), color(42));
    EXPECT_EQ(pixel(wnd, 199, 49), color(43));
    EXPECT_EQ(pixel(wnd, 60, 50), ground(wnd));
    for (const POINT offset : {POINT{0, 200}, {-200, 0}, {65536, 0}, {0, -65536}, {2147483647, 2147483647}}) {
        wnd->PtrnSetOffset(0, offset.x, offset.y, nullptr, 0);
        user.settle();
        for (const POINT pt : {POINT{0, 0}, {100, 100}, {199, 199}})
            EXPECT_EQ(pixel(wnd, pt.x, pt.y), ground(wnd)) << offset.x << "," << offset.y;
    }
}

TEST_F(Painting, shows_the_plain_background_beside_a_pattern_that_is_smaller_than_its_window)
{
    know(quarters("p"));
    start();
    RecordingWnd wnd(calls, hooks);
    wnd.PtrnDispInit(nullptr, "p", KIND_CHILD1, SetRect(50, 60, 350, 160));
    waitShown(&wnd);
    EXPECT_EQ(pixel(&wnd, 199, 50), color(41));
    EXPECT_EQ(pixel(&wnd, 200, 50), ground(&wnd));
}

TEST_F(Painting, copies_the_whole_view_whatever_was_exposed)
{
    CPtrnDisp* wnd = open(quarters("p"));
    CPaintDraw draw(wnd->Pixmap);
    draw.DrawRect(150, 150, 180, 180, 0, 0, 60, 60);
    g_object_unref(draw.gc);
    ASSERT_EQ(pixel(wnd, 160, 160), color(43)) << "not before an expose";

    // Another window comes and goes over the top left corner.
    GtkWidget* other = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_resize(GTK_WINDOW(other), 10, 10);
    gtk_window_move(GTK_WINDOW(other), wnd->WindRect.left, wnd->WindRect.top);
    gtk_widget_show(other);
    user.settle();
    gtk_widget_destroy(other);
    user.settle();
    EXPECT_EQ(pixel(wnd, 160, 160), color(60));
    EXPECT_EQ(pixel(wnd, 5, 5), color(40));
}

TEST_F(Painting, brings_the_back_buffer_to_the_screen_by_an_update_and_by_every_tick)
{
    CPtrnDisp* wnd = open(quarters("p"));
    CPaintDraw draw(wnd->Pixmap);
    draw.DrawRect(150, 150, 180, 180, 0, 0, 60, 60);
    wnd->PtrnUpdate();
    user.settle();
    EXPECT_EQ(pixel(wnd, 160, 160), color(60));
    draw.DrawRect(150, 150, 180, 180, 0, 0, 61, 61);
    tick();
    EXPECT_EQ(pixel(wnd, 160, 160), color(61));
    g_object_unref(draw.gc);
}

TEST_F(Painting, paints_anew_at_every_configure)
{
    CPtrnDisp* wnd = open(quarters("p"));
    calls.clear();
    CPaintDraw draw(wnd->Pixmap);
    draw.DrawRect(150, 150, 180, 180, 0, 0, 60, 60);
    g_object_unref(draw.gc);
    EXPECT_EQ(Configure_Event(wnd->DrawArea, nullptr, wnd), TRUE);
    EXPECT_EQ(Expose_Event(wnd->DrawArea, nullptr, wnd), TRUE);
    user.settle();
    EXPECT_THAT(calls, ElementsAre("disp 0"));
    EXPECT_EQ(pixel(wnd, 160, 160), color(43));
}

TEST_F(Painting, cuts_a_pattern_that_no_display_server_could_hold)
{
    CPtrnDisp* wnd = open(Pattern("huge").size(2000000000, 2000000000));
    EXPECT_EQ(bufferSize(wnd), std::pair(32767, 1024));
    tick(2);
    EXPECT_EQ(pixel(wnd, 1000, 1000), color(HEDR_BODY_COLOR));
}

TEST_F(Painting, logs_a_pattern_that_it_has_to_cut)
{
    know(Pattern("huge").size(40000, 30));
    start();
    project.clearLog();
    openTop("huge");
    EXPECT_THAT(project.messages(), ElementsAre("パターンが大きすぎる  [huge / 40000 x 30]"));
}

TEST(BackBuffer, is_bounded_each_way_and_in_all)
{
    const auto bounded = [](int width, int height) {
        const SIZE size = BoundedBuffer(width, height);
        return std::pair(size.cx, size.cy);
    };
    EXPECT_EQ(bounded(1280, 1024), std::pair(1280, 1024));
    EXPECT_EQ(bounded(0, -5), std::pair(1, 1));
    EXPECT_EQ(bounded(40000, 10), std::pair(32767, 10));
    EXPECT_EQ(bounded(10, 40000), std::pair(10, 32767));
    EXPECT_EQ(bounded(1280, 32767), std::pair(1280, 32 * 1024 * 1024 / 1280));
    EXPECT_EQ(bounded(32767, 32767), std::pair(32767, 1024));
}

// --- tick ------------------------------------------------------------------------------------------

TEST_F(Painting, a_tick_calls_the_timer_hook_draws_what_has_changed_and_calls_the_display_hook)
{
    CPtrnDisp* wnd =
        open(Pattern("p").size(200, 100).item(PTRN_RECT, 10, 10, 40, 40).parm(SHAPE_FILLED, 1).code("D", 0));
    calls.clear();
    std::vector<std::uint32_t> seen;
    hooks.timr = [&](CPtrnDisp& self) {
        Set_wData(100, 1, nullptr, 0);
        seen.push_back(bufferPixel(&self, 25, 25));
    };
    hooks.disp = [&](CPtrnDisp& self, CDraw*, int mode) {
        EXPECT_EQ(mode, 1);
        seen.push_back(bufferPixel(&self, 25, 25));
    };
    tick();
    EXPECT_THAT(calls, ElementsAre("timr", "disp 1"));
    EXPECT_THAT(seen, ElementsAre(color(SHAPE_FILL4), color(SHAPE_FILL4 + 1)));
    EXPECT_EQ(pixel(wnd, 25, 25), color(SHAPE_FILL4 + 1));
}

TEST_F(Painting, a_tick_runs_through_the_children_after_the_window_itself)
{
    open(quarters("p"));
    CPtrnDisp* first = openChild(AppliWnd, 1, "p", 10, 10);
    CPtrnDisp* second = openChild(AppliWnd, 2, "p", 20, 20);
    CPtrnDisp* grandchild = openChild(first, 2, "p", 30, 30);
    CPtrnDisp* system = openSystem("p");
    std::vector<const CPtrnDisp*> order;
    hooks.timr = [&](CPtrnDisp& self) { order.push_back(&self); };
    tick();
    EXPECT_THAT(order, ElementsAre(AppliWnd, first, grandchild, second, system));
}

TEST_F(Painting, a_tick_does_nothing_for_a_window_that_was_not_painted_nor_for_its_children)
{
    open(quarters("p"));
    CPtrnDisp* child = openChild(AppliWnd, 1, "p", 10, 10);
    RecordingWnd unopened(calls, hooks);
    unopened.ChildWnd1 = child;
    calls.clear();
    unopened.TimrEvent();
    EXPECT_THAT(calls, IsEmpty());
    unopened.ChildWnd1 = nullptr;
}

TEST_F(Painting, a_tick_blinks_before_it_draws_what_has_changed)
{
    CPtrnDisp* wnd = open(Pattern("p")
                              .size(200, 100)
                              .item(PTRN_FCHR, 10, 10, 50, 26)
                              .parm(FIELD_WIDTH, 5)
                              .parm(TEXT_BACKED, 1)
                              .text("ABCDE")
                              .code("D", 0));
    const auto inked = [&] { return bufferPicture(wnd, 10, 10, 40, 16).count(color(TEXT_COLOR4)) > 0; };
    const CPtrnData& data = *wnd->PtrnData;
    for (int i = 0; i < FLIKER_ON + FLIKER_OFF; i++)
        if (data.FlikerFlag != 1 || data.FlikerTimr != FLIKER_ON - 1)
            tick();
    hooks.timr = [](CPtrnDisp&) { Set_Flikr(100, 1, nullptr, 0); };
    tick();
    EXPECT_EQ(data.FlikerFlag, 0);
    EXPECT_TRUE(inked()) << "it did not blink yet";
    tick(FLIKER_OFF + FLIKER_ON);
    EXPECT_FALSE(inked());
    tick(FLIKER_OFF);
    EXPECT_TRUE(inked());
}

TEST_F(Painting, a_tick_issues_the_item_due_for_repeat_between_the_display_hook_and_the_children)
{
    open(Pattern("p").size(200, 100).item(PTRN_SPIN, 10, 10, 26, 42).code("D", 0).action(1));
    press(AppliWnd, 15, 15);
    openChild(AppliWnd, 1, "p", 400, 300);
    tick(6);
    calls.clear();
    tick();
    EXPECT_THAT(calls, ElementsAre("timr", "disp 1", "mesg 100", "timr", "disp 1"));
    release();
}
