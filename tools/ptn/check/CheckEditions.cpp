#include "base/BuiltIn.h"
#include "config/Edition.h"
#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/check/PlacedItems.h"

#include <algorithm>
#include <map>
#include <set>

namespace ptn
{

namespace
{

/// What a screen uses of what a later edition corrects: the first place of each row, and how many more.
class Uses
{
  public:
    Uses(const Pattern& pattern, int edition) : pattern_(pattern), edition_(edition) {}

    /// Whether the project is of an edition without that row.
    bool lacks(Correction row) const { return !Has(row, edition_); }

    /// Adds an item, which counts once for a row.
    /// @param what  what is surprising, as it goes on from the item's name
    void add(Correction row, std::size_t item, const std::string& what)
    {
        if (!lacks(row))
            return;
        Use& use = uses_[row];
        if (use.items.empty())
            use.what = what;
        use.items.insert(item);
    }

    void report(Diagnostics& remarks) const
    {
        for (const auto& [row, use] : uses_) {
            const std::size_t first = *use.items.begin();
            const PatternItem& item = pattern_.items[first];
            const std::string more =
                use.items.size() > 1 ? fmt::format(" (and {} more)", use.items.size() - 1) : "";
            const EditionRow& correction = RowOf(row);
            remarks.warning(item.place,
                            ItemName(item, first) + more +
                                fmt::format(": [edition {}: {}] {}. Set 'edition: {}' in project.yaml.",
                                            correction.edition, correction.name, use.what,
                                            correction.edition));
        }
    }

  private:
    struct Use {
        std::string what;
        std::set<std::size_t> items;
    };
    const Pattern& pattern_;
    int edition_;
    std::map<Correction, Use> uses_;
};

bool IsBound(const PatternItem& item)
{
    return !item.code.empty();
}

bool HaveOneCell(const PatternItem& one, const PatternItem& other)
{
    return one.code == other.code && one.record.ID_No == other.record.ID_No;
}

// Lines have no area, and their ends may be in any order.
bool Meet(const RECT& one, const RECT& other)
{
    const auto overlap = [](int a, int b, int c, int d) {
        const auto [begin, end] = std::minmax(a, b);
        const auto [from, to] = std::minmax(c, d);
        return begin < std::max(to, from + 1) && from < std::max(end, begin + 1);
    };
    return overlap(one.left, one.right, other.left, other.right) &&
           overlap(one.top, one.bottom, other.top, other.bottom);
}

// --- numbers -------------------------------------------------------------------------------------------

std::string Shown(const NumberField& field, double value)
{
    return field.hexadecimal ? fmt::format("{:X}", static_cast<long long>(value))
                             : fmt::format("{:.{}f}", value, std::max(0, field.decimals));
}

void FindNumber(std::size_t index, const PatternItem& item, const NumberField& field,
                const std::optional<ValueRange>& row, Uses& uses)
{
    if (field.grouping && !field.hexadecimal)
        uses.add(Correction::Grouping, index,
                 field.decimals ? "its separators are left out of numbers with decimals"
                                : "its separators may push digits out of the field");
    std::optional<ValueRange> range = row;
    if (field.limited())
        range = ValueRange{field.minimum, field.maximum};
    if (field.entry && !field.hexadecimal && IsBound(item) && (!range || range->minimum < 0))
        uses.add(Correction::EntrySign, index, "a '-' stands where the cursor is when it is typed");
    if (field.entry && row)
        uses.add(Correction::LimitsBind, index, "its row of 'limits' refuses no entry");
    if (!range)
        return;
    for (const double end : {range->minimum, range->maximum})
        if (const std::string text = Shown(field, end); text.size() > static_cast<std::size_t>(field.width))
            uses.add(
                Correction::NumberRoom, index,
                fmt::format("{} does not fit its {} characters and is drawn beyond them", text, field.width));
}

// --- one item over another -----------------------------------------------------------------------------

// What is drawn above an item that changes, and is not drawn again with it.
std::optional<std::size_t> FindAbove(std::size_t below, const Pattern& pattern, const PlacedItems& placed)
{
    const PatternItem& item = pattern.items[below];
    if (!IsBound(item) && !placed.facts[below]->blinks())
        return std::nullopt;
    for (std::size_t above = 0; above < pattern.items.size(); ++above) {
        const PatternItem& other = pattern.items[above];
        // Nobody lays out a text of no cell over another text, but over a box that takes the colour of a
        // state.
        const bool lost = IsBound(other) || placed.facts[below]->isOpaque();
        if (above != below && lost && placed.facts[above]->type() && !HaveOneCell(item, other) &&
            placed.isDrawnBefore(below, above) && Meet(placed.rects[below], placed.rects[above]))
            return above;
    }
    return std::nullopt;
}

void FindLayers(const Pattern& pattern, const PlacedItems& placed, Uses& uses)
{
    if (!uses.lacks(Correction::Layers) || pattern.items.size() > MOST_COMPARED_ITEMS)
        return;
    for (std::size_t i = 0; i < pattern.items.size(); ++i) {
        if (!placed.facts[i]->type())
            continue;
        if (placed.facts[i]->overprints())
            uses.add(Correction::Layers, i, "without a background its values are drawn over each other");
        if (const auto above = FindAbove(i, pattern, placed))
            uses.add(Correction::Layers, i,
                     "when it changes it is drawn over the " +
                         ItemName(pattern.items[*above], *above).text());
    }
}

// --- keys ----------------------------------------------------------------------------------------------

/// Which screens are in front of others, and which have others in front of them.
class Fronts
{
  public:
    explicit Fronts(const std::vector<Pattern>& patterns)
        : inFront_{tessary::VERSION_PATTERN, tessary::MAINTENANCE_PATTERN}
    {
        std::set<std::string> modal;
        for (const Pattern& pattern : patterns)
            if (pattern.header.Parm1[HEDR_MODELESS] == 0)
                modal.insert(pattern.name);
        for (const Pattern& pattern : patterns)
            for (const PatternItem& item : pattern.items)
                add(pattern.name, item, modal.count(item.name) > 0);
    }

    /// Whether keys may be meant for another window than this one, or for this one alone.
    bool concern(const std::string& pattern) const
    {
        return inFront_.count(pattern) > 0 || covered_.count(pattern) > 0;
    }

  private:
    void add(const std::string& pattern, const PatternItem& item, bool modal)
    {
        switch (item.record.ID_Type) {
        case ACTION_OPEN_CHILD1:
        case ACTION_OPEN_CHILD2:
            inFront_.insert(item.name);
            if (modal)
                covered_.insert(pattern);
            break;
        case ACTION_OPEN_SYSTEM:
            inFront_.insert(item.name);
            covered_.insert(pattern);
            break;
        case ACTION_VERSION:
        case ACTION_MAINTENANCE:
            covered_.insert(pattern);
            break;
        default:
            break;
        }
    }

    std::set<std::string> inFront_;
    std::set<std::string> covered_;
};

// --- all of it -----------------------------------------------------------------------------------------

// Attributes that only a later edition gives a meaning.
void FindAttributes(std::size_t index, const PatternItem& item, const ItemClass& type, Uses& uses)
{
    for (const ParmSchema& parm : type.parms)
        if (parm.since && item.record.Parm[parm.index] != parm.initial)
            uses.add(*parm.since, index, fmt::format("'{}' has no effect", parm.name));
}

void FindUses(const Pattern& pattern, const ProjectSource& project, const Fronts& fronts, Uses& uses)
{
    const PlacedItems placed(pattern, project.resources);
    const bool keys = fronts.concern(pattern.name);
    for (std::size_t i = 0; i < pattern.items.size(); ++i) {
        const PatternItem& item = pattern.items[i];
        const ItemFacts& facts = *placed.facts[i];
        if (!facts.type())
            continue;
        if (facts.wheelSteps())
            uses.add(Correction::SpinWheel, i, "the wheel over it changes what was pressed last");
        if (keys && facts.takesKeys())
            uses.add(Correction::KeysToFront, i, "keys reach every open window, not only the one in front");
        if (const auto field = facts.number())
            FindNumber(i, item, *field, project.limits.rangeOf(item.code, item.record.ID_No), uses);
        FindAttributes(i, item, *facts.type(), uses);
    }
    FindLayers(pattern, placed, uses);
}

} // namespace

void CheckEditions(const std::vector<Pattern>& patterns, const ProjectSource& project, Diagnostics& remarks)
{
    const int edition = project.profile.edition();
    if (edition == LATEST_EDITION)
        return;
    const Fronts fronts(patterns);
    for (const Pattern& pattern : patterns) {
        Uses uses(pattern, edition);
        FindUses(pattern, project, fronts, uses);
        uses.report(remarks);
    }
}

} // namespace ptn
