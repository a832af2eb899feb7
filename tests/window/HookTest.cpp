// A screen class may close, replace or destroy its own window from any of its hooks.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <gmock/gmock.h>
#include <map>
#include <X11/keysym.h>

using namespace tessary;

namespace
{

using Deed = std::function<void(CPtrnDisp&)>;

/// What a hook does to the window that it belongs to.
const std::map<std::string, Deed> DEEDS = {
    {"close", [](CPtrnDisp& wnd) { wnd.PtrnCloseWnd(0, nullptr, 0); }},
    {"close twice",
     [](CPtrnDisp& wnd) {
         wnd.PtrnCloseWnd(0, nullptr, 0);
         wnd.PtrnCloseWnd(0, nullptr, 0);
     }},
    {"exit", [](CPtrnDisp& wnd) { wnd.PtrnExit(); }},
    {"destroy", [](CPtrnDisp& wnd) { gtk_widget_destroy(wnd.Widget); }},
    {"replace",
     [](CPtrnDisp& wnd) {
         if (wnd.PtrnType == KIND_SYSTEM)
             PtrnDispSysWnd("other", nullptr, 0);
         else if (wnd.ParentWnd)
             wnd.ParentWnd->PtrnDispChild(wnd.PtrnType, "other", nullptr, 0);
     }},
    {"replace the application window", [](CPtrnDisp&) { PtrnDispTopWnd("top", nullptr, 0); }},
    {"stop", [](CPtrnDisp&) { ReqSystemStop(nullptr, 0); }},
    {"open a child", [](CPtrnDisp& wnd) { wnd.PtrnDispChild(1, "other", nullptr, 0); }},
    {"close and open a child",
     [](CPtrnDisp& wnd) {
         wnd.PtrnCloseWnd(0, nullptr, 0);
         wnd.PtrnDispChild(1, "other", nullptr, 0);
     }},
};

/// The parameter is the kind of window that the hooks belong to.
class HookDeeds : public Screen, public testing::WithParamInterface<int>
{
  protected:
    void SetUp() override
    {
        project.code("SYSTEM", 99).code("D", 20);
        const auto place = [](const std::string& name, int left) {
            return Pattern(name)
                .size(300, 200)
                .header(HEDR_KIND, 2)
                .header(HEDR_LEFT, left)
                .header(HEDR_MODELESS, 1);
        };
        know(place("top", 0));
        know(place("other", 700));
        know(place("victim", 350)
                 .item(PTRN_BUTN, 10, 10, 60, 30)
                 .code("D", 0)
                 .action(1)
                 .item(PTRN_NUMR, 10, 50, 50, 66)
                 .code("D", 1)
                 .parm(FIELD_KEYENTRY, 1)
                 .item(PTRN_SPIN, 10, 100, 26, 132)
                 .code("D", 2)
                 .action(1)
                 .item(PTRN_SBAR, 100, 40, 250, 60)
                 .parm(SBAR_VISIBLE, 50)
                 .code("D", 3)
                 .action(1));
        start();
    }

    /// Opens the victim; without waiting, since it may close itself at once.
    CPtrnDisp* openVictim()
    {
        openTop("top");
        switch (GetParam()) {
        case KIND_CHILD1:
        case KIND_CHILD2:
            AppliWnd->PtrnDispChild(GetParam(), "victim", nullptr, 0);
            return GetParam() == KIND_CHILD1 ? AppliWnd->ChildWnd1 : AppliWnd->ChildWnd2;
        case KIND_SYSTEM:
            PtrnDispSysWnd("victim", nullptr, 0);
            return SystmWnd;
        default:
            PtrnDispTopWnd("victim", nullptr, 0);
            return AppliWnd;
        }
    }

    /// Makes the display hook do a deed before it draws, in paints (mode 0) or in ticks (mode 1).
    void displays(int which, const Deed& deed)
    {
        hooks.disp = [which, deed](CPtrnDisp& wnd, CDraw* draw, int mode) {
            if (mode != which)
                return;
            deed(wnd);
            draw->DrawRect(10, 10, 100, 100, 1, 0, 1, 2);
        };
    }

    /// Runs a test with every deed: the hook does it once, then uses what it was given as if nothing had
    /// happened.
    void withEveryDeed(const std::function<void(const Deed&)>& arm,
                       const std::function<void(CPtrnDisp*)>& cause, bool atOpening = false,
                       const std::string& skipped = "")
    {
        for (const auto& [name, deed] : DEEDS) {
            SCOPED_TRACE(name);
            if (name == skipped)
                continue;
            bool done = false;
            const Deed once = [&done, deed = deed](CPtrnDisp& wnd) {
                if (done || std::string(wnd.PtrnName) != "victim")
                    return;
                done = true;
                deed(wnd);
                wnd.CursorType = 1; // the object is there
                wnd.PtrnUpdate();
            };
            if (atOpening)
                arm(once);
            CPtrnDisp* victim = openVictim();
            user.settle();
            if (!atOpening)
                arm(once);
            cause(victim);
            user.settle();
            EXPECT_TRUE(done);
            hooks = {};
            goOn();
        }
    }

    /// Whatever has happened, the panel goes on: ticks, clicks and windows that come and go.
    void goOn()
    {
        user.release();
        tick(2);
        WaitTimer = 0; // the test has no main loop that could end
        openTop("top");
        expectOnePerSlot();
        for (int i = 0; i < 20; i++) { // more than what is kept of windows that have gone
            AppliWnd->PtrnDispChild(1, "other", nullptr, 0);
            AppliWnd->PtrnCloseWnd(1, nullptr, 0);
            tick();
        }
        PtrnDispSysWnd("", nullptr, 0);
        tick();
        for (int no = 100; no < 120; no++)
            EXPECT_EQ(Get_wData(no, nullptr, 0) & STATE_FROZEN, 0) << no;
    }

    static void expectOnePerSlot()
    {
        ASSERT_TRUE(AppliWnd);
        EXPECT_TRUE(AppliWnd->Widget);
        EXPECT_EQ(SystemWnd, SystmWnd ? 1 : 0);
    }
};

std::string kindName(const testing::TestParamInfo<int>& info)
{
    const char* const names[] = {"application", "child1", "child2", "system"};
    return names[info.param];
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Windows, HookDeeds, testing::Range(0, 4), kindName);

TEST_P(HookDeeds, of_the_init_hook)
{
    withEveryDeed([this](const Deed& deed) { hooks.init = deed; }, [](CPtrnDisp*) {}, true);
}

TEST_P(HookDeeds, of_the_exit_hook)
{
    withEveryDeed([this](const Deed& deed) { hooks.exit = deed; },
                  [](CPtrnDisp* wnd) {
                      if (wnd->PtrnType == KIND_APPLICATION)
                          PtrnDispTopWnd("top", nullptr, 0);
                      else
                          wnd->PtrnCloseWnd(0, nullptr, 0);
                  });
}

TEST_P(HookDeeds, of_the_display_hook_in_a_paint)
{
    withEveryDeed([this](const Deed& deed) { displays(0, deed); }, [](CPtrnDisp* wnd) { wnd->PaintEvent(); });
}

TEST_P(HookDeeds, of_the_display_hook_in_the_first_paint)
{
    withEveryDeed([this](const Deed& deed) { displays(0, deed); },
                  // Only the framework can take a window from the toolkit while it lays it out.
                  [](CPtrnDisp*) {}, true, "destroy");
}

TEST_P(HookDeeds, of_the_display_hook_in_a_tick)
{
    withEveryDeed([this](const Deed& deed) { displays(1, deed); }, [this](CPtrnDisp*) { tick(); });
}

TEST_P(HookDeeds, of_the_timer_hook)
{
    withEveryDeed([this](const Deed& deed) { hooks.timr = deed; }, [this](CPtrnDisp*) { tick(); });
}

TEST_P(HookDeeds, of_the_message_hook_after_a_click)
{
    withEveryDeed([this](const Deed& deed) { hooks.mesg = [deed](CPtrnDisp& wnd, int) { deed(wnd); }; },
                  [this](CPtrnDisp* wnd) { click(wnd, 20, 20); });
}

TEST_P(HookDeeds, of_the_message_hook_while_a_control_repeats)
{
    Deed repeated;
    withEveryDeed([&](const Deed& deed) { repeated = deed; },
                  [&](CPtrnDisp* wnd) {
                      press(wnd, 15, 105); // sends the first message
                      hooks.mesg = [&](CPtrnDisp& self, int) { repeated(self); };
                      tick(7);
                  });
}

TEST_P(HookDeeds, of_the_message_hook_during_a_thumb_drag)
{
    withEveryDeed([this](const Deed& deed) { hooks.mesg = [deed](CPtrnDisp& wnd, int) { deed(wnd); }; },
                  [this](CPtrnDisp* wnd) {
                      press(wnd, 130, 50);
                      moveTo(wnd, 160, 50);
                      user.move(wnd->WindRect.left + 190, wnd->WindRect.top + 50);
                      user.settle();
                  });
}

TEST_P(HookDeeds, of_the_right_button_hook)
{
    withEveryDeed([this](const Deed& deed) { hooks.rbtn = [deed](CPtrnDisp& wnd, int) { deed(wnd); }; },
                  [this](CPtrnDisp* wnd) { click(wnd, 20, 20, 3); });
}

TEST_P(HookDeeds, of_the_mouse_hook)
{
    for (const int answer : {0, 1}) {
        for (const int button : {0, 1, 2}) {
            withEveryDeed(
                [&](const Deed& deed) {
                    hooks.mouse = [deed, answer, button](CPtrnDisp& wnd, POINT, int which, int) {
                        if (which == button)
                            deed(wnd);
                        return answer;
                    };
                },
                [&](CPtrnDisp* wnd) {
                    user.move(wnd->WindRect.left + 20, wnd->WindRect.top + 20);
                    user.settle();
                    if (button)
                        user.click(button == 1 ? 1 : 3);
                    user.settle();
                    user.move(5, 900);
                });
        }
    }
}

TEST_P(HookDeeds, of_the_key_start_hook)
{
    for (const int answer : {0, 1}) {
        withEveryDeed(
            [&](const Deed& deed) {
                hooks.keyStart = [deed, answer](CPtrnDisp& wnd, PTRNDATA*) {
                    deed(wnd);
                    return answer;
                };
            },
            [this](CPtrnDisp* wnd) { click(wnd, 15, 55); });
    }
}

TEST_P(HookDeeds, of_the_key_end_hook)
{
    withEveryDeed(
        [this](const Deed& deed) {
            hooks.keyFunc = [deed](CPtrnDisp& wnd, int, int, PTRNDATA* item) {
                deed(wnd);
                EXPECT_EQ(int{item->Type}, PTRN_NUMR);
            };
        },
        [this](CPtrnDisp* wnd) {
            click(wnd, 15, 55);
            key(XK_Return);
        });
}
