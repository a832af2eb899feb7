#include "config/ProfileField.h"

#include "config/Profile.h"

#include <cfloat>
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

using namespace tessary;

namespace
{

std::string fieldOf(int i, const char* value)
{
    char field[SIZE_FIELD];
    GetString(i, field, value);
    return field;
}

std::string checked(int kind, const std::string& text)
{
    char field[SIZE_FIELD] = {};
    std::memcpy(field, text.c_str(), text.size());
    CheckBuffer(kind, field);
    return field;
}

template <typename Number> std::string textOf(void (*convert)(Number, char (&)[SIZE_FIELD]), Number number)
{
    char text[SIZE_FIELD];
    convert(number, text);
    return text;
}

} // namespace

TEST(ProfileField, takes_the_text_between_the_commas)
{
    EXPECT_EQ(fieldOf(0, "a,bc,,d"), "a");
    EXPECT_EQ(fieldOf(1, "a,bc,,d"), "bc");
    EXPECT_EQ(fieldOf(2, "a,bc,,d"), "");
    EXPECT_EQ(fieldOf(3, "a,bc,,d"), "d");
}

TEST(ProfileField, is_empty_beyond_the_last_comma_and_in_an_empty_value)
{
    EXPECT_EQ(fieldOf(1, "a"), "");
    EXPECT_EQ(fieldOf(1, "a,"), "");
    EXPECT_EQ(fieldOf(2, "a,"), "");
    EXPECT_EQ(fieldOf(INT_MAX, "a,b"), "");
    EXPECT_EQ(fieldOf(0, ""), "");
    EXPECT_EQ(fieldOf(3, ""), "");
}

TEST(ProfileField, keeps_the_blanks_around_its_text)
{
    EXPECT_EQ(fieldOf(0, " a\t, b "), " a\t");
    EXPECT_EQ(fieldOf(1, " a\t, b "), " b ");
}

TEST(ProfileField, fills_its_buffer_with_the_start_of_a_longer_text)
{
    EXPECT_EQ(fieldOf(0, std::string(1000, 'x').c_str()), std::string(255, 'x'));
}

TEST(ProfileField, has_the_kind_of_its_format_letter)
{
    const char* format = "sSiIhHfF";
    const int kinds[] = {FIELD_STRING, FIELD_STRING, FIELD_INTEGER, FIELD_INTEGER,
                         FIELD_HEXA,   FIELD_HEXA,   FIELD_HEXA,    FIELD_HEXA};
    for (int i = 0; i < 8; i++)
        EXPECT_EQ(GetFormat(i, format), kinds[i]) << "letter " << i;
}

TEST(ProfileField, has_no_kind_for_another_letter_or_past_the_end_of_the_format)
{
    for (int letter = 1; letter < 256; letter++)
        if (!std::strchr("sSiIhHfF", letter)) {
            const char format[] = {static_cast<char>(letter), '\0'};
            EXPECT_EQ(GetFormat(0, format), FIELD_NONE) << "letter " << letter;
        }
    EXPECT_EQ(GetFormat(2, "ii"), FIELD_NONE);
    EXPECT_EQ(GetFormat(1000, "ii"), FIELD_NONE);
    EXPECT_EQ(GetFormat(0, ""), FIELD_NONE);
    EXPECT_EQ(GetFormat(0, nullptr), FIELD_NONE);
}

TEST(ProfileField, accepts_any_text_and_cuts_it_at_99_characters)
{
    EXPECT_EQ(checked(FIELD_STRING, " -a,漢字\x01\xff"), " -a,漢字\x01\xff");
    EXPECT_EQ(checked(FIELD_STRING, std::string(99, 'x')), std::string(99, 'x'));
    EXPECT_EQ(checked(FIELD_STRING, std::string(100, 'x')), std::string(99, 'x'));
    EXPECT_EQ(checked(FIELD_STRING, std::string(255, 'x')), std::string(99, 'x'));
}

TEST(ProfileField, accepts_only_digits_as_an_integer)
{
    EXPECT_EQ(checked(FIELD_INTEGER, "0123456789"), "0123456789");
    for (const char* refused : {"-12", "1-2", "12-", "+1", " 12", "12 ", "1.5", "1F", "0x1", "\xa3\xb1"})
        EXPECT_EQ(checked(FIELD_INTEGER, refused), "") << refused;
}

TEST(ProfileField, accepts_only_hexadecimal_digits_as_a_hexadecimal_number)
{
    EXPECT_EQ(checked(FIELD_HEXA, "0123456789ABCDEFabcdef"), "0123456789ABCDEFabcdef");
    for (const char* refused : {"-1F", "0x1F", " 1F", "1F ", "1G", "1.5", "\xa3\xb1"})
        EXPECT_EQ(checked(FIELD_HEXA, refused), "") << refused;
}

TEST(ProfileField, accepts_digits_and_one_decimal_point_as_a_float)
{
    for (const char* accepted : {"1", "1.5", ".5", "5.", "."})
        EXPECT_EQ(checked(FIELD_FLOAT, accepted), accepted);
    for (const char* refused : {"-1.5", "1.5.2", "1..", "1,5", "1e5", " 1"})
        EXPECT_EQ(checked(FIELD_FLOAT, refused), "") << refused;
}

TEST(ProfileField, is_emptied_without_a_kind)
{
    EXPECT_EQ(checked(FIELD_NONE, "1"), "");
    EXPECT_EQ(checked(99, "1"), "");
}

TEST(ProfileField, writes_integers_in_decimal)
{
    EXPECT_EQ(textOf(itoa, 0), "0");
    EXPECT_EQ(textOf(itoa, -12), "-12");
    EXPECT_EQ(textOf(itoa, INT_MAX), "2147483647");
    EXPECT_EQ(textOf(itoa, INT_MIN), "-2147483648");
}

TEST(ProfileField, writes_words_in_four_upper_case_places)
{
    EXPECT_EQ(textOf<WORD>(htoa, 0), "   0");
    EXPECT_EQ(textOf<WORD>(htoa, 0x1F), "  1F");
    EXPECT_EQ(textOf<WORD>(htoa, 0xABCD), "ABCD");
}

TEST(ProfileField, writes_floats_with_four_places)
{
    EXPECT_EQ(textOf(ftoa, 0.0f), "0.0000");
    EXPECT_EQ(textOf(ftoa, -1.5f), "-1.5000");
    EXPECT_EQ(textOf(ftoa, 0.00006f), "0.0001");
    EXPECT_EQ(textOf(ftoa, FLT_MAX), "340282346638528859811704183484516925440.0000");
}

TEST(ProfileField, converts_at_most_four_hexadecimal_digits)
{
    EXPECT_EQ(atoh("12345"), 0x1234);
    EXPECT_EQ(atoh("1F"), 0x1F);
    EXPECT_EQ(atoh("aBcD"), 0xABCD);
    EXPECT_EQ(atoh("ffff"), 0xFFFF);
    EXPECT_EQ(atoh("0"), 0);
    EXPECT_EQ(atoh("00001"), 0);
}

TEST(ProfileField, stops_converting_at_the_first_other_character)
{
    EXPECT_EQ(atoh("1G2"), 1);
    EXPECT_EQ(atoh("12-3"), 0x12);
    EXPECT_EQ(atoh("0x1F"), 0);
    EXPECT_EQ(atoh(" 1F"), 0);
    EXPECT_EQ(atoh("-1"), 0);
    EXPECT_EQ(atoh("1@`/:g"), 1);
    EXPECT_EQ(atoh("\xa3\xb1"), 0);
    EXPECT_EQ(atoh(""), 0);
    EXPECT_EQ(atoh(nullptr), 0);
}
