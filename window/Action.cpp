// Action codes, messages and closing.
#include "comndata/PtrnCode.h"
#include "log/Category.h"
#include "log/Logfile.h"
#include "log/LogText.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"
#include "window/Retire.h"
#include "window/WindowCodes.h"

using namespace tessary;

using namespace tessary;

void CPtrnDisp::ExecMessage(PTRNDATA* item)
{
    switch (item->ID_Type) {
    case ACTION_MESSAGE_SELF:
    case ACTION_MESSAGE_CHILD1:
    case ACTION_MESSAGE_CHILD2:
    case ACTION_MESSAGE_PARENT:
        PtrnSendMessage(item->ID_Type - ACTION_MESSAGE_SELF, item->DataNo, nullptr, 0);
        break;
    case ACTION_OPEN_CHILD1:
        PtrnDispChild(1, item->ID_Name, nullptr, 0);
        break;
    case ACTION_OPEN_CHILD2:
        PtrnDispChild(2, item->ID_Name, nullptr, 0);
        break;
    case ACTION_OPEN_TOP:
        PtrnDispTopWnd(item->ID_Name, nullptr, 0);
        break;
    case ACTION_CLOSE_SELF:
    case ACTION_CLOSE_CHILD1:
    case ACTION_CLOSE_CHILD2:
    case ACTION_CLOSE_SYSTEM:
        PtrnCloseWnd(item->ID_Type - ACTION_CLOSE_SELF, nullptr, 0);
        break;
    case ACTION_STOP:
        ReqSystemStop(nullptr, 0);
        break;
    default:
        SystemAction(*item);
        break;
    }
}

void CPtrnDisp::SystemAction(const PTRNDATA& item)
{
    switch (item.ID_Type) {
    case ACTION_OPEN_SYSTEM:
        PtrnDispSysWnd(item.ID_Name, nullptr, 0);
        break;
    case ACTION_VERSION:
        PtrnDispVersnWnd();
        break;
    case ACTION_MAINTENANCE:
        PtrnDispMenteWnd();
        break;
    case ACTION_HARDCOPY:
        ReqHardCopy(nullptr, 0);
        break;
    default:
        break;
    }
}

void CPtrnDisp::PtrnCloseWnd(int which, const char* file, int line)
{
    switch (which) {
    case CLOSE_SELF:
        if (!ParentWnd)
            LogfileWrite(CATEGORY_WINDOW, "最上位ウィンドウを閉じることはできません。", file, line);
        else if (PtrnType == KIND_CHILD1 || PtrnType == KIND_CHILD2)
            ParentWnd->PtrnCloseWnd(PtrnType, file, line);
        else if (PtrnType == KIND_SYSTEM)
            PtrnDispSysWnd("", file, line);
        break;
    case CLOSE_CHILD1:
    case CLOSE_CHILD2:
        if (CPtrnDisp* child = Slot(which)) {
            child->PtrnExit();
            if (Slot(which) == child) // its exit hook may have opened another window here
                Slot(which) = nullptr;
            RetirePtrnWnd(child);
            if (file)
                LogfileWrite(CATEGORY_WINDOW,
                             which == CLOSE_CHILD1 ? "子ウィンドウ（１）を閉じる。"
                                                   : "子ウィンドウ（２）を閉じる。",
                             file, line);
        }
        break;
    case CLOSE_SYSTEM:
        PtrnDispSysWnd("", nullptr, 0);
        if (file)
            LogfileWrite(CATEGORY_WINDOW, "システムウィンドウを閉じる。", file, line);
        break;
    default:
        break;
    }
}

void CPtrnDisp::PtrnSendMessage(int target, int mesg, const char* file, int line)
{
    CPtrnDisp* receiver = nullptr;
    if (target == MESSAGE_SELF)
        receiver = this;
    else if (target == MESSAGE_CHILD)
        receiver = ChildWnd1 ? ChildWnd1 : ChildWnd2;
    else if (target == MESSAGE_PARENT)
        receiver = ParentWnd;
    if (receiver)
        receiver->PtrnMesgFunc(mesg);

    char name[SIZE_DTNONAME];
    if (file && ConvertDtno(mesg, name))
        LogText(CATEGORY_WINDOW, file, line, "メッセージ送信  [%d / %s]", target, name);
}
