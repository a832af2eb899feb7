// One screen: from its source file to a pattern.
#pragma once

#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/source/ProjectSource.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// Reads a screen, alone.
/// @return none, with errors reported, when it has no usable name
std::optional<Pattern> ReadScreen(const Source& source, const ProjectSource& project,
                                  Diagnostics& diagnostics);

/// The screens of a project.
struct ScreenSet {
    std::vector<Pattern> patterns;
    bool complete = true; ///< none was left out because it could not be read
};

/// Reads every file in the folder "screens" of the sources. Reports patterns of the same name, and actions
/// and profile keys that name a pattern which is not there; the latter two only of a complete set, since
/// they may name the one that could not be read.
ScreenSet ReadScreens(const std::filesystem::path& folder, const ProjectSource& project,
                      Diagnostics& diagnostics);

} // namespace ptn
