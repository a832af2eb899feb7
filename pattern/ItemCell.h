// An item and the cell that it shows.
#pragma once

#include "base/EucText.h"
#include "comndata/Cells.h"
#include "comndata/ComnData.h"
#include "config/Edition.h"
#include "pattern/PtrnData.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace tessary
{

/// The cell of an item; outside the store that which every number reads there.
inline const COMNDATA& CellOf(const PTRNDATA& item)
{
    static constexpr COMNDATA NO_CELL{};
    return HasCell(item.DataNo) ? ComnData[item.DataNo] : NO_CELL;
}

/// A cell may hold one byte more than the cached copy, which then is what Get_sData makes of it.
inline bool SameText(const PTRNDATA& item, const char* text)
{
    if (!text)
        return item.sData[0] == '\0';
    return std::strcmp(text, item.sData) == 0 ||
           std::strcmp(Get_sData(item.DataNo, nullptr, 0), item.sData) == 0;
}

/// Also when both are no number.
inline bool SameNumber(double one, double other)
{
    return one == other || (std::isnan(one) && std::isnan(other));
}

/// Brings the cached word, number and text of an item up to date with its cell; a data number outside the
/// store reads as an empty cell.
void ReadCell(PTRNDATA* item);

/// The number of a cell as items show it.
inline double CellNumber(int dataNo)
{
    return Has(Correction::LargeNumbers) ? Get_dData(dataNo, nullptr, 0)
                                         : static_cast<double>(Get_fData(dataNo, nullptr, 0));
}

/// The number of an item, with all the digits that its cell has of it. An item that a screen class has given
/// another number than its cell's has that one.
inline double ItemNumber(const PTRNDATA* item)
{
    const double number = CellNumber(item->DataNo);
    return static_cast<float>(number) == item->fData ? number : static_cast<double>(item->fData);
}

/// A number truncated towards zero and held within the range of an int; 0 for what is no number.
inline int ItemInteger(double number)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return std::isnan(number) ? 0 : static_cast<int>(std::clamp(number, lowest, highest));
}

} // namespace tessary
