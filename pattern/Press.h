// What a left press does, by kind of item. Each takes and returns what CPtrnData::LButtonDown does.
#pragma once

#include "pattern/PtrnData.h"

/// Neither disabled nor hidden, by the cached state word.
constexpr bool IsUsable(const PTRNDATA& item)
{
    return item.wData < STATE_DISABLE;
}

/// A shape that frames a field of the same data number presses that field.
int PressShape(CPtrnData& data, POINT point, PTRNDATA* item);

/// A field opens for keyboard entry, or is a label.
int PressField(CPtrnData& data, POINT point, PTRNDATA* item);

/// A label presses the control of the same data number.
int PressLabel(CPtrnData& data, POINT point, PTRNDATA* item);

/// Push button, radio button, check box.
int PressControl(CPtrnData& data, POINT point, PTRNDATA* item);

int PressScrollBar(CPtrnData& data, POINT point, PTRNDATA* item);
int PressSpinButn(CPtrnData& data, POINT point, PTRNDATA* item);
