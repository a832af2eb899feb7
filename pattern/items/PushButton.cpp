// Push button.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

void CPtrnData::DispPtrnData09(CDraw* draw, PTRNDATA* item)
{
    if (IsDisabled(item)) {
        ClerPtrnData01(draw, item);
        return;
    }
    const int caption = item->Parm[IsLocked(item) ? BUTN_CAPTION_LOCKED : BUTN_CAPTION];
    const int post = item->Parm[BUTN_POST_ON] ? item->Parm[BUTN_POST] : -1;
    draw->DrawButn(item->Rect, item->Parm[BUTN_WIDTH], item->Parm[BUTN_LIGHT], item->Parm[BUTN_DARK],
                   item->Parm[BUTN_FACE], caption, post, item->Parm[BUTN_FONT], item->Text);
}
