// What the cells have, kept while the common data is loaded anew.
#pragma once

#include "base/Types.h"

#include <string>
#include <vector>

namespace tessary
{

/// Copies of all cells that have anything in them, by code and place within it: with another code table the
/// same cells may have other numbers.
class KeptCells
{
  public:
    /// Takes the copies.
    KeptCells();

    /// Writes them back, without a trace in the log. Those whose code is gone, or has fewer cells now, are
    /// lost.
    void giveBack() const;

  private:
    struct Cell {
        std::string code;
        int offset;
        WORD word;
        double number;
        std::string text;
    };
    std::vector<Cell> cells_;
};

} // namespace tessary
