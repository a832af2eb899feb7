// Keys that operate the window in front while nothing is in edit: buttons and scroll bars.
#include "tests/support/UseEdition.h"
#include "tests/window/KeyEdit.h"

#include "window/Events.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Windows with buttons for F1, Return and Escape, which send messages, and scroll bars that take keys.
class FrontKey : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        know(panel("modal", 10).header(HEDR_LEFT, 500).header(HEDR_MODELESS, 0));
        know(panel("modeless", 20).header(HEDR_LEFT, 500).header(HEDR_TOP, 300).header(HEDR_MODELESS, 1));
        know(panel("system", 30).header(HEDR_LEFT, 500).header(HEDR_TOP, 500));
        project.code("E", 40);
        open(panel("p", 0));
    }

    /// Numbers of its items from 120 + first on: the button of F1, of Return, of Escape, two scroll bars.
    static Pattern panel(const std::string& name, int first)
    {
        Pattern pattern = fields(name);
        const auto button = [&](int y, int parm, int value, int offset) {
            pattern.item(PTRN_BUTN, 200, y, 250, y + 20)
                .parm(parm, value)
                .code("E", first + offset)
                .action(ACTION_MESSAGE_SELF);
        };
        button(10, BUTN_KEY, 1, 0);
        button(40, BUTN_DEFAULT, 1, 1);
        button(70, BUTN_CANCEL, 1, 2);
        const auto bar = [&](const RECT& place, int vertical, int offset) {
            pattern.item(PTRN_SBAR, place)
                .parm(SBAR_VERTICAL, vertical)
                .parm(SBAR_PAGES, 1)
                .parm(SBAR_KEYS, 1)
                .code("E", first + offset);
        };
        bar(SetRect(100, 170, 250, 190), 0, 3);
        bar(SetRect(270, 10, 290, 160), 1, 4);
        return pattern;
    }

    static constexpr int FIRST = 120;
    static constexpr int BAR = FIRST + 3;
    static constexpr int COLUMN = FIRST + 4;

    Calls pressed() const { return callsOf({"mesg"}); }
    static void setState(int no, int word) { Set_wData(no, static_cast<WORD>(word), nullptr, 0); }

    // Reports of a key by its place on the keyboard.
    static void report(guint key, guint16 code)
    {
        auto event = reportOf(GDK_KEY_PRESS, key, code);
        Key_Press(AppliWnd->Widget, &event, AppliWnd);
    }
    static void letGo(guint key, guint16 code)
    {
        auto event = reportOf(GDK_KEY_RELEASE, key, code);
        Key_Release(AppliWnd->Widget, &event, AppliWnd);
    }

  private:
    static GdkEventKey reportOf(GdkEventType type, guint key, guint16 code)
    {
        GdkEventKey event{};
        event.type = type;
        event.window = AppliWnd->Widget->window;
        event.keyval = key;
        event.hardware_keycode = code;
        return event;
    }
};

class CorrectedFrontKey : public FrontKey
{
    UseEdition edition_;
};

} // namespace

TEST_F(FrontKey, operates_nothing_in_the_first_edition)
{
    for (const unsigned long symbol : {XK_F1, XK_Return, XK_Escape, XK_Right, XK_Page_Down})
        key(symbol);
    EXPECT_THAT(pressed(), IsEmpty());
    EXPECT_EQ(number(BAR), 0);
    EXPECT_EQ(number(COLUMN), 0);
}

TEST_F(CorrectedFrontKey, presses_the_button_of_the_function_key)
{
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120"));
    key(XK_F2);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120"));
}

TEST_F(CorrectedFrontKey, return_and_escape_press_the_marked_buttons)
{
    key(XK_Return);
    key(XK_KP_Enter);
    key(XK_Escape);
    EXPECT_THAT(pressed(), ElementsAre("mesg 121", "mesg 121", "mesg 122"));
}

TEST_F(CorrectedFrontKey, presses_once_however_long_it_is_held)
{
    for (int i = 0; i < 3; i++)
        report(GDK_F1, 67);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120"));
    letGo(GDK_F1, 67);
    report(GDK_F1, 67);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120", "mesg 120"));
    report(GDK_Return, 36);
    report(GDK_F1, 67);
    EXPECT_THAT(pressed().size(), 4U) << "another key came between";
}

TEST_F(CorrectedFrontKey, does_not_press_what_can_not_be_pressed)
{
    for (const int state : {STATE_HIDDEN, STATE_DISABLE, STATE_LOCKED}) {
        setState(FIRST, state);
        key(XK_F1);
    }
    EXPECT_THAT(pressed(), IsEmpty());
    setState(FIRST, 0);
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120"));
}

TEST_F(CorrectedFrontKey, arrows_and_pages_move_the_scroll_bars)
{
    key(XK_Right);
    key(XK_Right);
    key(XK_Left);
    EXPECT_EQ(number(BAR), 1);
    key(XK_Down);
    EXPECT_EQ(number(COLUMN), 1);
    key(XK_Page_Down);
    EXPECT_EQ(number(COLUMN), 11);
    key(XK_Page_Up);
    key(XK_Up);
    EXPECT_EQ(number(COLUMN), 0);
    setState(BAR, STATE_DISABLE);
    key(XK_Right);
    EXPECT_EQ(number(BAR), 1);
}

TEST_F(CorrectedFrontKey, a_field_in_edit_takes_the_keys_first)
{
    edit(TEXT);
    for (const unsigned long symbol : {XK_a, XK_Left, XK_F1})
        key(symbol);
    EXPECT_EQ(cursor(), 0);
    EXPECT_THAT(pressed(), IsEmpty());
    EXPECT_EQ(number(BAR), 0);
    key(XK_Return);
    EXPECT_EQ(string(TEXT), "a");
    EXPECT_THAT(pressed(), IsEmpty()) << "Return has ended the entry";
    key(XK_Return);
    EXPECT_THAT(pressed(), ElementsAre("mesg 121"));
}

TEST_F(CorrectedFrontKey, reaches_the_child_that_blocks)
{
    openChild(AppliWnd, 1, "modal");
    calls.clear();
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 130"));
}

TEST_F(CorrectedFrontKey, reaches_a_modeless_child_that_holds_the_pointer)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "modeless");
    calls.clear();
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120"));
    moveTo(child, 150, 100);
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 120", "mesg 140"));
}

TEST_F(CorrectedFrontKey, reaches_the_system_window_before_all_others)
{
    openChild(AppliWnd, 1, "modal");
    openSystem("system");
    calls.clear();
    moveTo(AppliWnd, 150, 100);
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 150"));
}

TEST_F(CorrectedFrontKey, reaches_the_child_that_was_opened_last)
{
    openChild(AppliWnd, 2, "modal");
    openChild(AppliWnd, 1, "modal");
    AppliWnd->ChildWnd1->PtrnData->PtrnHedr.Parm1[HEDR_MODELESS] = 1;
    calls.clear();
    moveTo(AppliWnd, 150, 100);
    key(XK_F1);
    EXPECT_THAT(pressed(), ElementsAre("mesg 130")) << "that blocks: the one before";
}
