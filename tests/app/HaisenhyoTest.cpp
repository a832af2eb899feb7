// The window of the wiring table: paging, sorting, editing.
#include "tests/app/TableScreens.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::Each;
using testing::ElementsAre;

namespace
{

class WireScreen : public TableScreens
{
  protected:
    static constexpr int SHIFT = 1;

    /// Where key input goes on after a key in a cell: {first shown line, column, line}; -1 nowhere.
    std::vector<int> move(int first, int column, int line, unsigned int key, int state = 0)
    {
        tableWnd().DispDataSet(first);
        const int at = editAfter(tableWnd(), cell(column, line), key, state);
        if (at < 0)
            return {-1};
        return {tableWnd().DispDtno, (at - 117) / 20, (at - 117) % 20};
    }
    void clickHeading(int message) { tableWnd().PtrnMesgFunc(message); }
};

std::vector<std::string> numbered(char letter, std::initializer_list<int> numbers)
{
    std::vector<std::string> texts;
    for (const int number : numbers)
        texts.push_back(letter + std::to_string(number));
    return texts;
}

} // namespace

TEST_F(WireScreen, shows_fifteen_records_with_their_line_numbers)
{
    openTable(40);
    for (int line = 0; line < SHOWN_LINES; line++) {
        EXPECT_EQ(number(439 + line), line + 1);
        for (int column = 0; column < 16; column++) {
            const int no = cell(column, line);
            if (column == LENGTH_COLUMN)
                EXPECT_EQ(number(no), 10 * (line + 1)) << no;
            else
                EXPECT_EQ(text(no), static_cast<char>('a' + column) + std::to_string(line + 1)) << no;
        }
    }
    EXPECT_EQ(tableWnd().SortCulm, -1);
    EXPECT_EQ(tableWnd().DispDtno, 0);
}

TEST_F(WireScreen, leaves_the_cells_below_the_fifteenth_line_alone)
{
    openTable(40);
    setText(cell(0, 15), "other");
    setText(cell(14, 19), "other");
    tableWnd().DispDataSet(3);
    EXPECT_EQ(text(cell(0, 15)), "other");
    EXPECT_EQ(text(cell(14, 19)), "other");
}

TEST_F(WireScreen, pages_with_the_vertical_bar)
{
    openTable(40);
    clickAt(BAR_LEFT + 10, BAR_TOP - 8); // the lower arrow
    EXPECT_EQ(number(1571), 1);
    EXPECT_EQ(tableWnd().DispDtno, 1);
    EXPECT_EQ(text(cell(0, 0)), "a2");
    EXPECT_EQ(number(439), 2);
    setNumber(1571, 25);
    tableWnd().PtrnMesgFunc(1571);
    EXPECT_EQ(text(cell(0, LAST_LINE)), "a40");
    EXPECT_EQ(number(439 + LAST_LINE), 40);
}

TEST_F(WireScreen, moves_sideways_with_the_horizontal_bar)
{
    openTable(40);
    clickAt(BAR_LEFT - 8, BAR_TOP + 10); // the right arrow
    EXPECT_EQ(number(433), COLUMN_WIDTH);
    EXPECT_EQ(tableWnd().Offset.x, COLUMN_WIDTH);
    EXPECT_EQ(tableWnd().Offset.y, 0);
    setNumber(433, 300);
    tableWnd().PtrnMesgFunc(433);
    EXPECT_EQ(tableWnd().Offset.x, 300);
}

TEST_F(WireScreen, ignores_other_messages)
{
    openTable(40);
    setNumber(1571, 5);
    setNumber(433, 5);
    for (const int message : {-1, 0, 117, 432, 434, 1554, 1572})
        tableWnd().PtrnMesgFunc(message);
    EXPECT_EQ(tableWnd().DispDtno, 0);
    EXPECT_EQ(tableWnd().Offset.x, 0);
    EXPECT_EQ(tableWnd().SortCulm, -1);
}

// --- tables that do not fill the window ----------------------------------------------------------------

TEST_F(WireScreen, shows_the_lines_behind_the_last_record_empty)
{
    openTable(4);
    for (int line = 4; line < SHOWN_LINES; line++) {
        EXPECT_EQ(number(439 + line), 0);
        EXPECT_TRUE(hidden(439 + line)) << "so that no number is seen";
        for (int column = 0; column < 16; column++) {
            EXPECT_EQ(text(cell(column, line)), "");
            EXPECT_EQ(number(cell(column, line)), 0);
            EXPECT_TRUE(hidden(cell(column, line)));
        }
    }
    for (int column = 0; column < 16; column++)
        EXPECT_FALSE(hidden(cell(column, 3)));
    EXPECT_EQ(text(cell(0, 3)), "a4");
}

TEST_F(WireScreen, shows_no_text_in_the_empty_lines)
{
    openTable(4);
    tableWnd().DispDataSet(0);
    tick(2);
    const auto ink = [&](int line) {
        return user
            .picture(FRAME_LEFT, FRAME_TOP + HEADING_HEIGHT + line * LINE_HEIGHT, FRAME_WIDTH, LINE_HEIGHT)
            .count(color(TEXT_COLOR4));
    };
    EXPECT_GT(ink(3), 0);
    for (int line = 4; line < SHOWN_LINES; line++)
        EXPECT_EQ(ink(line), 0) << line;
}

TEST_F(WireScreen, fills_the_lines_again_when_there_are_records)
{
    openTable(16);
    tableWnd().DispDataSet(10);
    EXPECT_EQ(text(cell(0, 5)), "a16");
    EXPECT_TRUE(hidden(cell(0, 6)));
    tableWnd().DispDataSet(0);
    EXPECT_FALSE(hidden(cell(0, 6)));
    EXPECT_FALSE(hidden(439 + 6));
    EXPECT_EQ(text(cell(0, 6)), "a7");
}

TEST_F(WireScreen, shows_nothing_at_places_outside_the_table)
{
    openTable(20);
    for (const int first : {-1, -20, 20, 1000000, 2147483647, -2147483647 - 1}) {
        tableWnd().DispDataSet(first);
        tableWnd().DispDataGet();
        if (first != -1) {
            EXPECT_THAT(column(0), Each("")) << first;
        }
    }
    tableWnd().DispDataSet(0);
    EXPECT_EQ(text(cell(0, 0)), "a1") << "and stores nothing";
}

TEST_F(WireScreen, refuses_key_input_in_empty_lines)
{
    openTable(4);
    tick();
    tableWnd().KeyInputStart(cell(0, 4), nullptr, 0);
    EXPECT_EQ(edited(tableWnd()), -1);
    clickAt(FRAME_LEFT + 20, FRAME_TOP + HEADING_HEIGHT + 4 * LINE_HEIGHT + 8);
    EXPECT_EQ(edited(tableWnd()), -1);
}

TEST_F(WireScreen, keys_stay_within_a_short_table)
{
    openTable(4);
    EXPECT_EQ(move(0, 5, 3, KEYVAL_DOWN), std::vector<int>({0, 5, 3}));
    EXPECT_EQ(move(0, 15, 3, KEYVAL_RETURN), std::vector<int>({0, 15, 3}));
    EXPECT_EQ(move(0, 15, 2, KEYVAL_RETURN), std::vector<int>({0, 0, 3}));
}

// --- sorting -------------------------------------------------------------------------------------------

TEST_F(WireScreen, each_heading_sorts_by_its_column)
{
    const std::pair<int, int> rows[] = {
        {1557, 0}, {1560, 1}, {1561, 2},  {1558, 3},  {1556, 4},  {1555, 5},  {1569, 6},  {1567, 7},
        {1563, 8}, {1565, 9}, {1570, 10}, {1568, 11}, {1564, 12}, {1566, 13}, {1559, 14}, {1562, 15},
    };
    // Only the column of the heading has another order than the file.
    std::vector<WireBytes> wires(3);
    std::string bytes = wireFile({}, wires);
    openTable(bytes);
    for (const auto& [message, sorted] : rows) {
        for (std::size_t i = 0; i < 3; i++) {
            wires[i] = WireBytes();
            wires[i].number = static_cast<int>(i);
            if (sorted == LENGTH_COLUMN)
                wires[i].length = static_cast<int>((i + 2) % 3);
            else
                wires[i].texts[static_cast<std::size_t>(sorted)] =
                    std::string(1, static_cast<char>('A' + (i + 2) % 3));
        }
        project.write("Haisenhyo", wireFile({}, wires));
        LoadHaisenhyo();
        clickHeading(message);
        EXPECT_EQ(tableWnd().SortCulm, sorted);
        EXPECT_EQ(WireAt(0)->gyoban, 1) << message;
        EXPECT_EQ(WireAt(1)->gyoban, 2) << message;
        EXPECT_EQ(WireAt(2)->gyoban, 0) << message;
    }
}

TEST_F(WireScreen, a_click_on_a_heading_sorts)
{
    openTable(20);
    click(&tableWnd(), COLUMN_WIDTH / 2, HEADING_HEIGHT / 2);
    EXPECT_EQ(tableWnd().SortCulm, 0);
    EXPECT_EQ(text(cell(0, 1)), "a10");
    click(&tableWnd(), COLUMN_WIDTH / 2, HEADING_HEIGHT / 2);
    EXPECT_EQ(text(cell(0, 0)), "a9");
}

TEST_F(WireScreen, sorting_twice_reverses_and_another_column_starts_ascending)
{
    openTable(3);
    clickHeading(1557);
    EXPECT_EQ(tableWnd().SortFlag, 0);
    EXPECT_THAT(column(0)[0], "a1");
    clickHeading(1557);
    EXPECT_EQ(tableWnd().SortFlag, 1);
    EXPECT_THAT(column(0)[0], "a3");
    clickHeading(1557);
    EXPECT_EQ(tableWnd().SortFlag, 0);
    EXPECT_THAT(column(0)[0], "a1");
    clickHeading(1557);
    clickHeading(1560);
    EXPECT_EQ(tableWnd().SortFlag, 0);
    EXPECT_EQ(tableWnd().SortCulm, 1);
    EXPECT_THAT(column(0)[0], "a1");
    clickHeading(1557);
    EXPECT_EQ(tableWnd().SortFlag, 0) << "the column sorted before was another one";
}

TEST_F(WireScreen, sorting_returns_to_the_top)
{
    openTable(40);
    setNumber(1571, 20);
    tableWnd().PtrnMesgFunc(1571);
    clickHeading(1559);
    EXPECT_EQ(number(1571), 0);
    EXPECT_EQ(tableWnd().DispDtno, 0);
    EXPECT_EQ(number(439), 1);
    EXPECT_EQ(text(cell(0, 0)), "a1");
}

TEST_F(WireScreen, sorts_lengths_as_numbers)
{
    openTable(12);
    clickHeading(1559);
    std::vector<std::string> expected = numbered('a', {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    expected.resize(SHOWN_LINES);
    EXPECT_EQ(column(0), expected) << "90 before 100";
    clickHeading(1557);
    expected = numbered('a', {1, 10, 11, 12, 2, 3, 4, 5, 6, 7, 8, 9});
    expected.resize(SHOWN_LINES);
    EXPECT_EQ(column(0), expected) << "texts by their bytes";
}

// --- key input -----------------------------------------------------------------------------------------

TEST_F(WireScreen, return_and_tab_go_to_the_next_column_and_then_to_the_next_line)
{
    openTable(40);
    for (const unsigned int key : {KEYVAL_RETURN, KEYVAL_TAB}) {
        for (int column = 0; column < 15; column++)
            EXPECT_EQ(move(3, column, 7, key), std::vector<int>({3, column + 1, 7}));
        EXPECT_EQ(move(3, 15, 7, key), std::vector<int>({3, 0, 8}));
        EXPECT_EQ(move(3, 15, LAST_LINE, key), std::vector<int>({4, 0, LAST_LINE}));
        EXPECT_EQ(move(24, 15, LAST_LINE, key), std::vector<int>({25, 0, LAST_LINE}));
        EXPECT_EQ(move(25, 15, LAST_LINE, key), std::vector<int>({25, 15, LAST_LINE})) << "the table's end";
    }
    EXPECT_EQ(move(3, 4, 7, KEYVAL_RETURN, SHIFT), std::vector<int>({3, 5, 7})) << "Shift is for Tab alone";
}

TEST_F(WireScreen, shift_and_tab_go_to_the_previous_column_and_then_to_the_previous_line)
{
    openTable(40);
    for (int column = 15; column > 0; column--)
        EXPECT_EQ(move(3, column, 7, KEYVAL_TAB, SHIFT), std::vector<int>({3, column - 1, 7}));
    EXPECT_EQ(move(3, 0, 7, KEYVAL_TAB, SHIFT), std::vector<int>({3, 15, 6}));
    EXPECT_EQ(move(3, 0, 0, KEYVAL_TAB, SHIFT), std::vector<int>({2, 15, 0}));
    EXPECT_EQ(move(0, 0, 0, KEYVAL_TAB, SHIFT), std::vector<int>({0, 0, 0})) << "the table's start";
}

TEST_F(WireScreen, left_and_right_stay_in_the_line)
{
    openTable(40);
    EXPECT_EQ(move(3, 5, 7, KEYVAL_LEFT), std::vector<int>({3, 4, 7}));
    EXPECT_EQ(move(3, 0, 7, KEYVAL_LEFT), std::vector<int>({3, 0, 7}));
    EXPECT_EQ(move(3, 5, 7, KEYVAL_RIGHT), std::vector<int>({3, 6, 7}));
    EXPECT_EQ(move(3, 15, 7, KEYVAL_RIGHT), std::vector<int>({3, 15, 7}));
}

TEST_F(WireScreen, up_and_down_stay_in_the_column_and_scroll_at_the_edges)
{
    openTable(40);
    EXPECT_EQ(move(3, 5, 7, KEYVAL_UP), std::vector<int>({3, 5, 6}));
    EXPECT_EQ(move(3, 5, 0, KEYVAL_UP), std::vector<int>({2, 5, 0}));
    EXPECT_EQ(move(0, 5, 0, KEYVAL_UP), std::vector<int>({0, 5, 0}));
    EXPECT_EQ(move(3, 5, 7, KEYVAL_DOWN), std::vector<int>({3, 5, 8}));
    EXPECT_EQ(move(3, 5, LAST_LINE, KEYVAL_DOWN), std::vector<int>({4, 5, LAST_LINE}));
    EXPECT_EQ(move(25, 5, LAST_LINE, KEYVAL_DOWN), std::vector<int>({25, 5, LAST_LINE}));
}

TEST_F(WireScreen, escape_ends_key_input_and_stores_nothing)
{
    openTable(40);
    setText(cell(1, 3), "new");
    EXPECT_EQ(move(0, 5, 7, KEYVAL_ESCAPE), std::vector<int>({-1}));
    tableWnd().DispDataSet(0);
    setText(cell(1, 3), "new");
    tableWnd().KeyInputStart(cell(5, 7), nullptr, 0);
    tableWnd().KeyInputStop(KEYVAL_ESCAPE, 0, nullptr, 0);
    EXPECT_EQ(FieldText(HaisenData[3].senkei), "b4");
}

TEST_F(WireScreen, scrolling_by_key_shows_the_records_and_moves_the_bar)
{
    openTable(40);
    move(0, 5, LAST_LINE, KEYVAL_DOWN);
    EXPECT_EQ(number(1571), 1);
    EXPECT_EQ(text(cell(0, LAST_LINE)), "a16");
    EXPECT_EQ(number(439), 2);
    tableWnd().KeyInputStop(0, 0, nullptr, 0);
    move(9, 0, 0, KEYVAL_TAB, SHIFT);
    EXPECT_EQ(number(1571), 8);
    EXPECT_EQ(text(cell(0, 0)), "a9");
}

TEST_F(WireScreen, keys_typed_by_a_user_walk_through_the_table)
{
    openTable(40);
    tick();
    clickAt(FRAME_LEFT + 4, FRAME_TOP + HEADING_HEIGHT + 8);
    ASSERT_EQ(edited(tableWnd()), cell(0, 0));
    type("X");
    key(XK_Return);
    EXPECT_EQ(edited(tableWnd()), cell(1, 0));
    EXPECT_EQ(FieldText(HaisenData[0].senban), "Xa1");
    key(XK_Down);
    EXPECT_EQ(edited(tableWnd()), cell(1, 1));
    key(XK_Left);
    EXPECT_EQ(edited(tableWnd()), cell(0, 1));
    key(XK_Up);
    EXPECT_EQ(edited(tableWnd()), cell(0, 0));
    key(XK_Tab);
    EXPECT_EQ(edited(tableWnd()), cell(1, 0));
    key(XK_Tab, {XK_Shift_L});
    EXPECT_EQ(edited(tableWnd()), cell(0, 0));
    EXPECT_EQ(edited(*AppliWnd), -1);
}

TEST_F(WireScreen, every_key_but_escape_stores_all_shown_lines)
{
    openTable(40);
    tableWnd().DispDataSet(20);
    for (int line = 0; line < SHOWN_LINES; line++) {
        setText(cell(3, line), "P" + std::to_string(line));
        setNumber(cell(LENGTH_COLUMN, line), 1000 + line);
    }
    editAfter(tableWnd(), cell(0, 0), KEYVAL_RIGHT);
    for (int i = 0; i < 40; i++) {
        const bool shown = i >= 20 && i < 35;
        EXPECT_EQ(FieldText(HaisenData[static_cast<std::size_t>(i)].kyoku),
                  shown ? "P" + std::to_string(i - 20) : "d" + std::to_string(i + 1));
        EXPECT_EQ(HaisenData[static_cast<std::size_t>(i)].length, shown ? 1000 + i - 20 : 10 * (i + 1));
    }
}

TEST_F(WireScreen, stores_into_the_records_that_are_shown_when_the_table_is_sorted)
{
    openTable(20);
    clickHeading(1557);
    clickHeading(1557);
    ASSERT_EQ(text(cell(0, 0)), "a9");
    setText(cell(15, 0), "new");
    editAfter(tableWnd(), cell(0, 0), KEYVAL_RIGHT);
    EXPECT_EQ(FieldText(HaisenData[8].sheet), "new");
    EXPECT_EQ(FieldText(HaisenData[0].sheet), "p1");
}

TEST_F(WireScreen, lengths_that_a_cell_can_not_hold_stay_exact)
{
    std::vector<WireBytes> wires = numberedWires(2);
    wires[0].length = 16777217;
    wires[1].length = 2147483647;
    openTable(wireFile({}, wires));
    editAfter(tableWnd(), cell(0, 0), KEYVAL_RIGHT);
    EXPECT_EQ(HaisenData[0].length, 16777217);
    EXPECT_EQ(HaisenData[1].length, 2147483647);
    setNumber(cell(LENGTH_COLUMN, 0), 5);
    editAfter(tableWnd(), cell(0, 0), KEYVAL_RIGHT);
    EXPECT_EQ(HaisenData[0].length, 5);
}

TEST_F(WireScreen, key_input_in_other_items_only_stores)
{
    openTable(40);
    for (const int no : {0, 116, 437, cell(0, 15), cell(7, 19)}) {
        PTRNDATA item{};
        item.DataNo = no;
        setText(cell(2, 0), "n" + std::to_string(no % 50));
        tableWnd().PtrnKeyFunc(XK_Return, 0, &item);
        EXPECT_EQ(edited(tableWnd()), -1) << no;
        EXPECT_EQ(FieldText(HaisenData[0].sensyu), "n" + std::to_string(no % 50));
    }
}

TEST_F(WireScreen, key_input_brings_its_column_into_view)
{
    openTable(40);
    const auto viewAfter = [&](int column) {
        tableWnd().KeyInputStart(cell(column, 0), nullptr, 0);
        EXPECT_EQ(edited(tableWnd()), cell(column, 0));
        EXPECT_EQ(number(433), tableWnd().Offset.x);
        return tableWnd().Offset.x;
    };
    EXPECT_EQ(viewAfter(0), 0);
    EXPECT_EQ(viewAfter(4), 0) << "5 columns of 96 are within 500";
    EXPECT_EQ(viewAfter(5), 6 * COLUMN_WIDTH - FRAME_WIDTH) << "up to its right edge";
    EXPECT_EQ(viewAfter(2), 6 * COLUMN_WIDTH - FRAME_WIDTH) << "in view already";
    EXPECT_EQ(viewAfter(0), 0) << "up to its left edge";
    EXPECT_EQ(viewAfter(15), TABLE_WIDTH - FRAME_WIDTH);
    EXPECT_EQ(viewAfter(14), TABLE_WIDTH - FRAME_WIDTH);
    EXPECT_EQ(viewAfter(8), 8 * COLUMN_WIDTH);
    EXPECT_EQ(tableWnd().Offset.y, 0);
}

TEST_F(WireScreen, a_rectangle_behind_the_field_tells_how_wide_its_column_is)
{
    project.write("Haisenhyo", wireFile({}, numberedWires(3)));
    form().save(project);
    table()
        .item(PTRN_RECT, 5 * COLUMN_WIDTH - 8, HEADING_HEIGHT, 6 * COLUMN_WIDTH + 8,
              HEADING_HEIGHT + LINE_HEIGHT)
        .code(CODE, offset(cell(5, 0)))
        .save(project);
    start();
    reopen();
    tableWnd().KeyInputStart(cell(5, 0), nullptr, 0);
    EXPECT_EQ(tableWnd().Offset.x, 6 * COLUMN_WIDTH + 8 - FRAME_WIDTH);
    tableWnd().PtrnSetOffset(0, 900, 0, nullptr, 0);
    tableWnd().KeyInputStart(cell(5, 0), nullptr, 0);
    EXPECT_EQ(tableWnd().Offset.x, 5 * COLUMN_WIDTH - 8);
}

TEST_F(WireScreen, key_input_may_always_start)
{
    openTable(3);
    PTRNDATA item{};
    EXPECT_EQ(tableWnd().PtrnKeyStart(&item), 1);
    item.Rect = SetRect(0, 0, 100000, 10); // wider than the window: its left edge counts
    tableWnd().Offset = {50, 0};
    EXPECT_EQ(tableWnd().PtrnKeyStart(&item), 1);
    EXPECT_EQ(tableWnd().Offset.x, 0);
}

TEST_F(WireScreen, can_be_opened_without_a_table)
{
    FreeHaisenhyo();
    HaisenHedr = HAISENHEDR{};
    table().save(project);
    start();
    ASSERT_TRUE(openTop(TABLE_NAME));
    for (int message = 1555; message <= 1571; message++)
        AppliWnd->PtrnMesgFunc(message);
    tick(2);
    EXPECT_THAT(column(0), Each(""));
}
