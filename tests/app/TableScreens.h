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
    static constexpr const char* formName = "テスト  （表・キー入力）";
    static constexpr const char* tableName = "テスト  （表）";

    static constexpr int shownLines = 15;
    static constexpr int lastLine = shownLines - 1;
    static constexpr int columnWidth = 96; ///< of every column, in pixels
    static constexpr int tableWidth = 16 * columnWidth;
    static constexpr int frameLeft = 10;
    static constexpr int frameTop = 90;
    static constexpr int frameWidth = 500;
    static constexpr int headingHeight = 20;
    static constexpr int lineHeight = 20;
    static constexpr int frameHeight = headingHeight + shownLines * lineHeight;
    static constexpr int barLeft = frameLeft + frameWidth;
    static constexpr int barTop = frameTop + frameHeight;
    static constexpr int saveLeft = 10;
    static constexpr int printLeft = 110;
    static constexpr int buttonTop = barTop + 40;

    ~TableScreens() override
    {
        FreeHaisenhyo();
        HaisenHedr = HAISENHEDR{};
    }

    /// Column and line of a cell of the table.
    static constexpr int cell(int column, int line) { return 117 + 20 * column + line; }

    Pattern form()
    {
        Pattern form(formName);
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
                .code(code, offset(fields[i]));
        form.item(PTRN_RECT, frameLeft, frameTop, frameLeft + frameWidth, frameTop + frameHeight)
            .code(code, offset(432));
        form.item(PTRN_SBAR, barLeft, frameTop, barLeft + 20, barTop)
            .parm(tessary::SBAR_VERTICAL, 1)
            .parm(tessary::SBAR_VISIBLE, shownLines)
            .code(code, offset(1571))
            .action(tessary::ACTION_MESSAGE_CHILD1);
        form.item(PTRN_SBAR, frameLeft, barTop, barLeft, barTop + 20)
            .parm(tessary::SBAR_VISIBLE, frameWidth)
            .parm(tessary::SBAR_LINE_STEP, columnWidth)
            .code(code, offset(433))
            .action(tessary::ACTION_MESSAGE_CHILD1);
        form.item(PTRN_BUTN, saveLeft, buttonTop, saveLeft + 80, buttonTop + 30)
            .code(code, offset(1554))
            .action(tessary::ACTION_MESSAGE_SELF);
        form.item(PTRN_BUTN, printLeft, buttonTop, printLeft + 80, buttonTop + 30)
            .code(code, offset(434))
            .action(tessary::ACTION_MESSAGE_SELF);
        return form;
    }

    /// Heading of each column, by its cell.
    static constexpr int headings[16] = {1557, 1560, 1561, 1558, 1556, 1555, 1569, 1567,
                                         1563, 1565, 1570, 1568, 1564, 1566, 1559, 1562};

    Pattern table()
    {
        Pattern table(tableName);
        table.size(tableWidth, frameHeight).header(tessary::HEDR_MODELESS, 1);
        for (int column = 0; column < 16; column++) {
            const int x = column * columnWidth;
            table.item(PTRN_BUTN, x, 0, x + columnWidth, headingHeight)
                .code(code, offset(headings[column]))
                .action(tessary::ACTION_MESSAGE_SELF);
            for (int line = 0; line < shownLines; line++) {
                const int y = headingHeight + line * lineHeight + 2;
                table.item(column == lengthColumn ? PTRN_NUMR : PTRN_CHAR, x, y, x + columnWidth, y + 16)
                    .parm(tessary::FIELD_WIDTH, 11)
                    .parm(tessary::FIELD_KEYENTRY, 1)
                    .parm(tessary::TEXT_BACKED, 1)
                    .parm(tessary::FIELD_NAVIGATION,
                          tessary::NAV_UP | tessary::NAV_DOWN | tessary::NAV_LEFT | tessary::NAV_RIGHT)
                    .code(code, offset(cell(column, line)));
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
        ASSERT_TRUE(openTop(formName));
        ASSERT_TRUE(child(tableName));
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
        for (int line = 0; line < shownLines; line++)
            texts.push_back(text(cell(number, line)));
        return texts;
    }
};
