#include "tools/ptn/Pattern.h"

#include "tools/ptn/Bytes.h"

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
