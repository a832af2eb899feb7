// The maintenance screen with all its items, for tests.
#pragma once

#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "dialogs/PtrnMente.h"
#include "tests/support/Screen.h"
#include "window/Request.h"

#include <X11/keysym.h>

inline constexpr int LINES = 10;
inline constexpr int TOP = 20;     ///< of the first line
inline constexpr int SPACING = 24; ///< from line to line
inline constexpr int CODE_X = 10;  ///< left edges of the columns
inline constexpr int OFFSET_X = 180;
inline constexpr int FLAG_X = 240;
inline constexpr int WORD_X = 280;
inline constexpr int VALUE_X = 360;
inline constexpr int TEXT_X = 460;
inline constexpr int CODE_BAR_X = 150;
inline constexpr int DATA_BAR_X = 600;
inline constexpr int BOTTOM = TOP + LINES * SPACING;
inline constexpr int BAR_WIDTH = 20;

/// A pattern with all items that the screen serves. The cells 1 to 99 are those of the code "SYSTEM".
inline Pattern maintenance()
{
    Pattern pattern("メンテナンス");
    pattern.size(640, 300);
    const auto cell = [](int no) { return no - 1; }; // offset within "SYSTEM"
    for (int i = 0; i < LINES; i++) {
        const int y = TOP + i * SPACING;
        pattern.item(PTRN_CHAR, CODE_X, y, CODE_X + 128, y + 16)
            .parm(tessary::FIELD_WIDTH, 16)
            .parm(tessary::TEXT_BACKED, 1)
            .code("SYSTEM", cell(20 + i))
            .action(tessary::ACTION_MESSAGE_SELF);
        pattern.item(PTRN_NUMR, OFFSET_X, y, OFFSET_X + 40, y + 16)
            .code("SYSTEM", cell(30 + i))
            .parm(tessary::TEXT_BACKED, 1);
        pattern.item(PTRN_CHCK, FLAG_X, y, FLAG_X + 16, y + 16)
            .parm(tessary::CHECK_BACKED, 1)
            .code("SYSTEM", cell(40 + i))
            .action(tessary::ACTION_MESSAGE_SELF);
        pattern.item(PTRN_NUMR, WORD_X, y, WORD_X + 56, y + 16)
            .parm(tessary::FIELD_WIDTH, 7)
            .parm(tessary::FIELD_DECIMALS, 1)
            .parm(tessary::FIELD_KEYENTRY, 1)
            .parm(tessary::TEXT_BACKED, 1)
            .code("SYSTEM", cell(50 + i));
        pattern.item(PTRN_NUMR, VALUE_X, y, VALUE_X + 80, y + 16)
            .parm(tessary::FIELD_WIDTH, 10)
            .parm(tessary::FIELD_DECIMALS, 2)
            .parm(tessary::FIELD_KEYENTRY, 1)
            .parm(tessary::TEXT_BACKED, 1)
            .code("SYSTEM", cell(60 + i));
        pattern.item(PTRN_CHAR, TEXT_X, y, TEXT_X + 120, y + 16)
            .parm(tessary::FIELD_WIDTH, 15)
            .parm(tessary::FIELD_KEYENTRY, 1)
            .parm(tessary::TEXT_BACKED, 1)
            .code("SYSTEM", cell(70 + i));
    }
    for (const auto& [x, no] : {std::pair(CODE_BAR_X, 80), std::pair(DATA_BAR_X, 81)})
        pattern.item(PTRN_SBAR, x, TOP, x + BAR_WIDTH, BOTTOM)
            .parm(tessary::SBAR_VERTICAL, 1)
            .parm(tessary::SBAR_VISIBLE, LINES)
            .code("SYSTEM", cell(no))
            .action(tessary::ACTION_MESSAGE_SELF);
    return pattern;
}

class Maintenance : public Screen
{
  protected:
    Maintenance()
    {
        SlctCode = 0;
        LineNo1 = 0;
        LineNo2 = 0;
        project.code("SYSTEM", 99);
    }

    /// Codes "CODE01" ... of 30 data numbers each, from data number 100 on.
    void addCodes(int count)
    {
        for (int i = 1; i <= count; i++)
            project.code((i < 10 ? "CODE0" : "CODE") + std::to_string(i), 30);
    }

    void open()
    {
        maintenance().save(project);
        start();
        reopen();
    }

    void reopen()
    {
        PtrnDispMenteWnd();
        ASSERT_TRUE(SystmWnd);
        waitShown(SystmWnd);
    }

    CPtrnMente& screen() { return dynamic_cast<CPtrnMente&>(*SystmWnd); }

    static int number(int no) { return Get_iData(no, nullptr, 0); }
    static float value(int no) { return Get_fData(no, nullptr, 0); }
    static WORD word(int no) { return Get_wData(no, nullptr, 0); }
    static std::string text(int no) { return Get_sData(no, nullptr, 0); }
    static void setCell(int no, WORD word, float value, const std::string& text)
    {
        Set_wData(no, word, nullptr, 0);
        Set_fData(no, value, nullptr, 0);
        Set_sData(no, text.c_str(), nullptr, 0);
    }
    static bool disabled(int no) { return (word(no) & tessary::STATE_DISABLE) != 0; }
    static int first(int row) { return PtrnCode[row].DataNo; }

    /// The texts of the list of codes.
    static std::vector<std::string> codes()
    {
        std::vector<std::string> list;
        for (int i = 0; i < LINES; i++)
            list.push_back(text(20 + i));
        return list;
    }
    /// Lines of the list of codes that are shown as selected.
    static std::vector<int> selected()
    {
        std::vector<int> list;
        for (int i = 0; i < LINES; i++)
            if (word(20 + i) == 1)
                list.push_back(i);
        return list;
    }
    /// Lines of the list of data numbers that show one.
    static int usableLines()
    {
        int count = 0;
        for (int i = 0; i < LINES; i++) {
            int usable = 0;
            for (const int column : {30, 40, 50, 60, 70})
                usable += !disabled(column + i);
            EXPECT_TRUE(usable == 0 || usable == 5) << "line " << i;
            if (usable) {
                EXPECT_EQ(count, i) << "a gap in the list";
                count++;
            }
        }
        return count;
    }
    /// True when a line shows something in the column at x: pixels in the colour of texts and marks.
    bool hasInk(int x, int line)
    {
        // Which is the colour that a Pattern draws marks in too.
        static_assert(int{tessary::TEXT_COLOR4} == int{tessary::CHECK_COLOR});
        const RECT& place = SystmWnd->WindRect;
        const int ink = user.picture(place.left + x, place.top + TOP + line * SPACING, 38, 16)
                            .count(color(tessary::TEXT_COLOR4));
        return ink > 0;
    }

    void clickInWindow(int x, int y) { click(SystmWnd, x, y); }
    /// A click into a column of a line.
    void clickLine(int x, int line) { clickInWindow(x + 4, TOP + line * SPACING + 8); }
    /// Erases the last `erased` bytes of the field of a line, types and ends with Return.
    void enter(int x, int line, int erased, const std::string& typed)
    {
        clickLine(x, line);
        ASSERT_EQ(SystmWnd->KeyInputMode, 1);
        for (int i = 0; i < erased; i++)
            key(XK_BackSpace);
        type(typed);
        key(XK_Return);
        EXPECT_EQ(SystmWnd->KeyInputMode, 0);
    }
};
