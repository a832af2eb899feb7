// The code table: which code owns which cells of the common data.
#pragma once

#include "tools/ptn/Source.h"

#include <optional>
#include <string>
#include <vector>

class CodeTable
{
  public:
    /// A cell, named as pattern files name it.
    struct Cell {
        std::string code; ///< EUC-JP
        int offset = 0;   ///< within the code
        int count = 0;    ///< cells of the code
    };

    /// Reads the section "codes": "name: count" or "name: {first: number, count: count}". Without "first"
    /// the cells follow those of the code before, beginning with 1. Together the codes must cover every
    /// cell from 1 on exactly once, because the store is as large as their counts add up to.
    void read(const Source& section, Diagnostics& diagnostics);

    /// The cell that a source names: "CODE", "CODE+offset", or a plain cell number.
    std::optional<Cell> find(const Source& source, const std::string& attribute,
                             Diagnostics& diagnostics) const;

    /// The file "PtrnCode".
    std::string bytes() const;

  private:
    struct Row {
        std::string name; ///< UTF-8
        std::string code; ///< EUC-JP
        int first = 0;
        int count = 0;
        Place place;
    };

    std::optional<Row> readRow(const Entry& entry, int next, Diagnostics& diagnostics) const;
    void checkCover(const Place& section, Diagnostics& diagnostics) const;

    std::vector<Row> rows_;
};
