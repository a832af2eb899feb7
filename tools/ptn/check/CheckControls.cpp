#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/check/PlacedItems.h"

#include <algorithm>
#include <map>

namespace ptn
{

namespace
{

// Two with cells of their own may take turns: the program hides the one or the other.
bool TakeTurns(const PatternItem& one, const PatternItem& other)
{
    return !one.code.empty() && !other.code.empty() &&
           (one.code != other.code || one.record.ID_No != other.record.ID_No);
}

void CheckKeys(const Pattern& pattern, Diagnostics& diagnostics)
{
    std::map<std::pair<int, int>, std::size_t> known; // by parameter and value
    for (std::size_t i = 0; i < pattern.items.size(); ++i) {
        const PatternItem& item = pattern.items[i];
        const ItemClass* type = FindItemClass(item.record.Type);
        if (!type || !type->onlyActs)
            continue;
        for (const int index :
             {static_cast<int>(BUTN_KEY), static_cast<int>(BUTN_DEFAULT), static_cast<int>(BUTN_CANCEL)}) {
            const int value = item.record.Parm[index];
            if (!value)
                continue;
            const auto added = known.emplace(std::make_pair(index, value), i);
            const std::size_t first = added.first->second;
            if (added.second || TakeTurns(item, pattern.items[first]))
                continue;
            diagnostics.error(
                item.place, ItemName(item, i),
                ": has '{}: {}', as the {} has, which alone is pressed by it. Give it another, or none.",
                type->parm(index)->name, index == BUTN_KEY ? std::to_string(value) : std::string("yes"),
                ItemName(pattern.items[first], first).text());
        }
    }
}

bool Meet(const RECT& one, const RECT& other)
{
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

bool IsSame(const RECT& one, const RECT& other)
{
    return one.left == other.left && one.top == other.top && one.right == other.right &&
           one.bottom == other.bottom;
}

bool Contains(const RECT& outer, const RECT& inner)
{
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

class Overlaps
{
  public:
    Overlaps(const Pattern& pattern, const ProjectSource& project)
        : pattern_(pattern), placed_(pattern, project.resources)
    {
    }

    void check(Diagnostics& diagnostics) const
    {
        std::vector<std::size_t> controls;
        for (std::size_t i = 0; i < pattern_.items.size(); ++i)
            if (isControl(i))
                controls.push_back(i);
        for (auto one = controls.begin(); one != controls.end(); ++one)
            for (auto other = controls.begin(); other != one; ++other)
                if (isMistake(*other, *one))
                    diagnostics.error(pattern_.items[*one].place, ItemName(pattern_.items[*one], *one),
                                      ": overlaps the {}. Move one of them.",
                                      ItemName(pattern_.items[*other], *other).text());
    }

  private:
    bool isControl(std::size_t index) const
    {
        const ItemClass* type = placed_.facts[index]->type();
        return type && (type->operate || type->entry || type->part);
    }

    bool isMistake(std::size_t one, std::size_t other) const
    {
        const RECT& rect = placed_.rects[one];
        const RECT& otherRect = placed_.rects[other];
        if (!Meet(rect, otherRect))
            return false;
        const bool fields = placed_.facts[one]->type()->entry || placed_.facts[other]->type()->entry;
        const PatternItem& item = pattern_.items[one];
        const PatternItem& otherItem = pattern_.items[other];
        if (IsSame(rect, otherRect) && TakeTurns(item, otherItem) && !fields)
            return false;
        // A field on a control of the same cell is its caption; a press on it operates the control.
        const bool linked = item.code == otherItem.code && item.record.ID_No == otherItem.record.ID_No;
        return !(linked && fields && (Contains(rect, otherRect) || Contains(otherRect, rect)));
    }

    const Pattern& pattern_;
    PlacedItems placed_;
};

} // namespace

void CheckControls(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    CheckKeys(pattern, diagnostics);
    if (pattern.items.size() <= MOST_COMPARED_ITEMS)
        Overlaps(pattern, project).check(diagnostics);
}

} // namespace ptn
