// Values of cells for a picture.
#pragma once

#include "tools/ptn/model/CodeTable.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// What one cell holds.
struct CellState {
    int cell = 0;
    float value = 0;
    std::string text; ///< EUC-JP
    unsigned short word = 0;
};

struct ScreenState {
    std::array<int, 7> clock{}; ///< as the clock cells hold it
    std::vector<CellState> cells;
};

/// Reads "clock: 2025-03-02 09:05:07" and "cells", which gives a value, a text, or
/// "{value, text, color: 0..3, blink, disabled, hidden}" for each cell, or a list of these for the cell and
/// those behind it. Without a file the clock stands at
/// 9 o'clock on 1 January 2025 and all cells are empty.
ScreenState ReadState(const std::string& file, const CodeTable& codes, Diagnostics& diagnostics);

} // namespace ptn
