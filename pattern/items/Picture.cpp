// Bitmap and mark.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

void CPtrnData::DispPtrnData12(CDraw* draw, PTRNDATA* item)
{
    draw->DrawBmap(item->Rect, item->Parm[BMAP_KEYED] ? item->Parm[BMAP_KEY_COLOR] : -1, item->Text);
}

void CPtrnData::DispPtrnData13(CDraw* draw, PTRNDATA* item, int updt)
{
    const int back = SelectedBackground(item, MARK_BACK4, MARK_BACKED);
    if (IsDisabled(item)) {
        if (back != -1)
            draw->DrawRect(item->Rect, 0, 0, back, back);
        return;
    }
    if (updt) {
        const int clear = item->Parm[PARM_CLEAR];
        draw->DrawMark(item->Rect, clear, item->Parm[MARK_BACKED] ? clear : -1, item->Parm[MARK_LAST]);
    }
    const int mark = Selected(item, MARK_NUMBER4);
    draw->DrawMark(item->Rect, Selected(item, MARK_COLOR4), back, mark);

    // Stored at once and by every kind of display, so that the next update wipes this mark.
    item->Parm[MARK_LAST] = mark;
    WritePtrnData(item);
}

void CPtrnData::FlikPtrnData13(CDraw* draw, PTRNDATA* item, int phase)
{
    const bool backed = item->Parm[MARK_BACKED] != 0;
    const int back = backed ? Selected(item, MARK_BACK4) : -1;
    const int blank = backed ? back : item->Parm[PARM_CLEAR];
    draw->DrawMark(item->Rect, phase ? Selected(item, MARK_COLOR4) : blank, back,
                   Selected(item, MARK_NUMBER4));
}
