// What the pointer does in a pattern window. Every handler turns window coordinates into pattern coordinates
// before anything else.
#include "base/Coord.h"
#include "comndata/MesgData.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"

namespace
{

POINT Shifted(POINT pt, POINT offset)
{
    return {Shift(pt.x, offset.x), Shift(pt.y, offset.y)};
}

/// True for a modal child that is open.
bool Blocks(const CPtrnDisp* child)
{
    return child && child->Widget && child->PtrnData->PtrnHedr.Parm1[HEDR_MODELESS] == 0;
}

} // namespace

int CPtrnDisp::MouseEnable()
{
    if (PtrnType == KIND_SYSTEM)
        return 1;
    if (SystemWnd == 1 || Blocks(ChildWnd1) || Blocks(ChildWnd2))
        return 0;
    return 1;
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

void CPtrnDisp::LButtonDown(POINT pt, int flags)
{
    pt = Shifted(pt, Offset);
    ClearErrorMesg();
    ReqKeyReset();
    if (PtrnData->TestTitle(pt, 0) == 0 && PtrnMouseFunc(pt, 1, flags) == 1)
        return;
    if (Closed) // the hook has closed this window
        return;

    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0) {
        switch (PtrnData->TestTitle(pt, 1)) {
        case 1:
            PtrnDispVersnWnd();
            break;
        case 2:
            ReqHardCopy(nullptr, 0);
            break;
        case 3:
            MoveWindow1(pt);
            break;
        default:
            break;
        }
        return;
    }

    PTRNDATA item = PtrnData->PtrnData[index];
    if (MouseEnable() == 1) {
        switch (PtrnData->LButtonDown(pt, &item)) {
        case 1:
            ExecMessage(&item);
            break;
        case 2:
            KeyInputStart(&item);
            break;
        case 3:
            MoveScrollBar1(&item);
            break;
        default:
            break;
        }
    }
    // Enabled or not: these actions work even under a modal child. Where the item's own action has just been
    // carried out they run a second time; the window is then opened, exited and opened afresh.
    SystemAction(item);
}

void CPtrnDisp::RButtonDown(POINT pt, int flags)
{
    pt = Shifted(pt, Offset);
    ClearErrorMesg();
    ReqKeyReset();
    if (PtrnData->TestTitle(pt, 0) == 0 && PtrnMouseFunc(pt, 2, flags) == 1)
        return;
    if (Closed)
        return;

    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0) {
        if (PtrnData->TestTitle(pt, 2) == 1)
            PtrnDispMenteWnd();
        return;
    }

    const PTRNDATA item = PtrnData->PtrnData[index];
    switch (item.ID_Type) {
    case ACTION_OPEN_SYSTEM:
    case ACTION_VERSION:
    case ACTION_MAINTENANCE:
    case ACTION_HARDCOPY:
        SystemAction(item);
        break;
    default:
        if (MouseEnable() == 1)
            PtrnRbtnFunc(item.DataNo);
        break;
    }
}

void CPtrnDisp::LButtonUp(POINT, int)
{
    PtrnData->LButtonUp();
    if (MoveWnd == 1)
        MoveWindow3();
    else if (ScrollBar == 1)
        MoveScrollBar3();
}

void CPtrnDisp::RButtonUp(POINT, int) {}

void CPtrnDisp::MouseMove(POINT pt, int flags)
{
    pt = Shifted(pt, Offset);
    if (PtrnData->TestTitle(pt, 0) == 0 && PtrnMouseFunc(pt, 0, flags) == 1)
        return;
    if (Closed)
        return;
    PtrnData->MouseMove(pt);
    if (MoveWnd == 1)
        MoveWindow2(pt);
    else if (ScrollBar == 1)
        MoveScrollBar2(pt);
}

int CPtrnDisp::MouseWheel(POINT pt, int direction)
{
    pt = Shifted(pt, Offset);
    ClearErrorMesg();
    ReqKeyReset();
    if (MouseEnable() != 1)
        return 0;
    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0)
        return 0;

    PTRNDATA item = PtrnData->PtrnData[index];
    const tessary::ItemClass* type = tessary::FindItemClass(item.Type);
    if (!type || !type->wheel || type->wheel(*PtrnData, direction, &item) != 1)
        return 0;
    ExecMessage(&item);
    return 1;
}

void CPtrnDisp::MouseLeave()
{
    MoveWnd = 0;
    ScrollBar = 0;
}
