#include "tools/ptn/model/Pattern.h"

#include "tools/ptn/common/Bytes.h"

#include <cstring>

namespace ptn
{

std::string PatternBytes(const Pattern& pattern)
{
    std::string records;
    std::string texts;
    for (const PatternItem& item : pattern.items) {
        AppendRecord(records, item.record);
        for (const std::string& text : item.texts)
            texts.append(text.c_str(), text.size() + 1);
        texts.append(item.name.c_str(), item.name.size() + 1);
        texts.append(item.code.c_str(), item.code.size() + 1);
    }
    HEDRFILE header = pattern.header;
    header.DataCount = static_cast<std::int32_t>(pattern.items.size());
    header.TextSize = static_cast<std::int32_t>(texts.size());
    std::string bytes;
    AppendRecord(bytes, header);
    return bytes + records + texts;
}

std::optional<Pattern> ParsePattern(const std::string& name, const std::string& bytes, const Place& place,
                                    Diagnostics& diagnostics)
{
    const auto damaged = [&](const std::string& what) {
        diagnostics.error(place, "not a whole pattern file: " + what + ". Get an undamaged copy.");
        return std::nullopt;
    };
    Pattern pattern;
    pattern.name = name;
    pattern.place = place;
    if (bytes.size() < sizeof pattern.header)
        return damaged("it ends within its header");
    std::memcpy(&pattern.header, bytes.data(), sizeof pattern.header);
    const std::size_t room = bytes.size() - sizeof pattern.header;
    const std::int64_t count = pattern.header.DataCount;
    if (count < 0 || static_cast<std::size_t>(count) > room / sizeof(PTRNFILE))
        return damaged("it has no room for its " + std::to_string(count) + " items");
    std::size_t at = sizeof pattern.header + static_cast<std::size_t>(count) * sizeof(PTRNFILE);
    if (pattern.header.TextSize < 0 || bytes.size() != at + static_cast<std::size_t>(pattern.header.TextSize))
        return damaged("its texts are not as long as it says");

    pattern.items.resize(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < pattern.items.size(); ++i) {
        PatternItem& item = pattern.items[i];
        std::memcpy(&item.record, bytes.data() + sizeof pattern.header + i * sizeof item.record,
                    sizeof item.record);
        item.place = place;
        for (std::string* text : {&item.texts[0], &item.texts[1], &item.texts[2], &item.name, &item.code}) {
            const std::size_t end = bytes.find('\0', at);
            if (end == std::string::npos)
                return damaged("a text of item " + std::to_string(i + 1) + " does not end");
            *text = bytes.substr(at, end - at);
            at = end + 1;
        }
    }
    if (at != bytes.size())
        return damaged("something follows its texts");
    return pattern;
}

} // namespace ptn
