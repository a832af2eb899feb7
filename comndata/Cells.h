// The store of the cells, for the files of this folder: who owns their texts and has all digits of their
// numbers, and nothing of names and logs.
#pragma once

#include "comndata/CellData.h"

namespace tessary
{

/// Frees the cells and makes `count` new ones, all zero and without text; 0 leaves no store.
void CreateCells(int count);

/// True for the number of a cell.
bool HasCell(int no);

/// Gives a cell, which must be one, a number: all its digits, and the float nearest to it.
void StoreNumber(int no, double value);

/// The number of a cell, which must be one, with all its digits. The float counts where somebody has written
/// it alone.
double StoredNumber(int no);

/// Gives a cell, which must be one, a copy of a text: at most SIZE_SDATA bytes, never half of a two-byte
/// character.
/// @param text  may be what the cell holds already; null or empty leaves the cell without text
void StoreText(int no, const char* text);

/// Makes the text of a cell point at `text` without copying it. The text must live until the cell is
/// written, freed, or released by ReleaseText. A number outside the store is ignored.
void ShareText(int no, char* text);

/// Leaves the cell without text if it still shares `text`. A number outside the store is ignored.
void ReleaseText(int no, const char* text);

} // namespace tessary
