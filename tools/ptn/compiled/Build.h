// "ptn build": from a folder of sources to a project directory and its profile.
#pragma once

#include "tools/ptn/common/Diagnostics.h"
#include "tools/ptn/compiled/Output.h"

#include <filesystem>
#include <optional>

namespace ptn
{

/// Builds `source` into the project directory `output` and the profile beside it. With any error, nothing
/// is changed.
/// @param header  where the constants for the program go (compiled/CellsHeader.h); empty for nowhere. A file
///                that this tool has not made is not replaced, which is an error
/// @param reseed  of files that the panel goes on writing
/// @return what has changed; none after an error, which is in `diagnostics`
/// Throws std::filesystem::filesystem_error when something can not be written; nothing is changed then
/// either.
std::optional<OutputReport> Build(const std::filesystem::path& source, const std::filesystem::path& output,
                                  const std::filesystem::path& header, Diagnostics& diagnostics,
                                  Reseed reseed = Reseed::Never);

/// Where the constants go unless somebody names another place: beside the profile.
std::filesystem::path DefaultHeader(const std::filesystem::path& output);

} // namespace ptn
