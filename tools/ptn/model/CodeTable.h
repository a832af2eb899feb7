// The code table: which code owns which cells of the common data.
#pragma once

#include "tools/ptn/yaml/Source.h"

#include <optional>
#include <string>
#include <vector>

namespace ptn
{

class CodeTable
{
  public:
    /// A cell, named as pattern files name it.
    struct Cell {
        std::string code; ///< EUC-JP
        int offset = 0;   ///< within the code
        int count = 0;    ///< cells of the code
    };

    /// Reads the section "codes": "name: count" or "name: {first: number, count: count, line: number}".
    /// Without "first" the cells follow those of the code before, beginning with 1. Together the codes must
    /// cover every cell from 1 on exactly once, because the store is as large as their counts add up to.
    void read(const Source& section, Diagnostics& diagnostics);

    /// The cell that a source names: "CODE", "CODE+offset" (several offsets add up), or a plain cell number.
    std::optional<Cell> find(const Source& source, const Subject& attribute, Diagnostics& diagnostics) const;

    /// The same for a name that is the key of a mapping.
    std::optional<Cell> find(const std::string& text, const Subject& attribute, const Place& place,
                             Diagnostics& diagnostics) const;

    struct Row {
        std::string name; ///< UTF-8
        std::string code; ///< EUC-JP
        int first = 0;
        int count = 0;
        Place place;
        int line = 0; ///< first line of the code on the maintenance screen

        /// The cell after the last one; a damaged table may have it beyond an int.
        long long end() const { return 0LL + first + count; }
        bool covers(int cell) const { return first <= cell && cell < end(); }
    };
    const std::vector<Row>& rows() const { return rows_; }
    /// The row of a code as pattern files name it, as the program finds it; null when there is none.
    const Row* row(const std::string& code) const;
    /// Cells of the store: all codes together, and cell 0.
    int cells() const;
    /// The name of a cell in sources, "CODE+offset"; empty when no code covers it.
    std::string nameOf(int cell) const;

    /// The file "PtrnCode", and the reverse.
    std::string bytes() const;
    void load(const std::string& bytes, const Place& place, Diagnostics& diagnostics);
    /// The section "codes".
    std::string yaml() const;

  private:
    std::optional<Row> readRow(const Entry& entry, int next, Diagnostics& diagnostics) const;
    void checkCover(const Place& section, Diagnostics& diagnostics) const;

    std::vector<Row> rows_;
};

} // namespace ptn
