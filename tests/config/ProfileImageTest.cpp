#include "config/ProfileImage.h"

#include "tests/config/ProfileFixture.h"

#include <vector>

using namespace tessary;

namespace
{

using std::string;
using Lines = std::vector<string>;

// The lines of a profile file as the searches see them.
class ProfileLine : public ProfileFile
{
  protected:
    Lines lines(const string& content)
    {
        put(content);
        Lines result;
        EXPECT_EQ(ProfileInit(file()), 1);
        char line[SIZE_PROFLINE + 1];
        if (ProfileReadInit())
            while (ProfileReadLine(line))
                result.emplace_back(line);
        EXPECT_EQ(ProfileReadLine(line), 0) << "a line after the last one";
        EXPECT_STREQ(line, "");
        ProfileExit(file(), 0);
        return result;
    }
};

} // namespace

TEST_F(ProfileLine, ends_at_a_line_feed)
{
    EXPECT_EQ(lines("[A]\nk=1\n"), (Lines{"[A]", "k=1"}));
    EXPECT_EQ(lines("\n\nx\n"), (Lines{"", "", "x"}));
}

TEST_F(ProfileLine, needs_no_line_feed_at_the_end_of_the_file)
{
    EXPECT_EQ(lines("[A]\nk=1"), (Lines{"[A]", "k=1"}));
}

TEST_F(ProfileLine, does_not_exist_in_a_missing_or_empty_file)
{
    EXPECT_EQ(ProfileInit(file()), 1);
    EXPECT_EQ(ProfileReadInit(), 0);
    ProfileExit(file(), 0);
    EXPECT_EQ(lines(""), Lines{});
    EXPECT_EQ(ProfileReadInit(), 0);
}

TEST_F(ProfileLine, ends_at_a_nul_byte)
{
    EXPECT_EQ(lines(string("ab\0cd\nef\0", 9)), (Lines{"ab", "cd", "ef"}));
}

TEST_F(ProfileLine, keeps_its_carriage_return)
{
    EXPECT_EQ(lines("a\r\nb \r\n"), (Lines{"a\r", "b \r"}));
}

TEST_F(ProfileLine, ends_for_the_reader_at_a_semicolon)
{
    EXPECT_EQ(lines("k=1;2\n;note\nx\n"), (Lines{"k=1", "", "x"}));
}

TEST_F(ProfileLine, loses_its_trailing_blanks_and_those_before_a_comment)
{
    EXPECT_EQ(lines("a b \t \nc \t;note \n"), (Lines{"a b", "c"}));
}

TEST_F(ProfileLine, keeps_its_first_character_though_it_is_a_blank)
{
    EXPECT_EQ(lines("   \n\t\n ;note\n"), (Lines{" ", "\t", " "}));
    EXPECT_EQ(lines("  x\n"), (Lines{"  x"}));
}

TEST_F(ProfileLine, of_300_characters_is_read_as_256_and_44)
{
    EXPECT_EQ(lines(string(300, 'x') + "\ny\n"), (Lines{string(256, 'x'), string(44, 'x'), "y"}));
    EXPECT_EQ(lines(string(600, 'x')), (Lines{string(256, 'x'), string(256, 'x'), string(88, 'x')}));
}

TEST_F(ProfileLine, of_256_characters_leaves_its_line_feed_as_an_empty_line)
{
    EXPECT_EQ(lines(string(255, 'x') + "\ny\n"), (Lines{string(255, 'x'), "y"}));
    EXPECT_EQ(lines(string(256, 'x') + "\ny\n"), (Lines{string(256, 'x'), "", "y"}));
}

TEST_F(ProfileLine, counts_the_bytes_of_its_comment_and_blanks_toward_the_256)
{
    EXPECT_EQ(lines("k=1;" + string(252, 'c') + "k=2\n"), (Lines{"k=1", "k=2"}));
    EXPECT_EQ(lines("k=1" + string(253, ' ') + "k=2\n"), (Lines{"k=1", "k=2"}));
}

TEST_F(ProfileLine, is_current_after_it_was_found)
{
    put("[A]\nk=1\nm=2\n[B]\nk=3\n");
    char value[SIZE_FIELD] = "old";
    ASSERT_EQ(ProfileInit(file()), 1);
    EXPECT_EQ(SectionSearch("B"), 1);
    EXPECT_EQ(KeynameSearch("m", value), 0) << "m is not below [B]";
    EXPECT_STREQ(value, "");
    EXPECT_EQ(SectionSearch("A"), 1) << "a section search begins at the start";
    EXPECT_EQ(KeynameSearch("m", value), 1);
    EXPECT_STREQ(value, "2");
    ProfileReplace("m", "");
    ProfileExit(file(), 1);
    EXPECT_EQ(bytes(), "[A]\nk=1\nm=\n[B]\nk=3\n\n");
}

TEST_F(ProfileLine, gives_its_value_or_empties_the_buffer_when_it_is_not_there)
{
    put("[A]\nk=1\n");
    char value[SIZE_FIELD] = "old";
    ASSERT_EQ(ProfileInit(file()), 1);
    EXPECT_EQ(ProfileSearch("B", "k", value), 0);
    EXPECT_STREQ(value, "");
    EXPECT_EQ(ProfileSearch("A", "k", value), 1);
    EXPECT_STREQ(value, "1");
    EXPECT_EQ(ProfileSearch("A", "k", nullptr), 1);
    EXPECT_EQ(ProfileSearch("A", "m", value), 0);
    EXPECT_STREQ(value, "");
    ProfileExit(file(), 0);
}

TEST_F(ProfileLine, is_neither_inserted_nor_replaced_for_an_empty_key)
{
    put("[A]\nk=1\n");
    ASSERT_EQ(ProfileInit(file()), 1);
    EXPECT_EQ(SectionSearch("A"), 1);
    ProfileInsert("", "v");
    ProfileReplace("", "v");
    ProfileExit(file(), 1);
    EXPECT_EQ(bytes(), "[A]\nk=1\n");
}

TEST_F(ProfileLine, of_a_file_is_gone_when_the_image_is_freed)
{
    put("[A]\nk=1\n");
    ASSERT_EQ(ProfileInit(file()), 1);
    EXPECT_EQ(SectionSearch("A"), 1);
    ProfileExit(file(), 0);
    char value[SIZE_FIELD] = "old";
    EXPECT_EQ(SectionSearch("A"), 0);
    ReadProfile("A", "k", value);
    EXPECT_STREQ(value, "");
}

TEST_F(ProfileLine, is_not_added_to_an_image_that_would_pass_64_mib)
{
    const string content = "[A]\nk=1\n";
    put(content);
    ASSERT_EQ(ProfileInit(file()), 1);
    const string room(SIZE_PROFILE - content.size() - string("[A]\n").size() - string("m=\n").size(), 'v');
    EXPECT_EQ(WriteProfile("A", "m", (room + "v").c_str()), 0);
    EXPECT_EQ(ProfileSearch("A", "m", nullptr), 0);
    EXPECT_EQ(WriteProfile("A", "m", room.c_str()), 1);
    EXPECT_EQ(ProfileSearch("A", "m", nullptr), 1);
    ProfileExit(file(), 0);
}
