#include "base/EucText.h"

#include <cstring>
#include <gtest/gtest.h>

using namespace tessary;

TEST(CopyText, keeps_what_fits_and_always_terminates)
{
    char target[6] = {'x', 'x', 'x', 'x', 'x', 'x'};
    EXPECT_TRUE(CopyText(target, "12345"));
    EXPECT_STREQ(target, "12345");
    EXPECT_FALSE(CopyText(target, "123456"));
    EXPECT_STREQ(target, "12345");
}

TEST(CopyText, takes_null_as_empty)
{
    char target[4] = "abc";
    EXPECT_TRUE(CopyText(target, nullptr));
    EXPECT_STREQ(target, "");
}

TEST(CopyText, into_one_byte_leaves_an_empty_text)
{
    char target[1] = {'x'};
    EXPECT_FALSE(CopyText(target, "a"));
    EXPECT_EQ(target[0], '\0');
}

TEST(CopyText, may_copy_a_text_onto_itself)
{
    char text[8] = "abc";
    EXPECT_TRUE(CopyText(text, text));
    EXPECT_STREQ(text, "abc");
}

TEST(AppendText, fills_the_target_and_stops)
{
    char target[6] = "abc";
    EXPECT_FALSE(AppendText(target, sizeof target, "def"));
    EXPECT_STREQ(target, "abcde");
    EXPECT_TRUE(AppendText(target, sizeof target, ""));
    EXPECT_STREQ(target, "abcde");
}

TEST(BoundedLength, stops_at_the_end_of_an_unterminated_field)
{
    const char field[4] = {'a', 'b', 'c', 'd'};
    EXPECT_EQ(BoundedLength(field, sizeof field), 4u);
    EXPECT_EQ(BoundedLength("ab", 4), 2u);
    EXPECT_EQ(BoundedLength(nullptr, 4), 0u);
}

TEST(EucCut, never_splits_a_two_byte_character)
{
    const char* text = "ab日本";
    ASSERT_EQ(std::strlen(text), 6u);
    const std::size_t kept[] = {0, 1, 2, 2, 4, 4, 6, 6};
    for (std::size_t limit = 0; limit < std::size(kept); limit++)
        EXPECT_EQ(EucCut(text, limit), kept[limit]) << limit;
}

TEST(EucCut, takes_a_lone_half_as_one_byte)
{
    const char text[] = {'\xB0', 'a', '\0'};
    EXPECT_EQ(EucCut(text, 1), 1u);
    EXPECT_EQ(EucCut(text, 5), 2u);
}

TEST(IsEucHalf, is_true_from_161_to_254)
{
    for (int byte = 0; byte < 256; byte++)
        EXPECT_EQ(IsEucHalf(static_cast<unsigned char>(byte)), byte >= 161 && byte <= 254) << byte;
}

TEST(EucToUtf8, converts_kanji_kana_and_ascii)
{
    EXPECT_EQ(EucToUtf8("A"), "A");
    EXPECT_EQ(EucToUtf8("\xC6\xFC\xCB\xDC"), "\xE6\x97\xA5\xE6\x9C\xAC");
    EXPECT_EQ(EucToUtf8(""), "");
}

TEST(EucToUtf8, marks_bytes_that_are_no_character_and_goes_on)
{
    EXPECT_EQ(EucToUtf8("a\xFF"
                        "b"),
              "a?b");
    EXPECT_EQ(EucToUtf8("a\xC6"), "a?");
}

TEST(EucToUtf8, converts_texts_longer_than_its_buffer)
{
    std::string euc;
    std::string utf8;
    for (int i = 0; i < 1000; i++) {
        euc += "\xC6\xFC";
        utf8 += "\xE6\x97\xA5";
    }
    EXPECT_EQ(EucToUtf8(euc), utf8);
}

TEST(Utf8ToEuc, converts_and_tells_when_a_character_is_lacking)
{
    bool ok = false;
    EXPECT_EQ(Utf8ToEuc("\xE6\x97\xA5x", &ok), "\xC6\xFCx");
    EXPECT_TRUE(ok);
    // An emoji of four bytes gives one mark.
    EXPECT_EQ(Utf8ToEuc("a\xF0\x9F\x98\x80z", &ok), "a?z");
    EXPECT_FALSE(ok);
}
