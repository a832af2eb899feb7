// The text of a profile taken apart as a whole: the same lines, sections and keys that a search by name
// finds.
#include "config/ProfileText.h"
#include "base/Limits.h"
#include "config/Profile.h"
#include "tests/config/ProfileFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace
{

using namespace tessary;
using testing::ElementsAre;
using testing::Pair;

std::string Line(const std::string& bytes)
{
    ProfileLine line;
    TakeProfileLine(bytes.data(), static_cast<int>(bytes.size()), line);
    return line;
}

int Taken(const std::string& bytes)
{
    ProfileLine line;
    return TakeProfileLine(bytes.data(), static_cast<int>(bytes.size()), line);
}

TEST(ProfileText, takes_lines_without_comment_and_trailing_blanks)
{
    EXPECT_EQ(Line("A=1 \t ;c\nB=2\n"), "A=1");
    EXPECT_EQ(Taken("A=1 \t ;c\nB=2\n"), 9);
    EXPECT_EQ(Line(" \n"), " ") << "the first character stays";
    EXPECT_EQ(Line(std::string("A\0B\n", 4)), "A");
    EXPECT_EQ(Taken(std::string("A\0B\n", 4)), 2);
    EXPECT_EQ(Taken(""), 0);
    const std::string longLine(PROFILE_LINE_MAX + 10, 'x');
    EXPECT_EQ(Taken(longLine), PROFILE_LINE_MAX);
    EXPECT_EQ(Line(longLine).size(), static_cast<std::size_t>(PROFILE_LINE_MAX));
}

TEST(ProfileText, finds_sections_and_keys_with_their_lines)
{
    const auto sections =
        ParseProfile("A=0\n[ONE]x ;c\nA=1,2\n=3\nno key\nA=4\n[ONE]\nB=5\n[TWO\nC=6\n[TWO]\nD=7 ");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].name, "ONE");
    EXPECT_EQ(sections[0].line, 2);
    ASSERT_EQ(sections[0].keys.size(), 1u);
    EXPECT_EQ(sections[0].keys[0].name, "A");
    EXPECT_EQ(sections[0].keys[0].value, "1,2");
    EXPECT_EQ(sections[0].keys[0].line, 3);
    EXPECT_EQ(sections[1].line, 11);
    EXPECT_THAT(ProfileValues("[ONE]\nB=2\nA=1\n", "ONE"), ElementsAre(Pair("A", "1"), Pair("B", "2")));
    EXPECT_TRUE(ProfileValues("[ONE]\nB=2\n", "TWO").empty());
}

TEST(ProfileText, has_fields_between_commas)
{
    EXPECT_THAT(ProfileFields("a,,b"), ElementsAre("a", "", "b"));
    EXPECT_THAT(ProfileFields(""), ElementsAre(""));
}

// What is found by name in a file of random lines is what the whole parse has under that name.
TEST_F(ProfileFile, parsed_as_a_whole_has_what_is_found_by_name)
{
    const std::string parts[] = {"[A]",
                                 "[B]",
                                 "[",
                                 "]",
                                 "K=",
                                 "L=",
                                 "=",
                                 ";",
                                 "\n",
                                 "\n",
                                 "\n",
                                 " ",
                                 "1",
                                 "2",
                                 std::string(1, '\0'),
                                 std::string(250, 'x')};
    std::mt19937 random(20261122);
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        for (int i = 0; i < 40; ++i)
            bytes += parts[random() % std::size(parts)];
        put(bytes);
        for (const char* section : {"A", "B"}) {
            auto values = ProfileValues(bytes, section);
            for (const char* key : {"K", "L"}) {
                const std::string whole = ProfileFields(values[key])[0];
                EXPECT_EQ(ProfileReadAsc(file(), section, key), whole.substr(0, PROFILE_FIELD_MAX)) << bytes;
            }
        }
    }
}

} // namespace
