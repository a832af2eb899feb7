// The two screens of the wiring table, with all items that they serve.
#pragma once

#include "app/Haisenhyo.h"
#include "app/PtrnTest3.h"
#include "app/WireTable.h"
#include "tests/app/SampleScreen.h"
#include "tests/app/WireFile.h"
#include "window/KeyValue.h"

/// Fixture. The form is the application window; the table is its child window in slot 1.
class TableScreens : public SampleScreen
{
  protected:
    static constexpr const char* FORM_NAME = "テスト  （表・キー入力）";
    static constexpr const char* TABLE_NAME = "テスト  （表）";

    static constexpr int SHOWN_LINES = 15;
    static constexpr int LAST_LINE = SHOWN_LINES - 1;
    static constexpr int COLUMN_WIDTH = 96; ///< of every column, in pixels
    static constexpr int TABLE_WIDTH = 16 * COLUMN_WIDTH;
    static constexpr int FRAME_LEFT = 10;
    static constexpr int FRAME_TOP = 90;
    static constexpr int FRAME_WIDTH = 500;
    static constexpr int HEADING_HEIGHT = 20;
    static constexpr int LINE_HEIGHT = 20;
    static constexpr int FRAME_HEIGHT = HEADING_HEIGHT + SHOWN_LINES * LINE_HEIGHT;
    static constexpr int BAR_LEFT = FRAME_LEFT + FRAME_WIDTH;
    static constexpr int BAR_TOP = FRAME_TOP + FRAME_HEIGHT;
    static constexpr int SAVE_LEFT = 10;
    static constexpr int PRINT_LEFT = 110;
    static constexpr int BUTTON_TOP = BAR_TOP + 40;

    ~TableScreens() override
    {
        FreeHaisenhyo();
        HaisenHedr = HAISENHEDR{};
    }

    /// Column and line of a cell of the table.
    static constexpr int cell(int column, int line) { return 117 + 20 * column + line; }

    Pattern form()
    {
        Pattern form(FORM_NAME);
        form.size(640, 520);
        const int fields[] = {1550, 485, 1548, 100, 109};
        const int widths[] = {9, 21, 15, 5, 30};
        for (int i = 0; i < 5; i++)
            form.item(PTRN_CHAR, 10 + 200 * (i % 2), 10 + 24 * (i / 2), 190 + 200 * (i % 2),
                      26 + 24 * (i / 2))
                .parm(tessary::FIELD_WIDTH, widths[i])
                .parm(tessary::FIELD_KEYENTRY, 1)
                .parm(tessary::FIELD_NAVIGATION,
                      tessary::NAV_UP | tessary::NAV_DOWN | tessary::NAV_LEFT | tessary::NAV_RIGHT)
                .code(CODE, offset(fields[i]));
        form.item(PTRN_RECT, FRAME_LEFT, FRAME_TOP, FRAME_LEFT + FRAME_WIDTH, FRAME_TOP + FRAME_HEIGHT)
            .code(CODE, offset(432));
        form.item(PTRN_SBAR, BAR_LEFT, FRAME_TOP, BAR_LEFT + 20, BAR_TOP)
            .parm(tessary::SBAR_VERTICAL, 1)
            .parm(tessary::SBAR_VISIBLE, SHOWN_LINES)
            .code(CODE, offset(1571))
            .action(tessary::ACTION_MESSAGE_CHILD1);
        form.item(PTRN_SBAR, FRAME_LEFT, BAR_TOP, BAR_LEFT, BAR_TOP + 20)
            .parm(tessary::SBAR_VISIBLE, FRAME_WIDTH)
            .parm(tessary::SBAR_LINE_STEP, COLUMN_WIDTH)
            .code(CODE, offset(433))
            .action(tessary::ACTION_MESSAGE_CHILD1);
        form.item(PTRN_BUTN, SAVE_LEFT, BUTTON_TOP, SAVE_LEFT + 80, BUTTON_TOP + 30)
            .code(CODE, offset(1554))
            .action(tessary::ACTION_MESSAGE_SELF);
        form.item(PTRN_BUTN, PRINT_LEFT, BUTTON_TOP, PRINT_LEFT + 80, BUTTON_TOP + 30)
            .code(CODE, offset(434))
            .action(tessary::ACTION_MESSAGE_SELF);
        return form;
    }

    /// Heading of each column, by its cell.
    static constexpr int HEADINGS[16] = {1557, 1560, 1561, 1558, 1556, 1555, 1569, 1567,
                                         1563, 1565, 1570, 1568, 1564, 1566, 1559, 1562};

    Pattern table()
    {
        Pattern table(TABLE_NAME);
        table.size(TABLE_WIDTH, FRAME_HEIGHT).header(tessary::HEDR_MODELESS, 1);
        for (int column = 0; column < 16; column++) {
            const int x = column * COLUMN_WIDTH;
            table.item(PTRN_BUTN, x, 0, x + COLUMN_WIDTH, HEADING_HEIGHT)
                .code(CODE, offset(HEADINGS[column]))
                .action(tessary::ACTION_MESSAGE_SELF);
            for (int line = 0; line < SHOWN_LINES; line++) {
                const int y = HEADING_HEIGHT + line * LINE_HEIGHT + 2;
                table.item(column == LENGTH_COLUMN ? PTRN_NUMR : PTRN_CHAR, x, y, x + COLUMN_WIDTH, y + 16)
                    .parm(tessary::FIELD_WIDTH, 11)
                    .parm(tessary::FIELD_KEYENTRY, 1)
                    .parm(tessary::TEXT_BACKED, 1)
                    .parm(tessary::FIELD_NAVIGATION,
                          tessary::NAV_UP | tessary::NAV_DOWN | tessary::NAV_LEFT | tessary::NAV_RIGHT)
                    .code(CODE, offset(cell(column, line)));
            }
        }
        return table;
    }

    /// Writes the table file with `count` numbered records, and opens the form.
    void openTable(int count)
    {
        openTable(wireFile({"SYS", "行先", "W1", "B1", "注記"}, numberedWires(count)));
    }
    void openTable(const std::string& bytes)
    {
        project.write("Haisenhyo", bytes);
        form().save(project);
        table().save(project);
        start();
        reopen();
    }
    void reopen()
    {
        ASSERT_TRUE(openTop(FORM_NAME));
        ASSERT_TRUE(child(TABLE_NAME));
    }

    CPtrnTest3& formWnd() { return dynamic_cast<CPtrnTest3&>(*AppliWnd); }
    CHaisenhyo& tableWnd() { return dynamic_cast<CHaisenhyo&>(*AppliWnd->ChildWnd1); }

    /// The cell whose field is in edit in a window; -1 none.
    static int edited(const CPtrnDisp& wnd) { return wnd.KeyInputMode == 1 ? wnd.KeyInputPtrn.DataNo : -1; }
    /// Starts an edit and ends it with a key; the cell in which key input goes on.
    static int editAfter(CPtrnDisp& wnd, int cell, unsigned int key, int state = 0)
    {
        wnd.KeyInputStart(cell, nullptr, 0);
        EXPECT_EQ(edited(wnd), cell);
        wnd.KeyInputStop(key, state, nullptr, 0);
        return edited(wnd);
    }
    /// The texts of a column on the screen.
    static std::vector<std::string> column(int number)
    {
        std::vector<std::string> texts;
        for (int line = 0; line < SHOWN_LINES; line++)
            texts.push_back(text(cell(number, line)));
        return texts;
    }
};
