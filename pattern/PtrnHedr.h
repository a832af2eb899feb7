// A pattern's header without its items.
#pragma once

#include "pattern/PtrnData.h"
#include "pattern/PtrnFile.h"

/// The header as held in memory, with the title in the current language. Every text is terminated, also
/// where a field of the record is full.
PTRNHEDR ConvertHedr(const HEDRFILE& record);
