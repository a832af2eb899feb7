// The bytes of a pattern file taken apart and put together. For the loader and the authoring tool; needs
// neither files nor toolkit.
#pragma once

#include "base/Limits.h"
#include "pattern/PtrnFile.h"

#include <array>
#include <string>
#include <vector>

namespace tessary
{

/// One item: its record and its strings, EUC-JP.
struct PatternRecord {
    PTRNFILE record{};
    std::array<std::string, LANGUAGE_COUNT> texts; ///< one per language
    std::string name;                              ///< ID_Name
    std::string code;                              ///< ID_Code
};

/// What stands behind the header of a pattern file, as far as the bytes go: what the header claims is
/// believed no further.
struct PatternRecords {
    std::vector<PatternRecord> items;
    int textSize = 0;     ///< bytes of the text block that are there
    int textsUsed = 0;    ///< bytes of it that belong to strings
    int missingTexts = 0; ///< strings without their terminator; they and all behind them count as empty
    int left = 0;         ///< bytes behind the text block
};

/// Takes apart the bytes that follow the header.
PatternRecords TakePatternRecords(const HEDRFILE& header, const std::string& bytes);

/// The whole file. The header's DataCount and TextSize are filled in.
std::string PatternFileBytes(HEDRFILE header, const std::vector<PatternRecord>& items);

} // namespace tessary
