// "ptn new": a small project to begin with.
#pragma once

#include "tools/ptn/common/Diagnostics.h"
#include "tools/ptn/common/Embedded.h"

#include <filesystem>

namespace ptn
{

/// The files of the starting project: sources of three screens, a program that shows them, and its build.
/// "@NAME@", "@NAMESPACE@" (of its "cells.h") and "@VERSION@" (of Tessary) in them are to be filled in.
const std::vector<EmbeddedFile>& StarterFiles();

/// Writes the project into a new folder, whose name becomes that of the program.
/// @return whether it is there now
/// Throws std::filesystem::filesystem_error when it can not be written.
bool NewProject(const std::filesystem::path& folder, Diagnostics& diagnostics);

} // namespace ptn
