#include "app/Haisenhyo.h"

#include "app/Cells.h"
#include "app/Input.h"
#include "app/Places.h"
#include "app/WireTable.h"

#include <algorithm>

using namespace tessary;

namespace
{

constexpr int LAST_COLUMN = TABLE_COLUMNS - 1;
static_assert(TABLE_COLUMNS == CONT_WIRECOLUMN);

/// Column that each heading sorts by, in the order of the headings' cells.
constexpr WireColumn SORT_COLUMNS[] = {
    WIRE_HAISEN, WIRE_KAIRO, WIRE_SENBAN, WIRE_KYOKU,  WIRE_LENGTH, WIRE_SENKEI, WIRE_SENSYU, WIRE_SHEET,
    WIRE_SIZE1,  WIRE_SIZE2, WIRE_SYORI1, WIRE_SYORI2, WIRE_TANSI1, WIRE_TANSI2, WIRE_ZAHYO1, WIRE_ZAHYO2,
};
static_assert(sizeof SORT_COLUMNS / sizeof SORT_COLUMNS[0] == TABLE_HEADINGS.count);

/// Mode of Set_Disable. A hidden field is erased whole and takes no key input.
constexpr int HIDE = 1;

constexpr int ANY_STATE = -1;

/// How a key moves key input through the table. The first row that fits counts.
struct Move {
    unsigned int key;
    int state;
    int columns;
    int lines;
    bool wraps; ///< past the last column to the next line, before the first to the previous
};
constexpr Move MOVES[] = {
    {KEYVAL_TAB, MODIFIER_SHIFT, -1, 0, true}, {KEYVAL_TAB, ANY_STATE, 1, 0, true},
    {KEYVAL_RETURN, ANY_STATE, 1, 0, true},    {KEYVAL_LEFT, ANY_STATE, -1, 0, false},
    {KEYVAL_RIGHT, ANY_STATE, 1, 0, false},    {KEYVAL_UP, ANY_STATE, 0, -1, false},
    {KEYVAL_DOWN, ANY_STATE, 0, 1, false},
};

const Move* FindMove(int key, int state)
{
    for (const Move& move : MOVES)
        if (move.key == static_cast<unsigned int>(key) && (move.state == ANY_STATE || move.state == state))
            return &move;
    return nullptr;
}

/// Display position of a line; -1 for one that no table reaches.
int PositionOf(int first, int line)
{
    return first < 0 || first >= CONT_HAISENDATA ? -1 : first + line;
}

int Records()
{
    return HaisenHedr.datacount;
}

int CellOf(int column, int line)
{
    return TABLE_CELL + TABLE_STRIDE * column + line;
}

/// A field of the table.
struct Place {
    int first; ///< display position of the first shown line
    int line;
    int column;
};

/// One line up, scrolling at the first one. @return false at the table's first line
bool LineUp(Place& place)
{
    if (place.line > 0)
        place.line--;
    else if (place.first > 0)
        place.first--;
    else
        return false;
    return true;
}

/// One line down, scrolling at the last one. @return false at the table's last line
bool LineDown(Place& place)
{
    if (place.line < std::min(Records(), TABLE_LINES) - 1)
        place.line++;
    else if (place.first < Records() - TABLE_LINES)
        place.first++;
    else
        return false;
    return true;
}

/// The field beside, which is the same one at the edges.
Place Next(Place place, const Move& move)
{
    const int column = place.column + move.columns;
    if (move.lines < 0)
        LineUp(place);
    else if (move.lines > 0)
        LineDown(place);
    else if (column >= 0 && column <= LAST_COLUMN)
        place.column = column;
    else if (move.wraps && (column < 0 ? LineUp(place) : LineDown(place)))
        place.column = column < 0 ? LAST_COLUMN : 0;
    return place;
}

void ShowLine(int line, int number, const HAISENDATA& wire)
{
    Set_iData(TABLE_LINE_NO_CELL + line, number, nullptr, 0);
    for (int column = 0; column < TABLE_COLUMNS; column++) {
        const int cell = CellOf(column, line);
        if (column == WIRE_LENGTH)
            Set_iData(cell, wire.length, nullptr, 0);
        else
            Set_sData(cell, WireText(wire, column).c_str(), nullptr, 0);
        Set_Disable(cell, 0, HIDE, nullptr, 0);
    }
    Set_Disable(TABLE_LINE_NO_CELL + line, 0, HIDE, nullptr, 0);
}

void ShowNothing(int line)
{
    const auto empty = [](int cell) {
        Set_iData(cell, 0, nullptr, 0);
        Set_sData(cell, nullptr, nullptr, 0);
        Set_Disable(cell, 1, HIDE, nullptr, 0);
    };
    empty(TABLE_LINE_NO_CELL + line);
    for (int column = 0; column < TABLE_COLUMNS; column++)
        empty(CellOf(column, line));
}

void StoreLine(int line, HAISENDATA& wire)
{
    for (int column = 0; column < TABLE_COLUMNS; column++) {
        const int cell = CellOf(column, line);
        if (column != WIRE_LENGTH)
            SetWireText(wire, column, Get_sData(cell, nullptr, 0));
        else if (Get_fData(cell, nullptr, 0) != static_cast<float>(wire.length)) // a cell rounds long numbers
            wire.length = Get_iData(cell, nullptr, 0);
    }
}

} // namespace

void CHaisenhyo::PtrnInitFunc()
{
    SortCulm = -1;
    DispDataSet(0);
}

void CHaisenhyo::PtrnMesgFunc(int no)
{
    if (no == TABLE_V_SCROLL_CELL)
        DispDataSet(Get_iData(TABLE_V_SCROLL_CELL, nullptr, 0));
    else if (no == TABLE_H_SCROLL_CELL)
        PtrnSetOffset(0, Get_iData(TABLE_H_SCROLL_CELL, nullptr, 0), Offset.y, nullptr, 0);
    else if (TABLE_HEADINGS.holds(no))
        SortDispData(SORT_COLUMNS[no - TABLE_HEADINGS.first]);
}

int CHaisenhyo::PtrnKeyStart(PTRNDATA* item)
{
    RefreshFieldText(item);
    // A rectangle behind the field spans its column.
    const RECT cell = ItemRect(*this, item->DataNo, PTRN_RECT);
    const RECT& column = IsEmptyRect(cell) ? item->Rect : cell;
    int x = Offset.x;
    if (column.left < x)
        x = column.left;
    else if (column.right - x > WindRect.width)
        x = column.right - WindRect.width;
    if (x != Offset.x) {
        PtrnSetOffset(0, x, Offset.y, nullptr, 0);
        Set_iData(TABLE_H_SCROLL_CELL, x, nullptr, 0);
    }
    return 1;
}

void CHaisenhyo::PtrnKeyFunc(int key, int state, PTRNDATA* item)
{
    if (key == KEYVAL_ESCAPE)
        return;
    DispDataGet();
    const int cell = item->DataNo - TABLE_CELL;
    const Move* move = FindMove(key, state);
    if (!TABLE_CELLS.holds(item->DataNo) || cell % TABLE_STRIDE >= TABLE_LINES || !move)
        return;

    const Place next = Next({DispDtno, cell % TABLE_STRIDE, cell / TABLE_STRIDE}, *move);
    if (next.first != DispDtno) {
        DispDataSet(next.first);
        Set_iData(TABLE_V_SCROLL_CELL, next.first, nullptr, 0);
    }
    KeyInputStart(CellOf(next.column, next.line), nullptr, 0);
}

void CHaisenhyo::DispDataSet(int first)
{
    DispDtno = first;
    for (int line = 0; line < TABLE_LINES; line++) {
        const int position = PositionOf(first, line);
        if (const HAISENDATA* wire = WireAt(position))
            ShowLine(line, position + 1, *wire);
        else
            ShowNothing(line);
    }
}

void CHaisenhyo::DispDataGet()
{
    for (int line = 0; line < TABLE_LINES; line++)
        if (HAISENDATA* wire = WireAt(PositionOf(DispDtno, line)))
            StoreLine(line, *wire);
}

void CHaisenhyo::SortDispData(int column)
{
    SortFlag = column == SortCulm ? !SortFlag : 0;
    SortCulm = column;
    SortHaisenhyo(column, SortFlag);
    Set_iData(TABLE_V_SCROLL_CELL, 0, nullptr, 0);
    DispDataSet(0);
}
