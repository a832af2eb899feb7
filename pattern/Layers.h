// What lies where on the display: the area that each item was last drawn on, and who meets an area.
#pragma once

#include "base/Box.h"
#include "base/Types.h"
#include "comndata/Cells.h"

#include <vector>

namespace tessary
{

/// Items are named by their place in the file. The index is a grid of equal cells; what lies outside the
/// grid belongs to the cells at its edge.
class Layers
{
  public:
    /// @param items  how many there are; none of them was drawn yet
    /// @param size   of the drawable in pixels
    Layers(int items, SIZE size);

    /// The places of the items in the order of drawing; those of unknown type have none.
    void setOrder(const std::vector<int>& items);

    /// Where an item was last drawn; empty for nowhere.
    const Box& area(int item) const { return areas_[At(item)]; }
    void setArea(int item, const Box& area);

    /// The number that an item has shown last.
    double number(int item) const { return numbers_[At(item)]; }
    void setNumber(int item, double number)
    {
        finer_ -= IsFiner(numbers_[At(item)]) ? 1 : 0;
        finer_ += IsFiner(number) ? 1 : 0;
        numbers_[At(item)] = number;
    }
    /// Whether any item has shown digits that a float has not.
    bool anyFiner() const { return finer_ != 0; }

    /// Where the title bar's clock was drawn last.
    Box clock;

    /// Items that meet an area, in the order of drawing.
    std::vector<int> meeting(const Box& area) const;

  private:
    /// Columns and rows of the grid; the last ones are left out.
    using Cells = Box;

    static std::size_t At(int index) { return static_cast<std::size_t>(index); }
    Cells cellsOf(const Box& area) const;
    void enter(int item, const Cells& cells);

    SIZE cell_;
    std::vector<Box> areas_;
    std::vector<double> numbers_;
    std::size_t finer_ = 0;
    std::vector<int> ranks_;             ///< by item: its place in the order of drawing; -1 none
    std::vector<int> ranked_;            ///< the other way round
    std::vector<Cells> entered_;         ///< by item: where the grid has it
    std::vector<std::vector<int>> grid_; ///< row by row
    std::vector<int> large_;             ///< items of so many cells that they are in none
};

/// Leaves out empty boxes, and those that lie within another one, so that less is restored twice.
std::vector<Box> WithoutCovered(std::vector<Box> boxes);

} // namespace tessary
