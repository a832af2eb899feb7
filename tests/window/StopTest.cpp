// The system stops whatever the operator is doing.
#include "tests/window/KeyEdit.h"

#include "shell/Startup.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

class Stop : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        know(Pattern("child").size(100, 50).header(HEDR_KIND, 2).header(HEDR_LEFT, 400));
        know(Pattern("notice").size(100, 50).header(HEDR_KIND, 2).header(HEDR_LEFT, 600));
        open(fields("p")
                 .header(HEDR_KIND, 1)
                 .header(HEDR_TITLE_HEIGHT, 16)
                 .item(PTRN_SPIN, 150, 20, 166, 52)
                 .code("D", 5)
                 .action(1)
                 .item(PTRN_SBAR, 150, 100, 290, 116)
                 .parm(SBAR_VISIBLE, 50)
                 .code("D", 6)
                 .action(1));
    }

    /// Runs the main loop with quick ticks until the stop ends it.
    void runToTheEnd()
    {
        ReqSystemStop(nullptr, 0);
        ASSERT_EQ(WaitTimer, 10);
        const guint timer = g_timeout_add(1, Timer_Event, nullptr);
        gtk_main();
        g_source_remove(timer);
        EXPECT_EQ(WaitTimer, 0);
        EXPECT_EQ(AppliWnd->Widget, nullptr);
        user.settle();
        EXPECT_TRUE(user.windows().empty());
        for (int no = NUMBER; no < NUMBER + 20; no++)
            EXPECT_FALSE(frozen(no)) << no;
        user.release();
    }

    Calls exits() const { return callsOf({"exit"}); }
};

} // namespace

TEST_F(Stop, during_nothing)
{
    runToTheEnd();
    EXPECT_THAT(exits(), ElementsAre("exit"));
}

TEST_F(Stop, during_a_window_drag)
{
    press(AppliWnd, 150, 8);
    ASSERT_EQ(AppliWnd->MoveWnd, 1);
    runToTheEnd();
}

TEST_F(Stop, during_a_thumb_drag)
{
    press(AppliWnd, 170, 108);
    ASSERT_EQ(AppliWnd->ScrollBar, 1);
    runToTheEnd();
}

TEST_F(Stop, while_a_control_repeats)
{
    press(AppliWnd, 155, 25);
    tick(6);
    runToTheEnd();
    EXPECT_GE(number(105), 3) << "it repeats to the end";
}

TEST_F(Stop, while_a_field_is_in_edit)
{
    edit(NUMBER);
    type("5");
    runToTheEnd();
    EXPECT_EQ(number(NUMBER), 0) << "nothing is stored";
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre());
}

TEST_F(Stop, under_children)
{
    openChild(openChild(AppliWnd, 1, "child"), 2, "child", 500, 300);
    calls.clear();
    runToTheEnd();
    EXPECT_THAT(exits(), ElementsAre("exit", "exit", "exit"));
}

TEST_F(Stop, under_a_system_window_that_makes_way_for_the_notice)
{
    project.set("PTRN", "PTRNSTOP", "notice");
    openSystem("child");
    std::vector<std::string> order;
    hooks.exit = [&](CPtrnDisp& wnd) { order.emplace_back(wnd.PtrnName); };
    runToTheEnd();
    EXPECT_THAT(order, ElementsAre("notice", "p")) << "the system window first";
    EXPECT_THAT(readFile(project.profile()), HasSubstr("=600,0\n"));
}

TEST_F(Stop, inside_the_main_loop_of_a_message_box)
{
    // A hook that asks the operator; the box has a main loop of its own.
    bool answered = false;
    hooks.mesg = [&](CPtrnDisp&, int) {
        gtk_main();
        answered = true;
    };
    g_timeout_add(
        1,
        [](gpointer) -> gboolean {
            AppliWnd->PtrnSendMessage(0, 1, nullptr, 0);
            return FALSE;
        },
        nullptr);
    runToTheEnd();
    EXPECT_TRUE(answered);
}
