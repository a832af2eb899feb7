#include "pattern/items/ItemDraw.h"

#include "draw/DrawCntl.h"
#include "draw/HitTest.h"

namespace tessary
{

void EraseRect(CDraw* draw, const PTRNDATA* item)
{
    draw->DrawRect(item->Rect, 0, 0, item->Parm[PARM_CLEAR], item->Parm[PARM_CLEAR]);
}

void CheckBound(const ItemDraft& draft, const ItemRemark& remark)
{
    if (!draft.bound)
        remark("has no cell whose value it could show. Name one with 'data'.");
}

int HitRect(POINT point, const PTRNDATA* item)
{
    return TestRect(point, item->Rect);
}

} // namespace tessary
