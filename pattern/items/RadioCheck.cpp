// Radio button and check box: a square mark as high as the font's line, and a text right of it.
#include "base/Coord.h"
#include "comndata/ComnData.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "pattern/ItemCell.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Press.h"

#include <cmath>

namespace tessary
{

namespace
{

constexpr int MARK_RADIO_OFF = CONT_MARK;
constexpr int MARK_RADIO_ON = CONT_MARK + 1;
constexpr int MARK_CHECK_OFF = CONT_MARK + 2;
constexpr int MARK_CHECK_ON = CONT_MARK + 3;

// What radio buttons and check boxes share.
constexpr ParmSchema COLOR = parm("color", CHECK_COLOR).color().help("mark and caption");
constexpr ParmSchema COLOR_LOCKED =
    parm("color-locked", CHECK_COLOR_LOCKED).color().help("mark and caption while locked");
constexpr ParmSchema BACK =
    parm("back", CHECK_BACK).optionalColor().enabledBy(CHECK_BACKED).help("behind mark and caption, or none");
constexpr ParmSchema BACK_LOCKED = parm("back-locked", CHECK_BACK_LOCKED)
                                       .optionalColor()
                                       .enabledBy(CHECK_BACKED)
                                       .help("the same while locked");
constexpr ParmSchema BACKED =
    parm("backed", CHECK_BACKED).flag().help("whether the background is painted; set by back");
constexpr ParmSchema FONT =
    parm("font", CHECK_FONT).font().help("the caption's font; its height sizes the mark");

constexpr ParmSchema RADIO_PARMS[] = {
    COLOR,
    COLOR_LOCKED,
    BACK,
    BACK_LOCKED,
    BACKED,
    FONT,
    parm("value", RDIO_VALUE).number().help("the value that this button stands for"),
};

constexpr ParmSchema CHECK_PARMS[] = {COLOR, COLOR_LOCKED, BACK, BACK_LOCKED, BACKED, FONT};

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

void Erase(CDraw* draw, const PTRNDATA* item)
{
    const int clear = item->Parm[PARM_CLEAR];
    draw->DrawRect(MarkArea(item), 0, 0, clear, clear);
    draw->ClearText(TextPosition(item), item->Parm[CHECK_FONT], clear, item->Text);
}

void DrawWith(CDraw* draw, const PTRNDATA* item, int mark)
{
    if (IsDisabled(item)) {
        Erase(draw, item);
        return;
    }
    const bool locked = IsLocked(item);
    const int front = item->Parm[locked ? CHECK_COLOR_LOCKED : CHECK_COLOR];
    const int behind = item->Parm[CHECK_BACKED] ? item->Parm[locked ? CHECK_BACK_LOCKED : CHECK_BACK] : -1;
    draw->DrawMark(MarkArea(item), front, behind, mark);
    draw->DrawText(TextPosition(item), item->Parm[CHECK_FONT], front, behind, item->Text);
}

void DrawRadio(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    const bool on = std::trunc(ItemNumber(item)) == item->Parm[RDIO_VALUE];
    DrawWith(draw, item, on ? MARK_RADIO_ON : MARK_RADIO_OFF);
}

void DrawCheck(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    DrawWith(draw, item, ItemNumber(item) == 0.0 ? MARK_CHECK_OFF : MARK_CHECK_ON);
}

int Hit(POINT point, const PTRNDATA* item)
{
    const int height = FontCell(item->Parm[CHECK_FONT]).cy;
    const int left = item->Parm[PARM_X1];
    const int top = item->Parm[PARM_Y1];
    if (PointInRect(point, left, top, Shift(left, height), Shift(top, height)))
        return 1;
    const int label = Shift(left, Saturate(std::int64_t{3} * height / 2));
    return TestText(point, label, top, item->Parm[CHECK_FONT], item->Text);
}

void OperateRadio(const PTRNDATA& item)
{
    Set_iData(item.DataNo, item.Parm[RDIO_VALUE], nullptr, 0);
}

void OperateCheck(const PTRNDATA& item)
{
    Set_iData(item.DataNo, Get_iData(item.DataNo, nullptr, 0) ? 0 : 1, nullptr, 0);
}

SIZE DrawnSize(const ItemDraft& draft)
{
    const SIZE cell = draft.fontCell(draft.parm[CHECK_FONT]);
    return {Saturate(std::int64_t{3} * cell.cy / 2 + std::int64_t{cell.cx} * draft.longestText()), cell.cy};
}

std::optional<SIZE> NaturalSize(const ItemDraft& draft)
{
    return DrawnSize(draft);
}

constexpr ItemRow Choice(PtrnType type)
{
    return item(type)
        .shows(ItemText::Caption)
        .fontAt(CHECK_FONT)
        .erasedBy(Erase)
        .hitBy(Hit)
        .pressedBy(PressControl)
        .sizedBy(NaturalSize)
        .covers(DrawnSize)
        .checkedBy(CheckBound);
}

} // namespace

namespace items
{

extern constexpr ItemClass RADIO_BUTTON = Choice(PTRN_RDIO)
                                              .named("radio")
                                              .helped("one of several choices of a cell")
                                              .schema(RADIO_PARMS)
                                              .drawnBy(DrawRadio)
                                              .operatedBy(OperateRadio)
                                              .choiceAt(RDIO_VALUE);

extern constexpr ItemClass CHECK_BOX = Choice(PTRN_CHCK)
                                           .named("check")
                                           .helped("switches a cell between 0 and 1")
                                           .schema(CHECK_PARMS)
                                           .drawnBy(DrawCheck)
                                           .operatedBy(OperateCheck);

} // namespace items

} // namespace tessary
