#include "pattern/items/ScrollBar.h"

#include "base/Coord.h"
#include "comndata/ComnData.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "draw/Images.h"
#include "pattern/ItemCell.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Press.h"

#include <algorithm>
#include <X11/keysym.h>

namespace tessary
{

namespace
{

constexpr int MAX_ROWS = 1000000;

constexpr ParmChoice DIRECTION_NAMES[] = {{"horizontal", 0}, {"vertical", 1}};

constexpr ParmSchema PARMS[] = {
    parm("light", SBAR_LIGHT).color().help("upper and left edges"),
    parm("dark", SBAR_DARK).color().help("lower and right edges"),
    parm("face", SBAR_FRAME).color().help("the bar"),
    parm("thumb", SBAR_THUMB).color().help("the thumb"),
    parm("arrows", SBAR_ARROWS).flag().initial(1).help("whether there are buttons for lines"),
    parm("pages", SBAR_PAGES).flag().help("whether there are buttons for pages"),
    parm("direction", SBAR_VERTICAL).choice(DIRECTION_NAMES).help("which way it scrolls"),
    parm("edge", SBAR_WIDTH).thickness().initial(1).help("thickness of the edges"),
    parm("visible", SBAR_VISIBLE).count(0, MAX_ROWS).initial(10).help("entries that are visible at a time"),
    parm("total", SBAR_TOTAL)
        .count(0, MAX_ROWS)
        .initial(100)
        .help("entries in all; no bar while all are visible"),
    parm("line-step", SBAR_LINE_STEP)
        .count(0, MAX_ROWS)
        .initial(1)
        .help("step of arrow buttons, keys and wheel"),
    parm("page-step", SBAR_PAGE_STEP).count(0, MAX_ROWS).initial(10).help("step of page buttons and keys"),
    parm("trough-step", SBAR_TROUGH_STEP)
        .count(0, MAX_ROWS)
        .initial(10)
        .help("step of a click beside the thumb"),
    parm("current", SBAR_ROLE1).flag().help("whether a click makes it the current scroll bar"),
    parm("keys", SBAR_KEYS).flag().help("whether it takes the scroll keys"),
};

/// Entries that do not fit: the last position of the bar.
std::int64_t Range(const PTRNDATA& item)
{
    return std::int64_t{item.Parm[SBAR_TOTAL]} - item.Parm[SBAR_VISIBLE];
}

/// a x b / c, truncated. A damaged file may ask for anything, so that no step may overflow, and nothing is
/// divided by 0.
int Scale(std::int64_t a, std::int64_t b, std::int64_t c)
{
    return c ? Saturate(std::int64_t{Saturate(a)} * Saturate(b) / c) : 0;
}

/// A coordinate moved back, or the distance between two.
int Inset(int coordinate, int offset)
{
    return Saturate(std::int64_t{coordinate} - offset);
}

} // namespace

bool CanScroll(const PTRNDATA& item)
{
    return item.Parm[SBAR_VISIBLE] < item.Parm[SBAR_TOTAL];
}

int ScrollTo(const PTRNDATA* item, std::int64_t value)
{
    const int position = Saturate(std::min(std::max<std::int64_t>(value, 0), Range(*item)));
    if (position == ItemInteger(CellNumber(item->DataNo)))
        return 0;
    Set_iData(item->DataNo, position, nullptr, 0);
    return 1;
}

int ScrollBy(const PTRNDATA* item, std::int64_t distance)
{
    return ScrollTo(item, ItemInteger(CellNumber(item->DataNo)) + distance);
}

int StepScrollBar(const PTRNDATA* item, int part)
{
    const std::int64_t page = item->Parm[SBAR_PAGE_STEP];
    const std::int64_t line = item->Parm[SBAR_LINE_STEP];
    const std::int64_t trough = item->Parm[SBAR_TROUGH_STEP];
    const std::int64_t distances[] = {0, -page, page, -line, line, 0, -trough, trough};
    return ScrollBy(item, part >= SCROLL_NONE && part <= SCROLL_TROUGH2 ? distances[part] : 0);
}

namespace
{

void Draw(CPtrnData& data, CDraw* draw, PTRNDATA* item, int)
{
    data.DispScrollBar(draw, item);
}

/// Where the bar that takes the scroll keys of its direction is remembered.
std::int32_t& KeyBar(CPtrnData& data, const PTRNDATA& item)
{
    return item.Parm[SBAR_VERTICAL] ? data.ScrollPtrn3 : data.ScrollPtrn2;
}

int Press(CPtrnData& data, POINT point, PTRNDATA* item)
{
    if (item->Parm[SBAR_ROLE1])
        data.ScrollPtrn1 = item->Recd;
    if (item->Parm[SBAR_KEYS])
        KeyBar(data, *item) = item->Recd;

    const int part = data.TestScrollBar(point, item);
    if (part == SCROLL_THUMB)
        return PRESS_DRAG;
    if (!CanScroll(*item) || !StepScrollBar(item, part))
        return PRESS_NOTHING;
    StartRepeat(data, *item, part);
    return PRESS_ACTION;
}

int Wheel(CPtrnData&, int direction, PTRNDATA* item)
{
    if (IsHidden(*item) || !CanScroll(*item))
        return 0;
    const std::int64_t step = item->Parm[SBAR_LINE_STEP];
    return ScrollBy(item, direction ? step : -step);
}

int PartAt(CPtrnData& data, POINT point, PTRNDATA* item)
{
    return data.TestScrollBar(point, item);
}

void Check(const ItemDraft& draft, const ItemRemark& remark)
{
    CheckBound(draft, remark);
    const int total = draft.parm[SBAR_TOTAL];
    const int visible = draft.parm[SBAR_VISIBLE];
    if (total == visible || total == 0)
        remark("'total' is " + std::to_string(total) + " and 'visible' " + std::to_string(visible) +
               ", by which the thumb's place would be divided by zero. Make 'total' larger.");
}

} // namespace

namespace items
{

extern constexpr ItemClass SCROLL_BAR = item(PTRN_SBAR)
                                            .named("scroll-bar")
                                            .helped("edits the index of the first visible entry")
                                            .schema(PARMS)
                                            .keysAt(SBAR_KEYS)
                                            .drawnBy(Draw)
                                            .erasedBy(EraseRect)
                                            .hitBy(HitRect)
                                            .pressedBy(Press)
                                            .turnedBy(Wheel)
                                            .heldBy(PartAt, StepScrollBar)
                                            .checkedBy(Check);

} // namespace items

} // namespace tessary

using namespace tessary;

void CPtrnData::SetScrollBar(PTRNDATA* item)
{
    const std::int32_t* parm = item->Parm;
    const bool vertical = parm[SBAR_VERTICAL] != 0;
    const int frame = parm[SBAR_WIDTH] ? parm[SBAR_WIDTH] : 1;

    // Along the bar from `begin` to `end`, across it from `side1` to `side2`.
    int begin = Shift(parm[vertical ? PARM_Y1 : PARM_X1], frame);
    int end = Inset(parm[vertical ? PARM_Y2 : PARM_X2], frame);
    const int side1 = Shift(parm[vertical ? PARM_X1 : PARM_Y1], frame);
    const int side2 = Inset(parm[vertical ? PARM_X2 : PARM_Y2], frame);
    const auto piece = [&](int from, int to, int margin = 0) {
        const int near = Shift(side1, margin);
        const int far = Inset(side2, margin);
        return vertical ? SetRect(near, from, far, to) : SetRect(from, near, to, far);
    };

    // Buttons are as long as the bar is wide; each pair takes its place from both ends of the trough.
    const int button = Inset(side2, side1);
    const auto setPair = [&](RECT& first, RECT& second) {
        const int begin2 = Shift(begin, button);
        const int end2 = Inset(end, button);
        first = piece(begin, begin2);
        second = piece(end2, end);
        begin = begin2;
        end = end2;
    };
    if (parm[SBAR_PAGES])
        setPair(SCrect1, SCrect2);
    if (parm[SBAR_ARROWS])
        setPair(SCrect3, SCrect4);

    // Absent buttons are empty and lie where the trough begins and ends.
    if (!parm[SBAR_PAGES]) {
        SCrect1 = piece(begin, begin);
        SCrect2 = piece(end, end);
    }
    if (!parm[SBAR_ARROWS]) {
        SCrect3 = piece(begin, begin);
        SCrect4 = piece(end, end);
    }

    // The value is not held to its range here: one beyond it puts the thumb past the end of the trough.
    constexpr int thumbMargin = 2;
    const int length = Inset(end, begin);
    const int thumb = Scale(length, parm[SBAR_VISIBLE], parm[SBAR_TOTAL]);
    const int offset = Scale(Inset(length, thumb), ItemInteger(CellNumber(item->DataNo)), Range(*item));
    const int thumbBegin = Shift(begin, offset);
    SCrect5 = piece(thumbBegin, Shift(thumbBegin, thumb), thumbMargin);
    SCrect6 = piece(begin, end);
}

void CPtrnData::DispScrollBar(CDraw* draw, PTRNDATA* item)
{
    const std::int32_t* parm = item->Parm;
    if (!CanScroll(*item))
        return;
    SetScrollBar(item);

    draw->DrawButn(item->Rect, parm[SBAR_WIDTH], parm[SBAR_LIGHT], parm[SBAR_DARK], parm[SBAR_FRAME], 0, 0, 0,
                   "");
    const bool vertical = parm[SBAR_VERTICAL] != 0;
    if (parm[SBAR_ARROWS]) {
        draw->DrawXpm(SCrect3, vertical ? XPM_UpArrow1 : XPM_LeftArrow1);
        draw->DrawXpm(SCrect4, vertical ? XPM_DownArrow1 : XPM_RightArrow1);
    }
    if (parm[SBAR_PAGES]) {
        draw->DrawXpm(SCrect1, vertical ? XPM_UpArrow2 : XPM_LeftArrow2);
        draw->DrawXpm(SCrect2, vertical ? XPM_DownArrow2 : XPM_RightArrow2);
    }
    draw->DrawButn(SCrect5, parm[SBAR_WIDTH], parm[SBAR_LIGHT], parm[SBAR_DARK], parm[SBAR_THUMB], 0, 0, 0,
                   "");
}

int CPtrnData::TestScrollBar(POINT point, PTRNDATA* item)
{
    if (!CanScroll(*item) || !PointInRect(point, item->Rect))
        return SCROLL_NONE;
    SetScrollBar(item);
    SCoffset = {Inset(point.x, SCrect5.left), Inset(point.y, SCrect5.top)};

    // The rectangle of an absent button would still be hit on its one line of points.
    const bool pages = item->Parm[SBAR_PAGES] != 0;
    const bool arrows = item->Parm[SBAR_ARROWS] != 0;
    const RECT before = item->Parm[SBAR_VERTICAL]
                            ? SetRect(SCrect3.left, SCrect3.bottom, SCrect5.right, SCrect5.top)
                            : SetRect(SCrect3.right, SCrect3.top, SCrect5.left, SCrect5.bottom);
    const RECT behind = item->Parm[SBAR_VERTICAL]
                            ? SetRect(SCrect5.left, SCrect5.bottom, SCrect4.right, SCrect4.top)
                            : SetRect(SCrect5.right, SCrect5.top, SCrect4.left, SCrect4.bottom);
    const struct {
        ScrollPart Part;
        bool Present;
        RECT Place;
    } parts[] = {
        {SCROLL_PAGE1, pages, SCrect1},   {SCROLL_PAGE2, pages, SCrect2}, {SCROLL_ARROW1, arrows, SCrect3},
        {SCROLL_ARROW2, arrows, SCrect4}, {SCROLL_THUMB, true, SCrect5},  {SCROLL_TROUGH1, true, before},
        {SCROLL_TROUGH2, true, behind},
    };
    for (const auto& part : parts)
        if (part.Present && PointInRect(point, part.Place))
            return part.Part;
    return SCROLL_NONE;
}

int CPtrnData::SetScrollPos(POINT point, PTRNDATA* item)
{
    const bool vertical = item->Parm[SBAR_VERTICAL] != 0;
    const std::int64_t moved = vertical ? std::int64_t{point.y} - SCoffset.cy - SCrect6.top
                                        : std::int64_t{point.x} - SCoffset.cx - SCrect6.left;
    const std::int64_t room = vertical ? std::int64_t{SCrect6.height} - SCrect5.height
                                       : std::int64_t{SCrect6.width} - SCrect5.width;
    // A thumb that fills its trough can not be dragged.
    return room ? ScrollTo(item, Scale(moved, Range(*item), room)) : 0;
}

int CPtrnData::WheelToScroll(int direction, PTRNDATA* item)
{
    return Wheel(*this, direction, item);
}

int CPtrnData::ConvScrollKey(int key, PTRNDATA* item)
{
    struct KeyStep {
        int Key;
        bool Vertical;
        int Present; ///< parameter that turns the key on
        int Step;    ///< parameter with the distance
        int Sign;
    };
    constexpr KeyStep steps[] = {
        {XK_Left, false, SBAR_ARROWS, SBAR_LINE_STEP, -1},
        {XK_Right, false, SBAR_ARROWS, SBAR_LINE_STEP, 1},
        {XK_Up, true, SBAR_ARROWS, SBAR_LINE_STEP, -1},
        {XK_Down, true, SBAR_ARROWS, SBAR_LINE_STEP, 1},
        {XK_Page_Up, true, SBAR_PAGES, SBAR_PAGE_STEP, -1},
        {XK_Page_Down, true, SBAR_PAGES, SBAR_PAGE_STEP, 1},
    };
    const bool vertical = item->Parm[SBAR_VERTICAL] != 0;
    for (const KeyStep& step : steps)
        if (step.Key == key && step.Vertical == vertical && item->Parm[step.Present])
            return ScrollBy(item, std::int64_t{step.Sign} * item->Parm[step.Step]);
    return 0;
}

int CPtrnData::SetScrollKey(int key, PTRNDATA* item)
{
    for (const int recd : {ScrollPtrn2, ScrollPtrn3}) {
        if (recd >= 0 && recd < PtrnCont && ConvScrollKey(key, &PtrnData[recd])) {
            *item = PtrnData[recd];
            return 1;
        }
    }
    for (int i = 0; i < PtrnCont; ++i) {
        PTRNDATA& bar = PtrnData[i];
        if (bar.Type == PTRN_SBAR && !IsHidden(bar) && bar.Parm[SBAR_KEYS] && ConvScrollKey(key, &bar)) {
            KeyBar(*this, bar) = i;
            *item = bar;
            return 1;
        }
    }
    return 0;
}
