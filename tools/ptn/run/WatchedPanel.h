// A panel that is told when its project has changed.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ptn
{

/// Runs a panel until it ends. It ends with this process, whatever that ends by, and signals to end reach it.
/// @param line    its path and arguments
/// @param source  folder of sources to watch
/// @param build   called when something there was saved; whether the panel is to be told (SIGUSR1)
/// @return its exit status; 128 and the number of the signal that has ended it; 1 when it was not started,
/// which standard error tells
int RunWatched(const std::vector<std::string>& line, const std::string& source,
               const std::function<bool()>& build);

} // namespace ptn
