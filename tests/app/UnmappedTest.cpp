// Another program takes the windows of the real program off the screen.
#include "tests/app/Outside.h"
#include "tests/app/Panel.h"
#include "tests/support/WindowManager.h"

#include <chrono>
#include <gmock/gmock.h>
#include <X11/Xutil.h>

using namespace tessary;

namespace
{

/// The parameter tells whether a window manager runs.
class UnmappedPanel : public Panel, public testing::WithParamInterface<bool>
{
  protected:
    static constexpr const char* CHILD = "子ウィンドウ (1)";
    static constexpr int NUMBER = 150;

    void SetUp() override
    {
        Panel::SetUp();
        if (GetParam()) {
            manager.emplace();
            manager->waitReady();
        }
        rememberedChild(CHILD).header(HEDR_MODELESS, 1).save(project);
        Pattern(MENU)
            .size(300, 200)
            .header(HEDR_KIND, 1)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .action(5, CHILD)
            .item(PTRN_SPIN, 150, 20, 166, 52)
            .code("DATA", NUMBER)
            .item(PTRN_BARG, 10, 100, 290, 116)
            .code("DATA", NUMBER)
            .save(project);
        run();
        menu = user.waitForDrawn(MENU);
    }

    bool isMapped(unsigned long window)
    {
        XWindowAttributes attributes{};
        return XGetWindowAttributes(other, window, &attributes) && attributes.map_state == IsViewable;
    }

    void expectBack(unsigned long window)
    {
        ASSERT_TRUE(user.waitFor([&] { return !isMapped(window); }, "the window to go"));
        const auto gone = std::chrono::steady_clock::now();
        ASSERT_TRUE(user.waitFor([&] { return isMapped(window); }, "the window to come back"));
        // Two seconds on a machine that is not busy with the tests beside this one.
        RecordProperty("milliseconds", static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                                            std::chrono::steady_clock::now() - gone)
                                                            .count()));
    }

    std::optional<WindowManager> manager;
    ScreenWindow menu;
    const Client other;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Manager, UnmappedPanel, testing::Values(false, true));

TEST_P(UnmappedPanel, comes_back_when_it_is_unmapped)
{
    for (int round = 0; round < 3; ++round) {
        XUnmapWindow(other, menu.id);
        XSync(other, False);
        expectBack(menu.id);
    }
    EXPECT_EQ(user.waitForDrawn(MENU).id, menu.id);
    EXPECT_FALSE(program->status());
}

TEST_P(UnmappedPanel, comes_back_when_it_is_made_an_icon_or_withdrawn)
{
    for (int round = 0; round < 2; ++round) {
        if (GetParam())
            XIconifyWindow(other, menu.id, DefaultScreen(static_cast<Display*>(other)));
        else
            XWithdrawWindow(other, menu.id, DefaultScreen(static_cast<Display*>(other)));
        XSync(other, False);
        expectBack(menu.id);
    }
    EXPECT_EQ(user.waitForDrawn(MENU).id, menu.id);
}

TEST_P(UnmappedPanel, brings_its_children_back)
{
    user.clickAt(menu.x + 50, menu.y + 25);
    const ScreenWindow child = user.waitForDrawn(CHILD);
    XUnmapWindow(other, child.id);
    XSync(other, False);
    expectBack(child.id);
    EXPECT_EQ(user.waitForDrawn(CHILD).id, child.id);
}

TEST_P(UnmappedPanel, lets_go_of_a_control_that_is_held)
{
    // The bar follows the number that the control counts up.
    const auto bar = [&] { return user.picture(menu.x + 10, menu.y + 100, 280, 16).pixels; };
    const auto still = bar();
    user.move(menu.x + 155, menu.y + 25);
    user.press();
    ASSERT_TRUE(user.waitFor([&] { return bar() != still; }, "the number to go up"));
    XUnmapWindow(other, menu.id);
    XSync(other, False);
    expectBack(menu.id);
    user.waitForDrawn(MENU);
    const auto back = bar();
    const auto seen = std::chrono::steady_clock::now();
    user.waitFor([&] { return std::chrono::steady_clock::now() - seen > std::chrono::milliseconds(600); },
                 "three steps of a control that is held");
    EXPECT_EQ(bar(), back);
    user.release();
}
