// The life of window objects: how long they stay after their windows have gone, and what refers to them.
#include "tests/support/Screen.h"

#include "shell/Startup.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace
{

class Retire : public Screen
{
  protected:
    static constexpr std::size_t KEPT = 16;

    void SetUp() override
    {
        project.code("SYSTEM", 99).code("D", 20);
        know(Pattern("top").size(200, 100).header(HEDR_KIND, 0));
        know(Pattern("a")
                 .size(100, 50)
                 .header(HEDR_KIND, 2)
                 .header(HEDR_LEFT, 300)
                 .item(PTRN_BUTN, 10, 10, 60, 30)
                 .code("D", 0)
                 .action(1));
        start();
        openTop("top");
    }

    /// Opens and closes child 2 so often that whatever was closed before is deleted.
    void outlive()
    {
        for (std::size_t i = 0; i <= KEPT; i++) {
            AppliWnd->PtrnDispChild(2, "a", nullptr, 0);
            AppliWnd->PtrnCloseWnd(2, nullptr, 0);
        }
        tick();
    }

    static bool lives(const CPtrnDisp* wnd)
    {
        const auto& all = RecordingWnd::alive;
        return std::any_of(all.begin(), all.end(), [&](const RecordingWnd* one) { return one == wnd; });
    }
};

} // namespace

TEST_F(Retire, the_newest_windows_stay_and_older_ones_are_deleted_at_a_tick)
{
    for (int i = 0; i < 100; i++) {
        AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
        AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    }
    EXPECT_EQ(RecordingWnd::alive.size(), 101u);
    tick();
    EXPECT_EQ(RecordingWnd::alive.size(), KEPT + 1);
}

TEST_F(Retire, replaced_windows_are_deleted_as_well)
{
    for (int i = 0; i < 50; i++) {
        AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
        PtrnDispSysWnd("a", nullptr, 0);
        if (i % 10 == 0)
            ReqSystemStop(nullptr, 0);
    }
    WaitTimer = 0;
    tick();
    EXPECT_EQ(RecordingWnd::alive.size(), KEPT + 3) << "with the three that are open";
}

TEST_F(Retire, an_application_window_takes_its_exited_children_with_it)
{
    const CPtrnDisp* top = AppliWnd;
    const CPtrnDisp* child = openChild(AppliWnd, 1, "a", 10, 10);
    const CPtrnDisp* grandchild = openChild(AppliWnd->ChildWnd1, 2, "a", 20, 20);
    openTop("top");
    outlive();
    for (const CPtrnDisp* wnd : {top, child, grandchild})
        EXPECT_FALSE(lives(wnd));
}

TEST_F(Retire, nothing_is_deleted_while_a_tick_interrupts_a_handler)
{
    openChild(AppliWnd, 1, "a");
    const CPtrnDisp* victim = AppliWnd->ChildWnd1;
    hooks.mesg = [&](CPtrnDisp& wnd, int) {
        wnd.PtrnCloseWnd(0, nullptr, 0);
        for (std::size_t i = 0; i < 2 * KEPT; i++) {
            AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
            AppliWnd->PtrnCloseWnd(1, nullptr, 0);
            Timer_Event(nullptr);
        }
        EXPECT_TRUE(lives(victim));
        EXPECT_STREQ(wnd.PtrnName, "a");
    };
    click(AppliWnd->ChildWnd1, 20, 20);
    EXPECT_TRUE(lives(victim));
    tick();
    EXPECT_FALSE(lives(victim));
}

TEST_F(Retire, nothing_is_deleted_in_a_main_loop_inside_another)
{
    // As an application does that asks the operator from a timeout of its own.
    const CPtrnDisp* victim = openChild(AppliWnd, 1, "a");
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    struct Loop {
        Retire* test;
        const CPtrnDisp* victim;
        int ticks = 0;
    } loop{this, victim};
    g_timeout_add(
        1,
        [](gpointer data) -> gboolean {
            g_timeout_add(
                1,
                [](gpointer inner) -> gboolean {
                    auto& state = *static_cast<Loop*>(inner);
                    AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
                    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
                    Timer_Event(nullptr);
                    if (++state.ticks < 40)
                        return TRUE;
                    gtk_main_quit();
                    return FALSE;
                },
                data);
            gtk_main();
            EXPECT_TRUE(lives(static_cast<Loop*>(data)->victim));
            gtk_main_quit();
            return FALSE;
        },
        &loop);
    gtk_main();
    EXPECT_EQ(loop.ticks, 40);
    tick();
    EXPECT_FALSE(lives(victim));
}

TEST_F(Retire, who_outlives_a_parent_forgets_it)
{
    RecordingWnd own(calls, hooks);
    own.PtrnDispInit(AppliWnd, "a", KIND_CHILD1, 300, 300);
    openTop("top");
    outlive();
    EXPECT_EQ(own.ParentWnd, nullptr);
    project.clearLog();
    own.PtrnCloseWnd(0, nullptr, 0);
    own.PtrnSendMessage(3, 1, nullptr, 0);
    EXPECT_THAT(project.messages(), ElementsAre("最上位ウィンドウを閉じることはできません。"));
}

TEST_F(Retire, the_system_window_passes_to_the_new_application_window)
{
    openSystem("a");
    const CPtrnDisp* first = AppliWnd;
    openTop("top");
    EXPECT_EQ(SystmWnd->ParentWnd, first) << "as long as that is there";
    outlive();
    EXPECT_FALSE(lives(first));
    EXPECT_EQ(SystmWnd->ParentWnd, AppliWnd);
    calls.clear();
    SystmWnd->PtrnSendMessage(3, 5, nullptr, 0);
    EXPECT_THAT(callsOf({"mesg"}), ElementsAre("mesg 5"));
}

TEST_F(Retire, an_object_that_the_application_deletes_leaves_nothing_behind)
{
    {
        RecordingWnd own(calls, hooks);
        own.PtrnDispInit(AppliWnd, "a", KIND_CHILD1, 300, 300);
        AppliWnd->ChildWnd1 = &own;
        waitShown(&own);
    }
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    user.settle();
    EXPECT_EQ(user.windows().size(), 1u);
    tick();
}

TEST_F(Retire, an_object_can_be_opened_again)
{
    RecordingWnd own(calls, hooks);
    for (int i = 0; i < 3; i++) {
        calls.clear();
        own.PtrnDispInit(AppliWnd, "a", KIND_CHILD1, 300 + 10 * i, 300);
        waitShown(&own);
        own.TimrEvent();
        if (i != 1) // once while it is still open
            own.PtrnExit();
        EXPECT_THAT(calls, Contains("init"));
        EXPECT_THAT(calls, Contains("timr"));
    }
    user.settle();
    EXPECT_EQ(user.windows().size(), 1u);
}

TEST_F(Retire, an_object_that_was_never_opened_can_be_exited_and_deleted)
{
    {
        RecordingWnd own(calls, hooks);
        own.PtrnExit();
        own.DestroyWidget();
        own.TimrEvent();
        own.UpdateEvent();
        own.PaintEvent();
        own.PtrnUpdate();
        own.PtrnSetCursor(1, nullptr, 0);
        own.KeyEntry('1', 0);
        own.KeyReset();
    }
    EXPECT_THAT(calls, Not(Contains("timr")));
}
