// Dragging windows by their title bar and scroll bars by their thumb.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"
#include "window/Request.h"

#include <gmock/gmock.h>
#include <limits>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

class Dragging : public Screen
{
  protected:
    void SetUp() override { project.code("SYSTEM", 99).code("D", 20); }

    /// A window of 300 x 200 with a title bar of 30, at 400,300.
    static Pattern draggable(const std::string& name)
    {
        return Pattern(name)
            .size(300, 200)
            .header(HEDR_KIND, 1)
            .header(HEDR_TITLE_HEIGHT, 30)
            .header(HEDR_LEFT, 400)
            .header(HEDR_TOP, 300);
    }

    CPtrnDisp* open(const Pattern& pattern)
    {
        know(pattern);
        start();
        CPtrnDisp* wnd = openTop(pattern.name());
        calls.clear();
        return wnd;
    }

    /// Takes the title bar in its middle and moves it in steps that keep the pointer on it.
    void drag(const CPtrnDisp* wnd, int dx, int dy)
    {
        take(wnd);
        carry(dx, dy);
        release();
    }

    void take(const CPtrnDisp* wnd)
    {
        pointer = {wnd->WindRect.left + 150, wnd->WindRect.top + 15};
        press(wnd, 150, 15);
    }

    void carry(int dx, int dy)
    {
        const int steps = std::max(std::max(std::abs(dx), std::abs(dy)) / 10, 1);
        for (int i = 1; i <= steps; i++) {
            user.move(pointer.x + dx * i / steps, pointer.y + dy * i / steps);
            user.settle();
        }
        pointer = {pointer.x + dx, pointer.y + dy};
    }

    /// Where the window is by its own account and on the screen.
    void expectAt(const CPtrnDisp* wnd, int x, int y)
    {
        EXPECT_EQ(wnd->WindRect.left, x);
        EXPECT_EQ(wnd->WindRect.top, y);
        EXPECT_EQ(wnd->WindRect.right, x + wnd->WindRect.width);
        EXPECT_EQ(wnd->WindRect.bottom, y + wnd->WindRect.height);
        for (const ScreenWindow& shown : user.windows()) {
            if (shown.title == wnd->PtrnName) {
                EXPECT_EQ(shown.x, x);
                EXPECT_EQ(shown.y, y);
            }
        }
    }

    POINT pointer{};
};

} // namespace

TEST_F(Dragging, moves_a_window_with_the_pointer)
{
    CPtrnDisp* wnd = open(draggable("p"));
    take(wnd);
    EXPECT_EQ(wnd->MoveWnd, 1);
    carry(57, -33);
    expectAt(wnd, 457, 267);
    carry(-100, 100);
    expectAt(wnd, 357, 367);
    release();
    EXPECT_EQ(wnd->MoveWnd, 0);
    user.move(pointer.x + 20, pointer.y);
    user.settle();
    expectAt(wnd, 357, 367);
    EXPECT_EQ(wnd->WindRect.width, 300);
    EXPECT_EQ(wnd->WindRect.height, 200);
}

TEST_F(Dragging, follows_the_pointer_in_a_scrolled_view)
{
    CPtrnDisp* wnd = open(draggable("p"));
    wnd->PtrnSetOffset(0, 40, 10, nullptr, 0);
    drag(wnd, 30, 20);
    expectAt(wnd, 430, 320);
}

TEST_F(Dragging, needs_the_window_kind_1_and_no_ban)
{
    CPtrnDisp* wnd = open(draggable("p").header(HEDR_NO_DRAG, 1));
    drag(wnd, 50, 50);
    expectAt(wnd, 400, 300);
    know(draggable("q").header(HEDR_KIND, 2));
    wnd = openTop("q");
    drag(wnd, 50, 50);
    expectAt(wnd, 400, 300);
    wnd->MoveWindow1({150, 5}); // as a screen class may call it
    EXPECT_EQ(wnd->MoveWnd, 0);
}

TEST_F(Dragging, leaves_a_place_alone_that_a_screen_class_stores_afterwards)
{
    CPtrnDisp* wnd = open(draggable("p"));
    drag(wnd, 50, 50);
    user.settle();
    wnd->WindRect.left = 12;
    tick();
    EXPECT_EQ(wnd->WindRect.left, 12);
}

TEST_F(Dragging, does_not_start_below_the_title_bar)
{
    CPtrnDisp* wnd = open(draggable("p"));
    press(wnd, 150, 40);
    EXPECT_EQ(wnd->MoveWnd, 0);
    release();
}

TEST_F(Dragging, pins_a_window_to_the_left_and_top_edge)
{
    CPtrnDisp* wnd = open(draggable("p"));
    drag(wnd, -400, 0);
    expectAt(wnd, 0, 300);
    take(wnd);
    carry(-100, 0);
    expectAt(wnd, 0, 300);
    release();
    drag(wnd, 0, -300);
    expectAt(wnd, 0, 0);
    take(wnd);
    carry(0, -10);
    expectAt(wnd, 0, 0);
    release();
    EXPECT_EQ(wnd->WindRect.width, 300);
    EXPECT_EQ(wnd->WindRect.height, 200);
}

TEST_F(Dragging, pins_a_window_to_the_right_and_bottom_edge)
{
    CPtrnDisp* wnd = open(draggable("p"));
    drag(wnd, 1280 - 300 - 400, 1024 - 200 - 300);
    expectAt(wnd, 1280 - 300, 1024 - 200);
    take(wnd);
    carry(60, 10);
    expectAt(wnd, 1280 - 300, 1024 - 200);
    release();
    EXPECT_EQ(wnd->WindRect.width, 300);
    EXPECT_EQ(wnd->WindRect.height, 200);
}

TEST_F(Dragging, goes_by_the_display_size_of_the_profile)
{
    project.set("TESSARY", "DISPSIZE", "800,600");
    CPtrnDisp* wnd = open(draggable("p"));
    drag(wnd, 110, 90);
    drag(wnd, 20, 20);
    expectAt(wnd, 500, 400);
}

TEST_F(Dragging, ends_a_window_larger_than_the_display_at_its_right_and_bottom_edge)
{
    CPtrnDisp* wnd = open(draggable("p").size(1300, 1100).header(HEDR_LEFT, 0).header(HEDR_TOP, 0));
    drag(wnd, 5, 5);
    expectAt(wnd, 1280 - 1300, 1024 - 1100);
    EXPECT_EQ(wnd->WindRect.width, 1300);
    EXPECT_EQ(wnd->WindRect.height, 1100);
}

TEST_F(Dragging, ends_when_the_pointer_leaves_the_window)
{
    CPtrnDisp* wnd = open(draggable("p"));
    take(wnd);
    user.move(100, 100); // faster than the window can follow
    user.settle();
    EXPECT_EQ(wnd->MoveWnd, 0);
    expectAt(wnd, 400, 300);
    release();
}

TEST_F(Dragging, knows_of_motion_that_came_before_the_press_was_handled)
{
    CPtrnDisp* wnd = open(draggable("p"));
    // All of it waits in the queue when the window gets to it.
    user.move(400 + 140, 300 + 15);
    user.move(400 + 150, 300 + 15);
    user.press();
    user.move(400 + 170, 300 + 25);
    user.settle();
    expectAt(wnd, 420, 310);
    release();
}

TEST_F(Dragging, ends_where_the_button_was_released)
{
    CPtrnDisp* wnd = open(draggable("p"));
    take(wnd);
    user.move(pointer.x + 20, pointer.y + 10);
    user.move(pointer.x + 30, pointer.y + 15); // the server reports the first motion only
    user.release();
    user.settle();
    expectAt(wnd, 430, 315);

    moveTo(wnd, 150, 100);
    user.move(430 + 140, 315 + 15);
    user.press();
    user.move(430 + 160, 315 + 25);
    user.release();
    user.settle();
    expectAt(wnd, 450, 325);
    EXPECT_EQ(wnd->MoveWnd, 0);
}

TEST_F(Dragging, does_not_follow_the_pointer_beyond_the_release)
{
    CPtrnDisp* wnd = open(draggable("p"));
    take(wnd);
    user.move(pointer.x + 20, pointer.y + 10);
    user.release();
    user.move(pointer.x + 90, pointer.y + 10);
    user.settle();
    expectAt(wnd, 420, 310);
    EXPECT_EQ(wnd->MoveWnd, 0);

    // A click is no drag, however fast the pointer goes on.
    user.move(420 + 150, 310 + 15);
    user.press();
    user.release();
    user.move(420 + 200, 310 + 15);
    user.settle();
    expectAt(wnd, 420, 310);
}

TEST_F(Dragging, stays_where_it_is_at_a_release_that_the_program_makes)
{
    CPtrnDisp* wnd = open(draggable("p"));
    take(wnd);
    carry(20, 10);
    GdkEventButton event{};
    event.type = GDK_BUTTON_RELEASE;
    event.window = wnd->DrawArea->window;
    event.button = 1;
    EXPECT_EQ(Mouse_Release(wnd->DrawArea, &event, wnd), TRUE);
    expectAt(wnd, 420, 310);
    EXPECT_EQ(wnd->MoveWnd, 0);
    release();
}

TEST_F(Dragging, is_remembered_when_the_window_is_exited)
{
    know(draggable("top"));
    know(draggable("sys"));
    start();
    openTop("top");
    CPtrnDisp* wnd = openSystem("sys");
    drag(wnd, 30, 40);
    EXPECT_THAT(readFile(project.profile()), Not(HasSubstr("430,340"))) << "not before";
    PtrnDispSysWnd("", nullptr, 0);
    EXPECT_THAT(readFile(project.profile()), HasSubstr("=430,340\n"));
}

TEST_F(Dragging, works_with_any_numbers)
{
    CPtrnDisp* wnd = open(draggable("p"));
    const int extremes[] = {std::numeric_limits<int>::min(), -40000, 0, 40000,
                            std::numeric_limits<int>::max()};
    for (const int x : extremes)
        for (const int y : extremes) {
            wnd->MoveWindow1({x, y});
            wnd->MoveWindow2({y, x});
            wnd->MoveWindow2({x, y});
            wnd->MoveWindow3();
        }
    EXPECT_EQ(wnd->WindRect.right - wnd->WindRect.left, wnd->WindRect.width);
    user.settle();
}

// --- thumb -----------------------------------------------------------------------------------------

namespace
{

/// A vertical bar of 20 x 202: the trough of 200 runs from 31 to 231 and shows 50 of 150 rows.
class ThumbDragging : public Dragging
{
  protected:
    static constexpr int NUMBER = 100;

    CPtrnDisp* openBar(int action = 1)
    {
        CPtrnDisp* wnd = open(Pattern("p")
                                  .size(300, 300)
                                  .header(HEDR_KIND, 2)
                                  .header(HEDR_LEFT, 400)
                                  .header(HEDR_TOP, 300)
                                  .item(PTRN_SBAR, 100, 30, 120, 232)
                                  .parm(SBAR_ARROWS, 0)
                                  .parm(SBAR_VERTICAL, 1)
                                  .parm(SBAR_VISIBLE, 50)
                                  .parm(SBAR_TOTAL, 150)
                                  .code("D", 0)
                                  .action(action));
        return wnd;
    }

    static int value() { return Get_iData(NUMBER, nullptr, 0); }
    Calls messages() const { return callsOf({"mesg"}); }
};

} // namespace

TEST_F(ThumbDragging, sets_the_value_and_carries_out_the_action_at_every_change)
{
    CPtrnDisp* wnd = openBar();
    press(wnd, 110, 40);
    EXPECT_EQ(wnd->ScrollBar, 1);
    EXPECT_THAT(messages(), IsEmpty());
    // The thumb of 66 pixels moves in the remaining 134 for 100 rows.
    moveTo(wnd, 110, 40 + 67);
    EXPECT_EQ(value(), 50);
    EXPECT_THAT(messages(), ElementsAre("mesg 100"));
    moveTo(wnd, 111, 40 + 67);
    EXPECT_THAT(messages(), ElementsAre("mesg 100")) << "the value has not changed";
    moveTo(wnd, 110, 290);
    EXPECT_EQ(value(), 100);
    moveTo(wnd, 110, 2);
    EXPECT_EQ(value(), 0);
    release();
    EXPECT_EQ(wnd->ScrollBar, 0);
    moveTo(wnd, 110, 150);
    EXPECT_EQ(value(), 0);
}

TEST_F(ThumbDragging, ends_where_the_button_was_released)
{
    CPtrnDisp* wnd = openBar();
    press(wnd, 110, 40);
    user.move(400 + 110, 300 + 60);
    user.move(400 + 110, 300 + 40 + 67);
    user.release();
    user.settle();
    EXPECT_EQ(value(), 50);
    EXPECT_EQ(wnd->ScrollBar, 0);
}

TEST_F(ThumbDragging, ends_when_the_pointer_leaves_the_window)
{
    CPtrnDisp* wnd = openBar();
    press(wnd, 110, 40);
    user.move(10, 10);
    user.settle();
    EXPECT_EQ(wnd->ScrollBar, 0);
    moveTo(wnd, 110, 150);
    EXPECT_EQ(value(), 0);
    release();
}

TEST_F(ThumbDragging, does_not_start_under_a_modal_child)
{
    CPtrnDisp* wnd = openBar();
    know(Pattern("child").size(20, 20).header(HEDR_KIND, 0));
    openChild(wnd, 1, "child");
    press(wnd, 110, 40);
    EXPECT_EQ(wnd->ScrollBar, 0);
    release();
}

TEST_F(ThumbDragging, goes_on_while_the_hook_lets_motion_pass)
{
    CPtrnDisp* wnd = openBar();
    press(wnd, 110, 40);
    hooks.mouse = [](CPtrnDisp&, POINT, int, int) { return 1; };
    moveTo(wnd, 110, 107);
    EXPECT_EQ(value(), 0);
    hooks.mouse = nullptr;
    moveTo(wnd, 110, 108);
    EXPECT_EQ(value(), 50);
    release();
}
