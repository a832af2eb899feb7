// Pattern windows under a window manager.
#include "tests/support/WindowManager.h"
#include "tests/window/KeyEdit.h"

#include <algorithm>
#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

class Managed : public KeyEdit
{
  protected:
    /// A window of 300 x 200 with a title bar, to be dragged.
    static Pattern plain(const std::string& name, int x, int y)
    {
        return fields(name)
            .header(HEDR_KIND, 1)
            .header(HEDR_TITLE_HEIGHT, 16)
            .header(HEDR_LEFT, x)
            .header(HEDR_TOP, y)
            .header(HEDR_MODELESS, 1);
    }

    void SetUp() override
    {
        KeyEdit::SetUp();
        know(plain("p", 200, 150));
        know(plain("q", 600, 400));
        start();
        manager.waitReady();
        openTop("p");
    }

    void TearDown() override
    {
        user.release();
        user.settle();
    }

    ScreenWindow shown(const CPtrnDisp* wnd)
    {
        for (const ScreenWindow& window : user.windows())
            if (window.title == wnd->PtrnName)
                return window;
        ADD_FAILURE() << wnd->PtrnName << " is not on the screen";
        return {};
    }

    std::vector<int> place(const CPtrnDisp* wnd)
    {
        const ScreenWindow window = shown(wnd);
        return {window.x, window.y, window.width, window.height};
    }

    void waitPlace(const CPtrnDisp* wnd, int x, int y)
    {
        user.waitFor(
            [&] {
                const ScreenWindow window = shown(wnd);
                return window.x == x && window.y == y;
            },
            "the window at " + std::to_string(x) + "," + std::to_string(y));
    }

    void waitActive(const CPtrnDisp* wnd)
    {
        user.waitFor([&] { return manager.active() == shown(wnd).id; }, "the keyboard");
        user.settle();
    }

    std::vector<std::string> titles()
    {
        std::vector<std::string> result;
        for (const ScreenWindow& window : user.windows())
            if (window.title != "Openbox") // its own, outside the display
                result.push_back(window.title);
        return result;
    }

    /// Takes the title bar. The window manager sees the press first, then hands it on.
    void take(const CPtrnDisp* wnd)
    {
        press(wnd, 150, 8);
        user.waitFor([&] { return wnd->MoveWnd == 1; }, "the drag");
    }

    /// Moves in small steps, and waits in between as a hand does.
    void carry(int fromX, int fromY, int dx, int dy)
    {
        for (int i = 1; i <= 10; i++) {
            user.move(fromX + dx * i / 10, fromY + dy * i / 10);
            user.settle();
        }
    }

    WindowManager manager;
};

} // namespace

TEST_F(Managed, have_no_frame_and_the_place_and_size_of_their_pattern)
{
    EXPECT_THAT(place(AppliWnd), ElementsAre(200, 150, 300, 200));
    EXPECT_EQ(manager.frame(shown(AppliWnd).id), 0);
    CPtrnDisp* child = openChild(AppliWnd, 1, "q");
    EXPECT_THAT(place(child), ElementsAre(600, 400, 300, 200));
    EXPECT_EQ(manager.frame(shown(child).id), 0);
}

TEST_F(Managed, may_fill_the_display_or_be_larger)
{
    know(Pattern("full").size(1280, 1024).header(HEDR_KIND, 0));
    openTop("full");
    EXPECT_THAT(place(AppliWnd), ElementsAre(0, 0, 1280, 1024));
    know(Pattern("large").size(1500, 1200).header(HEDR_KIND, 0));
    openTop("large");
    EXPECT_THAT(place(AppliWnd), ElementsAre(0, 0, 1500, 1200));
    EXPECT_TRUE(user.waitFor([&] { return pixel(AppliWnd, 1279, 1023) == color(HEDR_BODY_COLOR); },
                             "the body in the display's last corner"));
}

TEST_F(Managed, may_be_smaller_than_their_pattern)
{
    AppliWnd->PtrnDispChild(1, "q", SetRect(700, 100, 780, 160), nullptr, 0);
    waitShown(AppliWnd->ChildWnd1);
    EXPECT_THAT(place(AppliWnd->ChildWnd1), ElementsAre(700, 100, 80, 60));
}

TEST_F(Managed, can_not_be_closed_by_it)
{
    user.requestClose(shown(AppliWnd).id);
    user.settle();
    EXPECT_TRUE(AppliWnd->Widget);
    EXPECT_THAT(titles(), ElementsAre("p"));
}

TEST_F(Managed, children_stay_above_their_parent)
{
    openChild(AppliWnd, 1, "q", 250, 180);
    EXPECT_THAT(titles(), ElementsAre("p", "q"));
    click(AppliWnd, 10, 190); // beside the child: raises the parent, and the child with it
    user.waitFor([&] { return manager.active() == shown(AppliWnd).id; }, "the parent to be active");
    EXPECT_THAT(titles(), ElementsAre("p", "q"));
}

TEST_F(Managed, the_system_window_stays_above_an_application_window_that_is_opened_later)
{
    know(Pattern("full").size(1280, 1024).header(HEDR_KIND, 0));
    openSystem("q");
    openTop("full");
    user.waitFor([this] { return titles() == std::vector<std::string>{"full", "q"}; }, "the system window");
    click(AppliWnd, 10, 900);
    user.waitFor([&] { return manager.active() == shown(AppliWnd).id; }, "the window to be active");
    EXPECT_THAT(titles(), ElementsAre("full", "q"));
}

TEST_F(Managed, the_system_window_stays_above_a_child_that_is_clicked)
{
    know(plain("system", 300, 250));
    CPtrnDisp* child = openChild(AppliWnd, 1, "q", 250, 180);
    openSystem("system");
    user.waitFor(
        [this] {
            return titles() == std::vector<std::string>{"p", "q", "system"};
        },
        "the system window");
    click(child, 10, 190);
    user.waitFor(
        [this] {
            return titles() == std::vector<std::string>{"p", "q", "system"};
        },
        "the system window above again");
    waitActive(child);
    user.waitFor(
        [this] {
            return titles() == std::vector<std::string>{"p", "q", "system"};
        },
        "the system window above again");
}

TEST_F(Managed, have_the_keyboard_wherever_the_pointer_is)
{
    user.move(1000, 900);
    waitActive(AppliWnd);
    AppliWnd->KeyInputStart(TEXT, nullptr, 0);
    type("ab");
    EXPECT_EQ(text(), "ab");
    CPtrnDisp* child = openChild(AppliWnd, 1, "q");
    waitActive(child);
    type("c");
    EXPECT_EQ(text(), "abc") << "keys reach every window";
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    waitActive(AppliWnd);
    type("d");
    EXPECT_EQ(text(), "abcd");
}

TEST_F(Managed, a_click_operates_an_item_and_brings_the_keyboard_at_once)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "q");
    waitActive(child);
    edit(TEXT);
    waitActive(AppliWnd);
    type("x");
    EXPECT_EQ(text(), "x");
    EXPECT_TRUE(editing());
}

TEST_F(Managed, can_be_dragged_by_their_title_bar)
{
    take(AppliWnd);
    carry(350, 158, 90, 60);
    carry(440, 218, -30, 10);
    release();
    waitPlace(AppliWnd, 260, 220);
    tick(2);
    EXPECT_EQ(AppliWnd->WindRect.left, 260);
    EXPECT_EQ(AppliWnd->WindRect.top, 220);
    // From there again.
    take(AppliWnd);
    carry(410, 228, 10, 10);
    release();
    waitPlace(AppliWnd, 270, 230);
}

TEST_F(Managed, end_a_drag_where_the_pointer_has_carried_them_however_late_the_window_follows)
{
    take(AppliWnd);
    manager.pause();
    carry(350, 158, 40, 20); // the window stays where it was
    carry(390, 178, 30, -10);
    EXPECT_THAT(place(AppliWnd), ElementsAre(200, 150, 300, 200));
    EXPECT_EQ(AppliWnd->WindRect.left, 270);
    EXPECT_EQ(AppliWnd->WindRect.top, 160);
    manager.resume();
    release();
    waitPlace(AppliWnd, 270, 160);
    user.settle();
    tick();
    EXPECT_EQ(AppliWnd->WindRect.left, 270);
}

TEST_F(Managed, are_followed_when_it_moves_them)
{
    CPtrnDisp* wnd = openSystem("q");
    user.requestMove(user.waitForWindow(wnd->PtrnName).id, 400, 300);
    waitPlace(wnd, 400, 300);
    user.settle();
    tick();
    EXPECT_EQ(wnd->WindRect.left, 400);
    EXPECT_EQ(wnd->WindRect.top, 300);
    EXPECT_EQ(wnd->WindRect.right, 700);
    EXPECT_EQ(wnd->WindRect.width, 300);
    PtrnDispSysWnd("", nullptr, 0);
    EXPECT_THAT(readFile(project.profile()), HasSubstr("=400,300\n")) << "remembered";
}

TEST_F(Managed, a_drag_after_it_has_moved_them_starts_where_they_are)
{
    user.requestMove(user.waitForWindow(AppliWnd->PtrnName).id, 300, 200);
    waitPlace(AppliWnd, 300, 200);
    user.settle();
    user.move(300 + 150, 200 + 8); // without a tick in between
    user.press();
    user.waitFor([] { return AppliWnd->MoveWnd == 1; }, "the drag");
    carry(450, 208, 20, 10);
    release();
    waitPlace(AppliWnd, 320, 210);
}

namespace
{

class StartingManager : public Screen
{
};

} // namespace

TEST_F(StartingManager, overlooks_a_window_only_until_it_is_asked_again)
{
    project.code("SYSTEM", 99);
    know(Pattern("p").size(300, 200).header(HEDR_KIND, 0));
    start();
    WindowManager manager; // from now on it decides what is shown, but does not listen yet
    PtrnDispTopWnd("p", nullptr, 0);
    user.settle();
    user.waitFor(
        [this] {
            tick();
            const auto windows = user.windows();
            return std::any_of(windows.begin(), windows.end(),
                               [](auto& shown) { return shown.title == "p"; });
        },
        "the window");
    waitShown(AppliWnd);
}

TEST_F(Managed, keep_the_child_above_that_their_init_hook_has_opened)
{
    know(plain("form", 200, 150));
    hooks.init = [](CPtrnDisp& wnd) {
        if (std::string(wnd.PtrnName) == "form")
            wnd.PtrnDispChild(1, "q", 250, 200, nullptr, 0);
    };
    openTop("form");
    user.waitFor([&] { return titles() == std::vector<std::string>{"form", "q"}; }, "the child above");
    click(AppliWnd, 20, 8);
    waitActive(AppliWnd);
    EXPECT_THAT(titles(), ElementsAre("form", "q"));
}
