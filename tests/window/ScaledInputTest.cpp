// What an operator does on a panel that is scaled to its display.
#include "tests/support/UseEdition.h"
#include "tests/support/WindowManager.h"
#include "tests/window/Scaled.h"

#include "draw/Resource.h"
#include "window/Front.h"
#include "window/InputMethod.h"
#include "window/Reload.h"

#include <algorithm>
#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

constexpr int BUTTON = 110;
constexpr int BAR = 111;
constexpr int SPIN = 112;

/// The parameter is the scale.
class ScaledInput : public Scaled, public testing::WithParamInterface<int>
{
  protected:
    static Layout wanted() { return GetParam() == 0 ? TWICE : GetParam() == 1 ? FITTED : REDUCED; }

    /// Fields, a button at 200,20 to 280,60, a horizontal bar at 100,100 to 300,120 and a spin button.
    static Pattern controls(const std::string& name)
    {
        Pattern pattern = fields(name, 1);
        pattern.size(400, 250);
        pattern.item(PTRN_BUTN, 200, 20, 280, 60).text("press").code("D", 10).action(1);
        pattern.item(PTRN_SBAR, 150, 100, 352, 120)
            .parm(SBAR_ARROWS, 0)
            .parm(SBAR_VISIBLE, 50)
            .parm(SBAR_TOTAL, 150)
            .code("D", 11)
            .action(1);
        pattern.item(PTRN_SPIN, 200, 140, 232, 204).code("D", 12).action(1);
        return pattern;
    }

    Calls messages() { return callsOf({"mesg"}); }
    static std::string nameOf(const std::string& text) { return text + std::to_string(GetParam()); }

    /// A window of 200 x 100 with a title bar of 30, at 150,100.
    static Pattern framed(const std::string& name)
    {
        return Pattern(name)
            .size(200, 100)
            .header(HEDR_KIND, 1)
            .header(HEDR_TITLE_HEIGHT, 30)
            .header(HEDR_LEFT, 150)
            .header(HEDR_TOP, 100);
    }

    /// Moves the pointer in steps that keep it on what it holds.
    void carry(const CPtrnDisp* wnd, POINT from, POINT to)
    {
        const POINT begin = onDisplay(wnd, from.x, from.y);
        const POINT end = onDisplay(wnd, to.x, to.y);
        press(wnd, from.x, from.y);
        for (int i = 1; i <= 20; ++i) {
            user.move(begin.x + (end.x - begin.x) * i / 20, begin.y + (end.y - begin.y) * i / 20);
            user.settle();
        }
    }
};

std::string layoutName(const testing::TestParamInfo<int>& info)
{
    return info.param == 0 ? "twice" : info.param == 1 ? "fitted" : "reduced";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Layouts, ScaledInput, testing::Range(0, 3), layoutName);

TEST_P(ScaledInput, presses_a_button_where_it_is_shown)
{
    CPtrnDisp* wnd = show(wanted(), controls("p"));
    click(wnd, 201, 21);
    click(wnd, 279, 59);
    EXPECT_THAT(messages(), ElementsAre("mesg 110", "mesg 110"));
    calls.clear();
    click(wnd, 198, 40);
    click(wnd, 282, 40);
    click(wnd, 240, 63);
    EXPECT_THAT(messages(), IsEmpty());
    calls.clear();
    hooks.mouse = [](CPtrnDisp&, POINT, int, int) { return 0; };
    click(wnd, 29, 240, 3);
    click(wnd, 399, 249, 1);
    EXPECT_THAT(callsOf({"mouse"}), ElementsAre("mouse 2 29,240 0", "mouse 1 399,249 0"));
}

TEST_P(ScaledInput, presses_nothing_where_the_button_would_be_unscaled)
{
    show(wanted(), controls("p"));
    user.clickAt(240, 40);
    user.settle();
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_P(ScaledInput, does_nothing_beside_the_panel)
{
    show(wanted(), controls("p"));
    for (const POINT& place : {POINT{5, 1020}, POINT{1275, 1020}, POINT{3, 5}})
        if (place.x < layout.left || place.y > layout.top + sized(250)) {
            user.clickAt(place.x, place.y);
            user.clickAt(place.x, place.y, 3);
            user.clickAt(place.x, place.y, 4);
            user.settle();
        }
    EXPECT_THAT(callsOf({"mouse", "mesg", "rbtn"}), IsEmpty());
}

TEST_P(ScaledInput, drags_the_thumb_of_a_scroll_bar)
{
    CPtrnDisp* wnd = show(wanted(), controls("p"));
    press(wnd, 160, 110);
    EXPECT_EQ(wnd->ScrollBar, 1);
    // The thumb of 66 pixels moves in the remaining 134 for 100 rows.
    moveTo(wnd, 160 + 67, 110);
    EXPECT_NEAR(Get_iData(BAR, nullptr, 0), 50, layout.factor < 1 ? 1 : 0);
    moveTo(wnd, 390, 110);
    EXPECT_EQ(Get_iData(BAR, nullptr, 0), 100);
    moveTo(wnd, 110, 110);
    EXPECT_EQ(Get_iData(BAR, nullptr, 0), 0);
    release();
    moveTo(wnd, 250, 110);
    EXPECT_EQ(Get_iData(BAR, nullptr, 0), 0);
    EXPECT_FALSE(messages().empty());
}

TEST_P(ScaledInput, turns_the_wheel_on_what_is_under_the_pointer)
{
    const UseEdition used;
    CPtrnDisp* wnd = show(wanted(), controls("p"));
    click(wnd, 215, 170, 4);
    EXPECT_EQ(Get_iData(SPIN, nullptr, 0), 1);
    click(wnd, 250, 110, 5);
    EXPECT_EQ(Get_iData(BAR, nullptr, 0), 1);
    click(wnd, 380, 230, 5);
    EXPECT_EQ(Get_iData(BAR, nullptr, 0), 1);
}

TEST_P(ScaledInput, types_into_the_field_that_was_pressed)
{
    for (const int edition : {1, 2}) {
        const UseEdition used(edition);
        show(wanted(), controls("p"));
        edit(TEXT);
        type("abc");
        EXPECT_EQ(text(), "abc");
        tick();
        EXPECT_EQ(pixel(AppliWnd, LEFT + 50, top(TEXT) + 8), color(HEDR_EDIT_BACK));
        key(XK_Return);
        EXPECT_EQ(string(TEXT), "abc");
        Set_sData(TEXT, "", nullptr, 0);
    }
}

TEST_P(ScaledInput, moves_windows_by_their_title_and_remembers_where_in_the_panel)
{
    use(wanted());
    know(framed("framed").header(HEDR_REMEMBER, 1));
    open(Pattern("p").size(400, 250));
    CPtrnDisp* child = openChild(AppliWnd, 1, "framed");
    const POINT before = {child->WindRect.left, child->WindRect.top};
    carry(child, {100, 15}, {130, -5});
    release();
    waitShown(child);
    EXPECT_NEAR(child->WindRect.left, before.x + 30, layout.factor < 1 ? 2 : 0);
    EXPECT_NEAR(child->WindRect.top, before.y - 20, layout.factor < 1 ? 2 : 0);
    EXPECT_EQ(child->WindRect.width, 200);
    const std::string place =
        std::to_string(child->WindRect.left) + "," + std::to_string(child->WindRect.top);
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_THAT(readFile(project.profile()), HasSubstr("=" + place + "\n"));
    child = openChild(AppliWnd, 1, "framed");
    EXPECT_EQ(std::to_string(child->WindRect.left) + "," + std::to_string(child->WindRect.top), place);
}

TEST_P(ScaledInput, keeps_a_dragged_window_within_the_panel)
{
    use(wanted());
    know(framed("framed"));
    open(Pattern("p").size(400, 250));
    CPtrnDisp* child = openChild(AppliWnd, 1, "framed");
    carry(child, {100, 15}, {100 - 153, 15 - 103});
    release();
    waitShown(child);
    EXPECT_EQ(child->WindRect.left, 0);
    EXPECT_EQ(child->WindRect.top, 0);
    press(child, 100, 15);
    const POINT place = onDisplay(child, 100, 15);
    user.move(place.x - static_cast<int>(20 * layout.factor), place.y);
    user.settle();
    release();
    EXPECT_EQ(child->WindRect.left, 0);
}

TEST_P(ScaledInput, moves_an_application_window_within_its_display)
{
    CPtrnDisp* wnd = show(wanted(), framed("p").item(PTRN_BUTN, 10, 40, 60, 80).code("D", 10).action(1));
    EXPECT_EQ(wnd->WindRect.left, 150);
    carry(wnd, {100, 15}, {120, 25});
    release();
    EXPECT_NEAR(wnd->WindRect.left, 170, layout.factor < 1 ? 2 : 0);
    EXPECT_NEAR(wnd->WindRect.top, 110, layout.factor < 1 ? 2 : 0);
    tick(2);
    EXPECT_LE(apart(pixel(wnd, 195, 95), color(HEDR_BODY_COLOR)), 2);
    calls.clear();
    click(wnd, 30, 60);
    EXPECT_THAT(messages(), ElementsAre("mesg 110"));
}

TEST_P(ScaledInput, opens_a_window_that_was_remembered_elsewhere_within_the_panel)
{
    const UseEdition used;
    use(wanted());
    know(framed("framed").header(HEDR_REMEMBER, 1));
    for (int number = 0; number < 3; ++number)
        project.set("WINDOW", "WINDOW00" + std::to_string(number), "5000,3000");
    open(Pattern("p").size(400, 250));
    CPtrnDisp* child = openChild(AppliWnd, 1, "framed");
    EXPECT_EQ(child->WindRect.left, layout.width - 200);
    EXPECT_EQ(child->WindRect.top, layout.height - 100);
}

TEST_P(ScaledInput, finds_the_window_under_the_pointer)
{
    const UseEdition used;
    use(wanted());
    know(framed("framed").header(HEDR_MODELESS, 1));
    open(Pattern("p").size(400, 250));
    CPtrnDisp* child = openChild(AppliWnd, 1, "framed");
    moveTo(child, 198, 98);
    EXPECT_EQ(FrontWnd(), child);
    moveTo(child, 203, 98);
    EXPECT_EQ(FrontWnd(), AppliWnd);
    moveTo(child, 1, 1);
    EXPECT_EQ(FrontWnd(), child);
}

TEST_P(ScaledInput, lets_go_of_a_thumb_when_the_pointer_leaves_the_panel)
{
    CPtrnDisp* wnd = show(wanted(), controls("p"));
    press(wnd, 160, 110);
    ASSERT_EQ(wnd->ScrollBar, 1);
    moveTo(wnd, 160, 260); // the window is 250 high
    EXPECT_EQ(wnd->ScrollBar, 0);
    release();
}

TEST_P(ScaledInput, follows_a_window_manager)
{
    WindowManager manager;
    use(wanted());
    know(framed("framed"));
    know(controls("p"));
    start();
    manager.waitReady();
    openTop("p");
    calls.clear();
    click(AppliWnd, 240, 40);
    EXPECT_THAT(messages(), ElementsAre("mesg 110"));
    CPtrnDisp* wnd = openSystem("framed");
    const POINT place = {layout.left + sized(20), layout.top + sized(30)};
    user.requestMove(user.waitForWindow("framed").id, place.x, place.y);
    user.waitFor(
        [&] {
            const ScreenWindow shown = user.waitForWindow("framed");
            return shown.x == place.x && shown.y == place.y;
        },
        "the window");
    user.settle();
    tick();
    EXPECT_NEAR(wnd->WindRect.left, 20, layout.factor < 1 ? 1 : 0);
    EXPECT_NEAR(wnd->WindRect.top, 30, layout.factor < 1 ? 1 : 0);
    EXPECT_EQ(wnd->WindRect.width, 200);
}

TEST_P(ScaledInput, shows_a_pattern_that_has_changed_in_its_new_size_and_colour)
{
    CPtrnDisp* wnd = show(wanted(), controls("p"));
    Pattern("p").size(300, 200).header(HEDR_BODY_COLOR, 50).save(project);
    ReloadPtrnWnds([](const char*) { return true; });
    user.settle();
    tick();
    EXPECT_EQ(AppliWnd, wnd);
    EXPECT_EQ(wnd->WindRect.width, 300);
    EXPECT_EQ(user.pixel(1278, 1022), color(50)) << "beside the panel";
    EXPECT_EQ(pixel(wnd, 298, 198), color(50));
}

TEST_P(ScaledInput, begins_and_ends_with_the_key)
{
    project.set("TESSARY", "DISPSIZE", "1280,1024");
    know(controls("p"));
    start();
    PtrnDispTopWnd("p", nullptr, 0);
    user.waitFor([] { return AppliWnd->Pixmap != nullptr; }, "the window");
    use(wanted());
    DrawCntlInit();
    ReloadPtrnWnds([](const char*) { return true; });
    waitShown(AppliWnd);
    calls.clear();
    click(AppliWnd, 240, 40);
    EXPECT_THAT(messages(), ElementsAre("mesg 110"));

    project.unset("TESSARY", "SCALE");
    DrawCntlInit();
    ReloadPtrnWnds([](const char*) { return true; });
    user.waitFor([&] { return user.waitForWindow("p").width == 400; }, "the size without a scale");
    user.settle();
    calls.clear();
    user.clickAt(240, 40);
    user.settle();
    EXPECT_THAT(messages(), ElementsAre("mesg 110"));
}
