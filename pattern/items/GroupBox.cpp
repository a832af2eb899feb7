// Group box: a bevelled panel behind other items. Its eraser serves every type that fills its rectangle.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

void CPtrnData::DispPtrnData01(CDraw* draw, PTRNDATA* item)
{
    draw->DrawGbox(item->Rect, item->Parm[GBOX_TOP_WIDTH], item->Parm[GBOX_BOTTOM_WIDTH],
                   item->Parm[GBOX_LEFT_WIDTH], item->Parm[GBOX_RIGHT_WIDTH], Selected(item, GBOX_TOP4),
                   Selected(item, GBOX_BOTTOM4), Selected(item, GBOX_LEFT4), Selected(item, GBOX_RIGHT4),
                   Selected(item, GBOX_FACE4));
}

void CPtrnData::ClerPtrnData01(CDraw* draw, PTRNDATA* item)
{
    draw->DrawRect(item->Rect, 0, 0, item->Parm[PARM_CLEAR], item->Parm[PARM_CLEAR]);
}
