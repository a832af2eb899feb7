#include "tools/ptn/check/PlacedItems.h"

#include <tuple>

namespace ptn
{

PlacedItems::PlacedItems(const Pattern& pattern, const Resources& resources)
{
    for (const PatternItem& item : pattern.items) {
        facts.push_back(std::make_unique<ItemFacts>(item, resources));
        rects.push_back(facts.back()->drawnRect());
    }
}

bool PlacedItems::isDrawnBefore(std::size_t one, std::size_t other) const
{
    return std::make_tuple(facts[one]->drawOrder(), one) < std::make_tuple(facts[other]->drawOrder(), other);
}

} // namespace ptn
