// "ptn render": the pictures that the panel would show.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

struct RenderJob {
    std::filesystem::path project; ///< sources, or a compiled project
    std::string pattern;           ///< UTF-8; empty for the one that the panel starts with
    bool all = false;              ///< every pattern, and a sheet of all
    std::filesystem::path output;  ///< PNG file; for all, the folder; empty: named after the pattern, here
    std::string state;             ///< file with the values of cells; empty for none
    std::optional<int> language;   ///< instead of that of the profile
};

/// Draws with the framework itself what a window shows of its pattern before any screen class adds to it.
/// Without a display a private one is started for this process.
/// @return the files written; none of them after an error
std::vector<std::filesystem::path> Render(const RenderJob& job, Diagnostics& diagnostics);

} // namespace ptn
