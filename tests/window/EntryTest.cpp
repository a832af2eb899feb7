// What an operator types into a field by the corrected rules of entry, beside what the first rules made of
// it.
#include "tests/support/UseEdition.h"
#include "tests/support/XProbe.h"
#include "tests/window/KeyEdit.h"

#include "comndata/MesgData.h"
#include "config/Settings.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Entry : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        open(fields("p"));
    }

    /// Opens a field that shows a number.
    void editNumber(int no, double value)
    {
        Set_dData(no, value, nullptr, 0);
        tick();
        edit(no);
    }
    void editText(const std::string& value)
    {
        Set_sData(TEXT, value.c_str(), nullptr, 0);
        tick();
        edit(TEXT);
    }

    /// Presses keys, and Return at the end.
    void enter(std::initializer_list<unsigned long> keys)
    {
        for (const unsigned long symbol : keys)
            key(symbol);
        key(XK_Return);
    }

    static std::string errorLine() { return Get_sData(DTNO_SYSEROR, nullptr, 0); }

    BellWatch bell;
};

/// The same with the corrections.
class CorrectedEntry : public Entry
{
    UseEdition edition_;
};

} // namespace

// --- numbers ---------------------------------------------------------------------------------------

TEST_F(Entry, digits_shift_into_a_number_in_the_first_edition)
{
    editNumber(NUMBER, 19);
    enter({XK_8, XK_5});
    EXPECT_EQ(number(NUMBER), 1985);
}

TEST_F(CorrectedEntry, the_first_digit_replaces_a_number)
{
    editNumber(NUMBER, 19);
    enter({XK_8, XK_5});
    EXPECT_EQ(number(NUMBER), 85);
    EXPECT_FALSE(editing());
}

TEST_F(CorrectedEntry, a_move_first_means_the_old_number)
{
    const std::pair<unsigned long, float> moves[] = {
        {XK_Left, 189}, {XK_Right, 198}, {XK_Home, 819}, {XK_End, 198}};
    for (const auto& [move, result] : moves) {
        editNumber(NUMBER, 19);
        enter({move, XK_8});
        EXPECT_EQ(number(NUMBER), result) << move;
    }
}

TEST_F(CorrectedEntry, a_press_into_the_field_only_places_the_cursor)
{
    editNumber(NUMBER, 19); // "   19"
    click(AppliWnd, LEFT + CELL * 4, top(NUMBER) + 5);
    EXPECT_TRUE(editing());
    EXPECT_THAT(callsOf({"keyfunc"}), IsEmpty());
    enter({XK_8});
    EXPECT_EQ(number(NUMBER), 189);
}

TEST_F(CorrectedEntry, back_space_or_delete_first_clears_a_number)
{
    for (const unsigned long remove : {XK_BackSpace, XK_Delete}) {
        editNumber(NUMBER, 1985);
        key(remove);
        EXPECT_EQ(text(), "");
        enter({XK_7});
        EXPECT_EQ(number(NUMBER), 7);
    }
}

TEST_F(Entry, a_number_that_was_not_touched_is_stored_as_it_is_shown_in_the_first_edition)
{
    editNumber(DECIMAL, 1.239);
    key(XK_Return);
    EXPECT_FLOAT_EQ(number(DECIMAL), 1.24F);
}

TEST_F(CorrectedEntry, an_edit_without_a_change_stores_nothing)
{
    editNumber(DECIMAL, 1.239);
    enter({XK_Left, XK_Home});
    EXPECT_EQ(Get_dData(DECIMAL, nullptr, 0), 1.239);
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 0 101"));
}

TEST_F(CorrectedEntry, a_counter_keeps_all_digits)
{
    AppliWnd->PtrnData->PtrnData[0].Parm[FIELD_WIDTH] = 9;
    editNumber(NUMBER, 1);
    type("123456789");
    key(XK_Return);
    EXPECT_EQ(Get_dData(NUMBER, nullptr, 0), 123456789.0);
}

TEST_F(CorrectedEntry, minus_changes_the_sign_wherever_the_cursor_is)
{
    editNumber(NUMBER, 19);
    enter({XK_Left, XK_minus});
    EXPECT_EQ(number(NUMBER), -19);
    editNumber(NUMBER, -19);
    enter({XK_End, XK_minus});
    EXPECT_EQ(number(NUMBER), 19);
    editNumber(NUMBER, -19);
    enter({XK_plus});
    EXPECT_EQ(number(NUMBER), 19);
}

TEST_F(CorrectedEntry, minus_first_begins_a_new_negative_number)
{
    editNumber(NUMBER, 19);
    enter({XK_minus, XK_5});
    EXPECT_EQ(number(NUMBER), -5);
}

TEST_F(CorrectedEntry, a_sign_is_refused_where_it_has_no_meaning_or_room)
{
    editNumber(HEX, 19);
    key(XK_minus);
    EXPECT_EQ(text(), "13");
    EXPECT_EQ(bell.rung(), 1);
    key(XK_Escape);
    editNumber(NUMBER, 12345);
    key(XK_Left);
    key(XK_minus);
    EXPECT_EQ(text(), "12345");
    EXPECT_EQ(bell.rung(), 2);
}

TEST_F(CorrectedEntry, digits_that_do_not_fit_are_refused_with_the_bell)
{
    editNumber(NUMBER, 0);
    type("12345");
    EXPECT_EQ(bell.rung(), 0);
    type("6");
    EXPECT_EQ(text(), "12345");
    EXPECT_EQ(bell.rung(), 1);
    editNumber(DECIMAL, 0); // seven bytes, two of them decimals
    type("1.239");
    EXPECT_EQ(text(), "1.23");
    EXPECT_EQ(bell.rung(), 2);
}

TEST_F(CorrectedEntry, hexadecimal_digits_are_all_stored)
{
    AppliWnd->PtrnData->PtrnData[2].Parm[FIELD_WIDTH] = 6;
    editNumber(HEX, 1);
    type("12aBcF");
    key(XK_Return);
    EXPECT_EQ(Get_dData(HEX, nullptr, 0), 0x12ABCF);
}

TEST_F(CorrectedEntry, a_number_without_a_digit_is_refused)
{
    Language = 1;
    for (const unsigned long last : {XK_BackSpace, XK_minus}) {
        editNumber(NUMBER, 19);
        key(last);
        key(XK_Return);
        EXPECT_TRUE(editing());
        EXPECT_EQ(errorLine(), "Enter a number");
        EXPECT_EQ(number(NUMBER), 19);
        key(XK_Escape);
    }
    Language = 0;
    editNumber(NUMBER, 19);
    enter({XK_Delete});
    EXPECT_EQ(errorLine(), "数値を入力してください");
}

TEST_F(CorrectedEntry, a_number_that_its_field_can_not_show_opens_empty_and_stays)
{
    editNumber(NUMBER, 1234567);
    EXPECT_EQ(text(), "");
    key(XK_Return);
    EXPECT_FALSE(editing());
    EXPECT_EQ(Get_dData(NUMBER, nullptr, 0), 1234567);
}

// --- texts -----------------------------------------------------------------------------------------

TEST_F(CorrectedEntry, a_text_stays_with_the_cursor_at_its_end)
{
    editText("abc");
    enter({XK_d});
    EXPECT_EQ(string(TEXT), "abcd");
}

TEST_F(CorrectedEntry, signs_are_letters_of_a_text)
{
    editText("a");
    enter({XK_minus, XK_plus, XK_5});
    EXPECT_EQ(string(TEXT), "a-+5");
}

TEST_F(CorrectedEntry, whole_characters_are_removed_beside_the_cursor)
{
    editText("a漢字b");
    key(XK_Left);
    key(XK_BackSpace);
    EXPECT_EQ(text(), "a漢b");
    key(XK_Home);
    key(XK_Right);
    key(XK_Delete);
    EXPECT_EQ(text(), "ab");
    enter({});
    EXPECT_EQ(string(TEXT), "ab");
}

TEST_F(CorrectedEntry, an_emptied_text_is_stored_as_none_and_trailing_blanks_go)
{
    editText("a");
    enter({XK_BackSpace});
    EXPECT_EQ(string(TEXT), "");
    editText("");
    enter({XK_b, XK_space, XK_space});
    EXPECT_EQ(string(TEXT), "b");
}

TEST_F(CorrectedEntry, text_beyond_the_field_is_refused_with_the_bell)
{
    editText("1234567");
    send(0x01003042); // a character of two bytes, as a Unicode key
    EXPECT_EQ(text(), "1234567");
    EXPECT_EQ(bell.rung(), 1);
    key(XK_8);
    key(XK_9);
    EXPECT_EQ(text(), "12345678");
    EXPECT_EQ(bell.rung(), 2);
}

TEST_F(CorrectedEntry, a_stored_text_longer_than_the_field_is_kept_unless_it_is_edited)
{
    editText("0123456789AB");
    EXPECT_EQ(text(), "01234567");
    enter({XK_Left});
    EXPECT_EQ(string(TEXT), "0123456789AB");
    edit(TEXT);
    enter({XK_BackSpace, XK_x});
    EXPECT_EQ(string(TEXT), "0123456x");
}

// --- keys ------------------------------------------------------------------------------------------

TEST_F(Entry, keys_that_stand_for_no_character_type_their_low_byte_in_the_first_edition)
{
    editText("");
    send(GDK_End);
    EXPECT_EQ(text(), "W");
    send(GDK_Page_Up);
    EXPECT_EQ(text(), "WU");
}

TEST_F(CorrectedEntry, keys_that_stand_for_no_character_type_nothing)
{
    editText("a");
    for (const guint symbol : {GDK_End, GDK_Page_Up, GDK_Page_Down, GDK_Insert, GDK_F5, GDK_Eisu_toggle,
                               GDK_Henkan_Mode, GDK_Print, GDK_Menu})
        send(symbol);
    EXPECT_EQ(text(), "a");
    EXPECT_EQ(AppliWnd->KeyInputCode, 0U);
    EXPECT_TRUE(editing());
}

TEST_F(CorrectedEntry, kanji_come_as_unicode_keys_that_the_character_set_has)
{
    editText("");
    send(0x01006F22);
    EXPECT_EQ(text(), "漢");
    send(0x0100AC00); // Korean
    EXPECT_EQ(text(), "漢");
    send(GDK_degree); // a key of Latin 1 whose byte could be half a character
    EXPECT_EQ(text(), "漢°");
}

TEST_F(CorrectedEntry, letters_with_control_or_alt_type_nothing)
{
    editText("a");
    for (const unsigned long modifier : {XK_Control_L, XK_Alt_L})
        key(XK_c, {modifier});
    key(XK_C, {XK_Control_L, XK_Shift_L});
    EXPECT_EQ(text(), "a");
}

TEST_F(CorrectedEntry, the_keypad_types_with_num_lock_and_moves_without)
{
    editNumber(DECIMAL, 0);
    for (const unsigned long symbol : {XK_KP_1, XK_KP_Decimal, XK_KP_5, XK_KP_Subtract})
        key(symbol);
    EXPECT_EQ(text(), "-1.5");
    for (const guint symbol : {GDK_KP_Home, GDK_KP_Right, GDK_KP_Delete})
        send(symbol);
    EXPECT_EQ(text(), "-.5");
    enter({});
    EXPECT_EQ(number(DECIMAL), -0.5F);
}

// --- what is seen ----------------------------------------------------------------------------------

TEST_F(CorrectedEntry, no_pixel_of_an_edit_is_left)
{
    for (const int no : {NUMBER, TEXT}) {
        Set_dData(NUMBER, 19, nullptr, 0);
        Set_sData(TEXT, "12345678", nullptr, 0);
        tick();
        const Picture before = bufferPicture(AppliWnd, 0, 0, 300, 200);
        edit(no);
        for (const unsigned long symbol : {XK_Home, XK_End, XK_BackSpace, XK_3}) {
            key(symbol);
            tick(3); // the cursor is shown
        }
        key(XK_Escape);
        EXPECT_TRUE(same(bufferPicture(AppliWnd, 0, 0, 300, 200), before)) << no;
    }
}

TEST_F(CorrectedEntry, no_pixel_of_the_cursor_is_left_when_it_moves)
{
    editText("12345678");
    for (const unsigned long symbol : {XK_Left, XK_Home, XK_Right, XK_End}) {
        tick(KEYCURSOR_OFF); // it is shown
        key(symbol);
        EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "12345678", 0, -1))) << symbol;
        tick(KEYCURSOR_OFF);
        EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "12345678", cursor(), HEDR_EDIT_COLOR))) << symbol;
    }
}

TEST_F(CorrectedEntry, a_number_in_edit_stands_at_the_right)
{
    editNumber(NUMBER, 0);
    type("85");
    EXPECT_TRUE(same(drawn(NUMBER), inEdit(5, "   85", 0, -1)));
}

TEST_F(CorrectedEntry, the_tick_draws_nothing_over_a_field_in_edit)
{
    editNumber(NUMBER, 0);
    type("85");
    tick(KEYCURSOR_OFF); // the cursor is shown, for more than one tick
    const Picture shown = drawn(NUMBER);
    Set_dData(NUMBER, 7, nullptr, 0);
    tick();
    EXPECT_TRUE(same(drawn(NUMBER), shown));
    key(XK_Escape);
    tick();
    EXPECT_EQ(number(NUMBER), 7);
    EXPECT_FALSE(same(drawn(NUMBER), shown));
}
