// A pattern as its file holds it.
#pragma once

#include "pattern/PtrnFile.h"
#include "tools/ptn/Diagnostics.h"

#include <array>
#include <string>
#include <vector>

/// Texts are EUC-JP and within the lengths of the format.
struct PatternItem {
    PTRNFILE record{};
    std::array<std::string, 3> texts; ///< one per language
    std::string name;                 ///< ID_Name: the pattern that the action opens
    std::string code;                 ///< ID_Code
    Place place;
};

struct Pattern {
    std::string name; ///< of the file, without extension
    HEDRFILE header{};
    std::vector<PatternItem> items;
    Place place;
};

/// The whole pattern file. DataCount and TextSize of the header are filled in here.
std::string PatternBytes(const Pattern& pattern);
