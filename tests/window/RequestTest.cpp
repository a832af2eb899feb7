// The window slots and the requests, with real windows on a screen.
#include "window/Request.h"
#include "comndata/ComnData.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "dialogs/PtrnMente.h"
#include "shell/Startup.h"
#include "tests/support/Screen.h"

#include <gmock/gmock.h>
#include <typeinfo>

using namespace tessary;

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;

namespace
{

Pattern pattern(const std::string& name)
{
    return Pattern(name).size(200, 100);
}

class Requests : public Screen
{
  protected:
    void SetUp() override
    {
        project.code("CLOCK", 99);
        know(pattern("first"));
        know(pattern("second"));
        know(pattern("notice"));
        pattern("バージョン情報").save(project);
        pattern("メンテナンス")
            .item(PTRN_SBAR, 0, 0, 10, 100)
            .code("CLOCK", 79)
            .item(PTRN_SBAR, 20, 0, 30, 100)
            .code("CLOCK", 80)
            .save(project);
        start();
        project.clearLog();
    }

    /// Hooks without those of paints and ticks.
    Calls lifecycle() const { return callsOf({"init", "exit"}); }
};

} // namespace

TEST_F(Requests, show_the_application_window_of_a_known_pattern)
{
    PtrnDispTopWnd("first", "screen.cpp", 12);
    ASSERT_TRUE(AppliWnd);
    waitShown(AppliWnd);
    EXPECT_EQ(AppliWnd->PtrnType, KIND_APPLICATION);
    EXPECT_EQ(AppliWnd->ParentWnd, nullptr);
    EXPECT_STREQ(AppliWnd->PtrnName, "first");

    const auto log = project.log();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0].mesg1, "SYSTEM");
    EXPECT_EQ(log[0].mesg2, "最上位ウィンドウ表示  [first]");
    EXPECT_EQ(log[0].file, "screen.cpp");
    EXPECT_EQ(log[0].line, 12);
}

TEST_F(Requests, keep_quiet_about_success_without_a_source_file)
{
    PtrnDispTopWnd("first", nullptr, 0);
    PtrnDispSysWnd("second", nullptr, 0);
    PtrnDispSysWnd("", nullptr, 0);
    ReqHardCopy(nullptr, 0);
    ReqSystemStop(nullptr, 0);
    EXPECT_TRUE(project.log().empty());
}

TEST_F(Requests, open_the_new_application_window_before_the_old_one_goes)
{
    openTop("first");
    calls.clear();
    CPtrnDisp* old = AppliWnd;
    PtrnDispTopWnd("second", nullptr, 0);
    EXPECT_NE(AppliWnd, old);
    EXPECT_EQ(old->Widget, nullptr) << "the old toolkit window is gone";
    EXPECT_THAT(lifecycle(), ElementsAre("init", "exit"));
    waitShown(AppliWnd);
    EXPECT_EQ(user.windows().size(), 1u);
}

TEST_F(Requests, let_a_new_application_window_hand_over_to_another_at_once)
{
    openTop("first");
    hooks.init = [](CPtrnDisp& wnd) {
        if (std::string(wnd.PtrnName) == "second")
            PtrnDispTopWnd("notice", nullptr, 0);
    };
    calls.clear();
    PtrnDispTopWnd("second", nullptr, 0);
    EXPECT_STREQ(AppliWnd->PtrnName, "notice");
    waitShown(AppliWnd);
    EXPECT_EQ(user.windows().size(), 1u);
    EXPECT_THAT(lifecycle(), ElementsAre("init", "init", "exit", "exit"));
}

TEST_F(Requests, take_a_name_that_lies_in_the_buffer_of_a_getter)
{
    project.set("PTRN", "NEXT", "second").set("PTRN", "OTHER", "first");
    const auto registry = TestApplication::window;
    TestApplication::window = [&](const std::string& name) {
        ProfileReadAsc(ProfName, "PTRN", "OTHER"); // as a constructor may do
        return registry(name);
    };
    PtrnDispTopWnd(ProfileReadAsc(ProfName, "PTRN", "NEXT"), nullptr, 0);
    EXPECT_STREQ(AppliWnd->PtrnName, "second");
    PtrnDispSysWnd(ProfileReadAsc(ProfName, "PTRN", "NEXT"), nullptr, 0);
    EXPECT_STREQ(SystmWnd->PtrnName, "second");
    AppliWnd->PtrnDispChild(1, ProfileReadAsc(ProfName, "PTRN", "NEXT"), nullptr, 0);
    EXPECT_STREQ(AppliWnd->ChildWnd1->PtrnName, "second");
}

TEST_F(Requests, log_an_unknown_pattern_and_keep_the_application_window)
{
    openTop("first");
    CPtrnDisp* before = AppliWnd;
    PtrnDispTopWnd("no such screen", nullptr, 0);
    PtrnDispTopWnd("", nullptr, 0);
    EXPECT_EQ(AppliWnd, before);
    EXPECT_TRUE(before->Widget);
    EXPECT_THAT(project.messages(), ElementsAre("最上位ウィンドウ表示に失敗  [no such screen]",
                                                "最上位ウィンドウ表示に失敗  []"));
    EXPECT_EQ(project.log()[0].file, "");
}

TEST_F(Requests, show_and_close_the_system_window)
{
    openTop("first");
    PtrnDispSysWnd("second", "a.cpp", 1);
    ASSERT_TRUE(SystmWnd);
    waitShown(SystmWnd);
    EXPECT_EQ(SystemWnd, 1);
    EXPECT_EQ(SystmWnd->PtrnType, KIND_SYSTEM);
    EXPECT_EQ(SystmWnd->ParentWnd, AppliWnd);

    PtrnDispSysWnd("", "a.cpp", 2);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    EXPECT_THAT(project.messages(),
                ElementsAre("システムウィンドウ表示  [second]", "システムウィンドウを閉じる。"));
    EXPECT_THAT(lifecycle(), ElementsAre("init", "init", "exit"));
}

TEST_F(Requests, close_the_system_window_even_when_the_new_name_is_unknown)
{
    PtrnDispSysWnd("second", nullptr, 0);
    PtrnDispSysWnd("no such screen", nullptr, 0);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    EXPECT_THAT(project.messages(), ElementsAre("システムウィンドウ表示に失敗  [no such screen]"));
}

TEST_F(Requests, leave_a_system_window_open_that_the_closed_one_s_exit_hook_has_opened)
{
    hooks.exit = [](CPtrnDisp& wnd) {
        if (std::string(wnd.PtrnName) == "first")
            PtrnDispSysWnd("second", nullptr, 0);
    };
    openSystem("first");
    PtrnDispSysWnd("", nullptr, 0);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "second");
    EXPECT_EQ(SystemWnd, 1);
    user.settle();
    EXPECT_EQ(user.windows().size(), 1u);
}

TEST_F(Requests, show_the_system_window_asked_for_whatever_the_exit_hook_of_the_other_opens)
{
    hooks.exit = [](CPtrnDisp& wnd) {
        if (std::string(wnd.PtrnName) == "first")
            PtrnDispSysWnd("second", nullptr, 0);
    };
    openSystem("first");
    openSystem("notice");
    EXPECT_STREQ(SystmWnd->PtrnName, "notice");
    user.settle();
    EXPECT_EQ(user.windows().size(), 1u);
}

TEST_F(Requests, open_version_and_maintenance_windows_without_the_registry)
{
    openTop("first");
    PtrnDispVersnWnd();
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "バージョン情報");
    EXPECT_EQ(SystmWnd->PtrnType, KIND_SYSTEM);
    EXPECT_EQ(SystmWnd->ParentWnd, AppliWnd);
    EXPECT_EQ(typeid(*SystmWnd), typeid(CPtrnDisp));
    PtrnDispMenteWnd();
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "メンテナンス");
    EXPECT_EQ(typeid(*SystmWnd), typeid(CPtrnMente));
    EXPECT_EQ(SystemWnd, 1);
    EXPECT_TRUE(project.log().empty());
}

TEST_F(Requests, close_the_system_window_when_the_version_pattern_is_missing)
{
    unlink((project.folder() + "/バージョン情報.ptn").c_str());
    PtrnDispSysWnd("second", nullptr, 0);
    PtrnDispVersnWnd();
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    EXPECT_THAT(lifecycle(), ElementsAre("init", "exit"));
    EXPECT_TRUE(project.log().empty());
}

TEST_F(Requests, log_a_hard_copy)
{
    ReqHardCopy("a.cpp", 3);
    EXPECT_THAT(project.messages(), ElementsAre("ハードコピー要求"));
}

TEST_F(Requests, count_the_stop_down_in_ticks)
{
    const std::pair<const char*, int> settings[] = {{"3", 30}, {"0", 10}, {"-3", 10}, {"", 10}};
    for (const auto& [seconds, ticks] : settings) {
        project.set("TESSARY", "WAITTIMER", seconds);
        ReqSystemStop(nullptr, 0);
        EXPECT_EQ(WaitTimer, ticks) << "WAITTIMER=" << seconds;
    }
    project.unset("TESSARY", "WAITTIMER");
    ReqSystemStop(nullptr, 0);
    EXPECT_EQ(WaitTimer, 10);
    EXPECT_EQ(SystemStop, 1);
    project.set("TESSARY", "WAITTIMER", "2147483647");
    ReqSystemStop(nullptr, 0);
    EXPECT_EQ(WaitTimer, 2147483647) << "as long as can be counted";
}

TEST_F(Requests, start_the_countdown_anew_at_a_second_stop)
{
    project.set("TESSARY", "WAITTIMER", "2");
    ReqSystemStop("a.cpp", 4);
    tick(5);
    EXPECT_EQ(WaitTimer, 15);
    ReqSystemStop("a.cpp", 5);
    EXPECT_EQ(WaitTimer, 20);
    EXPECT_THAT(project.messages(), ElementsAre("システム停止要求", "システム停止要求"));
}

TEST_F(Requests, replace_the_system_window_by_the_stop_notice_without_its_exit_hook)
{
    project.set("PTRN", "PTRNSTOP", "notice");
    openTop("first");
    PtrnDispSysWnd("second", nullptr, 0);
    calls.clear();
    ReqSystemStop(nullptr, 0);
    ASSERT_TRUE(SystmWnd);
    EXPECT_STREQ(SystmWnd->PtrnName, "notice");
    EXPECT_EQ(SystemWnd, 1);
    EXPECT_THAT(lifecycle(), ElementsAre("init"));
    EXPECT_THAT(readFile(project.profile()), Not(testing::HasSubstr("WINDOW")));
}

TEST_F(Requests, take_the_windows_down_and_leave_the_main_loop_when_the_countdown_ends)
{
    openTop("first");
    PtrnDispSysWnd("second", nullptr, 0);
    ReqSystemStop(nullptr, 0); // without a notice the system window is gone now
    PtrnDispSysWnd("second", nullptr, 0);
    std::vector<std::string> exited;
    hooks.exit = [&](CPtrnDisp& wnd) { exited.push_back(wnd.PtrnName); };

    // The main loop with its ticks, as the program runs them.
    const guint timer = gtk_timeout_add(100, Timer_Event, nullptr);
    gtk_main();
    gtk_timeout_remove(timer);
    EXPECT_EQ(WaitTimer, 0);
    EXPECT_EQ(AppliWnd->Widget, nullptr);
    EXPECT_EQ(SystmWnd->Widget, nullptr);
    EXPECT_THAT(exited, ElementsAre("second", "first"));
}

TEST_F(Requests, never_end_a_negative_countdown)
{
    openTop("first");
    WaitTimer = -1;
    tick(3);
    EXPECT_EQ(WaitTimer, -4);
    EXPECT_TRUE(AppliWnd->Widget);
}

TEST_F(Requests, offer_keys_and_resets_to_both_window_trees)
{
    ReqKeyEntry('1', 0); // without any window nothing happens
    ReqKeyReset();
    openTop("first");
    PtrnDispSysWnd("second", nullptr, 0);
    AppliWnd->KeyInputMode = 1;
    SystmWnd->KeyInputMode = 1;
    ReqKeyReset();
    EXPECT_EQ(AppliWnd->KeyInputMode, 0);
    EXPECT_EQ(SystmWnd->KeyInputMode, 0);
}

TEST_F(Requests, write_the_clock_into_its_cells_at_every_tick)
{
    const std::time_t before = std::time(nullptr);
    tick();
    const std::time_t after = std::time(nullptr);
    // The second may have changed on the way; one of the two is right.
    bool right = false;
    for (const std::time_t now : {before, after}) {
        const std::tm local = *std::localtime(&now);
        const int expected[] = {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_wday,
                                local.tm_hour,        local.tm_min,     local.tm_sec};
        bool same = true;
        for (int i = 0; i < 7; i++)
            same = same && Get_iData(DTNO_SYSCALN + i, nullptr, 0) == expected[i];
        right = right || same;
    }
    EXPECT_TRUE(right);
}

TEST_F(Requests, call_the_application_before_anything_else_of_a_tick)
{
    openTop("first");
    calls.clear();
    TestApplication::tick = [this] { calls.push_back("user"); };
    tick();
    EXPECT_THAT(calls, ElementsAre("user", "timr", "disp 1"));
}

TEST_F(Requests, do_nothing_for_a_shut_down)
{
    ShutDown(0);
    ShutDown(1);
    EXPECT_TRUE(project.log().empty());
    EXPECT_EQ(WaitTimer, 0);
}
