// The items of a screen, and what saves writing many of them: repetition, parts of a screen that are moved
// together, grids, and groups that are used again.
#pragma once

#include "tools/ptn/source/ItemSource.h"

#include <vector>

namespace ptn
{

/// Reads a list of entries. Each is an item, "items: [...]" with entries of its own, or "use: group".
/// @param what  how messages call the list
std::vector<PatternItem> ReadItems(const Source& list, const Subject& what, const ItemContext& context);

} // namespace ptn
