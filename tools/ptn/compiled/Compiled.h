// Reading what the build makes: a compiled project, as the sources that it could have come from.
#pragma once

#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/source/ProjectSource.h"

#include <filesystem>
#include <vector>

namespace ptn
{

struct Compiled {
    ProjectSource project;
    std::vector<Pattern> patterns; ///< in the order of their names
    bool complete = true;          ///< no pattern was left out because it is damaged
    std::filesystem::path profile; ///< empty when none was found
};

/// Whether a folder is a compiled project rather than a folder of sources.
bool IsCompiled(const std::filesystem::path& folder);

/// Reads a project directory and the profile beside it. Names are made up for colours, fonts and marks.
/// Damaged files are reported and left out.
Compiled ReadCompiled(const std::filesystem::path& folder, Diagnostics& diagnostics);

} // namespace ptn
