// An X server of one's own.
#pragma once

#include <string>

namespace ptn
{

/// Starts Xvfb (1280 x 1024, 24 bits) on a free display; once per process. It ends with this process, however
/// that ends.
/// @return name of the display, such as ":3"; empty when Xvfb is not installed or does not come up
const std::string& PrivateDisplay();

} // namespace ptn
