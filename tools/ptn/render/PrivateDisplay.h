// A display for drawing where there is none.
#pragma once

#include <string>

namespace ptn
{

/// Starts Xvfb when $DISPLAY is not set, and sets it; the server ends with this process.
/// @return empty, or what is missing and what to do
std::string EnsureDisplay();

} // namespace ptn
