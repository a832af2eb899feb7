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

/// Most bytes of a file that is read.
constexpr std::size_t LARGEST_INPUT = std::size_t{64} * 1024 * 1024;

/// A regular file's bytes; none when it is missing, can not be read, is larger than LARGEST_INPUT or is not a
/// regular file.
std::optional<std::string> ReadBytes(const std::filesystem::path& file);

/// Why ReadBytes gives nothing, as a sentence that goes on from the file's name, and what to do about it.
std::string WhyUnread(const std::filesystem::path& file);

/// The *.yaml files of a folder in the order of their names; none when there is no such folder.
std::vector<std::string> YamlFiles(const std::filesystem::path& folder);

/// Reports a folder that is there but can not be read.
void CheckReadable(const std::filesystem::path& folder, Diagnostics& diagnostics);

/// Reports files of a folder that would be sources if they were called *.yaml.
void CheckYamlNames(const std::filesystem::path& folder, Diagnostics& diagnostics);

/// Reports a file or folder that could not be written.
void ReportUnwritten(const std::filesystem::filesystem_error& problem, Diagnostics& diagnostics);

/// Writes a file anew. Throws std::filesystem::filesystem_error when it can not be written.
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

} // namespace ptn
