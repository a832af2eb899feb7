// How keys change the text of a field in edit.
#include "window/KeyText.h"

#include "base/Constants.h"
#include "base/EucText.h"
#include "pattern/ItemParm.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace tessary;

namespace
{

class KeyText : public testing::Test
{
  protected:
    void field(int type, int width)
    {
        item = {};
        item.Type = type;
        item.Parm[FIELD_WIDTH] = width;
    }

    void set(const std::string& value, int at)
    {
        CopyText(text, value.c_str());
        cursor = at;
    }

    /// The text with the cursor as "|".
    std::string state() const
    {
        std::string shown = text;
        if (static_cast<int>(shown.size()) < cursor)
            return shown + "...|";
        return shown.insert(static_cast<std::size_t>(cursor), "|");
    }

    std::string insert(unsigned c1, unsigned c2 = 0)
    {
        cursor = InsertKey(item, text, cursor, c1, c2);
        return state();
    }

    std::string insert(const char* character)
    {
        return insert(static_cast<unsigned char>(character[0]), static_cast<unsigned char>(character[1]));
    }

    std::string erase(unsigned key)
    {
        cursor = DeleteKey(KeyFieldWidth(item), text, cursor, key);
        return state();
    }

    std::string shift(unsigned key)
    {
        cursor = ShiftKey(item, text, cursor, key);
        return state();
    }

    std::string drop()
    {
        DropTrailingBlank(text, KeyFieldWidth(item));
        return text;
    }

    PTRNDATA item{};
    char text[KEYTEXT_SIZE] = "";
    int cursor = 0;
};

} // namespace

// --- insert ----------------------------------------------------------------------------------------

TEST_F(KeyText, a_digit_pushes_the_number_to_the_left)
{
    field(PTRN_NUMR, 5);
    set("  123", 5);
    EXPECT_EQ(insert('4'), " 1234|");
    EXPECT_EQ(insert('5'), "12345|");
    EXPECT_EQ(insert('6'), "23456|");
}

TEST_F(KeyText, a_digit_lands_just_left_of_the_cursor)
{
    field(PTRN_NUMR, 5);
    set("12345", 3);
    EXPECT_EQ(insert('9'), "239|45");
    set("12345", 1);
    EXPECT_EQ(insert('9'), "9|2345");
}

TEST_F(KeyText, what_is_typed_at_position_0_of_a_number_drops_out_at_once)
{
    field(PTRN_NUMR, 5);
    set("12345", 0);
    EXPECT_EQ(insert('-'), "|12345");
}

TEST_F(KeyText, a_number_that_is_longer_than_its_field_is_cut_by_the_first_key)
{
    field(PTRN_NUMR, 5);
    set("1234567", 5);
    EXPECT_EQ(insert('9'), "23459|");
    set("1234567", 7);
    EXPECT_EQ(insert('9'), "23456|") << "the cursor is held at the end of the field";
}

TEST_F(KeyText, a_number_that_is_shorter_than_the_cursor_is_filled_with_blanks)
{
    field(PTRN_NUMR, 5);
    set("12", 5);
    EXPECT_EQ(insert('9'), "2   9|") << "12 and three blanks were there";
}

TEST_F(KeyText, a_character_moves_the_rest_of_a_text)
{
    field(PTRN_CHAR, 8);
    set("abc", 1);
    EXPECT_EQ(insert('X'), "aX|bc");
    EXPECT_EQ(insert("漢"), "aX漢|bc");
    set("", 0);
    EXPECT_EQ(insert('X'), "X|");
}

TEST_F(KeyText, a_text_grows_past_its_field_by_what_was_inserted_last)
{
    field(PTRN_CHAR, 5);
    set("abcde", 2);
    EXPECT_EQ(insert('X'), "abX|cde");
    EXPECT_EQ(insert('Y'), "abXY|cd") << "only the field's bytes are kept behind the cursor";
    set("abcde", 2);
    EXPECT_EQ(insert("漢"), "ab漢|cde");
}

TEST_F(KeyText, the_cursor_is_held_at_the_end_of_the_field)
{
    field(PTRN_CHAR, 5);
    set("abcde", 5);
    EXPECT_EQ(insert('X'), "abcde|X");
    EXPECT_EQ(insert('Y'), "abcde|Y");
    EXPECT_EQ(insert("漢"), "abcde|漢");
    set("abcd", 4);
    EXPECT_EQ(insert("漢"), std::string("abcd漢").insert(5, "|"));
}

TEST_F(KeyText, a_cursor_that_has_followed_the_grown_text_inserts_there)
{
    field(PTRN_CHAR, 5);
    set("abcdeX", 6);
    EXPECT_EQ(insert('Y'), "abcde|XY");
}

TEST_F(KeyText, a_text_shorter_than_the_cursor_is_filled_with_blanks)
{
    field(PTRN_CHAR, 5);
    set("a", 3);
    EXPECT_EQ(insert('X'), "a  X|");
}

// --- which keys ------------------------------------------------------------------------------------

TEST_F(KeyText, a_number_takes_digits_only)
{
    field(PTRN_NUMR, 5);
    for (int byte = 0; byte < 256; byte++)
        EXPECT_EQ(NumericKey(item, "  123", 5, static_cast<unsigned char>(byte)), byte >= '0' && byte <= '9')
            << byte;
}

TEST_F(KeyText, a_minus_sign_is_taken_at_the_start_and_once)
{
    field(PTRN_NUMR, 5);
    EXPECT_TRUE(NumericKey(item, "12345", 0, '-'));
    EXPECT_FALSE(NumericKey(item, "12345", 1, '-'));
    EXPECT_FALSE(NumericKey(item, "-1234", 0, '-'));
}

TEST_F(KeyText, a_point_is_taken_once_and_where_there_are_decimals)
{
    field(PTRN_NUMR, 5);
    EXPECT_FALSE(NumericKey(item, "  123", 5, '.'));
    item.Parm[FIELD_DECIMALS] = 2;
    EXPECT_TRUE(NumericKey(item, "  123", 5, '.'));
    EXPECT_TRUE(NumericKey(item, "  123", 0, '.'));
    EXPECT_FALSE(NumericKey(item, " 1.23", 5, '.'));
}

TEST_F(KeyText, a_hexadecimal_number_takes_letters_and_neither_sign_nor_point)
{
    field(PTRN_NUMR, 5);
    item.Parm[FIELD_HEX] = 1;
    item.Parm[FIELD_DECIMALS] = 2;
    const std::string taken = "0123456789abcdefABCDEF";
    for (int byte = 0; byte < 256; byte++)
        EXPECT_EQ(NumericKey(item, "   00", 0, static_cast<unsigned char>(byte)),
                  taken.find(static_cast<char>(byte)) != std::string::npos && byte < 128)
            << byte;
}

TEST_F(KeyText, a_text_takes_what_can_be_printed)
{
    for (int byte = 0; byte < 256; byte++)
        EXPECT_EQ(PrintableKey(static_cast<unsigned char>(byte)), byte >= ' ' && byte <= '~') << byte;
}

// --- delete ----------------------------------------------------------------------------------------

TEST_F(KeyText, backspace_removes_the_byte_left_of_the_cursor_and_fills_with_a_blank)
{
    field(PTRN_CHAR, 5);
    set("abcde", 3);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "ab|de ");
    set("abcde", 5);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "abcd| ");
    set("abc", 1);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "|bc   ") << "a short text is filled up";
}

TEST_F(KeyText, backspace_does_nothing_at_the_start)
{
    field(PTRN_CHAR, 5);
    set("abcde", 0);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "|abcde");
    set("abc", 0);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "|abc") << "a short text is not filled up either";
}

TEST_F(KeyText, backspace_removes_two_bytes_when_the_cursor_stands_on_half_a_character)
{
    field(PTRN_CHAR, 8);
    set("漢字ab", 2);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "|字ab    ");
    set("漢ab", 2); // the byte at the cursor decides, not the one that goes
    cursor = DeleteKey(8, text, cursor, KEYVAL_BACKSPACE);
    EXPECT_EQ(cursor, 1);
    EXPECT_EQ(std::string(text), std::string("漢").substr(0, 1) + "ab     ");
}

TEST_F(KeyText, backspace_never_takes_the_cursor_below_0)
{
    field(PTRN_CHAR, 5);
    set("a漢", 1);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "|" + std::string("漢").substr(1) + "    ");
}

TEST_F(KeyText, delete_removes_the_byte_at_the_cursor)
{
    field(PTRN_CHAR, 5);
    set("abcde", 2);
    EXPECT_EQ(erase(KEYVAL_DELETE), "ab|de ");
    set("a漢bc", 1);
    EXPECT_EQ(erase(KEYVAL_DELETE), "a|bc  ");
}

TEST_F(KeyText, delete_does_nothing_at_the_last_position_and_blanks_it_behind)
{
    field(PTRN_CHAR, 5);
    set("abcde", 4);
    EXPECT_EQ(erase(KEYVAL_DELETE), "abcd|e");
    set("abcde", 5);
    EXPECT_EQ(erase(KEYVAL_DELETE), "abcd |");
    field(PTRN_CHAR, 1);
    set("", 0);
    EXPECT_EQ(erase(KEYVAL_DELETE), "|") << "the only position is the last";
}

TEST_F(KeyText, a_delete_cuts_a_grown_text_to_its_field)
{
    field(PTRN_CHAR, 5);
    set("abcdeXY", 1);
    EXPECT_EQ(erase(KEYVAL_DELETE), "a|cde ");
}

TEST_F(KeyText, a_number_is_edited_the_same_way)
{
    field(PTRN_NUMR, 5);
    set("  123", 5);
    EXPECT_EQ(erase(KEYVAL_BACKSPACE), "  12| ");
    set("  123", 3);
    EXPECT_EQ(erase(KEYVAL_DELETE), "  1|3 ");
}

// --- left and right --------------------------------------------------------------------------------

TEST_F(KeyText, left_stops_at_a_blank_of_a_number)
{
    field(PTRN_NUMR, 5);
    set("  123", 5);
    EXPECT_EQ(shift(KEYVAL_LEFT), "  12|3");
    shift(KEYVAL_LEFT);
    EXPECT_EQ(shift(KEYVAL_LEFT), "  |123");
    EXPECT_EQ(shift(KEYVAL_LEFT), "  |123");
    set("12345", 1);
    EXPECT_EQ(shift(KEYVAL_LEFT), "|12345");
    EXPECT_EQ(shift(KEYVAL_LEFT), "|12345");
}

TEST_F(KeyText, left_passes_a_two_byte_character_at_once)
{
    field(PTRN_CHAR, 8);
    set("a漢字 b", 7);
    EXPECT_EQ(shift(KEYVAL_LEFT), "a漢字 |b");
    EXPECT_EQ(shift(KEYVAL_LEFT), "a漢字| b");
    EXPECT_EQ(shift(KEYVAL_LEFT), "a漢|字 b");
    EXPECT_EQ(shift(KEYVAL_LEFT), "a|漢字 b");
    EXPECT_EQ(shift(KEYVAL_LEFT), "|a漢字 b");
    EXPECT_EQ(shift(KEYVAL_LEFT), "|a漢字 b");
}

TEST_F(KeyText, right_goes_to_the_end_of_the_text)
{
    field(PTRN_NUMR, 5);
    set("  123", 3);
    EXPECT_EQ(shift(KEYVAL_RIGHT), "  12|3");
    EXPECT_EQ(shift(KEYVAL_RIGHT), "  123|");
    EXPECT_EQ(shift(KEYVAL_RIGHT), "  123|");
    field(PTRN_CHAR, 5);
    set("abcdeXY", 5);
    EXPECT_EQ(shift(KEYVAL_RIGHT), "abcdeX|Y") << "also where it has outgrown its field";
}

TEST_F(KeyText, right_passes_a_two_byte_character_at_once)
{
    field(PTRN_CHAR, 8);
    set("漢字b", 0);
    EXPECT_EQ(shift(KEYVAL_RIGHT), "漢|字b");
    EXPECT_EQ(shift(KEYVAL_RIGHT), "漢字|b");
    EXPECT_EQ(shift(KEYVAL_RIGHT), "漢字b|");
    set("a漢", 0); // the byte under the new position decides
    cursor = ShiftKey(item, text, cursor, KEYVAL_RIGHT);
    EXPECT_EQ(cursor, 2);
}

// --- the end ---------------------------------------------------------------------------------------

TEST_F(KeyText, a_blank_in_the_last_position_is_dropped_and_all_others_stay)
{
    field(PTRN_CHAR, 5);
    const std::pair<const char*, const char*> texts[] = {
        {"abcd ", "abcd"}, {" a cd", " a cd"}, {"ab   ", "ab  "},  {"abc", "abc"},       {"ab ", "ab "},
        {"     ", "    "}, {"", ""},           {"abcd  ", "abcd"}, {"abcde ", "abcde "}, {"abcd X", "abcd"},
    };
    for (const auto& [before, after] : texts) {
        set(before, 0);
        EXPECT_EQ(drop(), after) << "'" << before << "'";
    }
    field(PTRN_CHAR, 1);
    set(" ", 0);
    EXPECT_EQ(drop(), "") << "the first position may be the last";
}

TEST_F(KeyText, a_field_without_width_loses_no_blank)
{
    field(PTRN_CHAR, 0);
    set(" ", 0);
    EXPECT_EQ(drop(), " ");
}

TEST_F(KeyText, a_field_s_width_is_held_within_what_a_text_can_be)
{
    const std::pair<int, int> widths[] = {{-2147483647 - 1, 0}, {-1, 0}, {0, 0}, {5, 5}, {2147483647, 253}};
    for (const auto& [wanted, taken] : widths) {
        field(PTRN_CHAR, wanted);
        EXPECT_EQ(KeyFieldWidth(item), taken);
    }
}

TEST_F(KeyText, stays_a_text_within_its_buffer_whatever_is_typed)
{
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 400; round++) {
        const int widths[] = {-3, 0, 1, 2, 5, 100, 252, 253, 254, 5000};
        field(below(2) ? PTRN_CHAR : PTRN_NUMR, widths[below(10)]);
        std::string start(static_cast<std::size_t>(below(256)), ' ');
        for (char& byte : start)
            byte = static_cast<char>(1 + below(255));
        set(start, item.Type == PTRN_NUMR ? KeyFieldWidth(item) : 0);
        for (int step = 0; step < 600; step++) {
            switch (below(6)) {
            case 0:
                cursor = InsertKey(item, text, cursor, 0xB4, 0xC1);
                break;
            case 1:
                cursor = InsertKey(item, text, cursor, 'x', 0);
                break;
            case 2:
            case 3:
                cursor = ShiftKey(item, text, cursor, below(3) ? KEYVAL_RIGHT : KEYVAL_LEFT);
                break;
            default:
                cursor =
                    DeleteKey(KeyFieldWidth(item), text, cursor, below(2) ? KEYVAL_DELETE : KEYVAL_BACKSPACE);
                break;
            }
            ASSERT_GE(cursor, 0);
            ASSERT_LT(cursor, KEYTEXT_SIZE);
            ASSERT_LT(strnlen(text, KEYTEXT_SIZE), static_cast<std::size_t>(KEYTEXT_SIZE));
        }
        drop();
    }
}
