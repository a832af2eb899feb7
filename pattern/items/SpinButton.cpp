#include "pattern/items/SpinButton.h"

#include "base/Coord.h"
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "draw/Images.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Press.h"

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

int Press(CPtrnData& data, POINT point, PTRNDATA* item)
{
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

void Check(const ItemDraft& draft, const ItemRemark& remark)
{
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
                                             .heldBy(PartAt, StepSpinButn)
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
