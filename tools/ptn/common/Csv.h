// Tables with commas between their fields.
#pragma once

#include <string>
#include <vector>

namespace ptn
{

struct CsvRow {
    int line = 0; ///< from 1
    std::vector<std::string> fields;
};

/// Fields in double quotes may hold commas, line ends and doubled quotes; other quotes are taken as they
/// are. Empty lines are left out; a carriage return before a line end belongs to it.
std::vector<CsvRow> ParseCsv(const std::string& text);

/// A field, quoted when it has to be.
std::string CsvField(const std::string& text);

} // namespace ptn
