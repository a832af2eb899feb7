// Bar graph: a filled bar, or a needle, at the level of the item's value.
#include "base/Coord.h"
#include "comndata/LimtData.h"
#include "draw/DrawCntl.h"
#include "pattern/ItemCell.h"
#include "pattern/items/ItemDraw.h"

#include <algorithm>
#include <cmath>

namespace tessary
{

namespace
{

constexpr ParmChoice DIRECTION_NAMES[] = {{"vertical", 0}, {"horizontal", 1}};

constexpr ParmSchema PARMS[] = {
    parm("bar", BARG_BAR4).color().perState().help("the bar or needle"),
    parm("back", BARG_BACK4).color().perState().help("behind the bar"),
    parm("frame", BARG_FRAME_COLOR).color().help("the frame"),
    parm("direction", BARG_HORIZONTAL).choice(DIRECTION_NAMES).help("grows upwards or to the right"),
    parm("needle", BARG_NEEDLE_WIDTH).thickness().help("thickness of a needle drawn instead of a bar"),
    parm("frame-width", BARG_FRAME_WIDTH).thickness().initial(1).help("thickness of the frame"),
    parm("minimum", BARG_MINIMUM).number().help("value of an empty bar; both 0: from the limit table"),
    parm("maximum", BARG_MAXIMUM).number().initial(100).help("value of a full bar"),
};

/// Where the bar may reach, and the level: `xl` of a horizontal bar, `yl` of a vertical one.
struct BarArea {
    int xa;
    int ya;
    int xb;
    int yb;
    int xl;
    int yl;
};

/// Held between two ends, which a damaged pattern may have exchanged.
int Hold(int value, int end1, int end2)
{
    return std::clamp(value, std::min(end1, end2), std::max(end1, end2));
}

/// The position `share` of `length` away from `start`. A share that is no number gives the start itself.
template <typename Real> int Advance(int start, std::int64_t length, Real share)
{
    const Real distance = static_cast<Real>(length) * share;
    if (std::isnan(distance))
        return start;
    constexpr auto farthest = static_cast<Real>(1e10);
    return Saturate(start + static_cast<std::int64_t>(std::clamp(distance, -farthest, farthest)));
}

/// The ends of the scale; a scale without length shows no level.
template <typename Real> struct Scale {
    Real minimum;
    Real maximum;
};

template <typename Real> Scale<Real> ScaleOf(const PTRNDATA* item)
{
    if (item->Parm[BARG_MINIMUM] != 0 || item->Parm[BARG_MAXIMUM] != 0)
        return {static_cast<Real>(item->Parm[BARG_MINIMUM]), static_cast<Real>(item->Parm[BARG_MAXIMUM])};
    float minimum = 0;
    float maximum = 0;
    Get_LimtData(item->DataNo, &minimum, &maximum, nullptr, 0);
    return {static_cast<Real>(minimum), static_cast<Real>(maximum)};
}

/// Sets the level of a value. The scale spans the whole item, the bar only the part inside the frame.
template <typename Real> void SetLevel(BarArea& area, const PTRNDATA* item, Real value)
{
    const Scale<Real> scale = ScaleOf<Real>(item);
    if (!(scale.minimum < scale.maximum))
        return;
    const Real share = (value - scale.minimum) / (scale.maximum - scale.minimum);
    const std::int64_t width = std::int64_t{item->Parm[PARM_X2]} - item->Parm[PARM_X1];
    const std::int64_t height = std::int64_t{item->Parm[PARM_Y1]} - item->Parm[PARM_Y2];
    area.xl = Hold(Advance(area.xa, width, share), area.xa, area.xb);
    area.yl = Hold(Advance(area.yb, height, share), area.ya, area.yb);
}

BarArea LayOut(const PTRNDATA* item)
{
    const int x1 = item->Parm[PARM_X1];
    const int y1 = item->Parm[PARM_Y1];
    const int x2 = item->Parm[PARM_X2];
    const int y2 = item->Parm[PARM_Y2];
    const int inset = item->Parm[BARG_FRAME_WIDTH];
    const int back = Saturate(-std::int64_t{inset});
    BarArea area{Shift(x1, inset), Shift(y1, inset), Shift(x2, back), Shift(y2, back), 0, 0};
    area.xl = area.xa;
    area.yl = area.yb;
    if (Has(Correction::LargeNumbers))
        SetLevel(area, item, ItemNumber(item));
    else
        SetLevel(area, item, item->fData);
    return area;
}

void DrawBar(CDraw* draw, const PTRNDATA* item, const BarArea& area, int colr)
{
    const RECT bar = item->Parm[BARG_HORIZONTAL] ? SetRect(area.xa, area.ya, area.xl, area.yb)
                                                 : SetRect(area.xa, area.yl, area.xb, area.yb);
    draw->DrawRect(bar, 0, 1, colr, colr);
}

/// Draws a line across the bar at the level, held half its width inside the bar's ends. The odd pixel counts
/// at the top of a vertical bar and at the right of a horizontal one.
void DrawNeedle(CDraw* draw, const PTRNDATA* item, const BarArea& area, int colr)
{
    const int wide = item->Parm[BARG_NEEDLE_WIDTH];
    const int half = wide / 2;
    const int larger = half + wide % 2;
    if (item->Parm[BARG_HORIZONTAL]) {
        const int x = Hold(area.xl, Shift(area.xa, half), Shift(area.xb, -larger));
        draw->DrawLine(x, area.ya, x, area.yb, 0, wide, 0, colr);
    } else {
        const int y = Hold(area.yl, Shift(area.ya, larger), Shift(area.yb, -half));
        draw->DrawLine(area.xa, y, area.xb, y, 0, wide, 0, colr);
    }
}

void Draw(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    const BarArea area = LayOut(item);
    const int bar = Selected(item, BARG_BAR4);
    const int back = Selected(item, BARG_BACK4);
    draw->DrawRect(item->Rect, 0, 1, back, back);
    if (item->Parm[BARG_NEEDLE_WIDTH] == 0)
        DrawBar(draw, item, area, bar);
    else if (item->Parm[BARG_NEEDLE_WIDTH] > 0)
        DrawNeedle(draw, item, area, bar);
    if (item->Parm[BARG_FRAME_WIDTH])
        draw->DrawRect(item->Rect, item->Parm[BARG_FRAME_WIDTH], 1, item->Parm[BARG_FRAME_COLOR], -1);
}

// Others would draw outside of themselves or, worse, backwards.
bool Fits(const ItemDraft& draft)
{
    const std::int32_t* parm = draft.parm;
    const std::int64_t inset = std::int64_t{2} * parm[BARG_FRAME_WIDTH];
    const std::int64_t width = std::int64_t{parm[PARM_X2]} - parm[PARM_X1] - inset;
    const std::int64_t height = std::int64_t{parm[PARM_Y2]} - parm[PARM_Y1] - inset;
    const std::int64_t along = parm[BARG_HORIZONTAL] ? width : height;
    return width >= 0 && height >= 0 && along >= parm[BARG_NEEDLE_WIDTH];
}

void Check(const ItemDraft& draft, const ItemRemark& remark)
{
    CheckBound(draft, remark);
    const std::int32_t* parm = draft.parm;
    if (parm[BARG_MINIMUM] >= parm[BARG_MAXIMUM] && (parm[BARG_MINIMUM] || parm[BARG_MAXIMUM]))
        remark("'minimum' is not below 'maximum', so the bar stays empty. Exchange them.");
}

} // namespace

namespace items
{

extern constexpr ItemClass BAR_GRAPH = item(PTRN_BARG)
                                           .named("bar-graph")
                                           .helped("bar or needle that follows a value")
                                           .schema(PARMS)
                                           .drawnBy(Draw)
                                           .erasedBy(EraseRect)
                                           .hitBy(HitRect)
                                           .opaqueWhen(AlwaysOpaque)
                                           .fitsWhen(Fits)
                                           .checkedBy(Check);

} // namespace items

} // namespace tessary
