#include "tools/ptn/model/MarkArt.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace ptn
{

namespace
{

std::string SizeText(SIZE size)
{
    return std::to_string(size.cx) + " x " + std::to_string(size.cy);
}

// What is left out is background, but mostly it was meant to be there.
void DoubtSize(const std::vector<std::size_t>& widths, SIZE size, const Subject& what, const Place& place,
               Diagnostics& diagnostics)
{
    const auto full = static_cast<std::size_t>(size.cx);
    const auto narrow =
        std::find_if(widths.begin(), widths.end(), [&](std::size_t width) { return width < full; });
    if (narrow != widths.end())
        diagnostics.doubt(place,
                          what + ", row " + std::to_string(1 + (narrow - widths.begin())) +
                              fmt::format(": has {} of {} columns. Write the others as '.'.", *narrow, full));
    else if (!widths.empty() && widths.size() < static_cast<std::size_t>(size.cy))
        diagnostics.doubt(
            place, what + fmt::format(": has {} of {} rows. Write the others too.", widths.size(), size.cy));
}

} // namespace

std::optional<MARKDATA> ReadMarkArt(const std::string& art, SIZE size, const Subject& what,
                                    const Place& place, Diagnostics& diagnostics)
{
    MARKDATA mark{};
    bool whole = true;
    std::istringstream lines(art);
    int row = 0;
    std::vector<std::size_t> widths;
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
        widths.push_back(line.size());
        for (std::size_t column = 0; column < line.size(); ++column) {
            const std::size_t bit =
                static_cast<std::size_t>(row) * static_cast<std::size_t>(size.cx) + column;
            if (line[column] == 'X' || line[column] == '#')
                mark.mark[bit / 8] |= static_cast<BYTE>(1 << bit % 8);
        }
    }
    if (whole)
        DoubtSize(widths, size, what, place, diagnostics);
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
    bool blank = true;
    for (int bit = 0; bit < pixels; ++bit) {
        art += isSet(bit) ? 'X' : '.';
        blank = blank && !isSet(bit);
        if (bit % size.cx == size.cx - 1)
            art += '\n';
    }
    return blank ? "" : art;
}

} // namespace ptn
