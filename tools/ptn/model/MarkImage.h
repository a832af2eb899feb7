// Marks from picture files.
#pragma once

#include "base/Types.h"
#include "draw/Resource.h"
#include "tools/ptn/common/Diagnostics.h"

#include <filesystem>
#include <optional>

namespace ptn
{

/// Reads a PNG, XBM or other picture file of a panel's formats, of exactly `size` pixels: dark pixels become
/// foreground, light and transparent ones background. Anything else is reported.
std::optional<MARKDATA> ReadMarkImage(const std::filesystem::path& file, SIZE size, const Subject& what,
                                      const Place& place, Diagnostics& diagnostics);

} // namespace ptn
