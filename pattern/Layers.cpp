#include "pattern/Layers.h"

#include <algorithm>

namespace tessary
{

namespace
{

constexpr int GRID_SIZE = 32; ///< columns and rows

/// An item of more cells is looked at for every area instead of being entered in each.
constexpr int MOST_CELLS = 128;

/// A box is compared with this many of the largest ones, so that many boxes cost no more than each of them.
constexpr std::size_t MOST_COMPARED = 64;

int CellSize(int size)
{
    return std::max(1, (size + GRID_SIZE - 1) / GRID_SIZE);
}

int CellAt(int position, int size)
{
    return std::clamp(position / size, 0, GRID_SIZE - 1);
}

} // namespace

Layers::Layers(int items, SIZE size)
    : cell_{CellSize(size.cx), CellSize(size.cy)}, areas_(At(items)), numbers_(At(items)),
      ranks_(At(items), -1), entered_(At(items)), grid_(At(GRID_SIZE * GRID_SIZE))
{
}

void Layers::setOrder(const std::vector<int>& items)
{
    ranked_ = items;
    std::fill(ranks_.begin(), ranks_.end(), -1);
    for (std::size_t rank = 0; rank < items.size(); ++rank)
        ranks_[At(items[rank])] = static_cast<int>(rank);
}

Layers::Cells Layers::cellsOf(const Box& area) const
{
    return {CellAt(area.left, cell_.cx), CellAt(area.top, cell_.cy), CellAt(area.right - 1, cell_.cx) + 1,
            CellAt(area.bottom - 1, cell_.cy) + 1};
}

void Layers::setArea(int item, const Box& area)
{
    areas_[At(item)] = area;
    if (area.empty())
        return;
    // An item stays where it was entered before: what it covers is looked at whenever it is found.
    const Cells cells = Around(entered_[At(item)], cellsOf(area));
    if (!(cells == entered_[At(item)]))
        enter(item, cells);
}

void Layers::enter(int item, const Cells& cells)
{
    const Cells before = entered_[At(item)];
    entered_[At(item)] = cells;
    if (before.pixels() > MOST_CELLS)
        return;
    if (cells.pixels() > MOST_CELLS) {
        large_.push_back(item);
        return;
    }
    for (int row = cells.top; row < cells.bottom; ++row)
        for (int column = cells.left; column < cells.right; ++column)
            if (!Contains(before, {column, row, column + 1, row + 1}))
                grid_[At(row * GRID_SIZE + column)].push_back(item);
}

std::vector<int> Layers::meeting(const Box& area) const
{
    std::vector<int> found; // first their places in the order
    if (area.empty())
        return found;
    const auto consider = [&](const std::vector<int>& items) {
        for (const int item : items)
            if (ranks_[At(item)] >= 0 && Meet(areas_[At(item)], area))
                found.push_back(ranks_[At(item)]);
    };
    consider(large_);
    const Cells cells = cellsOf(area);
    for (int row = cells.top; row < cells.bottom; ++row)
        for (int column = cells.left; column < cells.right; ++column)
            consider(grid_[At(row * GRID_SIZE + column)]);
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    for (int& place : found)
        place = ranked_[At(place)];
    return found;
}

std::vector<Box> WithoutCovered(std::vector<Box> boxes)
{
    std::stable_sort(boxes.begin(), boxes.end(),
                     [](const Box& one, const Box& other) { return one.pixels() > other.pixels(); });
    std::vector<Box> kept;
    for (const Box& box : boxes) {
        const auto end = kept.begin() + static_cast<std::ptrdiff_t>(std::min(kept.size(), MOST_COMPARED));
        const auto covers = [&box](const Box& larger) { return Contains(larger, box); };
        if (!box.empty() && std::none_of(kept.begin(), end, covers))
            kept.push_back(box);
    }
    return kept;
}

} // namespace tessary
