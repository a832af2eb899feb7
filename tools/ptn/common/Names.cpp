#include "tools/ptn/common/Names.h"

#include <algorithm>

namespace ptn
{

namespace
{

// What is small or capital in ASCII is mixed up easily, and counts as alike.
std::string InSmallLetters(std::string name)
{
    for (char& byte : name)
        if (byte >= 'A' && byte <= 'Z')
            byte = static_cast<char>(byte - 'A' + 'a');
    return name;
}

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

// The candidate that the name, in small letters, is short for; null when there is none or more than one.
const std::string* OnlyLongForm(const std::string& name, const std::vector<std::string>& candidates)
{
    constexpr std::size_t shortest = 3;
    const std::string* found = nullptr;
    for (const std::string& candidate : candidates) {
        if (name.size() < shortest || InSmallLetters(candidate).compare(0, name.size(), name) != 0)
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
    const std::string small = InSmallLetters(name);
    for (const std::string& candidate : candidates) {
        const std::size_t distance = EditDistance(small, InSmallLetters(candidate));
        if (distance < closest) {
            closest = distance;
            best = &candidate;
        }
    }
    if (!best)
        best = OnlyLongForm(small, candidates);
    return best ? " Did you mean " + Quoted(*best) + "?" : "";
}

std::string Quoted(const std::string& name)
{
    return "'" + name + "'";
}

} // namespace ptn
