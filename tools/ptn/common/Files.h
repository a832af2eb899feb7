// Whole files.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// Bytes of files by path, which is relative to some folder.
using FileMap = std::map<std::string, std::string>;

/// A regular file's bytes; none when it is missing, can not be read or is not a regular file.
std::optional<std::string> ReadBytes(const std::filesystem::path& file);

/// The *.yaml files of a folder in the order of their names; none when there is no such folder.
std::vector<std::string> YamlFiles(const std::filesystem::path& folder);

/// Reports a file or folder that could not be written.
void ReportUnwritten(const std::filesystem::filesystem_error& problem, Diagnostics& diagnostics);

/// Writes a file anew. Throws std::filesystem::filesystem_error when it can not be written.
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

} // namespace ptn
