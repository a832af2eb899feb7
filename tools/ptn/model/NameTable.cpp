#include "tools/ptn/model/NameTable.h"

#include "tools/ptn/common/Names.h"

#include <algorithm>

namespace ptn
{

void NameTable::add(const std::string& name, int number)
{
    numbers_.emplace(name, number);
    names_.emplace(number, name);
}

std::string NameTable::nameOf(int number) const
{
    const auto place = names_.find(number);
    return place == names_.end() ? std::string() : place->second;
}

std::optional<int> NameTable::find(const Source& source, const Subject& attribute,
                                   Diagnostics& diagnostics) const
{
    const std::string text = source.text();
    const auto named = numbers_.find(text);
    if (named != numbers_.end())
        return named->second;
    const std::optional<int> number = ParseInteger(text);
    if (number && !nameOf(*number).empty())
        return number;

    std::vector<std::string> candidates;
    for (const auto& entry : numbers_)
        candidates.push_back(entry.first);
    const std::string found = source.isText() ? " " + Quoted(text) : "";
    diagnostics.error(source.place(), attribute,
                      ": this project has no {}{}.{} Define it in '{}' or use one that is there.", what_,
                      found, Suggestion(text, candidates), std::string(what_) + "s");
    return std::nullopt;
}

namespace
{

// "'no', 'text' and 'data'".
std::string Listed(const std::vector<std::string>& keys)
{
    std::string list;
    for (std::size_t i = 0; i < keys.size(); ++i)
        list += (i == 0 ? "" : i + 1 == keys.size() ? " and " : ", ") + Quoted(keys[i]);
    return list;
}

// The number and the value of an entry, whichever of the two forms it has.
std::optional<NumberedEntry> ReadEntry(const Entry& entry, const std::vector<std::string>& keys, int next,
                                       const NameTable& table, Diagnostics& diagnostics,
                                       const std::vector<std::string>& extras)
{
    const std::string& key = keys.front();
    const Subject what = std::string(table.what()) + " " + Quoted(entry.name);
    NumberedEntry read{entry.name, next, entry.place, key, entry.value, {}};
    std::vector<std::string> known = {"no"};
    known.insert(known.end(), keys.begin(), keys.end());
    known.insert(known.end(), extras.begin(), extras.end());
    if (entry.value.isMap()) {
        read.value = Source();
        for (const Entry& part : Entries(entry.value, what, diagnostics)) {
            if (std::find(keys.begin(), keys.end(), part.name) != keys.end()) {
                read.key = part.name;
                read.value = part.value;
            } else if (part.name == "no") {
                const auto number =
                    Integer(part.value, table.first(), table.limit() - 1, what + ": 'no'", diagnostics);
                if (!number)
                    return std::nullopt;
                read.number = *number;
            } else if (std::find(extras.begin(), extras.end(), part.name) != extras.end()) {
                read.extras[part.name] = part.value;
            } else {
                ReportUnknown(part, what + ": unknown", known, "Write " + Listed(known) + ".", diagnostics);
            }
        }
    }
    if (read.number >= table.limit()) {
        diagnostics.error(entry.place, what,
                          " would be number {}; the last is {}. Remove one, or number them with 'no'.",
                          read.number, table.limit() - 1);
        return std::nullopt;
    }
    if (read.value.isEmpty()) {
        diagnostics.error(entry.place, what,
                          " has no value. Write '{}' for it; a value that begins with '#' needs quotes.",
                          key);
        return std::nullopt;
    }
    return read;
}

} // namespace

std::vector<NumberedEntry> NumberedEntries(const Source& section, const std::vector<std::string>& keys,
                                           NameTable& table, Diagnostics& diagnostics,
                                           const std::vector<std::string>& extras)
{
    std::vector<NumberedEntry> read;
    int next = table.first();
    for (const Entry& entry : Entries(section, Quoted(std::string(table.what()) + "s"), diagnostics)) {
        const Subject what = std::string(table.what()) + " " + Quoted(entry.name);
        if (ParseInteger(entry.name) || entry.name == "none") {
            diagnostics.error(entry.place, what + " could be taken for a number. Choose another name.");
            continue;
        }
        const std::optional<NumberedEntry> numbered =
            ReadEntry(entry, keys, next, table, diagnostics, extras);
        if (!numbered)
            continue;
        next = numbered->number + 1;
        const std::string owner = table.nameOf(numbered->number);
        if (!owner.empty()) {
            diagnostics.error(entry.place, what, " has the number {}, as '{}' has. Give it another 'no'.",
                              numbered->number, owner);
            continue;
        }
        table.add(entry.name, numbered->number);
        read.push_back(*numbered);
    }
    return read;
}

} // namespace ptn
