// The store of the cells: who owns their texts and has all digits of their numbers, and nothing of names and
// logs. For the files of this folder, and for those that look at all cells in every tick.
#pragma once

#include "comndata/CellData.h"

#include <cstddef>

namespace tessary
{

/// All digits of the cells' numbers, by data number; fewer than there are cells, or none, where a program
/// supplies the cells itself.
struct CellDigits {
    const double* numbers = nullptr;
    std::size_t count = 0;
    std::size_t finer = 0; ///< how many of them are finer than a float
};
extern CellDigits cellDigits;

/// Whether a number has digits that a float has not.
inline bool IsFiner(double number)
{
    return static_cast<double>(static_cast<float>(number)) != number;
}

/// Frees the cells and makes `count` new ones, all zero and without text; 0 leaves no store.
void CreateCells(int count);

/// True for the number of a cell.
inline bool HasCell(int no)
{
    return no >= 0 && no < PtrnDataNo;
}

/// Gives a cell, which must be one, a number: all its digits, and the float nearest to it.
void StoreNumber(int no, double value);

/// The number of a cell, which must be one, with all its digits. The float counts where somebody has written
/// it alone.
inline double StoredNumber(int no)
{
    const auto place = static_cast<std::size_t>(no);
    const float rounded = ComnData[no].fData;
    return place < cellDigits.count && static_cast<float>(cellDigits.numbers[place]) == rounded
               ? cellDigits.numbers[place]
               : static_cast<double>(rounded);
}

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
