// The code table and the log flags, for the files above: which block of data numbers belongs to which code.
#pragma once

#include "comndata/CodeData.h"

#include <string>

namespace tessary
{

/// Most rows that are read of a code table.
constexpr int CONT_PTRNCODE = 1000000;

/// Loads "PtrnCode" and "PtrnFlag", see LoadCodeData, and creates the cells.
void LoadCodeTable();

/// Writes the flags back.
/// @return false when that failed, or when the file could not be read before: it is left alone then
bool SaveFlags();

/// Frees table, flags and cells.
void ExitCodeTable();

/// A number that is another one after every load of the code table; 0 while there is none.
unsigned CodeTableGeneration();

/// The code of a row, which may fill its field.
std::string CodeOf(const PTRNCODE& row);

/// Position of a data number within a row's block; outside the block when it is negative or not below its
/// `DataCount`. Counted in 64 bits, because `DataNo` may be any number.
std::int64_t OffsetIn(const PTRNCODE& row, int no);

/// The first row, in file order, whose block holds the data number; null when none does.
const PTRNCODE* FindCode(int no);

/// The first row, in file order, with exactly this code; null when there is none.
const PTRNCODE* FindCode(const char* code);

} // namespace tessary
