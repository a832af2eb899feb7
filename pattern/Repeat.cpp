// Auto-repeat of a held scroll bar or spin button.
#include "draw/HitTest.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

using namespace tessary;

int CPtrnData::ReptPtrnData(PTRNDATA* item)
{
    if (RepeatFlag == REPEAT_WAITING) {
        if (++RepeatTimr >= REPEATTIMER1) {
            RepeatFlag = REPEAT_STEPPING;
            RepeatTimr = 0;
        }
        return 0;
    }
    if (RepeatFlag != REPEAT_STEPPING || ++RepeatTimr < REPEATTIMER2)
        return 0;

    RepeatTimr = 0;
    const tessary::ItemClass* type = tessary::FindItemClass(RepeatPtrn.Type);
    if (!type || !type->step || !type->step(&RepeatPtrn, RepeatMode))
        return 0;
    *item = RepeatPtrn;
    return 1;
}

void CPtrnData::LButtonUp()
{
    RepeatFlag = REPEAT_IDLE;
}

void CPtrnData::MouseMove(POINT point)
{
    if (RepeatFlag == REPEAT_IDLE)
        return;
    const tessary::ItemClass* type = tessary::FindItemClass(RepeatPtrn.Type);
    if (!type || !type->part)
        return;
    if (!PointInRect(point, RepeatPtrn.Rect) || type->part(*this, point, &RepeatPtrn) != RepeatMode)
        RepeatFlag = REPEAT_IDLE;
}
