// A pattern as its file holds it.
#pragma once

#include "pattern/PatternRecords.h"
#include "tools/ptn/common/Diagnostics.h"

#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// Those of a source have texts within the lengths of the format.
struct PatternItem : tessary::PatternRecord {
    bool exact = false; ///< the source has given values that are taken as they stand
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

/// The reverse. @return none, with the reason reported, when the file is not exactly as long as it says
std::optional<Pattern> ParsePattern(const std::string& name, const std::string& bytes, const Place& place,
                                    Diagnostics& diagnostics);

} // namespace ptn
