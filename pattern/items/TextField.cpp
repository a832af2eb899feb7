// Fixed text, variable text and numeric field.
#include "base/Coord.h"
#include "base/EucText.h"
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

#include <algorithm>
#include <cstring>

namespace
{

int TextBackground(const PTRNDATA* item)
{
    return SelectedBackground(item, TEXT_BACK4, TEXT_BACKED);
}

void DrawItemText(CDraw* draw, const PTRNDATA* item, int colr, int back)
{
    draw->DrawText(item->Parm[PARM_X1], item->Parm[PARM_Y1], item->Parm[TEXT_FONT], colr, back, item->Text);
}

/// Draws the text, or blanks it when the item is disabled. Without a background nothing can be blanked and
/// the old picture stays.
void DrawTextItem(CDraw* draw, const PTRNDATA* item)
{
    const int back = TextBackground(item);
    if (!IsDisabled(item))
        DrawItemText(draw, item, Selected(item, TEXT_COLOR4), back);
    else if (back != -1)
        draw->ClearText(item->Parm[PARM_X1], item->Parm[PARM_Y1], item->Parm[TEXT_FONT], back, item->Text);
}

/// Draws a field whose text changes: the whole field is painted first, so that a shorter text leaves nothing
/// of a longer one before it.
void DrawFieldItem(CDraw* draw, const PTRNDATA* item)
{
    const int back = TextBackground(item);
    if (!IsDisabled(item) && back != -1) {
        const SIZE cell = FontCell(item->Parm[TEXT_FONT]);
        const std::int64_t width = std::int64_t{cell.cx} * std::max(0, item->Parm[FIELD_WIDTH]);
        const int x = item->Parm[PARM_X1];
        const int y = item->Parm[PARM_Y1];
        draw->DrawRect(x, y, Saturate(x + width), Shift(y, cell.cy), 0, 0, back, back);
    }
    DrawTextItem(draw, item);
}

/// Bytes of `text` that a field of `limit` bytes shows. Only the two bytes at the cut are looked at: when
/// both may belong to two-byte characters, one byte less is shown.
std::size_t FieldCut(const char* text, std::size_t limit)
{
    const std::size_t length = std::strlen(text);
    if (length <= limit)
        return length;
    const auto half = [text](std::size_t at) { return IsEucHalf(static_cast<unsigned char>(text[at])); };
    return limit > 0 && half(limit - 1) && half(limit) ? limit - 1 : limit;
}

} // namespace

void CPtrnData::DispPtrnData06(CDraw* draw, PTRNDATA* item, int)
{
    DrawTextItem(draw, item);
}

void CPtrnData::DispPtrnData07(CDraw* draw, PTRNDATA* item, int)
{
    const int limit = std::clamp(item->Parm[FIELD_WIDTH], 0, SIZE_PTRNTEXT);
    CopyText(item->Text, FieldCut(item->sData, static_cast<std::size_t>(limit)) + 1, item->sData);
    DrawFieldItem(draw, item);
}

void CPtrnData::DispPtrnData08(CDraw* draw, PTRNDATA* item, int)
{
    CopyText(item->Text, ConvertNumrData(item));
    DrawFieldItem(draw, item);
}

void CPtrnData::ClerPtrnData06(CDraw* draw, PTRNDATA* item)
{
    DrawItemText(draw, item, item->Parm[PARM_CLEAR], item->Parm[PARM_CLEAR]);
}

// Blinks on the background colour even when the item is otherwise drawn without background, and with the text
// drawn last, not a fresh one.
void CPtrnData::FlikPtrnData06(CDraw* draw, PTRNDATA* item, int phase)
{
    const int back = Selected(item, TEXT_BACK4);
    DrawItemText(draw, item, phase ? Selected(item, TEXT_COLOR4) : back, back);
}
