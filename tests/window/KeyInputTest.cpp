// Editing a field: keys, end, storing.
#include "tests/window/KeyEdit.h"

#include "comndata/LimtData.h"
#include "comndata/MesgData.h"

#include <filesystem>
#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class KeyInput : public KeyEdit
{
};

constexpr char HERE[] = "screen.cpp";

} // namespace

// --- numbers ---------------------------------------------------------------------------------------

TEST_F(KeyInput, types_numbers_like_a_calculator)
{
    open(fields("p"));
    Set_fData(NUMBER, 123, nullptr, 0);
    tick();
    edit(NUMBER);
    type("4");
    EXPECT_EQ(text(), " 1234");
    EXPECT_EQ(cursor(), 5);
    key(XK_Left);
    type("9");
    EXPECT_EQ(text(), "12394");
    EXPECT_EQ(cursor(), 4);
    key(XK_Return);
    EXPECT_FALSE(editing());
    EXPECT_EQ(number(NUMBER), 12394);
    EXPECT_FALSE(frozen(NUMBER));
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 0 100"));
}

TEST_F(KeyInput, stores_decimals_and_takes_one_point)
{
    open(fields("p"));
    edit(DECIMAL);
    EXPECT_EQ(text(), "   0.00");
    type(".5");
    EXPECT_EQ(text(), "  0.005") << "there is a point already";
    for (int i = 0; i < 4; i++)
        key(XK_BackSpace);
    // Each backspace takes a byte and leaves a blank at the end of the field.
    EXPECT_EQ(text(), "  0    ");
    EXPECT_EQ(cursor(), 3);
    type(".25");
    key(XK_Return);
    EXPECT_EQ(number(DECIMAL), 0.25F);
}

TEST_F(KeyInput, takes_a_point_only_with_decimals_and_a_minus_only_at_position_0)
{
    open(fields("p"));
    Set_fData(NUMBER, 12345, nullptr, 0);
    tick();
    edit(NUMBER);
    type(".-x e+");
    EXPECT_EQ(text(), "12345");
    for (int i = 0; i < 5; i++)
        key(XK_Left);
    ASSERT_EQ(cursor(), 0);
    type("-");
    EXPECT_EQ(text(), "12345") << "accepted, and pushed out at once";
    EXPECT_EQ(cursor(), 0);
}

TEST_F(KeyInput, stores_a_negative_value_that_was_there)
{
    open(fields("p"));
    Set_fData(NUMBER, -12, nullptr, 0);
    tick();
    edit(NUMBER);
    EXPECT_EQ(text(), "  -12");
    type("3");
    key(XK_Return);
    EXPECT_EQ(number(NUMBER), -123);
}

TEST_F(KeyInput, edits_hexadecimal_numbers)
{
    open(fields("p"));
    Set_iData(HEX, 0x2A, nullptr, 0);
    tick();
    edit(HEX);
    EXPECT_EQ(text(), "  2A");
    type("fg-.F");
    EXPECT_EQ(text(), "2AfF");
    key(XK_Return);
    EXPECT_EQ(number(HEX), 0x2AFF) << "stored as a float all the same";
}

TEST_F(KeyInput, a_hexadecimal_number_with_a_leading_blank_is_0)
{
    open(fields("p"));
    edit(HEX);
    type("12");
    EXPECT_EQ(text(), " 012");
    key(XK_Return);
    EXPECT_EQ(number(HEX), 0);
}

TEST_F(KeyInput, ends_by_return_tab_and_escape_of_which_escape_does_not_store)
{
    open(fields("p"));
    edit(NUMBER);
    type("7");
    key(XK_Escape);
    EXPECT_FALSE(editing());
    EXPECT_EQ(number(NUMBER), 0);
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65307 0 100"));
    edit(NUMBER);
    type("7");
    key(XK_Tab);
    EXPECT_EQ(number(NUMBER), 7);
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65289 0 100"));
    edit(NUMBER);
    key(XK_Return, {XK_Control_L});
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 2 100")) << "with its modifiers";
}

TEST_F(KeyInput, ends_by_the_arrows_that_the_field_allows)
{
    struct Case {
        int flag;
        unsigned long symbol;
        const char* call;
    };
    open(fields("p", 15));
    know(fields("q", 0));
    const Case cases[] = {{NAV_UP, XK_Up, "keyfunc 65362 0 100"},
                          {NAV_DOWN, XK_Down, "keyfunc 65364 0 100"},
                          {NAV_LEFT, XK_Left, "keyfunc 65361 0 100"},
                          {NAV_RIGHT, XK_Right, "keyfunc 65363 0 100"}};
    for (const char* name : {"p", "q"}) {
        openTop(name);
        for (const Case& arrow : cases) {
            edit(NUMBER);
            if (arrow.flag == NAV_LEFT)
                key(XK_Left); // over the 0, up to the blank
            calls.clear();
            key(arrow.symbol);
            if (name[0] == 'p') {
                EXPECT_FALSE(editing());
                EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre(arrow.call));
            } else {
                EXPECT_TRUE(editing()) << arrow.call;
                EXPECT_THAT(callsOf({"keyfunc"}), IsEmpty());
            }
        }
    }
}

TEST_F(KeyInput, each_arrow_needs_its_own_flag)
{
    const std::pair<int, unsigned long> arrows[] = {
        {NAV_UP, XK_Up}, {NAV_DOWN, XK_Down}, {NAV_LEFT, XK_Left}, {NAV_RIGHT, XK_Right}};
    open(fields("p"));
    for (const auto& [flag, symbol] : arrows) {
        for (const auto& [other, unused] : arrows) {
            edit(TEXT); // empty: its start is its end
            AppliWnd->KeyInputPtrn.Parm[FIELD_NAVIGATION] = other;
            key(symbol);
            EXPECT_EQ(editing(), flag != other) << flag << " " << other;
        }
    }
}

TEST_F(KeyInput, arrows_that_end_the_input_store_the_value)
{
    open(fields("p", 15));
    edit(NUMBER);
    type("42");
    key(XK_Down);
    EXPECT_EQ(number(NUMBER), 42);
}

TEST_F(KeyInput, a_value_beyond_its_limits_stays_in_edit_with_its_message)
{
    std::filesystem::create_directory("ProjPath");
    writeFile("ProjPath/MesgData.prf", "[MESGDATA]\nMESG1=,0,too low\nMESG2=,0,too high\n");
    writeFile("ProjPath/LimtData.prf", "[LIMTDATA]\nLIMT1=D,0,0,0,0,1,2\n");
    open(fields("p"));
    LoadLimtData(); // at start-up no code is known yet
    ASSERT_TRUE(LimtData[0]);
    LIMTDATA& limits = *LimtData[0];
    ASSERT_EQ(int{limits.DataNo1}, NUMBER);
    limits.MIN_Data = 10;
    limits.MAX_Data = 50;

    edit(NUMBER);
    type("60");
    key(XK_Return);
    EXPECT_TRUE(editing());
    EXPECT_TRUE(frozen(NUMBER));
    EXPECT_EQ(text(), "  060");
    EXPECT_EQ(number(NUMBER), 0);
    EXPECT_EQ(string(DTNO_SYSEROR), "too high");
    EXPECT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0) & STATE_COLOR, 1);
    EXPECT_THAT(callsOf({"keyfunc"}), IsEmpty());
    EXPECT_EQ(AppliWnd->KeyInputStop(KEYVAL_TAB, 0, HERE, 1), 0);

    key(XK_BackSpace);
    EXPECT_EQ(text(), "  06 ");
    key(XK_Tab);
    EXPECT_TRUE(editing());
    EXPECT_EQ(string(DTNO_SYSEROR), "too low");
    key(XK_BackSpace);
    type("20");
    EXPECT_EQ(text(), "020  ");
    key(XK_Return);
    EXPECT_FALSE(editing());
    EXPECT_EQ(number(NUMBER), 20);
    EXPECT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0) & STATE_COLOR, 0) << "quiet again";
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 0 100"));
}

TEST_F(KeyInput, checking_stores_a_value_unless_it_is_given_up)
{
    open(fields("p"));
    edit(NUMBER);
    type("9");
    for (const unsigned int given : {0u, unsigned{KEYVAL_ESCAPE}}) {
        EXPECT_EQ(AppliWnd->KeyInputCheck(static_cast<int>(given)), 1);
        EXPECT_EQ(number(NUMBER), 0);
    }
    EXPECT_EQ(AppliWnd->KeyInputCheck(KEYVAL_TAB), 1);
    EXPECT_EQ(number(NUMBER), 9);
    EXPECT_TRUE(editing()) << "checking alone ends nothing";
}

TEST_F(KeyInput, a_refused_value_can_be_given_up)
{
    std::filesystem::create_directory("ProjPath");
    writeFile("ProjPath/MesgData.prf", "[MESGDATA]\nMESG2=,0,too high\n");
    writeFile("ProjPath/LimtData.prf", "[LIMTDATA]\nLIMT1=D,0,0,0,0,0,2\n");
    open(fields("p"));
    LoadLimtData();
    edit(NUMBER);
    type("9");
    key(XK_Return);
    ASSERT_TRUE(editing());
    key(XK_Escape);
    EXPECT_FALSE(editing());
    edit(NUMBER);
    type("9");
    key(XK_Return);
    ASSERT_TRUE(editing());
    click(AppliWnd, 250, 150);
    EXPECT_FALSE(editing());
    EXPECT_EQ(number(NUMBER), 0);
}

// --- texts -----------------------------------------------------------------------------------------

TEST_F(KeyInput, types_texts_at_the_cursor)
{
    open(fields("p"));
    edit(TEXT);
    type("Ab 1");
    EXPECT_EQ(text(), "Ab 1");
    EXPECT_EQ(cursor(), 4);
    key(XK_Left);
    key(XK_Left);
    type("_");
    EXPECT_EQ(text(), "Ab_ 1");
    key(XK_Return);
    EXPECT_EQ(string(TEXT), "Ab_ 1");
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 0 103"));
}

TEST_F(KeyInput, puts_two_halves_of_a_character_together)
{
    open(fields("p"));
    edit(TEXT);
    const std::string kanji = "漢";
    sendBytes(kanji.substr(0, 1));
    EXPECT_EQ(text(), "") << "held until the second half comes";
    sendBytes("a");
    EXPECT_EQ(text(), "a") << "one-byte characters do not disturb it";
    sendBytes(kanji.substr(1));
    EXPECT_EQ(text(), "a漢");
    EXPECT_EQ(cursor(), 3);
    sendBytes("字");
    key(XK_Return);
    EXPECT_EQ(string(TEXT), "a漢字");
}

TEST_F(KeyInput, forgets_half_a_character_at_the_next_start)
{
    open(fields("p"));
    edit(TEXT);
    send(0xB4);
    edit(TEXT);
    EXPECT_EQ(AppliWnd->KeyInputCode, 0u);
    sendBytes("漢");
    EXPECT_EQ(text(), "漢");
}

TEST_F(KeyInput, ignores_bytes_that_can_not_be_printed)
{
    open(fields("p"));
    edit(TEXT);
    for (guint byte = 0; byte < 256; byte++) {
        AppliWnd->KeyInputText[0] = '\0';
        AppliWnd->KeyInputPost = 0;
        AppliWnd->KeyInputCode = 0;
        send(0x1000000 + byte); // only the low byte counts
        if (byte >= 161 && byte <= 254) {
            EXPECT_EQ(AppliWnd->KeyInputCode, byte);
            EXPECT_EQ(text(), "");
        } else {
            EXPECT_EQ(AppliWnd->KeyInputCode, 0u);
            const bool printable = byte >= 0x20 && byte < 0x7F;
            EXPECT_EQ(text(), printable ? std::string(1, static_cast<char>(byte)) : "") << byte;
        }
    }
}

TEST_F(KeyInput, takes_other_keys_by_their_low_byte)
{
    open(fields("p"));
    edit(TEXT);
    key(XK_Home); // 0xFF50
    EXPECT_EQ(text(), "P");
    key(XK_F1); // 0xFFBE
    EXPECT_EQ(AppliWnd->KeyInputCode, 0xBEu);
    EXPECT_EQ(text(), "P");
}

TEST_F(KeyInput, a_modifier_alone_types_nothing)
{
    open(fields("p"));
    edit(TEXT);
    for (const unsigned long symbol : {XK_Shift_L, XK_Shift_R, XK_Control_L, XK_Control_R, XK_Alt_L,
                                       XK_Caps_Lock, XK_Num_Lock, XK_Super_L})
        key(symbol);
    key(XK_Caps_Lock); // off again
    key(XK_Num_Lock);
    EXPECT_EQ(text(), "");
    EXPECT_EQ(AppliWnd->KeyInputCode, 0u);
    type("A"); // with Shift held
    EXPECT_EQ(text(), "A");
}

TEST_F(KeyInput, stores_a_text_without_the_blank_in_its_last_position)
{
    open(fields("p"));
    edit(TEXT);
    type(" a c    ");
    EXPECT_EQ(text(), " a c    ");
    key(XK_Return);
    EXPECT_EQ(string(TEXT), " a c   ");
}

TEST_F(KeyInput, deletes_in_texts)
{
    open(fields("p"));
    Set_sData(TEXT, "漢字ab", nullptr, 0);
    tick();
    edit(TEXT);
    key(XK_Delete);
    EXPECT_EQ(text(), "字ab    ");
    key(XK_Right);
    key(XK_Right);
    key(XK_BackSpace);
    EXPECT_EQ(text(), "字b     ");
    EXPECT_EQ(cursor(), 2);
    key(XK_Escape);
    EXPECT_EQ(string(TEXT), "漢字ab");
}

TEST_F(KeyInput, does_nothing_with_keys_while_no_field_is_in_edit)
{
    open(fields("p"));
    type("123");
    for (const unsigned long symbol : {XK_Return, XK_Escape, XK_Tab, XK_Left, XK_Delete, XK_BackSpace, XK_Up})
        key(symbol);
    EXPECT_THAT(callsOf({"keystart", "keyfunc"}), IsEmpty());
    EXPECT_EQ(AppliWnd->KeyInputStop(KEYVAL_RETURN, 0, HERE, 1), 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(KeyInput, lets_the_hook_start_the_next_field)
{
    open(fields("p"));
    hooks.keyFunc = [](CPtrnDisp& wnd, int, int, PTRNDATA* item) {
        wnd.KeyInputStart(item->DataNo + 1, nullptr, 0);
    };
    edit(NUMBER);
    type("1");
    key(XK_Return);
    EXPECT_EQ(edited(), DECIMAL);
    type("2");
    key(XK_Return);
    EXPECT_EQ(edited(), HEX);
    EXPECT_EQ(number(NUMBER), 1);
    EXPECT_TRUE(editing());
    EXPECT_FALSE(frozen(NUMBER));
    EXPECT_FALSE(frozen(DECIMAL));
    EXPECT_TRUE(frozen(HEX));
}
