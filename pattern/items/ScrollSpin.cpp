// Scroll bar and spin button. Neither has a look of its own for a state.
#include "draw/DrawCntl.h"
#include "draw/Images.h"
#include "pattern/items/ItemDraw.h"

void CPtrnData::DispPtrnData14(CDraw* draw, PTRNDATA* item, int)
{
    DispScrollBar(draw, item);
}

void CPtrnData::DispPtrnData15(CDraw* draw, PTRNDATA* item)
{
    draw->DrawXpm(item->Rect, XPM_SpinButn);
}
