// Japanese text entry through an input method, here one of the test's own.
#include "window/InputMethod.h"
#include "tests/support/UseEdition.h"
#include "tests/support/Variable.h"
#include "tests/window/KeyEdit.h"

#include "base/EucText.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// What the method was told and what it does with keys.
struct Method {
    std::vector<std::string> told;
    std::function<bool(GdkEventKey*)> key;
    GtkIMContext* context = nullptr;
    GdkWindow* client = nullptr;
    GdkRectangle place{};

    /// UTF-8 text, as the operator has chosen it.
    void commit(const std::string& text) const { g_signal_emit_by_name(context, "commit", text.c_str()); }
};
Method* method;

struct FakeContext {
    GtkIMContext parent;
};
struct FakeContextClass {
    GtkIMContextClass parent;
};

void setCalls(gpointer type, gpointer)
{
    GtkIMContextClass& calls = static_cast<FakeContextClass*>(type)->parent;
    calls.filter_keypress = [](GtkIMContext*, GdkEventKey* event) -> gboolean {
        return method->key && method->key(event);
    };
    calls.set_client_window = [](GtkIMContext*, GdkWindow* window) { method->client = window; };
    calls.focus_in = [](GtkIMContext*) { method->told.push_back("focus in"); };
    calls.focus_out = [](GtkIMContext*) { method->told.push_back("focus out"); };
    calls.reset = [](GtkIMContext*) { method->told.push_back("reset"); };
    calls.set_use_preedit = [](GtkIMContext*, gboolean use) {
        method->told.push_back(use ? "preedit here" : "preedit in its own window");
    };
    calls.set_cursor_location = [](GtkIMContext*, GdkRectangle* area) { method->place = *area; };
}

GType fakeContextType()
{
    static const GType TYPE =
        g_type_register_static_simple(GTK_TYPE_IM_CONTEXT, "FakeContext", sizeof(FakeContextClass), setCalls,
                                      sizeof(FakeContext), nullptr, GTypeFlags(0));
    return TYPE;
}

class AnInputMethod : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        method = &own;
        own.context = GTK_IM_CONTEXT(g_object_new(fakeContextType(), nullptr));
        tessary::DesktopMethod().replace(own.context);
    }

    void TearDown() override
    {
        tessary::DesktopMethod().replace(nullptr);
        g_object_unref(own.context);
    }

    /// The method takes every letter and commits the text at a space.
    void convertLetters(const std::string& text)
    {
        own.key = [this, text](GdkEventKey* event) {
            if (event->type != GDK_KEY_PRESS)
                return false;
            if (event->keyval == ' ')
                own.commit(text);
            return event->keyval == ' ' || (event->keyval >= 'a' && event->keyval <= 'z');
        };
    }

    Method own;
};

std::string utf8(const char* eucText)
{
    return EucToUtf8(eucText);
}

} // namespace

TEST_F(AnInputMethod, types_what_the_method_commits)
{
    open(fields("p"));
    edit(TEXT);
    convertLetters(utf8("漢字"));
    type("kanji");
    EXPECT_EQ(text(), "") << "the method has taken the keys";
    type(" ");
    EXPECT_EQ(text(), "漢字");
    EXPECT_EQ(cursor(), 4);
    key(XK_Return);
    EXPECT_EQ(string(TEXT), "漢字");
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 0 103"));
}

TEST_F(AnInputMethod, leaves_keys_that_it_does_not_take_to_the_field)
{
    open(fields("p"));
    edit(TEXT);
    own.key = [](GdkEventKey*) { return false; };
    type("Ab 1");
    key(XK_Left);
    key(XK_BackSpace);
    EXPECT_EQ(text(), "Ab1     ");
    key(XK_Escape);
    EXPECT_FALSE(editing());
}

TEST_F(AnInputMethod, which_only_gives_a_key_s_own_character_back_changes_nothing)
{
    open(fields("p"));
    edit(TEXT);
    // As methods do while they are switched off.
    own.key = [this](GdkEventKey* event) {
        const guint32 character = gdk_keyval_to_unicode(event->keyval);
        if (event->type != GDK_KEY_PRESS || character < 0x20)
            return false;
        char committed[8] = "";
        g_unichar_to_utf8(character, committed);
        own.commit(committed);
        return true;
    };
    type("Az~");
    key(XK_KP_5);
    EXPECT_EQ(text(), "Az~5");
    key(XK_KP_Decimal);
    EXPECT_EQ(text(), "Az~5");
    EXPECT_EQ(AppliWnd->KeyInputCode, 0xAEu) << "still half a character";
    key(XK_Return, {XK_Shift_L});
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65293 1 103"));
}

TEST_F(AnInputMethod, is_asked_for_releases_and_modifiers_too)
{
    open(fields("p"));
    edit(TEXT);
    std::vector<std::pair<int, guint>> asked;
    own.key = [&](GdkEventKey* event) {
        asked.emplace_back(event->type, event->keyval);
        return true;
    };
    key(XK_Shift_L);
    key(XK_a);
    using Asked = std::pair<int, guint>;
    EXPECT_THAT(asked, ElementsAre(Asked(GDK_KEY_PRESS, GDK_Shift_L), Asked(GDK_KEY_RELEASE, GDK_Shift_L),
                                   Asked(GDK_KEY_PRESS, GDK_a), Asked(GDK_KEY_RELEASE, GDK_a)));
    EXPECT_EQ(text(), "");
}

TEST_F(AnInputMethod, is_not_asked_for_numbers_nor_without_a_field_in_edit)
{
    open(fields("p"));
    int asked = 0;
    own.key = [&](GdkEventKey*) {
        asked++;
        return true;
    };
    type("1");
    edit(NUMBER);
    type("12");
    key(XK_Return);
    EXPECT_EQ(number(NUMBER), 12);
    own.commit(utf8("漢"));
    EXPECT_EQ(asked, 0);
    EXPECT_FALSE(editing());
}

TEST_F(AnInputMethod, types_whole_characters_into_corrected_entry)
{
    const UseEdition edition;
    open(fields("p"));
    edit(TEXT);
    own.commit(utf8("漢字a"));
    EXPECT_EQ(text(), "漢字a");
    own.commit(utf8("漢字")); // of which one still fits
    EXPECT_EQ(text(), "漢字a漢");
    key(XK_BackSpace);
    key(XK_Return);
    EXPECT_EQ(string(TEXT), "漢字a");
}

TEST_F(AnInputMethod, serves_the_field_whichever_window_has_the_keyboard)
{
    know(fields("other").header(HEDR_LEFT, 500).header(HEDR_MODELESS, 1));
    open(fields("p"));
    CPtrnDisp* child = openChild(AppliWnd, 1, "other");
    edit(TEXT);
    convertLetters(utf8("字"));
    moveTo(child, 200, 150);
    type("a ");
    EXPECT_EQ(text(), "字");
    EXPECT_EQ(own.client, child->Widget->window);
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_EQ(own.client, nullptr) << "it has let go of the window that has gone";
    moveTo(AppliWnd, 200, 150);
    type("a ");
    EXPECT_EQ(text(), "字字");
}

TEST_F(AnInputMethod, shows_what_is_composed_in_its_own_window_at_the_cursor)
{
    open(fields("p").header(HEDR_LEFT, 200).header(HEDR_TOP, 100));
    EXPECT_THAT(own.told, ElementsAre("preedit in its own window"));
    AppliWnd->PtrnSetOffset(0, 5, 10, nullptr, 0);
    click(AppliWnd, LEFT, top(TEXT) - 10 + 5);
    ASSERT_TRUE(editing());
    EXPECT_EQ(own.client, AppliWnd->Widget->window);
    EXPECT_EQ(own.place.x, LEFT - 5);
    EXPECT_EQ(own.place.y, top(TEXT) - 10);
    EXPECT_EQ(own.place.height, LINE);
    own.commit(utf8("漢"));
    EXPECT_EQ(own.place.x, LEFT - 5 + 2 * CELL);
    key(XK_Left);
    EXPECT_EQ(own.place.x, LEFT - 5);
}

namespace
{

/// On a panel of 640 x 480 that is shown twice as large, at 0,32.
class ScaledInputMethod : public AnInputMethod
{
  protected:
    void SetUp() override
    {
        AnInputMethod::SetUp();
        project.set("TESSARY", "DISPSIZE", "640,480").set("TESSARY", "SCALE", "steps");
    }

    POINT onDisplay(const CPtrnDisp* wnd, int x, int y) const override
    {
        return {2 * (wnd->WindRect.left + x), 32 + 2 * (wnd->WindRect.top + y)};
    }

    bool isAtPlace(const CPtrnDisp*, const ScreenWindow& shown) const override { return shown.width == 1280; }
};

} // namespace

TEST_F(ScaledInputMethod, shows_what_is_composed_where_the_display_has_the_cursor)
{
    open(fields("p").header(HEDR_LEFT, 100).header(HEDR_TOP, 50));
    edit(TEXT);
    EXPECT_EQ(own.client, AppliWnd->Widget->window) << "which begins where the display does";
    EXPECT_EQ(own.place.x, 2 * (100 + LEFT));
    EXPECT_EQ(own.place.y, 32 + 2 * (50 + top(TEXT)));
    EXPECT_EQ(own.place.height, 2 * LINE);
    own.commit(utf8("漢"));
    EXPECT_EQ(own.place.x, 2 * (100 + LEFT + 2 * CELL));
}

TEST_F(AnInputMethod, tells_the_place_relative_to_the_window_that_has_the_keyboard)
{
    know(fields("other").header(HEDR_LEFT, 500).header(HEDR_TOP, 300).header(HEDR_MODELESS, 1));
    open(fields("p"));
    CPtrnDisp* child = openChild(AppliWnd, 1, "other");
    edit(TEXT);
    own.key = [](GdkEventKey*) { return true; };
    moveTo(child, 200, 150);
    key(XK_a);
    EXPECT_EQ(own.place.x, LEFT - 500);
    EXPECT_EQ(own.place.y, top(TEXT) - 300);
}

TEST_F(AnInputMethod, is_reset_when_the_input_ends_and_can_not_type_any_more)
{
    open(fields("p"));
    edit(TEXT);
    own.told.clear();
    // Some methods commit at a reset what was being composed.
    g_signal_connect(own.context, "commit", G_CALLBACK(+[](GtkIMContext*, char*, gpointer) {}), nullptr);
    click(AppliWnd, 250, 150);
    EXPECT_FALSE(editing());
    EXPECT_THAT(own.told, ElementsAre("reset", "focus out"));
    own.commit(utf8("漢"));
    EXPECT_EQ(AppliWnd->KeyInputText, std::string());
    edit(TEXT);
    EXPECT_EQ(own.told.back(), "focus in");
}

TEST_F(AnInputMethod, is_left_when_the_window_of_the_field_goes)
{
    know(fields("other").header(HEDR_LEFT, 500).header(HEDR_MODELESS, 1));
    open(fields("p"));
    CPtrnDisp* child = openChild(AppliWnd, 1, "other");
    edit(TEXT, child);
    EXPECT_EQ(own.client, child->Widget->window);
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_EQ(own.client, nullptr);
    own.commit(utf8("漢"));
}

TEST_F(AnInputMethod, may_be_there_before_the_window_is)
{
    hooks.init = [](CPtrnDisp& wnd) { wnd.KeyInputStart(TEXT, nullptr, 0); };
    open(fields("p"));
    convertLetters(utf8("字"));
    type("a ");
    EXPECT_EQ(text(), "字");
}

// --- characters ------------------------------------------------------------------------------------

TEST_F(AnInputMethod, half_a_character_left_by_a_key_does_not_spoil_what_is_committed)
{
    open(fields("p"));
    edit(TEXT);
    key(XK_F1); // half a character by its low byte
    own.commit(utf8("漢字"));
    EXPECT_EQ(text(), "漢字");
}

TEST_F(AnInputMethod, half_width_katakana_become_full_width)
{
    open(fields("p"));
    edit(TEXT);
    own.commit("\xEF\xBD\xB1\xEF\xBD\xB6\xEF\xBE\x9E"); // a, ka, voiced mark
    EXPECT_EQ(text(), "アガ");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(AnInputMethod, full_width_letters_stay_what_they_are)
{
    open(fields("p"));
    edit(TEXT);
    own.commit(utf8("Ａ１"));
    EXPECT_EQ(text(), "Ａ１");
}

TEST_F(AnInputMethod, characters_that_no_field_can_hold_are_left_out_and_logged)
{
    open(fields("p"));
    edit(TEXT);
    own.commit("a\xF0\x9F\x98\x80\xC3\xA9z\n"); // a face, e with acute (three bytes), a line feed
    EXPECT_EQ(text(), "az");
    EXPECT_EQ(AppliWnd->KeyInputCode, 0u);
    EXPECT_THAT(project.messages(), ElementsAre("入力できない文字  [U+1F600]", "入力できない文字  [U+00E9]",
                                                "入力できない文字  [U+000A]"));
}

TEST_F(AnInputMethod, damaged_text_is_ignored)
{
    open(fields("p"));
    edit(TEXT);
    own.commit("a\xFF\xFE");
    EXPECT_EQ(text(), "");
}

// --- without a method ------------------------------------------------------------------------------

namespace
{

class NoInputMethod : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        open(fields("p"));
        edit(TEXT);
    }

    void empty()
    {
        AppliWnd->KeyInputText[0] = '\0';
        AppliWnd->KeyInputPost = 0;
        AppliWnd->KeyInputCode = 0;
    }
};

} // namespace

TEST_F(NoInputMethod, every_key_types_what_its_low_byte_says)
{
    // Among them those that the toolkit's own composing would take: dead keys, accents, keypad, Multi_key.
    for (const guint base : {0x0000u, 0x0400u, 0xFE00u, 0xFF00u}) {
        for (guint low = 0; low < 256; low++) {
            const guint symbol = base + low;
            if (symbol == GDK_Return || symbol == GDK_Escape || symbol == GDK_Tab ||
                symbol == GDK_ISO_Left_Tab || symbol == GDK_KP_Enter || symbol == GDK_BackSpace ||
                symbol == GDK_Delete || symbol == GDK_Left || symbol == GDK_Right || symbol == GDK_Up ||
                symbol == GDK_Down)
                continue;
            empty();
            send(symbol);
            ASSERT_TRUE(editing()) << symbol;
            static const std::map<guint, char> KEYPAD = {
                {GDK_KP_Multiply, '*'}, {GDK_KP_Add, '+'}, {GDK_KP_Separator, '.'}, {GDK_KP_Subtract, '-'},
                {GDK_KP_Divide, '/'},   {GDK_KP_0, '0'},   {GDK_KP_1, '1'},         {GDK_KP_2, '2'},
                {GDK_KP_3, '3'},        {GDK_KP_4, '4'},   {GDK_KP_5, '5'},         {GDK_KP_6, '6'},
                {GDK_KP_7, '7'},        {GDK_KP_8, '8'},   {GDK_KP_9, '9'}};
            const auto printed = KEYPAD.find(symbol);
            const guint byte = printed != KEYPAD.end() ? static_cast<guint>(printed->second) : low;
            const bool half = byte >= 161 && byte <= 254;
            const bool printable = byte >= 0x20 && byte < 0x7F;
            EXPECT_EQ(text(), printable ? std::string(1, static_cast<char>(byte)) : "") << symbol;
            EXPECT_EQ(AppliWnd->KeyInputCode, half ? byte : 0u) << symbol;
        }
    }
}

TEST_F(NoInputMethod, a_dead_key_is_not_composed_with_the_next)
{
    send(GDK_dead_acute); // 0xFE51
    send('e');
    EXPECT_EQ(text(), "Qe");
    send(GDK_Multi_key); // 0xFF20
    EXPECT_EQ(text(), "Qe ");
}

TEST_F(NoInputMethod, control_and_alt_change_nothing)
{
    send('a', GDK_CONTROL_MASK);
    send('b', GDK_MOD1_MASK);
    send('c', GDK_SUPER_MASK);
    EXPECT_EQ(text(), "abc");
}

TEST_F(NoInputMethod, the_x_library_s_own_composing_is_none)
{
    // What a Japanese locale chooses by itself: there is no server behind it.
    const Variable module("GTK_IM_MODULE", "xim");
    Variable chosen("XMODIFIERS", "");
    for (const char* modifiers : {"", "@im=none", "@im=local", "@im="}) {
        chosen.set(modifiers);
        g_object_set(gtk_settings_get_default(), "gtk-im-module", modifiers, nullptr); // to be looked at anew
        edit(TEXT);
        send(GDK_dead_acute);
        key(XK_e);
        send(GDK_Multi_key);
        key(XK_KP_Decimal);
        EXPECT_EQ(text(), "Qe ") << modifiers;
        EXPECT_EQ(AppliWnd->KeyInputCode, 0xAEu) << modifiers;
        key(XK_Escape);
        tick();
    }
    g_object_set(gtk_settings_get_default(), "gtk-im-module", "", nullptr);
}

TEST_F(NoInputMethod, a_method_whose_server_does_not_run_leaves_the_keyboard_usable)
{
    const Variable module("GTK_IM_MODULE", "xim");
    const Variable chosen("XMODIFIERS", "@im=nobody");
    g_object_set(gtk_settings_get_default(), "gtk-im-module", "xim", nullptr);
    edit(TEXT);
    type("Ab 1");
    key(XK_Left);
    key(XK_BackSpace);
    EXPECT_EQ(text(), "Ab1     ");
    key(XK_Return);
    EXPECT_EQ(string(TEXT), "Ab1    ");
    g_object_set(gtk_settings_get_default(), "gtk-im-module", "", nullptr);
}

TEST_F(NoInputMethod, real_keys_arrive_in_their_order)
{
    type("Test 1.");
    EXPECT_EQ(text(), "Test 1.");
}
