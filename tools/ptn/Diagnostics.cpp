#include "tools/ptn/Diagnostics.h"

#include <algorithm>
#include <numeric>
#include <ostream>

void Diagnostics::add(const Place& place, const std::string& what, const char* kind, int& count)
{
    std::string line = place.file;
    if (place.line > 0)
        line += ":" + std::to_string(place.line);
    if (!line.empty())
        line += ": ";
    line += kind + what;
    if (!known_.insert(line).second)
        return;
    ++count;
    lines_.push_back(line);
}

void Diagnostics::print(std::ostream& out) const
{
    for (const std::string& line : lines_)
        out << line << '\n';
}

namespace
{

// Bytes to insert, remove or replace to get from one name to the other.
std::size_t EditDistance(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row[b.size()];
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
    return best ? " Did you mean " + Quoted(*best) + "?" : "";
}

std::string Quoted(const std::string& name)
{
    return "'" + name + "'";
}
