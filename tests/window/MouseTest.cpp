// What presses, motion and the wheel do in a pattern window.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"
#include "comndata/MesgData.h"
#include "window/Request.h"

#include <gmock/gmock.h>
#include <gtk/gtk.h>
#include <X11/keysym.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Mouse : public Screen
{
  protected:
    void SetUp() override { project.code("SYSTEM", 99).code("D", 20); }

    /// A button at 10,40 that sends a message, a scroll bar and a spin button.
    static Pattern panel(const std::string& name)
    {
        return Pattern(name)
            .size(300, 200)
            .header(HEDR_KIND, 2)
            .item(PTRN_BUTN, 10, 40, 60, 60)
            .code("D", 0)
            .action(1)
            .item(PTRN_SBAR, 100, 40, 250, 60)
            .code("D", 1)
            .action(1)
            .item(PTRN_SPIN, 10, 100, 26, 132)
            .code("D", 2)
            .action(1)
            .item(PTRN_BUTN, 10, 150, 60, 170)
            .code("D", 3)
            .action(7, "system");
    }

    void open(Pattern pattern)
    {
        know(pattern);
        know(panel("child").header(HEDR_LEFT, 400));
        know(panel("modeless").header(HEDR_LEFT, 400).header(HEDR_TOP, 300).header(HEDR_MODELESS, 5));
        know(panel("system").header(HEDR_LEFT, 400).header(HEDR_TOP, 500));
        start();
        openTop(pattern.name());
        calls.clear();
    }

    Calls effects() const { return callsOf({"mesg", "rbtn", "init", "exit"}); }
    static int value(int number) { return Get_iData(number, nullptr, 0); }
};

} // namespace

TEST_F(Mouse, a_press_reaches_the_hook_first_and_in_pattern_coordinates)
{
    open(panel("top"));
    AppliWnd->PtrnSetOffset(0, 5, -7, nullptr, 0);
    click(AppliWnd, 15, 57);
    EXPECT_THAT(callsOf({"mouse", "mesg"}), ElementsAre("mouse 1 20,50 0", "mesg 100"));
    calls.clear();
    click(AppliWnd, 15, 57, 3);
    EXPECT_THAT(callsOf({"mouse", "rbtn"}), ElementsAre("mouse 2 20,50 0", "rbtn 100"));
}

TEST_F(Mouse, the_hook_can_keep_an_event_from_the_items)
{
    open(panel("top"));
    hooks.mouse = [](CPtrnDisp&, POINT, int, int) { return 1; };
    click(AppliWnd, 20, 50);
    click(AppliWnd, 20, 50, 3);
    EXPECT_THAT(effects(), IsEmpty());
    hooks.mouse = [](CPtrnDisp&, POINT, int, int) { return 2; };
    click(AppliWnd, 20, 50);
    click(AppliWnd, 20, 50, 3);
    EXPECT_THAT(effects(), ElementsAre("mesg 100", "rbtn 100")) << "only 1 keeps it";
}

TEST_F(Mouse, a_held_control_is_let_go_when_its_window_is_unmapped)
{
    open(panel("top"));
    press(AppliWnd, 15, 105);
    ASSERT_NE(AppliWnd->PtrnData->RepeatFlag, 0);
    GdkEvent* const unmapped = gdk_event_new(GDK_UNMAP);
    unmapped->any.window = static_cast<GdkWindow*>(g_object_ref(AppliWnd->Widget->window));
    gtk_main_do_event(unmapped);
    gdk_event_free(unmapped);
    EXPECT_EQ(AppliWnd->PtrnData->RepeatFlag, 0);
    release();
}

TEST_F(Mouse, a_held_control_is_let_go_when_another_program_takes_the_pointer)
{
    open(panel("top"));
    press(AppliWnd, 15, 105);
    ASSERT_NE(AppliWnd->PtrnData->RepeatFlag, 0);
    GdkEvent* const broken = gdk_event_new(GDK_GRAB_BROKEN);
    broken->grab_broken.window = static_cast<GdkWindow*>(g_object_ref(AppliWnd->DrawArea->window));
    gtk_main_do_event(broken);
    gdk_event_free(broken);
    EXPECT_EQ(AppliWnd->PtrnData->RepeatFlag, 0);
    release();
}

TEST_F(Mouse, the_hook_can_keep_motion_from_a_held_control)
{
    open(panel("top"));
    int answer = 1;
    hooks.mouse = [&](CPtrnDisp&, POINT, int button, int) { return button == 0 ? answer : 0; };
    press(AppliWnd, 15, 105);
    moveTo(AppliWnd, 150, 150);
    EXPECT_NE(AppliWnd->PtrnData->RepeatFlag, 0);
    answer = 2;
    moveTo(AppliWnd, 151, 150);
    EXPECT_EQ(AppliWnd->PtrnData->RepeatFlag, 0) << "only 1 keeps it";
    release();
}

TEST_F(Mouse, modifiers_are_one_value_with_shift_first)
{
    open(panel("top"));
    std::vector<int> flags;
    hooks.mouse = [&](CPtrnDisp&, POINT, int button, int value) {
        if (button == 1)
            flags.push_back(value);
        return 0;
    };
    moveTo(AppliWnd, 150, 150);
    const std::vector<std::vector<unsigned long>> held = {
        {},
        {XK_Shift_L},
        {XK_Control_L},
        {XK_Alt_L},
        {XK_Control_L, XK_Alt_L},
        {XK_Alt_L, XK_Control_L, XK_Shift_L},
    };
    for (const auto& keys : held) {
        for (const unsigned long key : keys)
            user.pressKey(key);
        user.click();
        for (const unsigned long key : keys)
            user.releaseKey(key);
        user.settle();
    }
    EXPECT_THAT(flags, ElementsAre(0, 1, 2, 4, 2, 1));
}

TEST_F(Mouse, motion_reaches_the_hook_with_the_flags_of_its_event)
{
    open(panel("top"));
    moveTo(AppliWnd, 150, 150);
    std::vector<std::vector<int>> motions;
    hooks.mouse = [&](CPtrnDisp&, POINT pt, int button, int flags) {
        motions.push_back({pt.x, pt.y, button, flags});
        return 0;
    };
    user.pressKey(XK_Shift_L);
    moveTo(AppliWnd, 151, 153);
    user.releaseKey(XK_Shift_L);
    moveTo(AppliWnd, 140, 130);
    EXPECT_THAT(motions, ElementsAre(std::vector<int>{151, 153, 0, 1}, std::vector<int>{140, 130, 0, 0}));
}

TEST_F(Mouse, the_middle_button_and_the_buttons_of_a_tilting_wheel_do_nothing)
{
    open(panel("top"));
    DispErrorMesg("fault");
    for (const unsigned button : {2u, 6u, 7u, 8u}) {
        click(AppliWnd, 20, 50, button);
        click(AppliWnd, 150, 50, button);
    }
    EXPECT_THAT(callsOf({"mouse", "mesg", "rbtn"}), IsEmpty());
    EXPECT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0), 1) << "the error line stays lit";
}

TEST_F(Mouse, every_press_and_wheel_click_quiets_the_error_line)
{
    open(panel("top"));
    for (const unsigned button : {1u, 3u, 4u, 5u}) {
        DispErrorMesg("fault");
        ASSERT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0), 1);
        click(AppliWnd, 280, 180, button); // on nothing
        EXPECT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0), 0) << "button " << button;
        EXPECT_STREQ(Get_sData(DTNO_SYSEROR, nullptr, 0), "fault") << "the text stays";
    }
}

TEST_F(Mouse, a_second_and_a_third_click_count_once_each)
{
    open(panel("top"));
    moveTo(AppliWnd, 20, 50);
    for (int i = 0; i < 3; i++)
        user.click();
    user.settle();
    EXPECT_THAT(callsOf({"mesg"}), ElementsAre("mesg 100", "mesg 100", "mesg 100"));
}

TEST_F(Mouse, the_wheel_turns_scroll_bars_and_carries_out_their_action)
{
    open(panel("top"));
    click(AppliWnd, 150, 50, 5);
    EXPECT_EQ(value(101), 1);
    click(AppliWnd, 150, 50, 5);
    click(AppliWnd, 150, 50, 4);
    EXPECT_EQ(value(101), 1);
    EXPECT_THAT(callsOf({"mesg"}), ElementsAre("mesg 101", "mesg 101", "mesg 101"));
    calls.clear();
    click(AppliWnd, 150, 50, 4);
    click(AppliWnd, 150, 50, 4); // at the start already
    EXPECT_EQ(value(101), 0);
    EXPECT_THAT(callsOf({"mesg", "mouse"}), ElementsAre("mesg 101")) << "the hook is not asked";
}

TEST_F(Mouse, the_wheel_turns_what_a_scrolled_view_shows_under_the_pointer)
{
    open(panel("top"));
    AppliWnd->PtrnSetOffset(0, 90, 30, nullptr, 0);
    click(AppliWnd, 60, 20, 5);
    EXPECT_EQ(value(101), 1);
}

TEST_F(Mouse, the_wheel_turns_spin_buttons)
{
    open(panel("top"));
    click(AppliWnd, 15, 105); // the wheel writes to the control that was pressed last
    EXPECT_EQ(value(102), 1);
    calls.clear();
    click(AppliWnd, 15, 105, 5);
    EXPECT_EQ(value(102), 2);
    click(AppliWnd, 15, 105, 4);
    EXPECT_EQ(value(102), 1);
    EXPECT_THAT(callsOf({"mesg"}), ElementsAre("mesg 102", "mesg 102"));
}

TEST_F(Mouse, the_wheel_does_nothing_on_other_items_and_where_the_items_may_not_be_operated)
{
    open(panel("top"));
    click(AppliWnd, 20, 50, 4);
    click(AppliWnd, 20, 50, 5);
    EXPECT_THAT(effects(), IsEmpty());
    openChild(AppliWnd, 1, "child");
    calls.clear();
    click(AppliWnd, 150, 50, 5);
    EXPECT_EQ(value(101), 0);
    EXPECT_THAT(effects(), IsEmpty());
}

TEST_F(Mouse, wheel_calls_tell_whether_a_value_has_changed)
{
    open(panel("top"));
    EXPECT_EQ(AppliWnd->MouseWheel({150, 50}, 0), 0);
    EXPECT_EQ(AppliWnd->MouseWheel({150, 50}, 1), 1);
    EXPECT_EQ(AppliWnd->MouseWheel({20, 50}, 1), 0);
    EXPECT_EQ(AppliWnd->MouseWheel({290, 190}, 1), 0);
}

TEST_F(Mouse, a_modal_child_keeps_the_parent_s_items_still)
{
    open(panel("top"));
    openChild(AppliWnd, 1, "child");
    EXPECT_EQ(AppliWnd->MouseEnable(), 0);
    calls.clear();
    click(AppliWnd, 20, 50);
    click(AppliWnd, 20, 50, 3);
    EXPECT_THAT(effects(), IsEmpty());
    EXPECT_EQ(AppliWnd->ChildWnd1->MouseEnable(), 1);
    click(AppliWnd->ChildWnd1, 20, 50);
    EXPECT_THAT(effects(), ElementsAre("mesg 100"));

    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_EQ(AppliWnd->MouseEnable(), 1);
    openChild(AppliWnd, 2, "child");
    EXPECT_EQ(AppliWnd->MouseEnable(), 0) << "the second slot blocks as well";
}

TEST_F(Mouse, a_modeless_child_leaves_the_parent_usable)
{
    open(panel("top"));
    openChild(AppliWnd, 1, "modeless");
    EXPECT_EQ(AppliWnd->MouseEnable(), 1);
    openChild(AppliWnd, 2, "child");
    EXPECT_EQ(AppliWnd->MouseEnable(), 0);
}

TEST_F(Mouse, a_modal_child_blocks_its_parent_and_not_the_windows_above)
{
    open(panel("top"));
    CPtrnDisp* child = openChild(AppliWnd, 1, "modeless");
    openChild(child, 1, "child");
    EXPECT_EQ(child->MouseEnable(), 0);
    EXPECT_EQ(AppliWnd->MouseEnable(), 1);
}

TEST_F(Mouse, a_system_window_blocks_every_other_window)
{
    open(panel("top"));
    openChild(AppliWnd, 1, "modeless");
    openSystem("system");
    EXPECT_EQ(AppliWnd->MouseEnable(), 0);
    EXPECT_EQ(AppliWnd->ChildWnd1->MouseEnable(), 0);
    EXPECT_EQ(SystmWnd->MouseEnable(), 1);
    calls.clear();
    click(AppliWnd, 20, 50);
    click(AppliWnd->ChildWnd1, 20, 50);
    EXPECT_THAT(effects(), IsEmpty());
    click(SystmWnd, 20, 50);
    EXPECT_THAT(effects(), ElementsAre("mesg 100"));
}

TEST_F(Mouse, a_system_window_is_not_blocked_by_its_own_modal_child)
{
    open(panel("top"));
    openSystem("system");
    openChild(SystmWnd, 1, "child");
    EXPECT_EQ(SystmWnd->MouseEnable(), 1);
    EXPECT_EQ(SystmWnd->ChildWnd1->MouseEnable(), 0) << "a child of it is an ordinary window";
}

TEST_F(Mouse, system_actions_work_under_a_modal_child)
{
    open(panel("top"));
    openChild(AppliWnd, 1, "child");
    calls.clear();
    click(AppliWnd, 20, 160);
    ASSERT_TRUE(SystmWnd);
    EXPECT_THAT(effects(), ElementsAre("init")) << "once: the item itself was not operated";
    PtrnDispSysWnd("", nullptr, 0);
    calls.clear();
    click(AppliWnd, 20, 160, 3);
    EXPECT_TRUE(SystmWnd);
    EXPECT_THAT(effects(), ElementsAre("init"));
}

TEST_F(Mouse, system_actions_of_the_application_window_work_under_a_system_window)
{
    open(panel("top"));
    openSystem("child");
    calls.clear();
    click(AppliWnd, 20, 160);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "system");
    EXPECT_THAT(effects(), ElementsAre("exit", "init"));
}

TEST_F(Mouse, the_right_button_tells_the_data_number_of_an_item)
{
    open(panel("top"));
    click(AppliWnd, 150, 50, 3);
    click(AppliWnd, 280, 180, 3); // on nothing
    EXPECT_THAT(effects(), ElementsAre("rbtn 101"));
    EXPECT_EQ(value(101), 0);
}

TEST_F(Mouse, a_press_on_the_title_bar_does_not_reach_the_hook)
{
    open(panel("top").header(HEDR_TITLE_HEIGHT, 30));
    int motions = 0;
    hooks.mouse = [&](CPtrnDisp&, POINT pt, int, int) {
        motions += pt.y <= 30;
        return 1;
    };
    click(AppliWnd, 100, 10);
    click(AppliWnd, 100, 10, 3);
    moveTo(AppliWnd, 110, 12);
    EXPECT_THAT(callsOf({"mouse"}), IsEmpty());
    EXPECT_EQ(motions, 0);
}

TEST_F(Mouse, an_item_on_the_title_bar_is_operated_although_the_hook_would_keep_the_event)
{
    open(panel("top").header(HEDR_TITLE_HEIGHT, 30).item(PTRN_BUTN, 200, 5, 250, 25).code("D", 7).action(1));
    hooks.mouse = [](CPtrnDisp&, POINT, int, int) { return 1; };
    click(AppliWnd, 210, 10);
    click(AppliWnd, 210, 10, 3);
    EXPECT_THAT(effects(), ElementsAre("mesg 107", "rbtn 107"));
}

TEST_F(Mouse, the_logo_opens_the_version_window_by_the_left_button_and_maintenance_by_the_right)
{
    Pattern("バージョン情報").size(50, 50).save(project);
    Pattern("メンテナンス").size(50, 50).save(project);
    open(panel("top")
             .header(HEDR_TITLE_HEIGHT, 30)
             .logo("logo.xpm")
             .header(HEDR_LOGO, 1)
             .header(HEDR_LOGO_LEFT, 1)
             .header(HEDR_LOGO_RIGHT, 1));
    click(AppliWnd, 15, 15);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "バージョン情報");
    PtrnDispSysWnd("", nullptr, 0);
    click(AppliWnd, 15, 15, 3);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "メンテナンス");
}

TEST_F(Mouse, the_rest_of_the_title_bar_does_nothing_by_the_right_button)
{
    Pattern("メンテナンス").size(50, 50).save(project);
    open(panel("top")
             .header(HEDR_KIND, 1)
             .header(HEDR_TITLE_HEIGHT, 30)
             .header(HEDR_HARDCOPY, 1)
             .header(HEDR_LOGO_RIGHT, 1));
    click(AppliWnd, 150, 15, 3);
    click(AppliWnd, 285, 15, 3); // the hard-copy button
    EXPECT_EQ(SystmWnd, nullptr);
}

TEST_F(Mouse, the_hard_copy_button_of_the_title_bar_is_silent)
{
    open(panel("top").header(HEDR_TITLE_HEIGHT, 30).header(HEDR_HARDCOPY, 1).header(HEDR_KIND, 1));
    project.clearLog();
    click(AppliWnd, 285, 15);
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(AppliWnd->MoveWnd, 0);
}

TEST_F(Mouse, a_held_control_repeats_until_it_is_released)
{
    open(panel("top"));
    press(AppliWnd, 240, 50); // the second arrow button
    EXPECT_EQ(value(101), 1);
    tick(5);
    EXPECT_EQ(value(101), 1);
    tick(2);
    EXPECT_EQ(value(101), 2);
    tick(2);
    EXPECT_EQ(value(101), 3);
    EXPECT_THAT(callsOf({"mesg"}), ElementsAre("mesg 101", "mesg 101", "mesg 101"));
    moveTo(AppliWnd, 239, 50);
    press(AppliWnd, 240, 50, 3);
    release(3); // of the other button
    tick(2);
    EXPECT_EQ(value(101), 4);
    release();
    tick(10);
    EXPECT_EQ(value(101), 4);
}

TEST_F(Mouse, a_held_control_stops_repeating_when_the_pointer_leaves_it)
{
    open(panel("top"));
    press(AppliWnd, 240, 50);
    moveTo(AppliWnd, 240, 80);
    moveTo(AppliWnd, 240, 50);
    tick(20);
    EXPECT_EQ(value(101), 1);
    release();
}

TEST_F(Mouse, a_press_ends_key_input_without_storing)
{
    open(panel("top").item(PTRN_CHAR, 100, 100, 200, 120).code("D", 9).parm(FIELD_KEYENTRY, 1));
    for (const unsigned button : {1u, 3u, 4u, 5u}) {
        click(AppliWnd, 110, 108);
        ASSERT_EQ(AppliWnd->KeyInputMode, 1);
        type("a");
        click(AppliWnd, 290, 190, button);
        EXPECT_EQ(AppliWnd->KeyInputMode, 0);
        EXPECT_STREQ(Get_sData(109, nullptr, 0), "");
        EXPECT_EQ(Get_wData(109, nullptr, 0), 0);
        tick();
    }
    click(AppliWnd, 110, 108);
    click(AppliWnd, 290, 190, 2);
    EXPECT_EQ(AppliWnd->KeyInputMode, 1) << "the middle button does nothing";
    EXPECT_THAT(callsOf({"keyfunc"}), IsEmpty());
}
