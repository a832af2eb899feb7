// "ptn run": the panel of a project without code, from its sources.
#pragma once

#include <string>

namespace ptn
{

struct RunJob {
    std::string source; ///< folder of sources
    std::string screen; ///< UTF-8; empty for the one that the profile names
    bool watch = false; ///< what is saved is shown at once
};

/// Checks the project, builds it into its folder "build" and runs tessary-panel on the display. What stops it
/// is told on standard error. Signals to end reach the panel. Without `watch` the panel takes the place of
/// this process.
/// @return the exit status: the panel's, or 1 when it was not started
/// Throws std::filesystem::filesystem_error when something can not be written.
int Run(const RunJob& job);

} // namespace ptn
