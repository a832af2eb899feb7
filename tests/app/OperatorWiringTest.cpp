// The wiring table of the sample project under an operator's hands. What is on the screen and in the file is
// held against a table that the test keeps itself.
#include "tests/app/SampleProject.h"
#include "tests/app/WireFile.h"

#include "base/EucText.h"

#include <algorithm>
#include <numeric>

using namespace tessary;

namespace
{

constexpr int LINES = 15; ///< on the screen
constexpr int COLUMNS = 16;
constexpr int HEADER_SIZE = 138;
constexpr int RECORD_SIZE = 108;

constexpr int TABLE_CELL = 117;
constexpr int LINE_NUMBER_CELL = 439;
constexpr int VERTICAL_BAR = 1571;
constexpr int HORIZONTAL_BAR = 433;
constexpr int SAVE_BUTTON = 1554;

/// Heading of each column.
constexpr int HEADINGS[COLUMNS] = {1557, 1560, 1561, 1558, 1556, 1555, 1569, 1567,
                                   1563, 1565, 1570, 1568, 1564, 1566, 1559, 1562};

constexpr int cellOf(int column, int line)
{
    return TABLE_CELL + 20 * column + line;
}

constexpr int fieldType(int column)
{
    return column == LENGTH_COLUMN ? PTRN_NUMR : PTRN_CHAR;
}

std::int32_t intAt(const std::string& bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; i++)
        value |= std::uint32_t{static_cast<unsigned char>(bytes[at + i])} << 8 * i;
    return static_cast<std::int32_t>(value);
}

/// The whole records behind the header of a table file.
std::vector<WireBytes> wiresOf(const std::string& file)
{
    std::vector<WireBytes> wires;
    for (std::size_t at = HEADER_SIZE; at + RECORD_SIZE <= file.size(); at += RECORD_SIZE) {
        WireBytes wire;
        wire.number = intAt(file, at);
        wire.length = intAt(file, at + 4);
        std::size_t place = at + 8;
        for (std::size_t column = 0; column < COLUMNS; column++) {
            const auto size = static_cast<std::size_t>(WIRE_FIELD_SIZE[column]);
            wire.texts[column] = file.substr(place, size).c_str(); // up to the zero byte
            place += size;
        }
        wires.push_back(wire);
    }
    return wires;
}

class OperatorWiring : public SampleProject
{
  protected:
    static constexpr const char* FORM_NAME = "テスト  （表・キー入力）";

    /// Opens the form from the menu, with the project's own table or another file.
    void open()
    {
        original = project.read("Haisenhyo");
        wires = wiresOf(original);
        order.resize(wires.size());
        std::iota(order.begin(), order.end(), 0);
        start();
        openFromMenu(FORM_NAME);
        ASSERT_TRUE(table());
        waitShown(table());
        tick();
    }
    void SetUp() override { compile(); }

    static CPtrnDisp* table() { return AppliWnd->ChildWnd1; }
    static int first() { return number(VERTICAL_BAR); }

    /// The header as it was, and the records as they have to be now.
    std::string expectedFile() const
    {
        std::string bytes = original.substr(0, HEADER_SIZE);
        for (const WireBytes& wire : wires)
            bytes += wireRecord(wire);
        return bytes;
    }
    void save()
    {
        clickItem(AppliWnd, SAVE_BUTTON, PTRN_BUTN);
        EXPECT_EQ(project.read("Haisenhyo"), expectedFile());
    }

    /// The record that a line shows.
    WireBytes& wireIn(int line)
    {
        return wires[static_cast<std::size_t>(order[static_cast<std::size_t>(first() + line)])];
    }

    /// Every line shows its record, those behind the last record nothing.
    void expectShown()
    {
        tick();
        for (int line = 0; line < LINES; line++) {
            const bool empty = first() + line >= static_cast<int>(wires.size());
            EXPECT_EQ((word(cellOf(0, line)) & STATE_HIDDEN) != 0, empty) << "line " << line;
            if (empty)
                continue;
            EXPECT_EQ(number(LINE_NUMBER_CELL + line), first() + line + 1);
            for (int column = 0; column < COLUMNS; column++) {
                if (column == LENGTH_COLUMN)
                    EXPECT_EQ(number(cellOf(column, line)), wireIn(line).length);
                else
                    EXPECT_EQ(text(cellOf(column, line)), textOf(wireIn(line), column))
                        << "column " << column << ", line " << line;
            }
        }
    }
    static std::string& textOf(WireBytes& wire, int column)
    {
        return wire.texts[static_cast<std::size_t>(column)];
    }

    /// The order that pressing a heading gives: inserting one record after the other.
    void sort(int column, bool descending)
    {
        const auto keyOf = [&](int index) {
            WireBytes& wire = wires[static_cast<std::size_t>(index)];
            char digits[12];
            std::snprintf(digits, sizeof digits, "%10d", wire.length);
            return column == LENGTH_COLUMN ? std::string(digits) : textOf(wire, column);
        };
        std::vector<int> sorted;
        for (const int index : order) {
            const auto after = std::find_if(sorted.begin(), sorted.end(), [&](int other) {
                return descending ? keyOf(other) < keyOf(index) : keyOf(other) > keyOf(index);
            });
            sorted.insert(after, index);
        }
        order = sorted;
    }

    /// Moves the table sideways with the bar's arrows until all of an item is seen.
    void bringIntoView(const RECT& place)
    {
        for (int left = -1; left != table()->Offset.x && place.left < table()->Offset.x;) {
            left = table()->Offset.x;
            clickBar(AppliWnd, HORIZONTAL_BAR, BAR_FIRST_ARROW);
        }
        const int width = table()->WindRect.width;
        for (int left = -1; left != table()->Offset.x && place.right > table()->Offset.x + width;) {
            left = table()->Offset.x;
            clickBar(AppliWnd, HORIZONTAL_BAR, BAR_NEXT_ARROW);
        }
    }

    // --- editing -------------------------------------------------------------------------------------

    /// The cell in edit; -1 none.
    static int edited() { return table()->KeyInputMode == 1 ? table()->KeyInputPtrn.DataNo : -1; }

    void edit(int column, int line)
    {
        bringIntoView(item(table(), cellOf(column, line), fieldType(column)).Rect);
        clickItem(table(), cellOf(column, line), fieldType(column));
        ASSERT_EQ(edited(), cellOf(column, line));
    }

    /// Types a digit in front of a text, or behind a number, and goes on with a key.
    void typeAnd(unsigned long symbol, std::initializer_list<unsigned long> modifiers, int nextColumn,
                 int nextLine)
    {
        const int column = (edited() - TABLE_CELL) / 20;
        const int line = (edited() - TABLE_CELL) % 20;
        type("7");
        if (column == LENGTH_COLUMN) {
            wireIn(line).length = wireIn(line).length * 10 + 7;
        } else {
            std::string& text = textOf(wireIn(line), column);
            const auto room = static_cast<std::size_t>(WIRE_FIELD_SIZE[column] - 1);
            text = ("7" + text).substr(0, EucCut(("7" + text).c_str(), room));
        }
        goOn(symbol, modifiers, nextColumn, nextLine);
    }

    void goOn(unsigned long symbol, std::initializer_list<unsigned long> modifiers, int nextColumn,
              int nextLine)
    {
        key(symbol, modifiers);
        ASSERT_EQ(edited(), cellOf(nextColumn, nextLine));
        const RECT field = item(table(), edited(), fieldType(nextColumn)).Rect;
        EXPECT_GE(field.left, table()->Offset.x) << "not in view";
        EXPECT_LE(field.right, table()->Offset.x + table()->WindRect.width);
        EXPECT_EQ(number(HORIZONTAL_BAR), table()->Offset.x);
    }

    std::string original; ///< the file before
    std::vector<WireBytes> wires;
    std::vector<int> order; ///< display position to record
};

} // namespace

TEST_F(OperatorWiring, pages_through_the_records)
{
    open();
    ASSERT_GT(wires.size(), 200u);
    expectShown();
    const int last = static_cast<int>(wires.size()) - LINES;
    clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_ARROW);
    EXPECT_EQ(first(), 1);
    expectShown();
    clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_PAGE);
    EXPECT_EQ(first(), 16);
    expectShown();
    clickBar(AppliWnd, VERTICAL_BAR, BAR_FIRST_ARROW);
    EXPECT_EQ(first(), 15);
    expectShown();
    clickBar(AppliWnd, VERTICAL_BAR, BAR_FIRST_PAGE);
    EXPECT_EQ(first(), 0);
    expectShown();

    const RECT thumb = barPart(AppliWnd, VERTICAL_BAR, BAR_THUMB);
    const int x = (thumb.left + thumb.right) / 2;
    const int y = (thumb.top + thumb.bottom) / 2;
    press(AppliWnd, x, y);
    moveTo(AppliWnd, x, y + 100);
    EXPECT_GT(first(), 16);
    EXPECT_LT(first(), last);
    expectShown();
    moveTo(AppliWnd, x, AppliWnd->WindRect.height - 1);
    release();
    EXPECT_EQ(first(), last);
    expectShown();

    click(AppliWnd, x, thumb.bottom + 50, 4); // the wheel, upwards
    EXPECT_EQ(first(), last - 1);
    expectShown();
    click(AppliWnd, x, thumb.bottom + 50, 5);
    EXPECT_EQ(first(), last);
    save();
    EXPECT_EQ(expectedFile(), original);
}

TEST_F(OperatorWiring, moves_sideways_below_its_frame)
{
    open();
    const int widest = item(AppliWnd, HORIZONTAL_BAR, PTRN_SBAR).Parm[SBAR_TOTAL] - table()->WindRect.width;
    ASSERT_GT(widest, 0);
    const auto expectView = [&] {
        tick();
        const RECT& place = table()->WindRect;
        EXPECT_EQ(table()->Offset.x, number(HORIZONTAL_BAR));
        EXPECT_TRUE(same(user.picture(place.left, place.top, place.width, place.height),
                         bufferPicture(table(), table()->Offset.x, 0, place.width, place.height)));
    };
    expectView();
    clickBar(AppliWnd, HORIZONTAL_BAR, BAR_NEXT_ARROW);
    EXPECT_GT(table()->Offset.x, 0);
    expectView();
    for (int i = 0; i < 3; i++)
        clickBar(AppliWnd, HORIZONTAL_BAR, BAR_NEXT_PAGE);
    EXPECT_EQ(table()->Offset.x, widest);
    expectView();
    for (int i = 0; i < 3; i++)
        clickBar(AppliWnd, HORIZONTAL_BAR, BAR_FIRST_PAGE);
    EXPECT_EQ(table()->Offset.x, 0);
    expectView();
}

TEST_F(OperatorWiring, each_of_the_sixteen_headings_sorts_and_reverses)
{
    open();
    clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_PAGE);
    for (int column = 0; column < COLUMNS; column++) {
        SCOPED_TRACE(column);
        bringIntoView(item(table(), HEADINGS[column], PTRN_BUTN).Rect);
        for (const bool descending : {false, true, false}) {
            clickItem(table(), HEADINGS[column], PTRN_BUTN);
            sort(column, descending);
            EXPECT_EQ(first(), 0);
            expectShown();
        }
        clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_PAGE);
        expectShown();
    }
    save();
    EXPECT_EQ(expectedFile(), original) << "saved in the order of storage";
}

TEST_F(OperatorWiring, is_edited_with_every_key)
{
    open();
    edit(0, 0);
    typeAnd(XK_Return, {}, 1, 0);
    typeAnd(XK_Tab, {}, 2, 0);
    typeAnd(XK_Tab, {XK_Shift_L}, 1, 0);
    typeAnd(XK_Down, {}, 1, 1);
    typeAnd(XK_Down, {}, 1, 2);
    typeAnd(XK_Up, {}, 1, 1);
    goOn(XK_Left, {}, 0, 1); // the cursor is at the start of a text
    goOn(XK_Left, {}, 0, 1);
    for (std::size_t i = 0; i < textOf(wireIn(1), 0).size(); i++)
        key(XK_Right);
    goOn(XK_Right, {}, 1, 1);
    goOn(XK_Tab, {XK_Shift_L}, 0, 1);
    goOn(XK_Tab, {XK_Shift_L}, 15, 0);
    goOn(XK_Return, {}, 0, 1);
    for (int column = 1; column < COLUMNS; column++)
        typeAnd(XK_Tab, {}, column, 1);
    typeAnd(XK_Return, {}, 0, 2);

    for (int line = 3; line < LINES; line++)
        goOn(XK_Down, {}, 0, line);
    typeAnd(XK_Down, {}, 0, 14);
    EXPECT_EQ(first(), 1);
    goOn(XK_Tab, {XK_Shift_L}, 15, 13);
    goOn(XK_Down, {}, 15, 14);
    typeAnd(XK_Return, {}, 0, 14);
    EXPECT_EQ(first(), 2);
    expectShown();

    for (int line = 13; line >= 0; line--)
        goOn(XK_Up, {}, 0, line);
    typeAnd(XK_Up, {}, 0, 0);
    EXPECT_EQ(first(), 1);
    typeAnd(XK_Tab, {XK_Shift_L}, 15, 0);
    EXPECT_EQ(first(), 0);
    goOn(XK_Return, {}, 0, 1);
    goOn(XK_Up, {}, 0, 0);
    goOn(XK_Up, {}, 0, 0);
    goOn(XK_Tab, {XK_Shift_L}, 0, 0);
    type("lost");
    key(XK_Escape);
    EXPECT_EQ(edited(), -1);
    expectShown();
    save();
    EXPECT_NE(expectedFile(), original);
}

TEST_F(OperatorWiring, the_last_field_of_the_last_record_keeps_the_input)
{
    open();
    for (int i = 0; i < 20; i++)
        clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_PAGE);
    edit(15, 14);
    const int last = first();
    typeAnd(XK_Return, {}, 15, 14);
    typeAnd(XK_Tab, {}, 15, 14);
    goOn(XK_Down, {}, 15, 14);
    EXPECT_EQ(first(), last);
    key(XK_Escape);
    expectShown();
    save();
}

TEST_F(OperatorWiring, edits_of_a_sorted_table_reach_their_records)
{
    open();
    clickItem(table(), HEADINGS[0], PTRN_BUTN);
    clickItem(table(), HEADINGS[0], PTRN_BUTN);
    sort(0, false);
    sort(0, true);
    clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_PAGE);
    edit(0, 3);
    typeAnd(XK_Down, {}, 0, 4);
    key(XK_Escape);
    expectShown();
    save();
}

TEST_F(OperatorWiring, header_fields_are_saved_with_the_table)
{
    open();
    struct Field {
        int cell;
        std::size_t offset;
        std::size_t size;
    };
    const Field fields[] = {{1550, 0, 10}, {485, 10, 22}, {1548, 32, 16}, {100, 48, 6}, {109, 54, 80}};
    clickItem(AppliWnd, fields[0].cell, PTRN_CHAR);
    for (const Field& entry : fields) {
        ASSERT_EQ(AppliWnd->KeyInputMode, 1);
        EXPECT_EQ(int{AppliWnd->KeyInputPtrn.DataNo}, entry.cell);
        type("8");
        const std::string text = "8" + std::string(original.substr(entry.offset, entry.size).c_str());
        original.replace(entry.offset, entry.size,
                         field(text.substr(0, EucCut(text.c_str(), entry.size - 1)), entry.size));
        key(XK_Return);
    }
    EXPECT_EQ(int{AppliWnd->KeyInputPtrn.DataNo}, fields[0].cell) << "from the last to the first";
    key(XK_Escape);
    save();
}

// --- other table files -----------------------------------------------------------------------------------

TEST_F(OperatorWiring, a_short_table_has_empty_lines_that_take_no_input)
{
    project.write("Haisenhyo", wireFile({"S", "D", "W", "B", "C"}, numberedWires(3)));
    open();
    expectShown();
    EXPECT_TRUE(word(VERTICAL_BAR) & STATE_HIDDEN);
    clickItem(table(), cellOf(0, 3), PTRN_CHAR);
    EXPECT_EQ(edited(), -1);
    edit(0, 2);
    typeAnd(XK_Down, {}, 0, 2);
    key(XK_Escape);
    edit(15, 2);
    goOn(XK_Return, {}, 15, 2);
    key(XK_Escape);
    bringIntoView(item(table(), HEADINGS[0], PTRN_BUTN).Rect);
    clickItem(table(), HEADINGS[0], PTRN_BUTN);
    sort(0, false);
    expectShown();
    save();
}

TEST_F(OperatorWiring, a_missing_table_shows_nothing_and_is_not_made)
{
    unlink((project.folder() + "/Haisenhyo").c_str());
    open();
    expectShown();
    EXPECT_EQ(text(1550), "");
    clickItem(table(), cellOf(0, 0), PTRN_CHAR);
    EXPECT_EQ(edited(), -1);
    clickItem(table(), HEADINGS[3], PTRN_BUTN);
    project.clearLog();
    clickItem(AppliWnd, SAVE_BUTTON, PTRN_BUTN);
    EXPECT_FALSE(project.exists("Haisenhyo"));
    EXPECT_EQ(project.messages(), std::vector<std::string>{"ファイルのオープンに失敗 [Haisenhyo]"});
}

TEST_F(OperatorWiring, a_damaged_table_shows_the_records_that_are_whole)
{
    const std::string whole = wireFile({"S", "D", "W", "B", "C"}, numberedWires(40));
    const std::pair<std::string, int> files[] = {
        {whole.substr(0, 50), 0},                                  // not even a header
        {whole.substr(0, HEADER_SIZE + 20 * RECORD_SIZE + 7), 20}, // ends within a record
        {wireHeader({"S", "D", "W", "B", "C"}, -5), 0},
        {wireHeader({"S", "D", "W", "B", "C"}, 2147483647) + whole.substr(HEADER_SIZE), 40},
        {std::string(4000, '\xFF'), 0},
    };
    for (const auto& [file, records] : files) {
        SCOPED_TRACE(records);
        project.write("Haisenhyo", file);
        if (!AppliWnd)
            start();
        openFromMenu(FORM_NAME);
        ASSERT_TRUE(table());
        waitShown(table());
        for (int i = 0; i < 4; i++)
            clickBar(AppliWnd, VERTICAL_BAR, BAR_NEXT_PAGE);
        EXPECT_EQ(number(LINE_NUMBER_CELL + LINES - 1), records);
        clickItem(table(), HEADINGS[1], PTRN_BUTN);
        clickItem(table(), cellOf(0, 0), PTRN_CHAR);
        EXPECT_EQ(edited(), records ? cellOf(0, 0) : -1);
        type("7");
        key(XK_Down);
        key(XK_Escape);
        clickItem(AppliWnd, SAVE_BUTTON, PTRN_BUTN);
        EXPECT_EQ(project.read("Haisenhyo").size(), std::max(file.size(), std::size_t{HEADER_SIZE}));
    }
}
