#include "shell/Unshown.h"

#include "base/EucText.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "dialogs/MessageBox.h"
#include "log/Guard.h"
#include "pattern/PtrnHedr.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"

#include <gtk/gtk.h>
#include <string>
#include <utility>

namespace tessary
{

namespace
{

constexpr int STATUS_UNSHOWN = 1;
constexpr int BOX_CONFIRM = 1;
constexpr int BOX_YES_NO = 2;
constexpr int ANSWER_YES = 1;

/// What the box is to tell; it is opened when the tick is over, so that ticks go on behind it.
struct Notice {
    std::string screen; ///< EUC-JP
    bool end;           ///< nothing is left to be shown
};
Notice notice;
bool pending; ///< from the tick that has found it until the box is closed

/// A program may have windows without a size on purpose; only those whose file can not be read are meant.
bool IsUnshown(const CPtrnDisp& wnd)
{
    PTRNHEDR header;
    return wnd.Widget && (wnd.WindRect.width < 1 || wnd.WindRect.height < 1) &&
           !ReadHedr(wnd.PtrnName, &header);
}

bool CanShow(const std::string& screen)
{
    PTRNHEDR header;
    return ReadHedr(screen.c_str(), &header) != 0;
}

std::string BoxText()
{
    const std::string& name = notice.screen;
    if (Language == 0)
        return "画面「" + name + "」を表示できません。" + "\nプロジェクトのファイルを確認してください。\n" +
               (notice.end ? "システムを終了します。" : "システムを終了しますか。");
    return "The screen '" + name +
           "' can not be shown.\nThe files of the project are missing or can not be read." +
           (notice.end ? "\nThe system ends." : "\nEnd the system?");
}

gboolean Ask(void*)
{
    const bool end = notice.end;
    const int answer = MessageBox(Language == 0 ? "画面異常" : "Screen", BoxText().c_str(), 1,
                                  end ? BOX_CONFIRM : BOX_YES_NO);
    pending = false;
    if (!Ended() && (end || answer == ANSWER_YES)) {
        Fail("The panel has been ended after a screen could not be shown.", STATUS_UNSHOWN);
        EndProgram();
    }
    return FALSE;
}

void Report(const CPtrnDisp& wnd, bool end)
{
    Tell("The screen '" + EucToUtf8(wnd.PtrnName) + "' can not be shown: its pattern in '" + ProjPath +
         "' is missing or can not be read. Look at the folder, or build the project again.");
    if (std::exchange(pending, true))
        return;
    notice = {wnd.PtrnName, end};
    g_idle_add(Guarded<Ask>::call, nullptr);
}

void CloseUnshownChildren(CPtrnDisp* wnd)
{
    if (!wnd)
        return;
    for (const int which : {KIND_CHILD1, KIND_CHILD2}) {
        CPtrnDisp* const child = which == KIND_CHILD1 ? wnd->ChildWnd1 : wnd->ChildWnd2;
        if (child && IsUnshown(*child)) {
            Report(*child, false);
            child->DestroyWidget();
            wnd->PtrnCloseWnd(which, nullptr, 0);
        } else if (child) {
            CloseUnshownChildren(child);
        }
    }
}

} // namespace

void CloseUnshown()
{
    if (pending || WaitTimer != 0) // the end is near
        return;
    if (SystmWnd && IsUnshown(*SystmWnd)) {
        Report(*SystmWnd, false);
        SystmWnd->DestroyWidget(); // its remembered place is that of the screen which could not be read
        PtrnDispSysWnd("", nullptr, 0);
    }
    CloseUnshownChildren(SystmWnd);
    CloseUnshownChildren(AppliWnd);
    if (AppliWnd && IsUnshown(*AppliWnd)) {
        const std::string start = ProfileReadAsc(ProfName, "PTRN", "PTRNSTART");
        const bool end = !CanShow(start);
        Report(*AppliWnd, end);
        if (!end)
            PtrnDispTopWnd(start.c_str(), nullptr, 0);
    }
}

} // namespace tessary
