// An item's copy of the cell that it is bound to.
#pragma once

#include "pattern/PtrnData.h"

namespace tessary
{

/// Brings the cached word, number and text of an item up to date with its cell; a data number outside the
/// store reads as an empty cell.
void ReadCell(PTRNDATA* item);

} // namespace tessary
