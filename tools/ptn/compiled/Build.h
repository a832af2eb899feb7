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
/// @return what has changed; none after an error, which is in `diagnostics`
/// Throws std::filesystem::filesystem_error when something can not be written; nothing is changed then
/// either.
std::optional<OutputReport> Build(const std::filesystem::path& source, const std::filesystem::path& output,
                                  Diagnostics& diagnostics);

} // namespace ptn
