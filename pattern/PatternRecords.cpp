#include "pattern/PatternRecords.h"

#include <algorithm>
#include <cstring>

namespace tessary
{

namespace
{

/// The strings of an item in the order of the file.
template <typename Item> auto StringsOf(Item& item)
{
    return std::array{&item.texts[0], &item.texts[1], &item.texts[2], &item.name, &item.code};
}

// The next string of the text block. What is left of a string without its terminator is not taken: the
// beginning of a code could be another code.
void TakeString(const std::string& block, PatternRecords& records, std::string& string)
{
    const std::size_t begin = static_cast<std::size_t>(records.textsUsed);
    const std::size_t end = records.missingTexts ? std::string::npos : block.find('\0', begin);
    if (end == std::string::npos) {
        ++records.missingTexts;
        return;
    }
    string = block.substr(begin, end - begin);
    records.textsUsed = static_cast<int>(end) + 1;
}

template <typename Record> void Append(std::string& bytes, const Record& record)
{
    bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
}

} // namespace

PatternRecords TakePatternRecords(const HEDRFILE& header, const std::string& bytes)
{
    constexpr int recordSize = sizeof(PTRNFILE);
    const int size = static_cast<int>(bytes.size());
    const int claimedItems = header.DataCount; // a member of a packed record can not be referred to
    const int claimedText = header.TextSize;
    PatternRecords records;
    const int count = std::clamp(claimedItems, 0, size / recordSize);
    records.items.resize(static_cast<std::size_t>(count));
    const char* at = bytes.data();
    for (PatternRecord& item : records.items) {
        std::memcpy(&item.record, at, sizeof item.record);
        at += recordSize;
    }
    records.textSize = std::clamp(claimedText, 0, size - count * recordSize);
    records.left = size - count * recordSize - records.textSize;
    const std::string block(at, static_cast<std::size_t>(records.textSize));
    for (PatternRecord& item : records.items)
        for (std::string* string : StringsOf(item))
            TakeString(block, records, *string);
    return records;
}

std::string PatternFileBytes(HEDRFILE header, const std::vector<PatternRecord>& items)
{
    std::string records;
    std::string texts;
    for (const PatternRecord& item : items) {
        Append(records, item.record);
        for (const std::string* string : StringsOf(item))
            texts.append(string->c_str(), string->size() + 1);
    }
    header.DataCount = static_cast<std::int32_t>(items.size());
    header.TextSize = static_cast<std::int32_t>(texts.size());
    std::string bytes;
    Append(bytes, header);
    return bytes + records + texts;
}

} // namespace tessary
