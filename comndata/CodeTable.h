// The code table as the files of this folder see it.
#pragma once

#include "comndata/PtrnCode.h"

namespace tessary
{

/// Most rows that are read of a code table.
constexpr int CONT_PTRNCODE = 1000000;

/// Frees table, flags, names and cells.
void ExitCodeData();

/// The first row, in file order, whose block holds the data number; null when none does.
const PTRNCODE* FindCode(int no);

} // namespace tessary
