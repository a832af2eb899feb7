// Windows of the real program, with its own ticks, without and with a window manager.
#include "tests/app/Panel.h"
#include "tests/support/WindowManager.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <X11/keysym.h>

using namespace tessary;

using testing::HasSubstr;

namespace
{

const char* const CHILD1 = "子ウィンドウ (1)";
const char* const CHILD2 = "子ウィンドウ (2)";

/// The parameter tells whether a window manager runs.
class ProgramWindows : public Panel, public testing::WithParamInterface<bool>
{
  protected:
    void SetUp() override
    {
        Panel::SetUp();
        project.set("TESSARY", "WAITTIMER", "1");
        if (GetParam()) {
            manager.emplace();
            manager->waitReady();
        }
        rememberedChild(CHILD1).item(PTRN_BUTN, 10, 30, 90, 60).text("close").action(9).save(project);
        Pattern(CHILD2)
            .size(150, 80)
            .header(HEDR_KIND, 2)
            .header(HEDR_LEFT, 900)
            .header(HEDR_MODELESS, 1)
            .save(project);
        saveNotice();
        Pattern(MENU)
            .size(500, 300)
            .header(HEDR_KIND, 0)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .text("child")
            .action(5, CHILD1)
            .item(PTRN_BUTN, 110, 10, 190, 40)
            .text("second")
            .action(6, CHILD2)
            .item(PTRN_BUTN, 210, 10, 290, 40)
            .text("stop")
            .action(16)
            .item(PTRN_NUMR, 10, 100, 50, 116)
            .code("DATA", 150)
            .parm(FIELD_KEYENTRY, 1)
            .parm(TEXT_BACKED, 1)
            .item(PTRN_NUMR, 10, 150, 50, 166)
            .code("DATA", 150)
            .parm(TEXT_BACKED, 1)
            .item(PTRN_SBAR, 10, 200, 200, 220)
            .code("DATA", 150)
            .save(project);
        run();
        user.waitForWindow(MENU);
        user.waitFor([&] { return user.pixel(12, 152) == color(TEXT_BACK4); }, "the menu to be painted");
    }

    /// Clicks and waits for the window that opens.
    ScreenWindow open(int x, int y, const char* title)
    {
        user.clickAt(x, y);
        return user.waitForWindow(title);
    }

    void waitGone(const std::string& title)
    {
        user.waitFor(
            [&] {
                const auto windows = user.windows();
                return std::none_of(windows.begin(), windows.end(),
                                    [&](const ScreenWindow& window) { return window.title == title; });
            },
            title + " to go");
    }

    /// The two fields of one cell: what they show when none of them is in edit.
    Picture showDigits() { return user.picture(10, 150, 40, 16); }

    void stop()
    {
        user.clickAt(250, 25);
        EXPECT_EQ(waitEnd(), 0) << program->output();
        EXPECT_EQ(logged().back(), "システム停止");
        EXPECT_THAT(program->output(), Not(HasSubstr("CRITICAL")));
        EXPECT_THAT(program->output(), Not(HasSubstr("WARNING")));
    }

    std::optional<WindowManager> manager;
};

std::string managed(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "with_a_window_manager" : "without_a_window_manager";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Desktops, ProgramWindows, testing::Bool(), managed);

TEST_P(ProgramWindows, opens_drags_and_closes_a_child_and_remembers_its_place)
{
    const ScreenWindow first = open(50, 25, CHILD1);
    EXPECT_EQ(first.x, (1280 - 200) / 2);
    EXPECT_EQ(first.y, (1024 - 120) / 2);

    // The pointer stays on the title bar however late the window follows.
    user.move(first.x + 100, first.y + 10);
    user.press();
    for (int i = 1; i <= 6; i++) {
        user.move(first.x + 100 - i * 5, first.y + 10 + i);
        user.waitFor([&] { return user.waitForWindow(CHILD1).x == first.x - i * 5; }, "the window");
    }
    user.release();
    user.clickAt(first.x - 30 + 50, first.y + 6 + 45);
    waitGone(CHILD1);
    EXPECT_THAT(readFile(project.profile()),
                HasSubstr("=" + std::to_string(first.x - 30) + "," + std::to_string(first.y + 6) + "\n"));
    const ScreenWindow second = open(50, 25, CHILD1);
    EXPECT_EQ(second.x, first.x - 30);
    EXPECT_EQ(second.y, first.y + 6);
    user.clickAt(second.x + 50, second.y + 45);
    waitGone(CHILD1);
    stop();
}

TEST_P(ProgramWindows, edits_a_field_and_shows_the_value_in_the_other)
{
    const Picture zero = showDigits();
    user.clickAt(15, 105);
    user.waitFor([&] { return user.pixel(12, 102) != zero.at(2, 2); }, "the field in edit");
    // The cursor comes and goes by the program's own ticks.
    const auto cursor = [&] { return user.pixel(10 + 40, 108); };
    user.waitFor([&] { return cursor() == color(HEDR_EDIT_COLOR); }, "the cursor");
    user.waitFor([&] { return cursor() == color(HEDR_EDIT_BACK); }, "the cursor to blink");
    user.waitFor([&] { return cursor() == color(HEDR_EDIT_COLOR); }, "the cursor to come back");
    user.type("42");
    user.key(XK_Return);
    user.waitFor([&] { return !same(showDigits(), zero); }, "the other field");
    user.waitFor([&] { return same(user.picture(10, 100, 40, 16), showDigits()); }, "the field itself");
    stop();
}

TEST_P(ProgramWindows, repeats_a_held_control_by_its_own_ticks)
{
    const Picture zero = showDigits();
    std::vector<Picture> seen{zero};
    user.move(190, 210); // the second arrow of the bar
    user.press();
    // A step at once, after half a second the next, then five a second.
    user.waitFor(
        [&] {
            if (!same(showDigits(), seen.back()))
                seen.push_back(showDigits());
            return seen.size() > 4;
        },
        "four steps");
    user.release();
    stop();
}

TEST_P(ProgramWindows, a_modal_child_blocks_the_menu_but_not_itself)
{
    const ScreenWindow child = open(50, 25, CHILD1);
    user.clickAt(150, 25); // would open the second child
    user.clickAt(child.x + 50, child.y + 45);
    waitGone(CHILD1);
    for (const ScreenWindow& window : user.windows())
        EXPECT_NE(window.title, CHILD2);
    open(150, 25, CHILD2);
    stop();
}

TEST_P(ProgramWindows, shows_the_notice_while_it_stops)
{
    project.set("PTRN", "PTRNSTOP", NOTICE);
    user.clickAt(250, 25);
    const ScreenWindow window = user.waitForWindow(NOTICE);
    EXPECT_EQ(window.x, 600);
    EXPECT_EQ(waitEnd(), 0) << program->output();
}
