#include "pattern/items/ItemDraw.h"

#include "draw/DrawCntl.h"
#include "draw/HitTest.h"

namespace tessary
{

void EraseRect(CDraw* draw, const PTRNDATA* item)
{
    draw->DrawRect(item->Rect, 0, 0, item->Parm[PARM_CLEAR], item->Parm[PARM_CLEAR]);
}

int HitRect(POINT point, const PTRNDATA* item)
{
    return TestRect(point, item->Rect);
}

} // namespace tessary
