#include "tools/ptn/model/MarkArt.h"

#include <sstream>

namespace ptn
{

namespace
{

std::string SizeText(SIZE size)
{
    return std::to_string(size.cx) + " x " + std::to_string(size.cy);
}

} // namespace

std::optional<MARKDATA> ReadMarkArt(const std::string& art, SIZE size, const Subject& what,
                                    const Place& place, Diagnostics& diagnostics)
{
    MARKDATA mark{};
    bool whole = true;
    std::istringstream lines(art);
    int row = 0;
    for (std::string line; std::getline(lines, line); ++row) {
        const Subject where = what + ", row " + std::to_string(row + 1);
        line.erase(line.find_last_not_of(" \r") + 1);
        const std::size_t wrong = line.find_first_not_of(".X# ");
        if (wrong != std::string::npos) {
            diagnostics.error(place, where, ": column {} has neither '.' nor 'X'. Draw with these two.",
                              wrong + 1);
            whole = false;
            continue;
        }
        if (row >= size.cy || line.size() > static_cast<std::size_t>(size.cx)) {
            diagnostics.error(place, where,
                              ": the picture is too large. Marks of this number have {} pixels; choose a "
                              "number of a larger group.",
                              SizeText(size));
            return std::nullopt;
        }
        for (std::size_t column = 0; column < line.size(); ++column) {
            const std::size_t bit =
                static_cast<std::size_t>(row) * static_cast<std::size_t>(size.cx) + column;
            if (line[column] == 'X' || line[column] == '#')
                mark.mark[bit / 8] |= static_cast<BYTE>(1 << bit % 8);
        }
    }
    return whole ? std::optional(mark) : std::nullopt;
}

std::optional<std::string> MarkArt(const MARKDATA& mark, SIZE size)
{
    const int pixels = size.cx * size.cy;
    const auto isSet = [&](int bit) { return (mark.mark[bit / 8] >> bit % 8 & 1) != 0; };
    for (int bit = pixels; bit < 8 * SIZE_MARK; ++bit)
        if (isSet(bit))
            return std::nullopt;
    std::string art;
    std::size_t end = 0;
    for (int bit = 0; bit < pixels; ++bit) {
        art += isSet(bit) ? 'X' : '.';
        if (bit % size.cx == size.cx - 1) {
            art += '\n';
            if (art.find('X', end) != std::string::npos)
                end = art.size();
        }
    }
    return art.substr(0, end);
}

} // namespace ptn
