// Line, rectangle and circle. Each is erased by its own shape, so that what lies around it stays.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

namespace
{

void DrawLineItem(CDraw* draw, const PTRNDATA* item, int colr)
{
    draw->DrawLine(item->Rect, item->Parm[LINE_TYPE], item->Parm[LINE_WIDTH], item->Parm[LINE_FOMT], colr);
}

} // namespace

void CPtrnData::DispPtrnData02(CDraw* draw, PTRNDATA* item)
{
    DrawLineItem(draw, item, Selected(item, LINE_COLOR4));
}

void CPtrnData::ClerPtrnData02(CDraw* draw, PTRNDATA* item)
{
    DrawLineItem(draw, item, item->Parm[PARM_CLEAR]);
}

void CPtrnData::DispPtrnData03(CDraw* draw, PTRNDATA* item)
{
    draw->DrawRect(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT],
                   Selected(item, SHAPE_OUTLINE4), SelectedBackground(item, SHAPE_FILL4, SHAPE_FILLED));
}

void CPtrnData::ClerPtrnData03(CDraw* draw, PTRNDATA* item)
{
    draw->DrawRect(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT], item->Parm[PARM_CLEAR],
                   item->Parm[PARM_CLEAR]);
}

void CPtrnData::DispPtrnData04(CDraw* draw, PTRNDATA* item)
{
    draw->DrawCrcl(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT],
                   Selected(item, SHAPE_OUTLINE4), SelectedBackground(item, SHAPE_FILL4, SHAPE_FILLED));
}

void CPtrnData::ClerPtrnData04(CDraw* draw, PTRNDATA* item)
{
    draw->DrawCrcl(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT], item->Parm[PARM_CLEAR],
                   item->Parm[PARM_CLEAR]);
}
