// The items of a screen beside each other.
#pragma once

#include "tools/ptn/model/ItemFacts.h"

#include <memory>
#include <vector>

namespace ptn
{

/// Most items of a screen that are compared each with each, which takes time by the square of their number.
constexpr std::size_t MOST_COMPARED_ITEMS = 5000;

/// For the moment, as the facts are.
struct PlacedItems {
    PlacedItems(const Pattern& pattern, const Resources& resources);

    std::vector<std::unique_ptr<ItemFacts>> facts; ///< in the order of the file
    std::vector<RECT> rects;                       ///< what each covers when it is drawn

    /// Whether one is drawn before another one, which thus lies above it where they meet.
    bool isDrawnBefore(std::size_t one, std::size_t other) const;
};

} // namespace ptn
