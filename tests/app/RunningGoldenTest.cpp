// Pictures of the sample's screens while they run: what their classes draw and fill in, windows over each
// other, fields in edit. The time stands still; ticks come only when a test asks for them.
#include "app/Cells.h"
#include "comndata/ItemState.h"
#include "draw/Resource.h"
#include "tests/app/SampleProject.h"
#include "tests/support/Golden.h"

using namespace tessary;

namespace
{

class RunningGolden : public SampleProject
{
  protected:
    void SetUp() override
    {
        compile();
        start();
        const int clock[] = {2026, 4, 6, 1, 9, 5, 7};
        int no = DTNO_SYSCALN;
        for (const int part : clock)
            setNumber(no++, part);
        for (const int cell : {COUNTER_CELL, COUNTER_COPY_CELL})
            setNumber(cell, 62);
        Set_Color(COUNTER_CELL, 1, nullptr, 0);
        for (int i = 0; i < 3; i++)
            Set_Color(COLOR_STEP_CELLS[i], i + 1, nullptr, 0);
    }

    static void setNumber(int no, int value) { Set_iData(no, value, nullptr, 0); }

    /// Ticks of the windows alone: neither the clock nor the sample's signals move.
    void pass(int ticks)
    {
        for (int i = 0; i < ticks; i++)
            for (CPtrnDisp* wnd : {AppliWnd, SystmWnd})
                if (wnd)
                    wnd->TimrEvent();
        user.settle();
    }

    void pressBar(CPtrnDisp* wnd, int no, BarPart part)
    {
        const RECT place = barPart(wnd, no, part);
        click(wnd, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
        pass(1);
    }

    CPtrnDisp* child(CPtrnDisp* wnd)
    {
        EXPECT_TRUE(wnd->ChildWnd1);
        waitShown(wnd->ChildWnd1);
        return wnd->ChildWnd1;
    }

    /// The display that the profile asks for, as an operator sees it.
    void expectScreen(const std::string& name, const char* file = __builtin_FILE(),
                      int line = __builtin_LINE())
    {
        pass(1);
        expectGolden(user.picture(0, 0, DispSizeX, DispSizeY), "running/" + name, file, line);
    }
};

TEST_F(RunningGolden, version_window_over_the_menu)
{
    ASSERT_TRUE(openTop(MENU_NAME));
    clickAction(AppliWnd, ACTION_VERSION);
    waitShown(SystmWnd);
    expectScreen("version");
}

TEST_F(RunningGolden, marks_that_were_clicked_are_coloured_and_blink)
{
    openFromMenu("テスト  （図形）");
    constexpr int fan = 3;
    constexpr int openSwitch = 12;
    clickItem(AppliWnd, BLINK_MARKS.first + fan, PTRN_MARK);
    clickItem(AppliWnd, BLINK_MARKS.first + openSwitch, PTRN_MARK);
    constexpr int shown = 5; // of ten ticks, the first three are those without the mark
    pass(shown);
    expectScreen("shapes");
    pass(5);
    expectScreen("shapes-blanked");
}

TEST_F(RunningGolden, texts_in_their_colours_behind_the_popup_menu)
{
    openFromMenu("テスト  （文字列・ボタン）");
    for (int i = 0; i < COLOR_RADIOS.count; i++)
        setNumber(COLOR_RADIOS.first + i, i + 1);
    setNumber(SAMPLE_VALUE_CELL, 1234);
    Set_sData(COLOR_TEXTS.first + 1, "給水ポンプ No.1", nullptr, 0);
    Set_fData(COLOR_TEXTS.first + 2, 1234.5F, nullptr, 0);
    clickItem(AppliWnd, COLOR_MESSAGES.first, PTRN_BUTN);
    clickItem(AppliWnd, COLOR_CHECKS[0].check, PTRN_CHCK);
    pass(5);
    expectScreen("texts");
    clickItem(AppliWnd, POPUP_BUTTON_CELL, PTRN_BUTN);
    child(AppliWnd);
    expectScreen("popup");
}

TEST_F(RunningGolden, child_windows_over_each_other)
{
    openFromMenu("テスト  （文字列・ボタン）");
    clickItem(AppliWnd, CHILD_BUTTONS.first + 2, PTRN_BUTN);
    pass(3);
    expectScreen("child-3");
    clickAction(child(AppliWnd), ACTION_OPEN_CHILD1, "子ウィンドウ (1)");
    child(AppliWnd->ChildWnd1);
    expectScreen("child-1");
}

TEST_F(RunningGolden, graphs_with_most_of_a_sweep)
{
    openFromMenu("テスト  （グラフ）");
    constexpr int ticksOfSample = 5;
    pass(80 * ticksOfSample);
    expectScreen("graphs");
}

TEST_F(RunningGolden, lamps_and_an_area_that_answer_the_mouse)
{
    openFromMenu("テスト  （マウス操作）");
    clickItem(AppliWnd, LEFT_LAMPS.first + 1, PTRN_MARK);
    clickItem(AppliWnd, RIGHT_LAMPS.first + 2, PTRN_MARK, 3);
    const RECT area = item(AppliWnd, MOUSE_AREAS.first, PTRN_RECT).Rect;
    moveTo(AppliWnd, area.left + 20, area.top + 20);
    expectScreen("mouse");
}

TEST_F(RunningGolden, wires_as_they_are_in_the_file)
{
    openFromMenu("テスト  （表・キー入力）");
    child(AppliWnd);
    expectScreen("table");
}

TEST_F(RunningGolden, wires_by_length_with_a_cell_in_edit)
{
    openFromMenu("テスト  （表・キー入力）");
    CPtrnDisp* wires = child(AppliWnd);
    pressBar(AppliWnd, TABLE_H_SCROLL_CELL, BAR_NEXT_PAGE);
    constexpr int length = 1559;
    for (int i = 0; i < 2; i++) // descending
        clickItem(wires, length, PTRN_BUTN);
    pass(1);
    constexpr int terminal = TABLE_CELL + 11 * TABLE_STRIDE + 3;
    clickItem(wires, terminal, PTRN_CHAR);
    type("7");
    expectScreen("table-edit");
}

TEST_F(RunningGolden, maintenance_of_a_code_with_three_cells)
{
    ASSERT_TRUE(openTop(MENU_NAME));
    clickAction(AppliWnd, ACTION_MAINTENANCE);
    waitShown(SystmWnd);
    pass(1);
    constexpr int codeBar = DTNO_MENTE + 60;
    pressBar(SystmWnd, codeBar, BAR_NEXT_PAGE);
    constexpr int sampleText = DTNO_MENTE + 2; // in the third line of the second page
    ASSERT_EQ(text(sampleText), "SAMPLE_TEXT");
    clickItem(SystmWnd, sampleText, PTRN_CHAR);
    Set_wData(COLOR_TEXTS.first, 2, nullptr, 0);
    Set_fData(COLOR_TEXTS.first + 1, 1234.5F, nullptr, 0);
    Set_sData(COLOR_TEXTS.first + 2, "給水ポンプ No.1", nullptr, 0);
    pass(1);
    constexpr int flag = DTNO_MENTE + 21;
    clickItem(SystmWnd, flag, PTRN_CHCK);
    expectScreen("maintenance");
}

} // namespace
