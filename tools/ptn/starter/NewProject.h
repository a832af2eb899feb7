// "ptn new": a small project to begin with.
#pragma once

#include "tools/ptn/common/Diagnostics.h"
#include "tools/ptn/common/Embedded.h"

#include <filesystem>

namespace ptn
{

/// The files of the starting project: those of each, those of one without code, and those of one with a
/// program of its own and its build. "@NAME@", "@NAMESPACE@" (of its "cells.h") and "@VERSION@" (of Tessary)
/// in them are to be filled in.
const std::vector<EmbeddedFile>& StarterFiles();
const std::vector<EmbeddedFile>& PlainFiles();
const std::vector<EmbeddedFile>& ProgramFiles();

/// Writes the project into a new folder, whose name becomes that of the program.
/// @param program  with a program of its own in C++
/// @return whether it is there now
/// Throws std::filesystem::filesystem_error when it can not be written.
bool NewProject(const std::filesystem::path& folder, bool program, Diagnostics& diagnostics);

} // namespace ptn
