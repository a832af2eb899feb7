// Radio button and check box: a square mark as high as the font's line, and a text right of it.
#include "base/Coord.h"
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

#include <cmath>

namespace
{

constexpr int MARK_RADIO_OFF = CONT_MARK;
constexpr int MARK_RADIO_ON = CONT_MARK + 1;
constexpr int MARK_CHECK_OFF = CONT_MARK + 2;
constexpr int MARK_CHECK_ON = CONT_MARK + 3;

RECT MarkArea(const PTRNDATA* item)
{
    const int h = FontCell(item->Parm[CHECK_FONT]).cy;
    const int x = item->Parm[PARM_X1];
    const int y = item->Parm[PARM_Y1];
    return SetRect(x, y, Shift(x, h), Shift(y, h));
}

POINT TextPosition(const PTRNDATA* item)
{
    const std::int64_t h = FontCell(item->Parm[CHECK_FONT]).cy;
    return {Saturate(item->Parm[PARM_X1] + 3 * h / 2), item->Parm[PARM_Y1]};
}

void DrawCheckItem(CDraw* draw, const PTRNDATA* item, int mark)
{
    const bool locked = IsLocked(item);
    const int colr = item->Parm[locked ? CHECK_COLOR_LOCKED : CHECK_COLOR];
    const int back = item->Parm[CHECK_BACKED] ? item->Parm[locked ? CHECK_BACK_LOCKED : CHECK_BACK] : -1;
    draw->DrawMark(MarkArea(item), colr, back, mark);
    draw->DrawText(TextPosition(item), item->Parm[CHECK_FONT], colr, back, item->Text);
}

} // namespace

void CPtrnData::DispPtrnData10(CDraw* draw, PTRNDATA* item, int)
{
    if (IsDisabled(item)) {
        ClerPtrnData10(draw, item);
        return;
    }
    const bool on = std::trunc(static_cast<double>(item->fData)) == item->Parm[RDIO_VALUE];
    DrawCheckItem(draw, item, on ? MARK_RADIO_ON : MARK_RADIO_OFF);
}

void CPtrnData::DispPtrnData11(CDraw* draw, PTRNDATA* item, int)
{
    if (IsDisabled(item)) {
        ClerPtrnData10(draw, item);
        return;
    }
    DrawCheckItem(draw, item, item->fData == 0.0f ? MARK_CHECK_OFF : MARK_CHECK_ON);
}

void CPtrnData::ClerPtrnData10(CDraw* draw, PTRNDATA* item)
{
    const int clear = item->Parm[PARM_CLEAR];
    draw->DrawRect(MarkArea(item), 0, 0, clear, clear);
    draw->ClearText(TextPosition(item), item->Parm[CHECK_FONT], clear, item->Text);
}
