#include "tools/ptn/model/Pattern.h"

#include <cstring>

namespace ptn
{

using namespace tessary;

std::string PatternBytes(const Pattern& pattern)
{
    return PatternFileBytes(pattern.header, {pattern.items.begin(), pattern.items.end()});
}

std::optional<Pattern> ParsePattern(const std::string& name, const std::string& bytes, const Place& place,
                                    Diagnostics& diagnostics)
{
    const auto damaged = [&](const std::string& what) {
        diagnostics.error(place, fmt::format("not a whole pattern file: {}. Get an undamaged copy.", what));
        return std::nullopt;
    };
    Pattern pattern;
    pattern.name = name;
    pattern.place = place;
    HEDRFILE& header = pattern.header;
    if (bytes.size() < sizeof header)
        return damaged("it ends within its header");
    std::memcpy(&header, bytes.data(), sizeof header);
    PatternRecords records = TakePatternRecords(header, bytes.substr(sizeof header));
    const int count = static_cast<int>(records.items.size());
    if (header.DataCount != count)
        return damaged(fmt::format("it has no room for its {} items", int{header.DataCount}));
    if (header.TextSize != records.textSize || records.left)
        return damaged("its texts are not as long as it says");
    if (records.missingTexts) {
        const int perItem = LANGUAGE_COUNT + 2; // and the name and the code
        const int first = (count * perItem - records.missingTexts) / perItem;
        return damaged(fmt::format("a text of item {} does not end", first + 1));
    }
    if (records.textsUsed != records.textSize)
        return damaged("something follows its texts");
    for (PatternRecord& record : records.items)
        pattern.items.push_back({std::move(record), false, place});
    return pattern;
}

} // namespace ptn
