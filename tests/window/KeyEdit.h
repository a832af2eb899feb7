// A screen with fields to edit, and what a field in edit must look like.
#pragma once

#include "comndata/ComnData.h"
#include "tests/support/Canvas.h"
#include "tests/support/Screen.h"
#include "window/KeyText.h"
#include "window/Request.h"

#include <gdk/gdkkeysyms.h>
#include <X11/keysym.h>

/// Numbers of the fields.
inline constexpr int NUMBER = 100;  ///< five bytes at 20,20
inline constexpr int DECIMAL = 101; ///< seven bytes, two decimals, at 20,50
inline constexpr int HEX = 102;     ///< four bytes at 20,80
inline constexpr int TEXT = 103;    ///< eight bytes at 20,110

class KeyEdit : public Screen
{
  protected:
    static constexpr int LEFT = 20;
    static constexpr int CELL = 8;
    static constexpr int LINE = 16;

    void SetUp() override { project.code("SYSTEM", 99).code("D", 20).flag(NUMBER).flag(TEXT); }

    static Pattern fields(const std::string& name, int navigation = 0)
    {
        const auto box = [](int y) { return SetRect(LEFT, y, LEFT + 60, y + LINE); };
        Pattern pattern(name);
        pattern.size(300, 200).header(tessary::HEDR_KIND, 2);
        pattern.item(PTRN_NUMR, box(20)).code("D", 0);
        keyed(pattern, navigation);
        pattern.item(PTRN_NUMR, box(50))
            .parm(tessary::FIELD_WIDTH, 7)
            .parm(tessary::FIELD_DECIMALS, 2)
            .code("D", 1);
        keyed(pattern, navigation);
        pattern.item(PTRN_NUMR, box(80))
            .parm(tessary::FIELD_WIDTH, 4)
            .parm(tessary::FIELD_HEX, 1)
            .code("D", 2);
        keyed(pattern, navigation);
        pattern.item(PTRN_CHAR, box(110)).parm(tessary::FIELD_WIDTH, 8).code("D", 3);
        keyed(pattern, navigation);
        return pattern;
    }

    void open(const Pattern& pattern)
    {
        know(pattern);
        start();
        openTop(pattern.name());
        moveTo(AppliWnd, 200, 150);
        project.clearLog();
        calls.clear();
    }

    /// Clicks into a field of the window.
    void edit(int number, CPtrnDisp* wnd = AppliWnd)
    {
        click(wnd, LEFT + 5, top(number) + 5);
        // A window manager may look at the click first.
        ASSERT_TRUE(user.waitFor([&] { return wnd->KeyInputMode == 1; }, "the edit"));
        ASSERT_EQ(edited(wnd), number);
        calls.clear();
    }

    static int top(int number) { return 20 + (number - NUMBER) * 30; }

    /// A key event as the toolkit delivers it, for keys that the test's keyboard lacks.
    static void send(guint key, guint state = 0, bool modifier = false)
    {
        GdkEventKey event{};
        event.type = GDK_KEY_PRESS;
        event.window = AppliWnd->Widget->window;
        event.keyval = key;
        event.state = state;
        event.is_modifier = modifier;
        EXPECT_EQ(Key_Press(AppliWnd->Widget, &event, AppliWnd), TRUE);
    }

    /// Every byte as a key of its own.
    static void sendBytes(const std::string& bytes)
    {
        for (const unsigned char byte : bytes)
            send(byte);
    }

    static std::string text() { return AppliWnd->KeyInputText; }
    static int cursor() { return AppliWnd->KeyInputPost; }
    static bool editing(const CPtrnDisp* wnd = AppliWnd) { return wnd->KeyInputMode == 1; }
    /// Data number of the field in edit.
    static int edited(const CPtrnDisp* wnd = AppliWnd) { return wnd->KeyInputPtrn.DataNo; }
    static bool frozen(int number) { return Get_wData(number, nullptr, 0) & tessary::STATE_FROZEN; }
    static float number(int no) { return Get_fData(no, nullptr, 0); }
    static std::string string(int no) { return Get_sData(no, nullptr, 0); }

    /// The field and what surrounds it, as drawn and as a field in edit has to look.
    /// @param cursorColor  -1 none
    static Picture drawn(int no) { return bufferPicture(AppliWnd, LEFT, top(no), 100, LINE + 4); }
    static Picture inEdit(int width, const std::string& shown, int at, int cursorColor)
    {
        Canvas canvas(100, LINE + 4);
        canvas->DrawRect(0, 0, 100, LINE + 4, 0, 0, tessary::HEDR_BODY_COLOR, tessary::HEDR_BODY_COLOR);
        canvas->DrawRect(0, 0, CELL * width, LINE, 0, 0, tessary::HEDR_EDIT_BACK, tessary::HEDR_EDIT_BACK);
        canvas->DrawText(0, 0, 0, tessary::HEDR_EDIT_COLOR, tessary::HEDR_EDIT_BACK, shown.c_str());
        if (cursorColor >= 0)
            canvas->DrawLine(CELL * at, 0, CELL * at, LINE, 0, 1, 0, cursorColor);
        return canvas.picture();
    }

  private:
    static void keyed(Pattern& pattern, int navigation)
    {
        pattern.parm(tessary::FIELD_KEYENTRY, 1).parm(tessary::FIELD_NAVIGATION, navigation);
    }
};
