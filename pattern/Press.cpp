#include "pattern/Press.h"

#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/ScrollBar.h"
#include "pattern/SpinButn.h"

#include <initializer_list>
#include <X11/keysym.h>

namespace
{

/// The item linked with another by its data number, 0 included: of the first type of which there is one,
/// the first in the file.
bool FindLinked(CPtrnData& data, int dataNo, std::initializer_list<int> types, PTRNDATA* linked)
{
    for (const int type : types)
        if (data.ReadPtrnData(dataNo, type, linked))
            return true;
    return false;
}

bool OpensEntry(const PTRNDATA& field)
{
    return IsUsable(field) && field.Parm[FIELD_KEYENTRY] == 1;
}

/// What a usable push button, radio button or check box does.
int Operate(const PTRNDATA& control)
{
    if (control.wData & STATE_LOCKED)
        return PRESS_NOTHING;
    if (control.Type == PTRN_RDIO)
        Set_iData(control.DataNo, control.Parm[RDIO_VALUE], nullptr, 0);
    else if (control.Type == PTRN_CHCK)
        Set_iData(control.DataNo, Get_iData(control.DataNo, nullptr, 0) ? 0 : 1, nullptr, 0);
    return PRESS_ACTION;
}

void StartRepeat(CPtrnData& data, const PTRNDATA& item, int part)
{
    data.RepeatFlag = REPEAT_WAITING;
    data.RepeatTimr = 0;
    data.RepeatMode = part;
    data.RepeatPtrn = item;
}

bool IsHidden(const PTRNDATA& item)
{
    return (item.wData & STATE_HIDDEN) != 0;
}

/// Where the bar that takes the scroll keys of its direction is remembered.
std::int32_t& KeyBar(CPtrnData& data, const PTRNDATA& item)
{
    return item.Parm[SBAR_VERTICAL] ? data.ScrollPtrn3 : data.ScrollPtrn2;
}

} // namespace

int PressShape(CPtrnData& data, POINT, PTRNDATA* item)
{
    PTRNDATA field;
    if (!FindLinked(data, item->DataNo, {PTRN_CHAR, PTRN_NUMR}, &field) || !OpensEntry(field))
        return PRESS_ACTION;
    *item = field;
    return PRESS_KEYENTRY;
}

int PressField(CPtrnData& data, POINT point, PTRNDATA* item)
{
    return OpensEntry(*item) ? static_cast<int>(PRESS_KEYENTRY) : PressLabel(data, point, item);
}

int PressLabel(CPtrnData& data, POINT, PTRNDATA* item)
{
    PTRNDATA control;
    if (!FindLinked(data, item->DataNo, {PTRN_BUTN, PTRN_RDIO, PTRN_CHCK}, &control) || !IsUsable(control))
        return PRESS_ACTION;
    *item = control;
    return Operate(control);
}

int PressControl(CPtrnData&, POINT, PTRNDATA* item)
{
    // A disabled control keeps its value, but its action is carried out.
    return IsUsable(*item) ? Operate(*item) : static_cast<int>(PRESS_ACTION);
}

int PressScrollBar(CPtrnData& data, POINT point, PTRNDATA* item)
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

int PressSpinButn(CPtrnData& data, POINT point, PTRNDATA* item)
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

int CPtrnData::LButtonDown(POINT point, PTRNDATA* item)
{
    const ItemOps* ops = FindItemOps(item->Type);
    return ops && ops->Press ? ops->Press(*this, point, item) : static_cast<int>(PRESS_ACTION);
}

int CPtrnData::WheelToScroll(int direction, PTRNDATA* item)
{
    if (IsHidden(*item) || !CanScroll(*item))
        return 0;
    const std::int64_t step = item->Parm[SBAR_LINE_STEP];
    return ScrollBy(item, direction ? step : -step);
}

int CPtrnData::WheelToSpin(int direction, PTRNDATA* item)
{
    if (IsHidden(*item))
        return 0;
    const float value = Get_fData(item->DataNo, nullptr, 0);
    const float next = SpinValue(value, direction, static_cast<float>(item->Parm[SPIN_MINIMUM]),
                                 static_cast<float>(item->Parm[SPIN_MAXIMUM]));
    if (next == value)
        return 0;
    // The new value goes to the control that was pressed last, wherever the pointer is now.
    Set_fData(RepeatPtrn.DataNo, next, nullptr, 0);
    return 1;
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

int CPtrnData::SetButtonKey(int key, PTRNDATA* item)
{
    if (key < XK_F1 || key > XK_F12)
        return 0;
    const int number = key - XK_F1 + 1;
    for (int i = 0; i < PtrnCont; ++i)
        if (PtrnData[i].Type == PTRN_BUTN && !IsHidden(PtrnData[i]) && PtrnData[i].Parm[BUTN_KEY] == number) {
            *item = PtrnData[i];
            return 1;
        }
    return 0;
}
