// The action codes of items, carried out by real clicks.
#include "tests/support/Screen.h"

#include "window/Request.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

constexpr int ROWS = 20;

/// A button for each action code, numbered from the top left; its data number is its code.
Pattern buttons(const std::string& name, const std::string& target = "")
{
    Pattern pattern(name);
    pattern.size(200, 150).header(HEDR_KIND, 2).header(HEDR_MODELESS, 1);
    for (int code = 0; code < ROWS; code++)
        pattern.item(PTRN_BUTN, code % 5 * 40, code / 5 * 30, code % 5 * 40 + 35, code / 5 * 30 + 25)
            .code("D", code - 1)
            .action(code, target);
    return pattern;
}

class Actions : public Screen
{
  protected:
    void SetUp() override { project.code("D", 99); }

    /// Opens the buttons as the application window; `target` is what they name.
    void open(const std::string& target = "")
    {
        know(buttons("top", target));
        know(buttons("child").header(HEDR_LEFT, 400));
        know(buttons("child2").header(HEDR_LEFT, 400).header(HEDR_TOP, 300));
        know(buttons("other").header(HEDR_TOP, 500));
        Pattern("バージョン情報").size(50, 50).header(HEDR_KIND, 1).header(HEDR_LEFT, 700).save(project);
        Pattern("メンテナンス")
            .size(50, 50)
            .header(HEDR_KIND, 1)
            .header(HEDR_LEFT, 700)
            .item(PTRN_SBAR, 0, 0, 10, 40)
            .code("D", 79)
            .item(PTRN_SBAR, 20, 0, 30, 40)
            .code("D", 80)
            .save(project);
        start();
        openTop("top");
        project.clearLog();
        calls.clear();
    }

    void run(const CPtrnDisp* wnd, int code, unsigned button = 1)
    {
        calls.clear();
        click(wnd, code % 5 * 40 + 10, code / 5 * 30 + 10, button);
    }

    Calls lifecycle() const { return callsOf({"init", "exit"}); }
    Calls messages() const { return callsOf({"mesg"}); }
    std::string profile() const { return readFile(project.profile()); }
};

} // namespace

TEST_F(Actions, one_sends_a_message_to_the_window_itself)
{
    open();
    run(AppliWnd, 1);
    EXPECT_THAT(messages(), ElementsAre("mesg 1"));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, two_sends_a_message_to_child_1)
{
    open();
    std::vector<const CPtrnDisp*> receivers;
    hooks.mesg = [&](CPtrnDisp& wnd, int) { receivers.push_back(&wnd); };
    const CPtrnDisp* first = openChild(AppliWnd, 1, "child");
    openChild(AppliWnd, 2, "child2");
    run(AppliWnd, 2);
    EXPECT_THAT(receivers, ElementsAre(first));
    EXPECT_THAT(messages(), ElementsAre("mesg 2"));
}

TEST_F(Actions, two_reaches_child_2_while_there_is_no_child_1)
{
    open();
    std::vector<const CPtrnDisp*> receivers;
    hooks.mesg = [&](CPtrnDisp& wnd, int) { receivers.push_back(&wnd); };
    const CPtrnDisp* second = openChild(AppliWnd, 2, "child2");
    run(AppliWnd, 2);
    EXPECT_THAT(receivers, ElementsAre(second));
}

TEST_F(Actions, two_reaches_nobody_without_children)
{
    open();
    run(AppliWnd, 2);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, three_reaches_nobody_whatever_is_open)
{
    open();
    run(AppliWnd, 3);
    EXPECT_THAT(messages(), IsEmpty());
    openChild(AppliWnd, 2, "child2");
    run(AppliWnd, 3);
    EXPECT_THAT(messages(), IsEmpty());
    openChild(AppliWnd, 1, "child");
    run(AppliWnd, 3);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, four_sends_a_message_to_the_parent)
{
    open();
    std::vector<const CPtrnDisp*> receivers;
    hooks.mesg = [&](CPtrnDisp& wnd, int) { receivers.push_back(&wnd); };
    run(openChild(AppliWnd, 1, "child"), 4);
    EXPECT_THAT(receivers, ElementsAre(AppliWnd));
    EXPECT_THAT(messages(), ElementsAre("mesg 4"));
    run(AppliWnd, 4);
    EXPECT_EQ(receivers.size(), 1u) << "the application window has no parent";
}

TEST_F(Actions, five_opens_child_1_at_its_own_place)
{
    open("child");
    run(AppliWnd, 5);
    ASSERT_TRUE(AppliWnd->ChildWnd1);
    waitShown(AppliWnd->ChildWnd1);
    EXPECT_EQ(AppliWnd->ChildWnd1->PtrnType, KIND_CHILD1);
    EXPECT_EQ(AppliWnd->ChildWnd1->ParentWnd, AppliWnd);
    EXPECT_EQ(AppliWnd->ChildWnd1->WindRect.left, 400);
    EXPECT_EQ(AppliWnd->ChildWnd2, nullptr);
    EXPECT_THAT(lifecycle(), ElementsAre("init"));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, six_opens_child_2)
{
    open("child2");
    run(AppliWnd, 6);
    ASSERT_TRUE(AppliWnd->ChildWnd2);
    waitShown(AppliWnd->ChildWnd2);
    EXPECT_EQ(AppliWnd->ChildWnd2->PtrnType, KIND_CHILD2);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, five_and_six_log_a_name_that_is_not_known)
{
    open("no such screen");
    run(AppliWnd, 5);
    run(AppliWnd, 6);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg2, "子ウィンドウ（１）表示に失敗  [no such screen]");
    EXPECT_EQ(log[1].mesg2, "子ウィンドウ（２）表示に失敗  [no such screen]");
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].file, "");
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    EXPECT_EQ(AppliWnd->ChildWnd2, nullptr);
}

TEST_F(Actions, seven_opens_the_system_window_exits_it_and_opens_it_afresh)
{
    open("other");
    run(AppliWnd, 7);
    ASSERT_TRUE(SystmWnd);
    waitShown(SystmWnd);
    EXPECT_EQ(SystmWnd->PtrnType, KIND_SYSTEM);
    EXPECT_EQ(SystmWnd->ParentWnd, AppliWnd);
    EXPECT_EQ(SystemWnd, 1);
    EXPECT_THAT(lifecycle(), ElementsAre("init", "exit", "init"));
    EXPECT_EQ(user.windows().size(), 2u);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, seven_opens_the_system_window_once_where_the_items_are_not_operated)
{
    open("other");
    run(AppliWnd, 7, 3); // the right button has system actions only
    waitShown(SystmWnd);
    EXPECT_THAT(lifecycle(), ElementsAre("init"));
}

TEST_F(Actions, seven_without_a_name_closes_the_system_window)
{
    open("");
    openSystem("other");
    run(AppliWnd, 7);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, eight_replaces_the_application_window)
{
    open("other");
    CPtrnDisp* before = AppliWnd;
    run(AppliWnd, 8);
    EXPECT_NE(AppliWnd, before);
    EXPECT_EQ(before->Widget, nullptr);
    EXPECT_STREQ(AppliWnd->PtrnName, "other");
    EXPECT_EQ(AppliWnd->PtrnType, KIND_APPLICATION);
    EXPECT_THAT(lifecycle(), ElementsAre("init", "exit"));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, eight_logs_a_name_that_is_not_known_and_keeps_the_window)
{
    open("no such screen");
    run(AppliWnd, 8);
    EXPECT_TRUE(AppliWnd->Widget);
    EXPECT_THAT(project.messages(), ElementsAre("最上位ウィンドウ表示に失敗  [no such screen]"));
}

TEST_F(Actions, nine_only_logs_that_the_application_window_can_not_be_closed)
{
    open();
    run(AppliWnd, 9);
    EXPECT_TRUE(AppliWnd->Widget);
    EXPECT_THAT(lifecycle(), IsEmpty());
    const auto log = project.log();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "最上位ウィンドウを閉じることはできません。");
    EXPECT_EQ(log[0].file, "");
}

TEST_F(Actions, nine_closes_a_child_or_system_window_silently)
{
    open();
    run(openChild(AppliWnd, 1, "child"), 9);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    EXPECT_THAT(lifecycle(), ElementsAre("exit"));
    run(openChild(AppliWnd, 2, "child2"), 9);
    EXPECT_EQ(AppliWnd->ChildWnd2, nullptr);
    EXPECT_THAT(lifecycle(), ElementsAre("exit"));
    run(openSystem("other"), 9);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    EXPECT_THAT(lifecycle(), ElementsAre("exit"));
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(user.windows().size(), 1u);
}

TEST_F(Actions, ten_and_eleven_close_the_children_and_do_nothing_without_them)
{
    open();
    openChild(AppliWnd, 1, "child");
    openChild(AppliWnd, 2, "child2");
    run(AppliWnd, 10);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    EXPECT_TRUE(AppliWnd->ChildWnd2);
    run(AppliWnd, 11);
    EXPECT_EQ(AppliWnd->ChildWnd2, nullptr);
    run(AppliWnd, 10);
    run(AppliWnd, 11);
    EXPECT_THAT(lifecycle(), IsEmpty());
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, twelve_closes_the_system_window)
{
    open();
    run(openSystem("other"), 12);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    run(AppliWnd, 12);
    EXPECT_THAT(lifecycle(), IsEmpty());
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, thirteen_opens_the_version_window_twice)
{
    open();
    run(AppliWnd, 13);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "バージョン情報");
    EXPECT_THAT(profile(), HasSubstr("=700,0")) << "the first one has been exited";
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, fourteen_opens_the_maintenance_window_twice)
{
    open();
    run(AppliWnd, 14);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "メンテナンス");
    EXPECT_THAT(profile(), HasSubstr("=700,0")) << "the first one has been exited";
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, thirteen_and_fourteen_open_once_by_the_right_button)
{
    open();
    run(AppliWnd, 13, 3);
    EXPECT_STREQ(SystmWnd->PtrnName, "バージョン情報");
    EXPECT_THAT(profile(), Not(HasSubstr("WINDOW")));
    PtrnDispSysWnd("", nullptr, 0);
    project.set("TESSARY", "DISPSIZE", "1280,1024"); // writes the profile anew
    run(AppliWnd, 14, 3);
    EXPECT_STREQ(SystmWnd->PtrnName, "メンテナンス");
    EXPECT_THAT(profile(), Not(HasSubstr("WINDOW")));
}

TEST_F(Actions, fifteen_is_silent)
{
    open();
    run(AppliWnd, 15);
    run(AppliWnd, 15, 3);
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(user.windows().size(), 1u);
}

TEST_F(Actions, sixteen_stops_the_system)
{
    open();
    run(AppliWnd, 16);
    EXPECT_EQ(WaitTimer, 10);
    EXPECT_EQ(SystemStop, 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, any_other_code_does_nothing)
{
    open("other");
    for (const int code : {0, 17, 18, 19}) {
        run(AppliWnd, code);
        run(AppliWnd, code, 3);
    }
    PTRNDATA item{};
    for (const int code : {-1, -2147483647 - 1, 2147483647, 256 + 5}) {
        item.ID_Type = code;
        AppliWnd->ExecMessage(&item);
    }
    EXPECT_THAT(lifecycle(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(user.windows().size(), 1u);
    EXPECT_EQ(WaitTimer, 0);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Actions, the_action_is_that_of_the_item_which_the_press_has_replaced)
{
    // A label and the check box of its data number: the box acts, for the second run of system actions too.
    know(Pattern("top")
             .size(200, 100)
             .item(PTRN_FCHR, 10, 10, 60, 30)
             .parm(FIELD_WIDTH, 5)
             .code("D", 0)
             .action(1)
             .text("label")
             .item(PTRN_CHCK, 100, 10, 150, 30)
             .code("D", 0)
             .action(7, "other"));
    know(buttons("other"));
    start();
    openTop("top");
    calls.clear();
    click(AppliWnd, 15, 15);
    EXPECT_THAT(callsOf({"init", "exit", "mesg"}), ElementsAre("init", "exit", "init"));
}
