#include "tools/ptn/source/ItemList.h"

#include "pattern/ItemParm.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/source/Placement.h"

#include <algorithm>
#include <set>

namespace ptn
{

namespace
{

/// Parts within parts, and copies; more than any screen has.
constexpr int MAX_DEPTH = 16;
constexpr std::size_t MAX_ITEMS = 100000;

/// Entries of a screen with its groups written out: those in groups count as often as these are used.
constexpr std::size_t MAX_ENTRIES = 20000;

/// The same of all screens of a project.
constexpr std::size_t MAX_PROJECT_ITEMS = 300000;
constexpr std::size_t MAX_PROJECT_ENTRIES = 200000;

using Items = std::vector<PatternItem>;

/// Copies that "repeat" makes.
struct Repeat {
    int columns = 1;
    int rows = 0; ///< 0: the copies follow each other along one line
    int dx = 0;
    int dy = 0;
    int data = 1; ///< cells from one copy to the next
    int count() const { return columns * std::max(rows, 1); }
    long long x(int copy) const { return 1LL * dx * (rows ? copy % columns : copy); }
    long long y(int copy) const { return 1LL * dy * (rows ? copy / columns : copy); }
};

Repeat ReadRepeat(const Source& source, const Subject& label, Diagnostics& diagnostics)
{
    Repeat repeat;
    for (const Entry& entry : Entries(source, label, diagnostics)) {
        if (entry.name == "count" && entry.value.isList()) {
            const auto both = Integers(entry.value, 2, label + " 'count'", diagnostics);
            if (both && ((*both)[0] < 1 || (*both)[1] < 1 || (*both)[0] > 1000 || (*both)[1] > 1000))
                diagnostics.error(entry.place, label + " 'count' must be from 1 to 1000 columns and rows.");
            else if (both)
                repeat.columns = (*both)[0], repeat.rows = (*both)[1];
        } else if (entry.name == "count") {
            repeat.columns = Integer(entry.value, 1, 1000, label + " 'count'", diagnostics).value_or(1);
        } else if (entry.name == "step") {
            if (const auto step = Integers(entry.value, 2, label + " 'step'", diagnostics))
                repeat.dx = (*step)[0], repeat.dy = (*step)[1];
        } else if (entry.name == "data") {
            repeat.data = Integer(entry.value, 0, 1000, label + " 'data'", diagnostics).value_or(1);
        } else {
            ReportUnknown(entry, label + ": unknown", {"count", "step", "data"},
                          "Write 'count', 'step' and 'data'.", diagnostics);
        }
    }
    return repeat;
}

class ListReader
{
  public:
    explicit ListReader(const ItemContext& context) : context_(context), diagnostics_(context.diagnostics) {}

    Items readAll(const Source& list);

  private:
    Items readList(const Source& list, const std::string& number, int depth);
    Items readEntry(const Source& source, const std::string& number, int depth);
    Items readPart(const std::vector<Entry>& entries, const Source& source, Subject& label,
                   const std::string& number, int depth);
    Source groupItems(const Entry& use, const std::vector<Entry>& entries, const Subject& label);
    Items arrange(std::vector<Items> parts, const Source& grid, const Subject& label);
    Items repeated(const Items& items, const Entry& repeat, const Subject& label, const Place& place);
    bool move(Items& items, long long dx, long long dy, const Subject& label, const Place& place);

    const ItemContext& context_;
    Diagnostics& diagnostics_;
    bool hasRoom(std::size_t items, const Subject& label, const Place& place);

    std::size_t entries_ = 0; ///< that were read
    std::size_t made_ = 0;    ///< items
    bool full_ = false;       ///< and it was reported
};

// Takes room for that many items, wherever in the screen they are; reports it once when there is none.
bool ListReader::hasRoom(std::size_t items, const Subject& label, const Place& place)
{
    made_ += items;
    Amount& amount = context_.amount;
    amount.items += items;
    if (!amount.full && (amount.items > MAX_PROJECT_ITEMS || amount.entries > MAX_PROJECT_ENTRIES)) {
        amount.full = full_ = true;
        diagnostics_.error(
            place, label,
            ": the project gets more than {} items, or has more than {} entries with its groups "
            "written out. Use fewer.",
            MAX_PROJECT_ITEMS, MAX_PROJECT_ENTRIES);
    }
    full_ = full_ || amount.full;
    if (full_ || (made_ <= MAX_ITEMS && entries_ <= MAX_ENTRIES))
        return !full_;
    full_ = true;
    if (made_ > MAX_ITEMS)
        diagnostics_.error(place, label, ": the screen gets more than {} items. Repeat less.", MAX_ITEMS);
    else
        diagnostics_.error(place, label,
                           ": the screen has more than {} entries with its groups written out. Use fewer, or "
                           "'repeat'.",
                           MAX_ENTRIES);
    return false;
}

const Entry* Find(const std::vector<Entry>& entries, const char* name)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

bool ListReader::move(Items& items, long long dx, long long dy, const Subject& label, const Place& place)
{
    for (PatternItem& item : items) {
        std::int32_t* parm = item.record.Parm;
        if ((dx || dy) && !Placement::reaches(parm, dx, dy)) {
            diagnostics_.error(place, label + " reaches beyond the coordinates, which go from -32768 to "
                                              "32767. Repeat less or in smaller steps.");
            return false;
        }
        for (const int index : {PARM_X1, PARM_X2})
            parm[index] = static_cast<std::int32_t>(parm[index] + dx);
        for (const int index : {PARM_Y1, PARM_Y2})
            parm[index] = static_cast<std::int32_t>(parm[index] + dy);
    }
    return true;
}

Items ListReader::repeated(const Items& items, const Entry& entry, const Subject& label, const Place& place)
{
    const Repeat repeat = ReadRepeat(entry.value, label + ": 'repeat'", diagnostics_);
    Items all;
    for (int copy = 0; copy < repeat.count(); ++copy) {
        // The first one is the one that was read.
        if (copy && !hasRoom(items.size(), label, place))
            return {};
        Items moved = items;
        for (PatternItem& item : moved) {
            const CodeTable::Row* row =
                item.code.empty() || item.exact ? nullptr : context_.project.codes.row(item.code);
            if (!row)
                continue;
            const long long last = item.record.ID_No + (repeat.count() - 1LL) * repeat.data;
            if (last >= row->count) {
                diagnostics_.error(
                    place, label,
                    ": 'repeat' ends with cell +{} of a code of {} cells. Repeat less, or extend the code.",
                    last, row->count);
                return {};
            }
            item.record.ID_No += copy * repeat.data;
        }
        if (!move(moved, repeat.x(copy), repeat.y(copy), label + " with its repetitions", place))
            return {};
        all.insert(all.end(), moved.begin(), moved.end());
    }
    return all;
}

// The items of a group, with the arguments of this use in them.
Source ListReader::groupItems(const Entry& use, const std::vector<Entry>& entries, const Subject& label)
{
    const Groups::Group* group = context_.groups.find(use.value.text());
    if (!group)
        group = context_.project.groups.find(use.value.text());
    if (!group) {
        std::vector<std::string> names = context_.groups.names();
        for (const std::string& name : context_.project.groups.names())
            names.push_back(name);
        diagnostics_.error(use.place, label, ": no group '{}'.{} Add it to 'groups' or use another.",
                           use.value.text(), Suggestion(use.value.text(), names));
        return {};
    }
    if (group->circular)
        return {};
    const auto arguments = std::make_shared<Arguments>(group->parameters);
    for (const Entry& entry : entries) {
        if (entry.name == "use" || entry.name == "at" || entry.name == "repeat")
            continue;
        if (!group->parameters.count(entry.name)) {
            std::vector<std::string> names = {"at", "repeat"};
            for (const auto& parameter : group->parameters)
                names.push_back(parameter.first);
            diagnostics_.error(entry.place, label,
                               ": the group has no parameter '{}'.{} Correct or remove it.", entry.name,
                               Suggestion(entry.name, names));
            continue;
        }
        (*arguments)[entry.name] = entry.value;
    }
    for (const auto& argument : *arguments) {
        if (!argument.second.isEmpty())
            continue;
        diagnostics_.error(use.place, label, ": the group needs '{}'. Write a value for it.", argument.first);
        return {};
    }
    return group->items.with(arguments, use.place);
}

// Puts the entries of a part side by side, and below each other.
Items ListReader::arrange(std::vector<Items> parts, const Source& grid, const Subject& label)
{
    int columns = 0;
    std::vector<int> step;
    std::set<std::string> given;
    for (const Entry& entry : Entries(grid, label + ": 'grid'", diagnostics_)) {
        given.insert(entry.name);
        if (entry.name == "columns")
            columns = Integer(entry.value, 1, 1000, label + ": 'grid' 'columns'", diagnostics_).value_or(0);
        else if (entry.name == "step")
            step = Integers(entry.value, 2, label + ": 'grid' 'step'", diagnostics_).value_or(step);
        else
            ReportUnknown(entry, label + ": 'grid': unknown", {"columns", "step"},
                          "Write 'columns' and 'step'.", diagnostics_);
    }
    if (!grid.isEmpty() && (!given.count("columns") || !given.count("step")))
        diagnostics_.error(grid.place(), label + ": 'grid' needs 'columns' and 'step: [dx, dy]'.");
    Items all;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const int no = static_cast<int>(i);
        if (columns && !step.empty() &&
            !move(parts[i], 1LL * step[0] * (no % columns), 1LL * step[1] * (no / columns), label,
                  grid.place()))
            return {};
        all.insert(all.end(), parts[i].begin(), parts[i].end());
    }
    return all;
}

Items ListReader::readPart(const std::vector<Entry>& entries, const Source& source, Subject& label,
                           const std::string& number, int depth)
{
    const Entry* use = Find(entries, "use");
    label += use ? " (" + use->value.text() + ")" : "";
    if (depth >= MAX_DEPTH) {
        diagnostics_.error(source.place(),
                           label + ": groups within groups go too deep. A group can not use itself.");
        return {};
    }
    std::vector<Items> parts;
    if (use) {
        parts.push_back(readList(groupItems(*use, entries, label), number, depth + 1));
    } else {
        for (const Entry& entry : entries)
            if (entry.name != "items" && entry.name != "at" && entry.name != "repeat" && entry.name != "grid")
                ReportUnknown(entry, label + ": unknown", {"at", "grid", "items", "repeat"},
                              "Items that belong together have items, at, grid and repeat.", diagnostics_);
        const Source list = Find(entries, "items")->value;
        if (!list.isList())
            diagnostics_.error(list.place(), label + ": 'items' must be a list. Begin each item with '-'.");
        int place = 0;
        for (const Source& member : list.members())
            parts.push_back(readEntry(member, number + "." + std::to_string(++place), depth + 1));
    }
    const Entry* grid = use ? nullptr : Find(entries, "grid");
    Items items = arrange(std::move(parts), grid ? grid->value : Source(), label);
    if (const Entry* at = Find(entries, "at"))
        if (const auto offset = Integers(at->value, 2, label + ": 'at'", diagnostics_))
            if (!move(items, (*offset)[0], (*offset)[1], label, at->place))
                return {};
    return items;
}

Items ListReader::readEntry(const Source& source, const std::string& number, int depth)
{
    Subject label = Subject::oneOf("item " + number);
    ++entries_;
    ++context_.amount.entries;
    if (!hasRoom(0, label, source.place()))
        return {};
    const std::vector<Entry> entries = SpelledOut(Entries(source, label, diagnostics_), label, diagnostics_);
    if (source.isEmpty()) {
        diagnostics_.error(source.place(), label + " is empty. Write its type and attributes, or remove it.");
        return {};
    }
    Items items;
    if (!Find(entries, "type") && (Find(entries, "use") || Find(entries, "items"))) {
        items = readPart(entries, source, label, number, depth);
    } else if (const auto item = ReadItem(source, entries, label, context_);
               item && hasRoom(1, label, source.place())) {
        items = {*item};
    }
    const Entry* repeat = Find(entries, "repeat");
    return repeat && !items.empty() ? repeated(items, *repeat, label, source.place()) : items;
}

// Of a screen with too many items the first ones alone would only be in the way.
Items ListReader::readAll(const Source& list)
{
    Items items = readList(list, "", 0);
    return full_ ? Items() : items;
}

Items ListReader::readList(const Source& list, const std::string& number, int depth)
{
    Items items;
    int place = 0;
    for (const Source& member : list.members())
        for (PatternItem& item :
             readEntry(member, (number.empty() ? "" : number + ".") + std::to_string(++place), depth))
            items.push_back(std::move(item));
    return items;
}

} // namespace

std::vector<PatternItem> ReadItems(const Source& list, const Subject& what, const ItemContext& context)
{
    if (!list.isEmpty() && !list.isList()) {
        context.diagnostics.error(list.place(), what + " must be a list. Begin each item with '-'.");
        return {};
    }
    return ListReader(context).readAll(list);
}

} // namespace ptn
