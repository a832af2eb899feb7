// What a left press does, as several types of items share it.
#pragma once

#include "pattern/PtrnData.h"

namespace tessary
{

// Each takes and returns what CPtrnData::LButtonDown does.

/// A shape that frames a field of the same data number presses that field.
int PressShape(CPtrnData& data, POINT point, PTRNDATA* item);

/// A field opens for keyboard entry, or is a label.
int PressField(CPtrnData& data, POINT point, PTRNDATA* item);

/// A label presses the control of the same data number.
int PressLabel(CPtrnData& data, POINT point, PTRNDATA* item);

/// A control changes its cell.
int PressControl(CPtrnData& data, POINT point, PTRNDATA* item);

/// The item is held from now on, at this part of it.
void StartRepeat(CPtrnData& data, const PTRNDATA& item, int part);

} // namespace tessary
