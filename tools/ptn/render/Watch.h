// "ptn watch": the screen as it is being written.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <string>
#include <vector>

namespace ptn
{

struct WatchJob {
    std::string source;                 ///< folder of sources
    std::string pattern;                ///< UTF-8; empty for the start pattern
    std::vector<std::string> arguments; ///< further ones for "ptn render"
};

/// Shows the screen in a window until that is closed, and draws it anew whenever a source is saved. Errors
/// stand in place of the picture, and what "ptn check" finds beside it.
/// @return false when there is no display or nothing to watch
bool Watch(const WatchJob& job, Diagnostics& diagnostics);

} // namespace ptn
