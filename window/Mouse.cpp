// What the pointer does in a pattern window. Every handler turns window coordinates into pattern coordinates
// before anything else.
#include "base/Coord.h"
#include "comndata/MesgData.h"
#include "config/Edition.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/TitleBar.h"
#include "window/FieldEntry.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"
#include "window/WindowCodes.h"

using namespace tessary;

using namespace tessary;

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

bool CPtrnDisp::InTitle(POINT pt) const
{
    return PtrnData->TestTitle(pt, TITLE_ANY) != TITLE_NOTHING;
}

void CPtrnDisp::PressTitle(POINT pt)
{
    switch (PtrnData->TestTitle(pt, TITLE_LEFT)) {
    case TITLE_LOGO:
        PtrnDispVersnWnd();
        break;
    case TITLE_HARDCOPY:
        ReqHardCopy(nullptr, 0);
        break;
    case TITLE_DRAG:
        MoveWindow1(pt);
        break;
    default:
        break;
    }
}

/// What every press and the wheel do to an entry in progress. @return false when nothing else is to follow
bool CPtrnDisp::BeginPress(POINT pt)
{
    if (Has(Correction::PressStores)) {
        if (!EditedWnd())
            ClearErrorMesg();
        return StoreBeforePress(this, pt) && !Closed;
    }
    ClearErrorMesg();
    ReqKeyReset();
    return true;
}

void CPtrnDisp::LButtonDown(POINT pt, int flags)
{
    pt = Shifted(pt, Offset);
    if (!BeginPress(pt))
        return;
    if (!InTitle(pt) && PtrnMouseFunc(pt, MOUSE_LEFT, flags) == 1)
        return;
    if (Closed) // the hook has closed this window
        return;

    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0) {
        PressTitle(pt);
        return;
    }

    PTRNDATA item = PtrnData->PtrnData[index];
    if (MouseEnable() == 1) {
        switch (PtrnData->LButtonDown(pt, &item)) {
        case PRESS_ACTION:
            ExecMessage(&item);
            break;
        case PRESS_KEYENTRY:
            KeyInputStart(&item);
            break;
        case PRESS_DRAG:
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
    if (!BeginPress(pt))
        return;
    if (!InTitle(pt) && PtrnMouseFunc(pt, MOUSE_RIGHT, flags) == 1)
        return;
    if (Closed)
        return;

    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0) {
        if (PtrnData->TestTitle(pt, TITLE_RIGHT) == TITLE_LOGO)
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
    if (!InTitle(pt) && PtrnMouseFunc(pt, MOUSE_MOTION, flags) == 1)
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
    if (!BeginPress(pt) || MouseEnable() != 1)
        return 0;
    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0)
        return 0;

    PTRNDATA item = PtrnData->PtrnData[index];
    const ItemClass* type = FindItemClass(item.Type);
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
