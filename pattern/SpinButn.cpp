#include "pattern/SpinButn.h"

#include "base/Coord.h"
#include "comndata/ComnData.h"
#include "draw/HitTest.h"
#include "pattern/ItemParm.h"

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
