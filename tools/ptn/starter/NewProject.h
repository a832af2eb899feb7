// "ptn new": a small project to begin with.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ptn
{

/// A file of the starting project; "@NAME@", "@TESSARY@" and "@BUILD@" are filled in.
struct StarterFile {
    const char* name;
    const char* text; ///< UTF-8
};

/// All of them: sources of three screens, a program that shows them, and its build.
const std::vector<StarterFile>& StarterFiles();

/// Writes the project into a new folder, whose name becomes that of the program.
/// @return whether it is there now
/// Throws std::filesystem::filesystem_error when it can not be written.
bool NewProject(const std::filesystem::path& folder, Diagnostics& diagnostics);

} // namespace ptn
