// "ptn dump": from what the build makes back to sources.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <filesystem>
#include <optional>
#include <string>

namespace ptn
{

/// Writes the sources of a compiled project into a new folder, builds them and compares.
/// @return how many files the sources build alike; none after an error. Files that would differ are
///         reported as warnings
/// Throws std::filesystem::filesystem_error when the sources can not be written.
std::optional<int> DumpProject(const std::filesystem::path& project, const std::filesystem::path& output,
                               Diagnostics& diagnostics);

/// The source of one pattern file, with the names of the project that it lies in.
std::optional<std::string> DumpPattern(const std::filesystem::path& file, Diagnostics& diagnostics);

} // namespace ptn
