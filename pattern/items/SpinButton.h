// The value behind a spin button: a number that moves by 1.
#pragma once

#include "pattern/PtrnData.h"

namespace tessary
{

/// Parts of a spin button, TestSpinButn.
enum SpinPart {
    SPIN_NONE = 0,
    SPIN_UP = 1,
    SPIN_DOWN = 2,
};

/// Where a step of a part leads: raised to the minimum, then lowered to the maximum. Every part but SPIN_UP
/// steps down.
float SpinValue(float value, int part, float minimum, float maximum);

/// One step of the button's cell between its own limits, both 0 included: such a button steps to 0.
/// @return 1 when the cell's value changed
int StepSpinButn(const PTRNDATA* item, int part);

} // namespace tessary
