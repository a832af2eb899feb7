// Which windows a key reaches, and what the keypad types.
#include "tests/support/XProbe.h"
#include "tests/window/KeyEdit.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class KeyRoute : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        know(fields("other").header(HEDR_LEFT, 500).header(HEDR_MODELESS, 1));
        know(fields("third").header(HEDR_LEFT, 500).header(HEDR_TOP, 300).header(HEDR_MODELESS, 1));
        open(fields("p"));
    }
};

} // namespace

TEST_F(KeyRoute, a_key_typed_into_a_child_reaches_the_application_window)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "other");
    AppliWnd->KeyInputStart(TEXT, nullptr, 0);
    moveTo(child, 200, 150);
    type("ab");
    EXPECT_EQ(text(), "ab");
    openSystem("third");
    moveTo(SystmWnd, 200, 150);
    type("c");
    EXPECT_EQ(text(), "abc");
}

TEST_F(KeyRoute, a_key_typed_into_the_application_window_reaches_all_others)
{
    CPtrnDisp* child = openChild(AppliWnd, 2, "other");
    CPtrnDisp* grandchild = openChild(child, 1, "third");
    openSystem("third");
    for (CPtrnDisp* wnd : {AppliWnd, child, grandchild, SystmWnd})
        wnd->KeyInputStart(TEXT, nullptr, 0);
    moveTo(AppliWnd, 200, 150);
    type("x");
    for (const CPtrnDisp* wnd : {AppliWnd, child, grandchild, SystmWnd})
        EXPECT_STREQ(wnd->KeyInputText, "x");
}

TEST_F(KeyRoute, children_come_before_their_parent_and_the_system_window_last)
{
    CPtrnDisp* first = openChild(AppliWnd, 1, "other");
    CPtrnDisp* grandchild = openChild(first, 2, "third");
    CPtrnDisp* second = openChild(AppliWnd, 2, "other");
    openSystem("third");
    std::vector<const CPtrnDisp*> order;
    hooks.keyFunc = [&](CPtrnDisp& wnd, int, int, PTRNDATA*) { order.push_back(&wnd); };
    for (CPtrnDisp* wnd : {AppliWnd, first, grandchild, second, SystmWnd})
        wnd->KeyInputStart(TEXT, nullptr, 0);
    moveTo(AppliWnd, 200, 150);
    key(XK_Return);
    EXPECT_THAT(order, ElementsAre(grandchild, first, second, AppliWnd, SystmWnd));
}

TEST_F(KeyRoute, a_reset_reaches_all_windows)
{
    CPtrnDisp* child = openChild(AppliWnd, 2, "other");
    openSystem("third");
    for (CPtrnDisp* wnd : {AppliWnd, child, SystmWnd})
        wnd->KeyInputStart(TEXT, nullptr, 0);
    moveTo(child, 250, 150);
    user.click();
    user.settle();
    for (const CPtrnDisp* wnd : {AppliWnd, child, SystmWnd})
        EXPECT_FALSE(editing(wnd));
    EXPECT_THAT(callsOf({"keyfunc"}), IsEmpty());
}

TEST_F(KeyRoute, only_windows_with_a_field_in_edit_use_a_key)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "other");
    child->KeyInputStart(TEXT, nullptr, 0);
    moveTo(AppliWnd, 200, 150);
    type("q");
    EXPECT_STREQ(child->KeyInputText, "q");
    EXPECT_FALSE(editing());
    EXPECT_EQ(text(), "");
}

// --- keypad ----------------------------------------------------------------------------------------

TEST_F(KeyRoute, the_keypad_types_what_is_printed_on_it)
{
    edit(TEXT);
    for (const unsigned long symbol : {XK_KP_0, XK_KP_1, XK_KP_5, XK_KP_9, XK_KP_Add, XK_KP_Subtract})
        key(symbol);
    EXPECT_EQ(text(), "0159+-");
    key(XK_KP_Multiply);
    key(XK_KP_Divide);
    EXPECT_EQ(text(), "0159+-*/");
    key(XK_KP_Enter);
    EXPECT_FALSE(editing());
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 0 103")) << "as Return";
}

TEST_F(KeyRoute, every_keypad_digit_is_that_digit)
{
    edit(TEXT);
    for (guint digit = 0; digit < 10; digit++) {
        send(GDK_KP_0 + digit);
        EXPECT_EQ(text().back(), static_cast<char>('0' + digit));
    }
}

TEST_F(KeyRoute, the_separator_key_types_the_point_and_the_decimal_key_does_not)
{
    edit(DECIMAL);
    key(XK_BackSpace);
    key(XK_BackSpace);
    key(XK_BackSpace);
    const std::string before = text();
    key(XK_KP_Decimal);
    EXPECT_EQ(text(), before);
    send(GDK_KP_Separator);
    EXPECT_NE(text(), before);
    EXPECT_NE(text().find('.'), std::string::npos);
}

TEST_F(KeyRoute, the_decimal_key_is_half_a_character_in_a_text)
{
    edit(TEXT);
    key(XK_KP_Decimal); // 0xFFAE
    EXPECT_EQ(text(), "");
    EXPECT_EQ(AppliWnd->KeyInputCode, 0xAEu);
}

TEST_F(KeyRoute, keypad_keys_without_num_lock_are_taken_by_their_low_byte)
{
    edit(TEXT);
    for (const guint symbol : {GDK_KP_Home, GDK_KP_Left, GDK_KP_Begin, GDK_KP_Delete, GDK_KP_Insert})
        send(symbol); // 0xFF95 ...
    EXPECT_EQ(text(), "");
    EXPECT_EQ(AppliWnd->KeyInputCode, 0u);
    EXPECT_TRUE(editing());
    send(GDK_KP_Equal); // 0xFFBD
    EXPECT_EQ(AppliWnd->KeyInputCode, 0xBDu);
}

TEST_F(KeyRoute, modifiers_go_with_the_key_as_one_value)
{
    const std::pair<guint, int> states[] = {{0, 0},
                                            {GDK_SHIFT_MASK, 1},
                                            {GDK_CONTROL_MASK, 2},
                                            {GDK_MOD1_MASK, 4},
                                            {GDK_MOD4_MASK, 0},
                                            {GDK_CONTROL_MASK | GDK_MOD1_MASK, 2},
                                            {GDK_SHIFT_MASK | GDK_CONTROL_MASK | GDK_MOD1_MASK, 1}};
    for (const auto& [state, flags] : states) {
        edit(NUMBER);
        send(GDK_Return, state);
        EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 " + std::to_string(flags) + " 100"));
    }
}

TEST_F(KeyRoute, shift_and_tab_arrive_as_such)
{
    edit(NUMBER);
    key(XK_Tab, {XK_Shift_L}); // the server calls it ISO_Left_Tab
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65289 1 100"));
}

// --- without a window manager ----------------------------------------------------------------------

namespace
{

constexpr unsigned long NOBODY = 0;
constexpr unsigned long UNDER_POINTER = 1;

} // namespace

TEST_F(KeyRoute, keys_arrive_at_the_window_under_the_pointer)
{
    EXPECT_EQ(keyboardOwner(), UNDER_POINTER);
    edit(TEXT);
    type("a");
    EXPECT_EQ(text(), "a");
}

TEST_F(KeyRoute, a_keyboard_that_nobody_has_is_freed_when_a_window_opens)
{
    setKeyboardOwner(NOBODY);
    openTop("other");
    EXPECT_EQ(keyboardOwner(), UNDER_POINTER);
    edit(TEXT);
    type("a");
    EXPECT_EQ(text(), "a");
}

TEST_F(KeyRoute, another_program_keeps_its_keyboard_until_a_panel_window_is_pressed)
{
    const ForeignWindow other(900, 900, 50, 50);
    setKeyboardOwner(other.id());
    openTop("other");
    EXPECT_EQ(keyboardOwner(), other.id());
    edit(TEXT);
    EXPECT_EQ(keyboardOwner(), UNDER_POINTER);
    type("a");
    EXPECT_EQ(text(), "a");
}
