// A display for drawing where there is none.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

namespace ptn
{

/// Starts Xvfb when $DISPLAY is not set, and sets it; the server ends with this process.
/// @return false, with the reason reported, when there is no display then either
bool EnsureDisplay(Diagnostics& diagnostics);

} // namespace ptn
