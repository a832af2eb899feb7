#include "config/Profile.h"

#include "tests/config/ProfileFixture.h"

#include <climits>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>

namespace
{

using std::string;
using testing::Contains;

constexpr int UNTOUCHED = 4711;

class ReadFixture : public ProfileFile
{
  protected:
    // One line of section [A], and what a read of it as an integer gives.
    int number(const string& line, int expectedCount)
    {
        put("[A]\n" + line + "\n");
        int value = UNTOUCHED;
        EXPECT_EQ(ProfileRead(file(), "A", "k", "i", &value), expectedCount) << line;
        return value;
    }
    WORD word(const string& line, const char* format, int expectedCount)
    {
        put("[A]\n" + line + "\n");
        WORD value = UNTOUCHED;
        EXPECT_EQ(ProfileRead(file(), "A", "k", format, &value), expectedCount) << line;
        return value;
    }
    string text(const char* section, const char* key) { return ProfileReadAsc(file(), section, key); }
    string text(const string& content, const char* section, const char* key)
    {
        put(content);
        return text(section, key);
    }
};

using ProfileValue = ReadFixture;
using ProfileSection = ReadFixture;
using ProfileKey = ReadFixture;
using ProfileReading = ReadFixture;

} // namespace

TEST_F(ProfileValue, is_read_as_an_integer)
{
    EXPECT_EQ(number("k=12", 1), 12);
    EXPECT_EQ(number("k=0", 1), 0);
    EXPECT_EQ(number("k=007", 1), 7);
    EXPECT_EQ(number("k=2147483647", 1), INT_MAX);
}

TEST_F(ProfileValue, reads_as_0_when_it_is_negative)
{
    EXPECT_EQ(number("k=-12", 0), 0);
    EXPECT_EQ(number("k=12-", 0), 0);
    EXPECT_EQ(number("k=-", 0), 0);
}

TEST_F(ProfileValue, reads_as_0_when_something_but_digits_is_in_it)
{
    for (const char* line : {"k= 12", "k=1 2", "k=+12", "k=12.0", "k=1F", "k=0x12", "k=a", "k=12\r", "k="})
        EXPECT_EQ(number(line, 0), 0) << line;
}

TEST_F(ProfileValue, beyond_the_integers_reads_as_the_largest)
{
    EXPECT_EQ(number("k=2147483648", 1), INT_MAX);
    EXPECT_EQ(number("k=4294967296", 1), INT_MAX);
    EXPECT_EQ(number("k=" + string(200, '9'), 1), INT_MAX);
}

TEST_F(ProfileValue, is_read_as_a_hexadecimal_word)
{
    for (const char* format : {"h", "H"}) {
        EXPECT_EQ(word("k=1F", format, 1), 0x1F);
        EXPECT_EQ(word("k=abCD", format, 1), 0xABCD);
        EXPECT_EQ(word("k=12345", format, 1), 0x1234);
        EXPECT_EQ(word("k=-1", format, 0), 0);
        EXPECT_EQ(word("k=0x1F", format, 0), 0);
        EXPECT_EQ(word("k= 1F", format, 0), 0);
        EXPECT_EQ(word("k=", format, 0), 0);
    }
}

TEST_F(ProfileValue, is_read_as_a_hexadecimal_word_with_the_letter_f_too)
{
    for (const char* format : {"f", "F"}) {
        EXPECT_EQ(word("k=10", format, 1), 0x10);
        EXPECT_EQ(word("k=12345", format, 1), 0x1234);
        EXPECT_EQ(word("k=1.5", format, 0), 0);
    }
}

TEST_F(ProfileValue, stores_two_bytes_for_a_word_and_four_for_an_integer_at_any_address)
{
    put("[A]\nk=1F,16909060,2A\n");
    unsigned char record[12];
    std::memset(record, 0xEE, sizeof record);
    EXPECT_EQ(ProfileRead(file(), "A", "k", "hif", record + 1, record + 4, record + 9), 3);
    const unsigned char expected[12] = {0xEE, 0x1F, 0, 0xEE, 4, 3, 2, 1, 0xEE, 0x2A, 0, 0xEE};
    EXPECT_EQ(std::memcmp(record, expected, sizeof record), 0);
}

TEST_F(ProfileValue, ends_at_a_comment)
{
    put("[A]\nk=a,b;c\n");
    char first[100] = "old", second[100] = "old", third[100] = "old";
    EXPECT_EQ(ProfileRead(file(), "A", "k", "sss", first, second, third), 2);
    EXPECT_STREQ(first, "a");
    EXPECT_STREQ(second, "b");
    EXPECT_STREQ(third, "");
}

TEST_F(ProfileValue, keeps_blanks_except_at_the_end_of_the_line)
{
    put("[A]\nk= a , b \t\n");
    char first[100], second[100];
    EXPECT_EQ(ProfileRead(file(), "A", "k", "ss", first, second), 2);
    EXPECT_STREQ(first, " a ");
    EXPECT_STREQ(second, " b");
    EXPECT_EQ(text("[A]\nk=a \t ; note\n", "A", "k"), "a");
    EXPECT_EQ(text("[A]\nk=   \n", "A", "k"), "");
}

TEST_F(ProfileValue, of_120_characters_gives_its_first_99)
{
    string value;
    for (int i = 0; i < 120; i++)
        value += static_cast<char>('0' + i % 10);
    put("[A]\nk=" + value + "\n");
    char target[101];
    target[100] = '!';
    EXPECT_EQ(ProfileRead(file(), "A", "k", "s", target), 1);
    EXPECT_EQ(target, value.substr(0, 99));
    EXPECT_EQ(target[100], '!');
}

TEST_F(ProfileValue, may_hold_japanese_text_and_any_byte)
{
    EXPECT_EQ(text("[設定]\n名前=始動画面\n", "設定", "名前"), "始動画面");
    EXPECT_EQ(text("[A]\nk=\x01\x8e\xb1\xff=[]\r\n", "A", "k"), "\x01\x8e\xb1\xff=[]\r");
}

TEST_F(ProfileValue, ends_at_a_nul_byte)
{
    put(string("[A]\nk=12\0m=34\n", 14));
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 12);
    EXPECT_EQ(ProfileReadInt(file(), "A", "m"), 34) << "a new line begins behind the NUL";
}

TEST_F(ProfileValue, needs_no_line_feed_at_the_end_of_the_file)
{
    EXPECT_EQ(text("[A]\nk=end", "A", "k"), "end");
    EXPECT_EQ(text("[A]\nk=", "A", "k"), "");
    EXPECT_EQ(text("[A]", "A", "k"), "");
}

TEST_F(ProfileValue, is_cut_off_where_its_line_reaches_256_bytes)
{
    const string padding(254 - 10, 'x');
    EXPECT_EQ(text("[A]\nk=" + padding + ",tail-of-it-m=5\n", "A", "k"), padding.substr(0, 99));
    char first[100], second[100];
    EXPECT_EQ(ProfileRead(file(), "A", "k", "ss", first, second), 2);
    EXPECT_STREQ(second, "tail-of-i") << "244 + 1 + 9 bytes of value";
}

TEST_F(ProfileValue, fields_without_text_are_stored_but_not_counted)
{
    put("[A]\nk=1,,3,x\n");
    int a = UNTOUCHED, b = UNTOUCHED, c = UNTOUCHED, d = UNTOUCHED, e = UNTOUCHED;
    EXPECT_EQ(ProfileRead(file(), "A", "k", "iiiii", &a, &b, &c, &d, &e), 2);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 0);
    EXPECT_EQ(c, 3);
    EXPECT_EQ(d, 0);
    EXPECT_EQ(e, 0);
}

TEST_F(ProfileValue, mixes_kinds_as_the_tables_do)
{
    put("[LIMTDATA]\nLIMT1=SPEED,1,2,0,FF,30,31\n");
    char code[100];
    int offset1, offset2, low, high;
    WORD lower, upper;
    EXPECT_EQ(ProfileRead(file(), "LIMTDATA", "LIMT", 1, "siiffii", code, &offset1, &offset2, &lower, &upper,
                          &low, &high),
              7);
    EXPECT_STREQ(code, "SPEED");
    EXPECT_EQ(offset1, 1);
    EXPECT_EQ(offset2, 2);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 0xFF);
    EXPECT_EQ(low, 30);
    EXPECT_EQ(high, 31);
}

TEST_F(ProfileValue, stops_at_a_null_pointer)
{
    put("[A]\nk=a,2,c\n");
    char first[100];
    int second;
    EXPECT_EQ(ProfileRead(file(), "A", "k", "sis", first, &second, nullptr), 2);
    EXPECT_STREQ(first, "a");
    EXPECT_EQ(second, 2);
    EXPECT_EQ(ProfileRead(file(), "A", "k", "sis", static_cast<char*>(nullptr)), 0);
}

TEST_F(ProfileValue, stops_at_a_letter_without_a_kind)
{
    put("[A]\nk=1,2,3\n");
    for (const char* format : {"ixi", "i%i", "i i", "id", "i"}) {
        int first = UNTOUCHED, second = UNTOUCHED;
        EXPECT_EQ(ProfileRead(file(), "A", "k", format, &first, &second, &second), 1) << format;
        EXPECT_EQ(first, 1);
        EXPECT_EQ(second, UNTOUCHED);
    }
    int value = UNTOUCHED;
    EXPECT_EQ(ProfileRead(file(), "A", "k", "", &value), 0);
    EXPECT_EQ(ProfileRead(file(), "A", "k", nullptr, &value), 0);
    EXPECT_EQ(ProfileRead(file(), "A", "k", 1, nullptr, &value), 0);
    EXPECT_EQ(value, UNTOUCHED);
}

TEST_F(ProfileValue, has_no_default)
{
    const auto expectNothing = [this](const char* section, const char* key) {
        char text[100] = "default";
        int integer = UNTOUCHED;
        WORD first = UNTOUCHED, second = UNTOUCHED;
        EXPECT_EQ(ProfileRead(file(), section, key, "sihf", text, &integer, &first, &second), 0);
        EXPECT_STREQ(text, "");
        EXPECT_EQ(integer, 0);
        EXPECT_EQ(first, 0);
        EXPECT_EQ(second, 0);
    };
    expectNothing("A", "k"); // no file
    put("");
    expectNothing("A", "k");
    put("[A]\nm=a,1,2,3\n");
    expectNothing("A", "k");
    expectNothing("B", "m");
}

TEST_F(ProfileSection, is_found_before_a_comment_and_other_text)
{
    EXPECT_EQ(text("[LOG] ; where the log goes\nk=v\n", "LOG", "k"), "v");
    EXPECT_EQ(text("[LOG];x\nk=v\n", "LOG", "k"), "v");
    EXPECT_EQ(text("[LOG] anything [B]\nk=v\n", "LOG", "k"), "v");
}

TEST_F(ProfileSection, is_not_found_behind_a_blank_or_under_a_similar_name)
{
    EXPECT_EQ(text(" [LOG]\nk=v\n", "LOG", "k"), "");
    EXPECT_EQ(text("[ LOG ]\nk=v\n", "LOG", "k"), "");
    EXPECT_EQ(text("[LOGX]\nk=v\n", "LOG", "k"), "");
    EXPECT_EQ(text("[LOG]\nk=v\n", "LOGX", "k"), "");
    EXPECT_EQ(text("[LOG]\nk=v\n", "Log", "k"), "");
    EXPECT_EQ(text("[LOG\nk=v\n", "LOG", "k"), "");
    EXPECT_EQ(text(";[LOG]\nk=v\n", "LOG", "k"), "");
}

TEST_F(ProfileSection, counts_only_the_first_time)
{
    EXPECT_EQ(text("[A]\nm=1\n[B]\n[A]\nk=v\n", "A", "k"), "");
    EXPECT_EQ(text("A", "m"), "1");
}

TEST_F(ProfileSection, ends_at_the_next_line_that_begins_with_a_bracket)
{
    EXPECT_EQ(text("[A]\nm=1\n[B]\nk=v\n", "A", "k"), "");
    EXPECT_EQ(text("B", "k"), "v");
    EXPECT_EQ(text("[A]\n[broken\nk=v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\n [B]\nk=v\n", "A", "k"), "v");
}

TEST_F(ProfileSection, holds_no_line_above_the_first_header)
{
    put("k=v\n[]\nm=w\n");
    EXPECT_EQ(text("", "k"), "");
    EXPECT_EQ(text("", "m"), "") << "an empty name is never found";
    EXPECT_EQ(text("A", "k"), "");
}

TEST_F(ProfileKey, is_found_only_in_the_first_column_and_directly_before_the_equals_sign)
{
    EXPECT_EQ(text("[A]\n k=v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\nk =v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\nK=v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\nkk=v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\nk=v\n", "A", "kk"), "");
    EXPECT_EQ(text("[A]\nk\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\n;k=v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\nk;=v\n", "A", "k"), "");
}

TEST_F(ProfileKey, counts_only_the_first_time)
{
    EXPECT_EQ(text("[A]\nk=first\nk=second\n", "A", "k"), "first");
    EXPECT_EQ(text("[A]\nk=\nk=second\n", "A", "k"), "");
}

TEST_F(ProfileKey, may_have_an_equals_sign_in_its_value_and_a_bracket_in_its_name)
{
    EXPECT_EQ(text("[A]\nk==v=\n", "A", "k"), "=v=");
    EXPECT_EQ(text("[A]\n[x=v\nk=w\n", "A", "[x"), "v");
    EXPECT_EQ(text("A", "k"), "") << "for any other key the bracket ends the section";
}

TEST_F(ProfileKey, is_never_found_when_it_is_empty)
{
    EXPECT_EQ(text("[A]\n=v\n", "A", ""), "");
}

TEST_F(ProfileKey, takes_a_number_behind_its_name)
{
    put("[COLOR]\nCOLOR=plain\nCOLOR5=12\nCOLOR55=5F\nCOLOR-1=x\n7=y\n");
    EXPECT_EQ(ProfileReadInt(file(), "COLOR", "COLOR", 5), 12);
    EXPECT_EQ(ProfileReadHex(file(), "COLOR", "COLOR", 55), 0x5F);
    EXPECT_STREQ(ProfileReadAsc(file(), "COLOR", "COLOR", -1), "x");
    EXPECT_STREQ(ProfileReadAsc(file(), "COLOR", "COLOR", 6), "");
    EXPECT_STREQ(ProfileReadAsc(file(), "COLOR", "", 7), "y");
    char value[100];
    EXPECT_EQ(ProfileRead(file(), "COLOR", "COLOR", 55, "s", value), 1);
    EXPECT_STREQ(value, "5F");
    EXPECT_EQ(ProfileRead(file(), "COLOR", "COLOR", INT_MIN, "s", value), 0);
}

TEST_F(ProfileKey, is_not_cut_to_match_a_shorter_one)
{
    const string name(256, 'k');
    put("[A]\n" + name + "\n" + name.substr(1) + "=v\n");
    EXPECT_EQ(text("A", name.c_str()), "");
    EXPECT_EQ(text("A", (name + name).c_str()), "");
    EXPECT_STREQ(ProfileReadAsc(file(), "A", name.c_str(), 1), "");
    EXPECT_EQ(text("[" + name + "]\nk=v\n", name.c_str(), "k"), "");
    const string longest(255, 'k'); // with its "=" it fills a line; the value is on the next one
    put("[A]\n" + longest + "=v\n");
    char value[100] = "old";
    EXPECT_EQ(ProfileRead(file(), "A", longest.c_str(), "s", value), 0);
    EXPECT_STREQ(value, "");
    EXPECT_EQ(text("[A]\n" + longest.substr(1) + "=v\n", "A", longest.substr(1).c_str()), "v");
}

TEST_F(ProfileKey, is_found_where_the_257th_byte_of_a_line_begins_the_next_one)
{
    EXPECT_EQ(text("[A]\n" + string(256, 'x') + "k=v\n", "A", "k"), "v");
    EXPECT_EQ(text("[A]\n" + string(255, 'x') + "k=v\n", "A", "k"), "");
    EXPECT_EQ(text("[A]\n;" + string(255, 'c') + "k=v\n", "A", "k"), "v") << "a comment ends with its line";
}

TEST_F(ProfileReading, keeps_one_text_buffer_for_each_overload)
{
    put("[A]\nk=plain\nk1=numbered\nm=other\n");
    const char* plain = ProfileReadAsc(file(), "A", "k");
    const char* numbered = ProfileReadAsc(file(), "A", "k", 1);
    EXPECT_STREQ(plain, "plain");
    EXPECT_STREQ(numbered, "numbered");
    EXPECT_EQ(ProfileReadAsc(file(), "A", "m"), plain);
    EXPECT_STREQ(plain, "other");
    EXPECT_STREQ(numbered, "numbered");
}

TEST_F(ProfileReading, gives_0_or_empty_text_for_a_value_of_another_kind)
{
    put("[A]\nk=x\n");
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 0);
    EXPECT_EQ(ProfileReadHex(file(), "A", "k"), 0);
    EXPECT_EQ(ProfileReadInt(file(), "A", "none"), 0);
    EXPECT_EQ(ProfileReadHex(file(), "A", "none"), 0);
    EXPECT_STREQ(ProfileReadAsc(file(), "A", "none"), "");
}

TEST_F(ProfileReading, sees_a_change_by_another_program)
{
    put("[A]\nk=1\n");
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 1);
    put("[A]\nk=2\n");
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 2);
    std::filesystem::remove(file());
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 0);
}

TEST_F(ProfileReading, leaves_the_file_and_the_log_alone)
{
    project.start();
    project.clearLog();
    put("[A]\nk=x\n");
    ProfileReadInt(file(), "A", "k");
    ProfileReadInt(file(), "A", "none");
    ProfileReadInt(file(), "none", "k");
    ProfileReadInt((project.root() + "/none.ini").c_str(), "A", "k");
    EXPECT_EQ(bytes(), "[A]\nk=x\n");
    EXPECT_FALSE(std::filesystem::exists(project.root() + "/none.ini"));
    EXPECT_TRUE(project.log().empty());
}

TEST_F(ProfileReading, takes_null_names_as_empty_ones)
{
    put("[A]\nk=1\n");
    EXPECT_EQ(ProfileReadInt(nullptr, "A", "k"), 0);
    EXPECT_EQ(ProfileReadInt(file(), nullptr, "k"), 0);
    EXPECT_EQ(ProfileReadInt(file(), "A", nullptr), 0);
    EXPECT_EQ(ProfileReadInt(file(), "A", nullptr, 1), 0);
    EXPECT_STREQ(ProfileReadAsc(nullptr, nullptr, nullptr), "");
}

TEST_F(ProfileReading, takes_a_folder_as_a_file_without_sections_and_records_it)
{
    project.start();
    project.clearLog();
    char text[100] = "old";
    EXPECT_EQ(ProfileRead(project.folder().c_str(), "A", "k", "s", text), 0);
    EXPECT_STREQ(text, "");
    EXPECT_THAT(project.messages(), Contains("ファイルの読込みに失敗 []"));
}

TEST_F(ProfileReading, reaches_to_64_mib)
{
    put("[A]\nk=5\n");
    std::filesystem::resize_file(file(), 64 << 20);
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 5);
}

TEST_F(ProfileReading, takes_a_longer_file_as_one_without_sections_and_records_it)
{
    project.start();
    for (const std::uintmax_t size : {(std::uintmax_t{64} << 20) + 1, std::uintmax_t{3} << 30}) {
        project.clearLog();
        put("[A]\nk=5\n");
        std::filesystem::resize_file(file(), size);
        EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 0);
        EXPECT_THAT(project.messages(), Contains("プロファイルが大きすぎる [" + string(file()) + "]"));
    }
}
