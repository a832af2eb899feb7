// The message box over the panel's windows, in both editions.
#include "config/Settings.h"
#include "dialogs/MessageBox.h"
#include "pattern/ItemParm.h"
#include "tests/dialogs/BoxWidgets.h"
#include "tests/support/Screen.h"
#include "tests/support/UseEdition.h"
#include "tests/support/WindowManager.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <optional>
#include <X11/keysym.h>

using namespace tessary;

using testing::ElementsAre;

namespace
{

const char* const TITLE = "確認";

class CorrectedBox : public Screen
{
  protected:
    CorrectedBox()
    {
        know(Pattern("top").size(600, 400));
        know(Pattern("other").size(600, 400));
        know(Pattern("child").size(300, 200).header(HEDR_KIND, 2));
        know(Pattern("system")
                 .size(200, 100)
                 .header(HEDR_KIND, 2)
                 .header(HEDR_LEFT, 250)
                 .header(HEDR_TOP, 150));
    }

    ~CorrectedBox() override { Language = 0; }

    /// Shows a box; `act` is run while it waits. What is still there then is destroyed.
    int show(int type, const std::function<void()>& act)
    {
        later([&] {
            box = user.waitForWindow(TITLE);
            act();
            if (GtkWidget* left = findBox(TITLE))
                gtk_widget_destroy(left);
        });
        return MessageBox(TITLE, "?", 1, type);
    }

    /// The answer to a key in a box of that type; the pointer is over the panel's window and not over the
    /// box.
    int answerTo(int type, unsigned long symbol)
    {
        return show(type, [&] {
            user.move(10, 10);
            user.key(symbol);
            user.settle();
        });
    }

    /// The place of a window in the order of all windows, the topmost one last; -1 when it is not shown.
    int height(const std::string& title)
    {
        const auto windows = user.windows();
        const auto found = std::find_if(windows.rbegin(), windows.rend(),
                                        [&](const ScreenWindow& window) { return window.title == title; });
        return static_cast<int>(windows.rend() - found) - 1;
    }

    std::vector<std::string> labels(int type)
    {
        std::vector<std::string> found;
        show(type, [&] { found = buttonLabels(findBox(TITLE)); });
        return found;
    }

    static POINT middle(const ScreenWindow& window)
    {
        return {window.x + window.width / 2, window.y + window.height / 2};
    }

    static POINT middle(const CPtrnDisp* wnd)
    {
        return {wnd->WindRect.left + wnd->WindRect.width / 2, wnd->WindRect.top + wnd->WindRect.height / 2};
    }

    ScreenWindow box;
};

/// The parameter tells whether a window manager runs.
class BoxPlace : public CorrectedBox, public testing::WithParamInterface<bool>
{
  protected:
    BoxPlace()
    {
        if (GetParam()) {
            manager.emplace();
            manager->waitReady();
        }
        start();
        top = openTop("top");
    }

    void expectInTheMiddleOf(const POINT& place)
    {
        show(1, [&] {
            user.settle();
            const int frame = manager ? manager->frame(box.id) : 0; // of which one side is the title bar
            EXPECT_NEAR(middle(user.waitForWindow(TITLE)).x, place.x, 1 + frame);
            EXPECT_NEAR(middle(user.waitForWindow(TITLE)).y, place.y, 1 + frame);
        });
    }

    /// Opens a window over the place where the box stands and waits until the box is above it again.
    void expectAbove(const std::string& other, const std::function<void()>& open)
    {
        show(1, [&] {
            open();
            user.waitFor([&] { return height(TITLE) > height(other); }, "the box above " + other);
            user.settle();
            EXPECT_GT(height(TITLE), height(other));
            EXPECT_GE(height(other), 0);
        });
    }

    std::optional<WindowManager> manager;
    CPtrnDisp* top = nullptr;
};

std::string managed(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "with_a_window_manager" : "without_a_window_manager";
}

} // namespace

TEST_F(CorrectedBox, speaks_the_language_of_the_panel)
{
    start();
    for (const int language : {0, 1, 2}) {
        Language = language;
        EXPECT_THAT(labels(3), ElementsAre(" はい ", " いいえ ", " キャンセル "))
            << "edition 1, " << language;
    }
    const UseEdition edition;
    Language = 0;
    EXPECT_THAT(labels(1), ElementsAre(" 確認 "));
    EXPECT_THAT(labels(2), ElementsAre(" はい ", " いいえ "));
    EXPECT_THAT(labels(3), ElementsAre(" はい ", " いいえ ", " キャンセル "));
    for (const int language : {1, 2, -1}) {
        Language = language;
        EXPECT_THAT(labels(1), ElementsAre(" OK ")) << language;
        EXPECT_THAT(labels(2), ElementsAre(" Yes ", " No ")) << language;
        EXPECT_THAT(labels(3), ElementsAre(" Yes ", " No ", " Cancel ")) << language;
    }
}

TEST_F(CorrectedBox, takes_return_and_escape_for_its_first_and_last_button)
{
    start();
    openTop("top");
    for (const int type : {1, 2, 3})
        EXPECT_EQ(answerTo(type, XK_Escape), 0) << "edition 1, " << type;
    const UseEdition edition;
    for (const int type : {1, 2, 3}) {
        EXPECT_EQ(answerTo(type, XK_Return), 1) << type;
        EXPECT_EQ(answerTo(type, XK_KP_Enter), 1) << type;
        EXPECT_EQ(answerTo(type, XK_Escape), type);
    }
    for (const unsigned long symbol : {XK_Return, XK_Escape})
        EXPECT_EQ(answerTo(0, symbol), 0) << "no button";
}

TEST_F(CorrectedBox, lets_return_press_the_button_that_the_focus_was_moved_to)
{
    start();
    openTop("top");
    const UseEdition edition;
    EXPECT_EQ(show(3,
                   [&] {
                       user.focus(box.id);
                       user.settle();
                       user.key(XK_Tab);
                       user.key(XK_Return);
                       user.settle();
                   }),
              2);
}

INSTANTIATE_TEST_SUITE_P(Desktops, BoxPlace, testing::Bool(), managed);

TEST_P(BoxPlace, is_the_middle_of_the_front_window)
{
    expectInTheMiddleOf({1280 / 2, 1024 / 2}); // of the screen
    const UseEdition edition;
    expectInTheMiddleOf(middle(top));
    expectInTheMiddleOf(middle(openChild(top, 1, "child", 40, 500)));
    expectInTheMiddleOf(middle(openSystem("system")));
}

TEST_P(BoxPlace, is_above_windows_that_come_later)
{
    const UseEdition edition;
    expectAbove("child", [&] { openChild(top, 1, "child", 150, 100); });
    expectAbove("system", [&] { openSystem("system"); });
    expectAbove("other", [&] { openTop("other"); });
}

TEST_F(CorrectedBox, is_covered_by_a_later_window_in_edition_1)
{
    start();
    CPtrnDisp* const top = openTop("top");
    show(1, [&] {
        openChild(top, 1, "child", (1280 - 300) / 2, (1024 - 200) / 2);
        user.settle();
        EXPECT_LT(height(TITLE), height("child"));
    });
}
