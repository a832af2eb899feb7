// What keys do to the text of a field in edit, by the corrected rules of entry.
#include "window/FieldEditor.h"

#include <gtest/gtest.h>

using tessary::FieldEditor;

namespace
{

FieldEditor number(const std::string& text, int width = 5, int decimals = 0)
{
    return {{FieldEditor::Kind::Number, width, decimals}, text};
}

FieldEditor text(const std::string& content, int width = 10)
{
    return {{FieldEditor::Kind::Text, width, 0}, content};
}

/// Types every byte as a character of its own; false when one was refused.
bool typeAll(FieldEditor& editor, const std::string& keys)
{
    bool all = true;
    for (const char key : keys)
        all = editor.type(std::string(1, key)) && all;
    return all;
}

} // namespace

TEST(FieldEditor, the_first_digit_replaces_the_number_and_the_next_ones_follow_it)
{
    FieldEditor editor = number("19");
    EXPECT_TRUE(typeAll(editor, "85"));
    EXPECT_EQ(editor.text(), "85");
    EXPECT_EQ(editor.cursor(), 2);
    EXPECT_TRUE(editor.isChanged());
}

TEST(FieldEditor, the_same_number_typed_anew_counts_as_a_change)
{
    FieldEditor editor = number("19");
    typeAll(editor, "19");
    EXPECT_TRUE(editor.isChanged());
}

TEST(FieldEditor, a_cursor_key_first_edits_the_old_number)
{
    for (const auto move : {&FieldEditor::left, &FieldEditor::right, &FieldEditor::home, &FieldEditor::end}) {
        FieldEditor editor = number("19");
        (editor.*move)();
        EXPECT_FALSE(editor.isChanged());
        EXPECT_TRUE(editor.type("5"));
        EXPECT_EQ(editor.text().size(), 3U) << editor.text();
    }
    FieldEditor pressed = number("19");
    pressed.place(1);
    EXPECT_TRUE(pressed.type("5"));
    EXPECT_EQ(pressed.text(), "159");
}

TEST(FieldEditor, backspace_or_delete_first_clears_the_number)
{
    FieldEditor one = number("19");
    EXPECT_TRUE(one.removeBefore());
    EXPECT_EQ(one.text(), "");
    FieldEditor other = number("19");
    EXPECT_TRUE(other.removeAfter());
    EXPECT_EQ(other.text(), "");
    EXPECT_FALSE(other.isComplete());
    EXPECT_TRUE(other.isChanged());
}

TEST(FieldEditor, an_old_number_that_is_put_back_as_it_was_is_no_change)
{
    FieldEditor editor = number("19");
    editor.end();
    editor.type("5");
    EXPECT_TRUE(editor.isChanged());
    editor.removeBefore();
    EXPECT_FALSE(editor.isChanged());
}

TEST(FieldEditor, minus_changes_the_sign_wherever_the_cursor_is_and_plus_makes_it_positive)
{
    FieldEditor editor = number("123");
    editor.left();
    EXPECT_TRUE(editor.type("-"));
    EXPECT_EQ(editor.text(), "-123");
    EXPECT_EQ(editor.cursor(), 3);
    EXPECT_TRUE(editor.type("-"));
    EXPECT_EQ(editor.text(), "123");
    EXPECT_EQ(editor.cursor(), 2);
    EXPECT_TRUE(editor.type("+"));
    EXPECT_EQ(editor.text(), "123");
    editor.type("-");
    EXPECT_TRUE(editor.type("+"));
    EXPECT_EQ(editor.text(), "123");
}

TEST(FieldEditor, minus_first_begins_a_new_negative_number)
{
    FieldEditor editor = number("19");
    EXPECT_TRUE(typeAll(editor, "-7"));
    EXPECT_EQ(editor.text(), "-7");
    EXPECT_DOUBLE_EQ(editor.value(), -7.0);
}

TEST(FieldEditor, plus_first_makes_the_old_number_positive)
{
    FieldEditor editor = number("-19");
    EXPECT_TRUE(editor.type("+"));
    EXPECT_EQ(editor.text(), "19");
    EXPECT_TRUE(editor.isChanged());
}

TEST(FieldEditor, a_sign_without_room_is_refused)
{
    FieldEditor editor = number("12345");
    editor.end();
    EXPECT_FALSE(editor.type("-"));
    EXPECT_EQ(editor.text(), "12345");
}

TEST(FieldEditor, hexadecimal_fields_take_no_sign_and_text_fields_take_it_as_a_letter)
{
    FieldEditor hex({FieldEditor::Kind::Hexadecimal, 4, 0}, "FF");
    EXPECT_FALSE(hex.type("-"));
    EXPECT_FALSE(hex.type("+"));
    EXPECT_FALSE(hex.type("g"));
    EXPECT_TRUE(typeAll(hex, "1a"));
    EXPECT_EQ(hex.text(), "1A");
    EXPECT_DOUBLE_EQ(hex.value(), 26.0);
    FieldEditor letters = text("a");
    EXPECT_TRUE(typeAll(letters, "-+"));
    EXPECT_EQ(letters.text(), "a-+");
}

TEST(FieldEditor, a_number_with_its_decimals_never_exceeds_its_field)
{
    FieldEditor editor = number("1.24", 5, 2);
    EXPECT_TRUE(typeAll(editor, "12"));
    EXPECT_FALSE(editor.type("3")); // 123.00 has six characters
    EXPECT_TRUE(typeAll(editor, ".34"));
    EXPECT_FALSE(editor.type("5"));
    EXPECT_EQ(editor.text(), "12.34");
    EXPECT_FALSE(editor.type("."));
    EXPECT_DOUBLE_EQ(editor.value(), 12.34);
}

TEST(FieldEditor, a_point_needs_decimals)
{
    FieldEditor editor = number("1");
    EXPECT_FALSE(editor.type("."));
    EXPECT_EQ(editor.text(), "1");
}

TEST(FieldEditor, a_number_without_a_digit_is_not_complete)
{
    for (const char* keys : {"-", ".", "-."}) {
        FieldEditor editor = number("1.0", 6, 1);
        typeAll(editor, keys);
        EXPECT_EQ(editor.text(), keys);
        EXPECT_FALSE(editor.isComplete());
    }
}

TEST(FieldEditor, removing_the_point_may_leave_a_number_that_does_not_fit)
{
    FieldEditor editor = number("12.34", 5, 2);
    editor.left();
    editor.left();
    EXPECT_TRUE(editor.removeBefore());
    EXPECT_EQ(editor.text(), "1234");
    EXPECT_FALSE(editor.fits());
}

TEST(FieldEditor, text_keeps_what_is_there_and_goes_on_at_its_end)
{
    FieldEditor editor = text("abc");
    EXPECT_EQ(editor.cursor(), 3);
    EXPECT_TRUE(editor.type("d"));
    EXPECT_EQ(editor.text(), "abcd");
}

TEST(FieldEditor, text_beyond_the_field_is_refused)
{
    FieldEditor editor = text("abc", 4);
    EXPECT_FALSE(editor.type("ポ")); // two bytes
    EXPECT_TRUE(editor.type("d"));
    EXPECT_FALSE(editor.type("e"));
    editor.home();
    EXPECT_FALSE(editor.type("e"));
    EXPECT_EQ(editor.text(), "abcd");
}

TEST(FieldEditor, characters_of_two_bytes_are_removed_and_passed_as_a_whole)
{
    FieldEditor editor = text("aポンプb");
    editor.home();
    editor.right();
    editor.right();
    EXPECT_EQ(editor.cursor(), 3);
    EXPECT_TRUE(editor.removeAfter());
    EXPECT_EQ(editor.text(), "aポプb");
    EXPECT_TRUE(editor.removeBefore());
    EXPECT_EQ(editor.text(), "aプb");
    EXPECT_EQ(editor.cursor(), 1);
    editor.end();
    editor.left();
    editor.left();
    EXPECT_EQ(editor.cursor(), 1);
    editor.place(2); // the second half of a character
    EXPECT_EQ(editor.cursor(), 1);
    editor.place(3);
    EXPECT_EQ(editor.cursor(), 3);
    editor.place(99);
    EXPECT_EQ(editor.cursor(), 4);
}

TEST(FieldEditor, keys_at_the_ends_change_nothing)
{
    FieldEditor editor = text("a");
    EXPECT_FALSE(editor.right());
    EXPECT_FALSE(editor.removeAfter());
    EXPECT_TRUE(editor.home());
    EXPECT_FALSE(editor.left());
    EXPECT_FALSE(editor.removeBefore());
    EXPECT_EQ(editor.text(), "a");
}
