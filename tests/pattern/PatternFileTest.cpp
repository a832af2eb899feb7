// The bytes of pattern files taken apart and put together again.
#include "pattern/PatternRecords.h"

#include "tests/support/PatternBuilder.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace tessary;
using testing::ElementsAre;

Pattern TwoItems()
{
    Pattern pattern("two");
    pattern.title("Title").version(7).reserved(8);
    pattern.item(PTRN_RECT, 1, 2, 3, 4).text("a", "b", "").code("CODE", 5).action(8, "name");
    pattern.item(PTRN_FCHR, 5, 6, 7, 8).text("", "second", "");
    return pattern;
}

HEDRFILE HeaderOf(const std::string& bytes)
{
    HEDRFILE header;
    std::memcpy(&header, bytes.data(), sizeof header);
    return header;
}

PatternRecords Take(const std::string& bytes)
{
    return TakePatternRecords(HeaderOf(bytes), bytes.substr(sizeof(HEDRFILE)));
}

TEST(PatternFile, have_the_records_and_strings_of_every_item)
{
    const PatternRecords records = Take(TwoItems().bytes());
    ASSERT_EQ(records.items.size(), 2u);
    EXPECT_EQ(int{records.items[0].record.Type}, PTRN_RECT);
    EXPECT_THAT(records.items[0].texts, ElementsAre("a", "b", ""));
    EXPECT_EQ(records.items[0].name, "name");
    EXPECT_EQ(records.items[0].code, "CODE");
    EXPECT_EQ(int{records.items[0].record.ID_No}, 5);
    EXPECT_THAT(records.items[1].texts, ElementsAre("", "second", ""));
    EXPECT_EQ(records.missingTexts, 0);
    EXPECT_EQ(records.textsUsed, records.textSize);
    EXPECT_EQ(records.left, 0);
}

TEST(PatternFile, give_the_same_bytes_again)
{
    const std::string bytes = TwoItems().bytes();
    HEDRFILE header = HeaderOf(bytes);
    header.DataCount = header.TextSize = -1;
    EXPECT_EQ(PatternFileBytes(header, Take(bytes).items), bytes);
}

// Cut off anywhere: nothing is made up, and everything that is there in full is taken.
TEST(PatternFile, go_as_far_as_the_bytes)
{
    const std::string whole = TwoItems().bytes();
    const int recordsEnd = static_cast<int>(sizeof(HEDRFILE) + 2 * sizeof(PTRNFILE));
    for (int size = sizeof(HEDRFILE); size <= static_cast<int>(whole.size()); ++size) {
        const std::string bytes = whole.substr(0, static_cast<std::size_t>(size));
        const PatternRecords records = Take(bytes);
        const int items = (std::min(size, recordsEnd) - static_cast<int>(sizeof(HEDRFILE))) /
                          static_cast<int>(sizeof(PTRNFILE));
        ASSERT_EQ(static_cast<int>(records.items.size()), items) << size;
        if (size < recordsEnd)
            continue; // the texts are taken from what would be the second item
        const std::string texts = bytes.substr(static_cast<std::size_t>(recordsEnd));
        const int strings = static_cast<int>(std::count(texts.begin(), texts.end(), '\0'));
        EXPECT_EQ(records.missingTexts, 10 - strings) << size;
        EXPECT_EQ(records.textSize, size - recordsEnd);
        EXPECT_EQ(records.textsUsed, static_cast<int>(texts.rfind('\0') + 1));
    }
}

TEST(PatternFile, leave_what_the_header_does_not_claim)
{
    const PatternRecords records = Take(TwoItems().bytes() + "tail");
    EXPECT_EQ(records.left, 4);
    EXPECT_EQ(records.missingTexts, 0);
    EXPECT_EQ(Take(TwoItems().claimItems(-1).bytes()).items.size(), 0u);
    EXPECT_EQ(Take(TwoItems().claimTextSize(-1).bytes()).missingTexts, 10);
}

} // namespace
