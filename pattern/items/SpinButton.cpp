#include "pattern/items/SpinButton.h"

#include "base/Coord.h"
#include "base/StateWord.h"
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "config/Edition.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "draw/Images.h"
#include "pattern/ItemCell.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Limits.h"
#include "pattern/Press.h"
#include "pattern/RealParm.h"

#include <cmath>

namespace tessary
{

namespace
{

constexpr ParmSchema PARMS[] = {
    parm("minimum", SPIN_MINIMUM).number().help("lower bound; both 0: from the limit table, on clicks only"),
    parm("maximum", SPIN_MAXIMUM).number().initial(100).help("upper bound"),
    parm("step", SPIN_STEP).positiveReal().since(Correction::SpinWheel).help("by which it steps; 0: by 1"),
    parm("message", SPIN_MESSAGE).message().since(Correction::SpinWheel).help("message at a bound"),
};

} // namespace

float SpinValue(float value, int part, float minimum, float maximum)
{
    float next = part == SPIN_UP ? value + 1.0F : value - 1.0F;
    if (next < minimum)
        next = minimum;
    if (next > maximum)
        next = maximum;
    return next;
}

int StepSpinButn(const PTRNDATA* item, int part)
{
    const float value = Get_fData(item->DataNo, nullptr, 0);
    const float next = SpinValue(value, part, static_cast<float>(item->Parm[SPIN_MINIMUM]),
                                 static_cast<float>(item->Parm[SPIN_MAXIMUM]));
    if (next == value)
        return 0;
    Set_fData(item->DataNo, next, nullptr, 0);
    return 1;
}

namespace
{

void Draw(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    draw->DrawXpm(item->Rect, XPM_SpinButn);
}

void Limits(const PTRNDATA& item, ValueLimits* limits)
{
    limits->minimum = item.Parm[SPIN_MINIMUM];
    limits->maximum = item.Parm[SPIN_MAXIMUM];
    const auto step = static_cast<double>(RealParm(item.Parm[SPIN_STEP]));
    limits->step = step > 0 ? step : 1;
    limits->below = limits->above = item.Parm[SPIN_MESSAGE];
}

/// Decimal steps drift as doubles: a number that should be a whole number of steps from the limit is.
double Stepped(const ValueLimits& limits, double value, double step)
{
    const double origin = limits.given ? limits.minimum : 0;
    const double steps = (value + step - origin) / limits.step;
    const double whole = std::round(steps);
    return limits.hold(std::abs(steps - whole) < 1e-6 ? origin + whole * limits.step : value + step);
}

/// One corrected step of the cell: within the button's limits, and by its state at this moment.
/// @return 1 when the cell's value changed
int CorrectedStep(const PTRNDATA* item, bool up)
{
    if (!IsOperable(Get_wData(item->DataNo, nullptr, 0)))
        return 0;
    const ValueLimits limits = LimitsOf(*item);
    const double value = CellNumber(item->DataNo);
    const double next = Stepped(limits, value, up ? limits.step : -limits.step);
    if (next == value || std::isnan(value)) {
        if (limits.below) // at its limit: there is something to say
            AcceptByLimits(*item, value + (up ? limits.step : -limits.step));
        return 0;
    }
    Set_dData(item->DataNo, next, nullptr, 0);
    return 1;
}

int CorrectedPress(CPtrnData& data, POINT point, PTRNDATA* item)
{
    const int part = data.TestSpinButn(point, item);
    if (part == SPIN_NONE || !CorrectedStep(item, part == SPIN_UP))
        return PRESS_NOTHING;
    StartRepeat(data, *item, part);
    return PRESS_ACTION;
}

int Press(CPtrnData& data, POINT point, PTRNDATA* item)
{
    if (Has(Correction::SpinWheel))
        return CorrectedPress(data, point, item);

    auto minimum = static_cast<float>(item->Parm[SPIN_MINIMUM]);
    auto maximum = static_cast<float>(item->Parm[SPIN_MAXIMUM]);
    // Only here: a button without limits of its own that is held or turned by the wheel steps to 0.
    if (minimum == 0.0F && maximum == 0.0F)
        Get_LimtData(item->DataNo, &minimum, &maximum, nullptr, 0);

    const int part = data.TestSpinButn(point, item);
    const float value = Get_fData(item->DataNo, nullptr, 0);
    const float next = SpinValue(value, part, minimum, maximum);
    if (next == value)
        return PRESS_NOTHING;
    Set_fData(item->DataNo, next, nullptr, 0);
    StartRepeat(data, *item, part);
    return PRESS_ACTION;
}

int Wheel(CPtrnData& data, int direction, PTRNDATA* item)
{
    if (Has(Correction::SpinWheel))
        return CorrectedStep(item, direction == 0);

    if (IsHidden(*item))
        return 0;
    const float value = Get_fData(item->DataNo, nullptr, 0);
    const float next = SpinValue(value, direction, static_cast<float>(item->Parm[SPIN_MINIMUM]),
                                 static_cast<float>(item->Parm[SPIN_MAXIMUM]));
    if (next == value)
        return 0;
    // The new value goes to the control that was pressed last, wherever the pointer is now.
    Set_fData(data.RepeatPtrn.DataNo, next, nullptr, 0);
    return 1;
}

int PartAt(CPtrnData& data, POINT point, PTRNDATA* item)
{
    return data.TestSpinButn(point, item);
}

int Step(const PTRNDATA* item, int part)
{
    return Has(Correction::SpinWheel) ? CorrectedStep(item, part == SPIN_UP) : StepSpinButn(item, part);
}

void Check(const ItemDraft& draft, const ItemRemark& remark)
{
    CheckBound(draft, remark);
    if (draft.parm[SPIN_MINIMUM] > draft.parm[SPIN_MAXIMUM])
        remark("'minimum' is above 'maximum', so the value jumps between them. Exchange them.");
}

} // namespace

namespace items
{

extern constexpr ItemClass SPIN_BUTTON = item(PTRN_SPIN)
                                             .named("spin")
                                             .helped("steps a value up and down")
                                             .schema(PARMS)
                                             .drawnBy(Draw)
                                             .erasedBy(EraseRect)
                                             .hitBy(HitRect)
                                             .pressedBy(Press)
                                             .turnedBy(Wheel)
                                             .stepsByWheel()
                                             .heldBy(PartAt, Step)
                                             .limitedBy(Limits)
                                             .opaqueWhen(AlwaysOpaque)
                                             .checkedBy(Check);

} // namespace items

} // namespace tessary

using namespace tessary;

int CPtrnData::TestSpinButn(POINT point, PTRNDATA* item)
{
    RECT upper = item->Rect;
    RECT lower = item->Rect;
    const int middle = Saturate((std::int64_t{upper.bottom} - upper.top) / 2 + upper.top);
    upper.bottom = middle;
    lower.top = middle;
    if (TestRect(point, upper))
        return SPIN_UP;
    return TestRect(point, lower) ? SPIN_DOWN : SPIN_NONE;
}

int CPtrnData::WheelToSpin(int direction, PTRNDATA* item)
{
    return Wheel(*this, direction, item);
}
