// An operator without sense: hundreds of random events, and after each of them everything must hold together.
//
// TESSARY_SEED=<number> walks one walk, TESSARY_STEPS=<number> its length. A failure tells the seed and the
// last steps.
#include "tests/support/Screen.h"
#include "tests/support/Wishes.h"

#include "comndata/ComnData.h"
#include "window/KeyText.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <algorithm>
#include <deque>
#include <random>
#include <X11/keysym.h>

using namespace tessary;

namespace
{

constexpr int CELLS = 40;   ///< of the code "D", from 100 on
constexpr int FIELD_NO = 0; ///< offsets of the items that the rules speak of
constexpr int BAR_NO = 10;
constexpr int SPIN_NO = 20;
constexpr int VISIBLE = 10;
constexpr int TOTAL = 40;
constexpr int SPIN_MAXIMUM = 7;

const char* const NAMES[] = {"one", "two", "three", "no such screen"};

/// A bit of everything: fields of all kinds, bars, spin buttons, controls and every action.
Pattern busy(const std::string& name, int number)
{
    Pattern pattern(name);
    pattern.size(360, 260)
        .header(HEDR_KIND, number == 1 ? 2 : 1)
        .header(HEDR_REMEMBER, number == 2)
        .header(HEDR_LEFT, 150 * number)
        .header(HEDR_TOP, 100 * number)
        .header(HEDR_TITLE_HEIGHT, 20)
        .header(HEDR_HARDCOPY, 1)
        .header(HEDR_CLOCK, 3)
        .header(HEDR_MODELESS, number == 1)
        .header(HEDR_CURSOR, number);
    for (int i = 0; i < 6; i++) {
        pattern.item(i % 2 ? PTRN_CHAR : PTRN_NUMR, 10, 30 + 25 * i, 70, 46 + 25 * i)
            .parm(FIELD_WIDTH, 3 + i)
            .parm(FIELD_DECIMALS, i == 2 ? 1 : 0)
            .parm(FIELD_HEX, i == 4)
            .parm(FIELD_KEYENTRY, 1)
            .parm(FIELD_NAVIGATION, 5 * i)
            .parm(TEXT_BACKED, i < 3)
            .code("D", FIELD_NO + i)
            .action(1);
    }
    for (int i = 0; i < 2; i++)
        pattern.item(PTRN_SBAR, i ? 100 : 330, i ? 200 : 30, i ? 320 : 346, i ? 216 : 190)
            .parm(SBAR_VERTICAL, !i)
            .parm(SBAR_PAGES, i)
            .parm(SBAR_VISIBLE, VISIBLE)
            .parm(SBAR_TOTAL, TOTAL)
            .code("D", BAR_NO + i)
            .action(1);
    pattern.item(PTRN_SPIN, 90, 30, 106, 62).parm(SPIN_MAXIMUM, SPIN_MAXIMUM).code("D", SPIN_NO).action(1);
    pattern.item(PTRN_CHCK, 90, 80, 150, 96).text("check").code("D", 21).action(1);
    pattern.item(PTRN_RDIO, 90, 100, 150, 116).text("radio").code("D", 22).action(1);
    pattern.item(PTRN_RECT, 90, 120, 150, 140).parm(SHAPE_FILLED, 1).code("D", 23).action(1);
    for (int action = 1; action <= 15; action++)
        pattern
            .item(PTRN_BUTN, 160 + (action - 1) % 5 * 32, 30 + (action - 1) / 5 * 30,
                  188 + (action - 1) % 5 * 32, 55 + (action - 1) / 5 * 30)
            .code("D", 24 + action % 4)
            .action(action, NAMES[action % 4]);
    return pattern;
}

class RandomWalk : public Screen, public testing::WithParamInterface<unsigned>
{
  protected:
    void SetUp() override
    {
        random.seed(GetParam());
        std::printf("%s\n", seedText(GetParam()).c_str()); // should the walk end in a crash
        project.code("SYSTEM", 99).code("D", CELLS);
        for (int i = 0; i < 3; i++)
            know(busy(NAMES[i], i));
        for (const char* name : {"バージョン情報", "メンテナンス"})
            busy(name, 1).save(project);
        project.set("PTRN", "PTRNSTOP", "two");
        start();
        armHooks();
        openTop("one");
    }

    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    bool rarely() { return below(25) == 0; }

    /// Screen classes that now and then do something drastic in the middle of anything.
    void armHooks()
    {
        const auto drastic = [this](CPtrnDisp& wnd) {
            if (!rarely() || depth > 2)
                return;
            ++depth;
            deed(wnd);
            --depth;
        };
        hooks.timr = drastic;
        hooks.mesg = [drastic](CPtrnDisp& wnd, int) { drastic(wnd); };
        hooks.rbtn = [drastic](CPtrnDisp& wnd, int) { drastic(wnd); };
        hooks.disp = [drastic](CPtrnDisp& wnd, CDraw* draw, int mode) {
            if (mode == 1)
                drastic(wnd);
            draw->DrawRect(300, 230, 340, 250, 1, 0, 1, 2);
        };
        hooks.mouse = [this, drastic](CPtrnDisp& wnd, POINT, int, int) {
            drastic(wnd);
            return rarely() ? 1 : 0;
        };
        hooks.keyStart = [this, drastic](CPtrnDisp& wnd, PTRNDATA*) {
            drastic(wnd);
            return rarely() ? 0 : 1;
        };
        hooks.keyFunc = [this, drastic](CPtrnDisp& wnd, int, int, PTRNDATA* item) {
            if (below(3) == 0)
                wnd.KeyInputStart(item->DataNo + 1, nullptr, 0);
            drastic(wnd);
        };
        hooks.exit = drastic;
        hooks.init = drastic;
    }

    void deed(CPtrnDisp& wnd)
    {
        const char* const name = NAMES[below(4)];
        switch (below(10)) {
        case 0:
            wnd.PtrnCloseWnd(below(4), nullptr, 0);
            break;
        case 1:
            wnd.PtrnDispChild(below(3), name, nullptr, 0);
            break;
        case 2:
            wnd.PtrnDispChild(1, name, SetRect(below(900), below(700), below(900), below(700)), nullptr, 0);
            break;
        case 3:
            wnd.PtrnDispPopup(2, name, POINT{below(1280), below(1024)}, nullptr, 0);
            break;
        case 4:
            PtrnDispTopWnd(name, nullptr, 0);
            break;
        case 5:
            PtrnDispSysWnd(name, nullptr, 0);
            break;
        case 6:
            wnd.PtrnSetOffset(below(4), below(300) - 100, below(200) - 100, nullptr, 0);
            break;
        case 7:
            wnd.PtrnSetScroll(100 + BAR_NO, TOTAL, below(60) - 10, nullptr, 0);
            break;
        case 8:
            wnd.KeyInputStart(100 + below(8), nullptr, 0);
            break;
        default:
            wnd.PtrnSendMessage(below(4), below(140), nullptr, 0);
            break;
        }
    }

    std::vector<CPtrnDisp*> openWindows() const
    {
        std::vector<CPtrnDisp*> open;
        for (RecordingWnd* wnd : RecordingWnd::alive)
            if (wnd->Widget)
                open.push_back(wnd);
        return open;
    }

    /// Points at an item of some window, or at anything.
    void point()
    {
        const auto open = openWindows();
        if (open.empty())
            return;
        const CPtrnDisp& wnd = *open[static_cast<std::size_t>(below(static_cast<int>(open.size())))];
        POINT pt = {below(360), below(260)};
        if (below(4) != 0 && wnd.PtrnData->PtrnCont > 0) {
            const PTRNDATA& item = wnd.PtrnData->PtrnData[below(wnd.PtrnData->PtrnCont)];
            pt = {item.Parm[PARM_X1] + 2 + below(14), item.Parm[PARM_Y1] + 2 + below(12)};
        }
        at = {std::clamp(wnd.WindRect.left + pt.x - wnd.Offset.x, 0, 1279),
              std::clamp(wnd.WindRect.top + pt.y - wnd.Offset.y, 0, 1023)};
        user.move(at.x, at.y);
        user.settle();
    }

    /// A field of the application window, so that keys have something to do.
    void pressField()
    {
        if (AppliWnd->MouseEnable() != 1)
            PtrnDispTopWnd("two", nullptr, 0);
        const int field = below(6);
        AppliWnd->PtrnSetOffset(0, 0, 0, nullptr, 0);
        user.move(std::clamp(AppliWnd->WindRect.left + 15, 0, 1279),
                  std::clamp(AppliWnd->WindRect.top + 35 + 25 * field, 0, 1023));
        user.settle();
        user.click();
        user.settle();
        type();
    }

    void type()
    {
        static const unsigned long SYMBOLS[] = {
            XK_Return, XK_Escape, XK_Tab,  XK_Left,   XK_Right,    XK_Up,        XK_Down,  XK_BackSpace,
            XK_Delete, XK_1,      XK_9,    XK_a,      XK_F,        XK_period,    XK_minus, XK_space,
            XK_F1,     XK_Home,   XK_KP_5, XK_KP_Add, XK_KP_Enter, XK_KP_Decimal};
        for (int i = below(8); i >= 0; i--)
            user.key(SYMBOLS[below(static_cast<int>(std::size(SYMBOLS)))]);
        user.settle();
    }

    void step()
    {
        const int what = below(24);
        note(what);
        if (what < 7) {
            point();
            const unsigned buttons[] = {1, 1, 1, 1, 3, 4, 5, 2};
            user.click(buttons[below(8)]);
        } else if (what < 12) {
            type();
        } else if (what < 14) {
            tick(1 + below(4));
        } else if (what == 14) { // hold and drag
            point();
            user.press();
            user.settle();
            for (int i = 0; i < 4; i++) {
                at = {std::clamp(at.x + below(30) - 15, 0, 1279), std::clamp(at.y + below(30) - 15, 0, 1023)};
                user.move(at.x, at.y);
                tick(below(3));
            }
            user.release();
        } else if (what == 15 || what >= 22) {
            const auto open = openWindows();
            if (!open.empty())
                deed(*open[static_cast<std::size_t>(below(static_cast<int>(open.size())))]);
        } else if (what == 16) {
            Set_wData(100 + below(CELLS), static_cast<WORD>((below(8) << 13 | below(4)) & 0xE003), nullptr,
                      0);
        } else if (what == 17) {
            Set_sData(100 + below(CELLS), std::string(static_cast<std::size_t>(below(300)), 'x').c_str(),
                      nullptr, 0);
        } else if (what == 18) {
            if (rarely())
                ReqSystemStop(nullptr, 0);
        } else if (what == 19) {
            PtrnDispSysWnd("", nullptr, 0);
        } else {
            pressField();
        }
        user.settle();
        WaitTimer = 0; // there is no main loop that could end
    }

    void note(int what)
    {
        steps.push_back(what);
        if (steps.size() > 12)
            steps.pop_front();
    }

    std::string story(int number) const
    {
        std::string text = seedText(GetParam()) + ", step " + std::to_string(number) + ", the last steps:";
        for (const int what : steps)
            text += " " + std::to_string(what);
        return text;
    }

    // --- what must hold --------------------------------------------------------------------------

    void check()
    {
        ASSERT_TRUE(AppliWnd);
        EXPECT_TRUE(AppliWnd->Widget);
        EXPECT_EQ(AppliWnd->PtrnType, KIND_APPLICATION);
        EXPECT_EQ(AppliWnd->ParentWnd, nullptr);
        EXPECT_EQ(SystemWnd, SystmWnd ? 1 : 0);
        if (SystmWnd) {
            EXPECT_EQ(SystmWnd->PtrnType, KIND_SYSTEM);
        }
        for (CPtrnDisp* wnd : {AppliWnd, SystmWnd})
            if (wnd)
                checkChildren(*wnd);
        std::set<int> edited;
        for (const RecordingWnd* wnd : RecordingWnd::alive)
            checkWindow(*wnd, edited);
        if (SystmWnd)
            checkWindow(*SystmWnd, edited);
        checkCells(edited);
    }

    void checkChildren(const CPtrnDisp& wnd)
    {
        for (const auto& [child, kind] : {std::pair{wnd.ChildWnd1, 1}, {wnd.ChildWnd2, 2}}) {
            if (!child)
                continue;
            EXPECT_EQ(child->PtrnType, kind);
            EXPECT_EQ(child->ParentWnd, &wnd);
            checkChildren(*child);
        }
    }

    static void checkWindow(const CPtrnDisp& wnd, std::set<int>& edited)
    {
        ASSERT_TRUE(wnd.PtrnData);
        EXPECT_EQ(wnd.Widget == nullptr, wnd.DrawArea == nullptr);
        EXPECT_TRUE(wnd.Widget || !wnd.Pixmap);
        EXPECT_TRUE(wnd.MoveWnd == 0 || wnd.MoveWnd == 1);
        EXPECT_TRUE(wnd.ScrollBar == 0 || wnd.ScrollBar == 1);
        EXPECT_TRUE(wnd.KeyInputMode == 0 || wnd.KeyInputMode == 1);
        EXPECT_GE(wnd.KeyInputPost, 0);
        EXPECT_LT(wnd.KeyInputPost, KEYTEXT_SIZE);
        EXPECT_LT(strnlen(wnd.KeyInputText, KEYTEXT_SIZE), std::size_t{KEYTEXT_SIZE});
        EXPECT_EQ(wnd.WindRect.right - wnd.WindRect.left, wnd.WindRect.width);
        EXPECT_EQ(wnd.WindRect.bottom - wnd.WindRect.top, wnd.WindRect.height);
        if (wnd.KeyInputMode != 1)
            return;
        EXPECT_TRUE(wnd.Widget) << "a window that has gone can not edit";
        edited.insert(int{wnd.KeyInputPtrn.DataNo});
    }

    static void checkCells(const std::set<int>& edited)
    {
        for (int no = 100; no < 100 + CELLS; no++) {
            const int word = Get_wData(no, nullptr, 0);
            // Several windows may edit one field: the first that ends takes the mark away.
            EXPECT_TRUE(!(word & STATE_FROZEN) || edited.count(no)) << no << " is frozen for ever";
        }
        for (int no = 100 + BAR_NO; no < 100 + BAR_NO + 2; no++) {
            EXPECT_GE(Get_iData(no, nullptr, 0), 0);
            EXPECT_LE(Get_iData(no, nullptr, 0), TOTAL - VISIBLE);
        }
    }

    /// Every open window object has its window on the screen, and nothing else is there.
    void checkScreen()
    {
        tick();
        user.settle();
        std::size_t open = openWindows().size();
        if (SystmWnd && SystmWnd->Widget && !dynamic_cast<RecordingWnd*>(SystmWnd))
            open++;
        EXPECT_EQ(user.windows().size(), open);
    }

    /// What has gone is deleted, but for the newest and for those above windows that are still there.
    void checkDeleted()
    {
        hooks = {};
        PtrnDispSysWnd("", nullptr, 0);
        PtrnDispTopWnd("two", nullptr, 0);
        for (int i = 0; i < 20; i++) {
            AppliWnd->PtrnDispChild(1, "one", nullptr, 0);
            AppliWnd->PtrnCloseWnd(1, nullptr, 0);
        }
        checkScreen();
        const std::size_t forgotten = openWindows().size() - 1; // children of replaced windows
        EXPECT_LE(RecordingWnd::alive.size(), 16 + 1 + 5 * forgotten);
    }

    std::mt19937 random;
    std::deque<int> steps;
    POINT at{};
    int depth = 0;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::ValuesIn(seeds(3)));

TEST_P(RandomWalk, breaks_nothing)
{
    const int length = stepCount(1200);
    for (int i = 0; i < length; i++) {
        step();
        SCOPED_TRACE(story(i));
        check();
        if (i % 25 == 24)
            checkScreen();
        if (HasFailure())
            return;
    }
    SCOPED_TRACE(story(length));
    checkDeleted();
}
