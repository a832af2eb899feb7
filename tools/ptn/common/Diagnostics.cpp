#include "tools/ptn/common/Diagnostics.h"

#include <algorithm>
#include <ostream>

namespace ptn
{

namespace
{

// Where "item 1.2.3" or "button at 16,64" at the beginning ends. A line of a group is an item of every use of
// it, and yet one mistake.
std::size_t ItemLabelEnd(const std::string& what)
{
    static const std::string item = "item ";
    if (what.compare(0, item.size(), item) == 0)
        return std::min(what.find_first_not_of("0123456789.", item.size()), what.size());
    static const std::string at = " at ";
    const std::size_t type = what.find_first_not_of("abcdefghijklmnopqrstuvwxyz-");
    if (type == std::string::npos || what.compare(type, at.size(), at) != 0)
        return 0;
    return std::min(what.find_first_not_of("0123456789,-", type + at.size()), what.size());
}

} // namespace

void Diagnostics::add(const Place& place, const std::string& what, const char* kind, int& count)
{
    std::string line = place.file;
    if (place.line > 0)
        line += ":" + std::to_string(place.line);
    if (!line.empty())
        line += ": ";
    line += kind;
    const std::size_t label = place.line > 0 ? ItemLabelEnd(what) : 0;
    if (!known_.insert(line + what.substr(label)).second)
        return;
    line += what;
    ++count;
    lines_.push_back(line);
}

void Diagnostics::add(const Diagnostics& others)
{
    for (const std::string& line : others.lines_) {
        if (!known_.insert(line).second)
            continue;
        ++warnings_;
        lines_.push_back(line);
    }
}

void Diagnostics::print(std::ostream& out) const
{
    for (const std::string& line : lines_)
        out << line << '\n';
}

namespace
{

// Bytes to insert, remove, replace or swap with their neighbour to get from one name to the other.
std::size_t EditDistance(const std::string& a, const std::string& b)
{
    std::vector<std::vector<std::size_t>> rows(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                rows[i][j] = i + j;
                continue;
            }
            const std::size_t replaced = rows[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            rows[i][j] = std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
        }
    }
    return rows[a.size()][b.size()];
}

// The candidate that the name is short for; null when there is none or more than one.
const std::string* OnlyLongForm(const std::string& name, const std::vector<std::string>& candidates)
{
    constexpr std::size_t shortest = 3;
    const std::string* found = nullptr;
    for (const std::string& candidate : candidates) {
        if (name.size() < shortest || candidate.compare(0, name.size(), name) != 0)
            continue;
        if (found)
            return nullptr;
        found = &candidate;
    }
    return found;
}

} // namespace

std::string Suggestion(const std::string& name, const std::vector<std::string>& candidates)
{
    // Long enough for any name of a project; a wrong value may be a whole paragraph.
    constexpr std::size_t longest = 100;
    if (name.size() > longest)
        return "";
    std::size_t closest = std::max<std::size_t>(1, name.size() / 3) + 1;
    const std::string* best = nullptr;
    for (const std::string& candidate : candidates) {
        const std::size_t distance = EditDistance(name, candidate);
        if (distance < closest) {
            closest = distance;
            best = &candidate;
        }
    }
    if (!best)
        best = OnlyLongForm(name, candidates);
    return best ? " Did you mean " + Quoted(*best) + "?" : "";
}

std::string Quoted(const std::string& name)
{
    return "'" + name + "'";
}

} // namespace ptn
