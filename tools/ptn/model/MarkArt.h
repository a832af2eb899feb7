// Marks drawn with letters.
#pragma once

#include "base/Types.h"
#include "draw/Resource.h"
#include "tools/ptn/common/Diagnostics.h"

#include <optional>
#include <string>

namespace ptn
{

/// Reads a picture of `size` pixels: one line per row, "." or a blank for background, "X" or "#" for
/// foreground. Rows and columns that are left out are background; a picture that is too large and any other
/// letter are reported.
std::optional<MARKDATA> ReadMarkArt(const std::string& art, SIZE size, const Subject& what,
                                    const Place& place, Diagnostics& diagnostics);

/// The reverse; empty for a mark without foreground. None when bits are set that no pixel shows.
std::optional<std::string> MarkArt(const MARKDATA& mark, SIZE size);

} // namespace ptn
