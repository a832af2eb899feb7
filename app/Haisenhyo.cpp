#include "app/Haisenhyo.h"

#include "app/Cells.h"
#include "app/Input.h"
#include "app/Places.h"
#include "app/WireTable.h"

#include <algorithm>

using namespace tessary;

namespace
{

constexpr int kLastColumn = kTableColumns - 1;
static_assert(kTableColumns == CONT_WIRECOLUMN);

/// Column that each heading sorts by, in the order of the headings' cells.
constexpr WireColumn kSortColumns[] = {
    WIRE_HAISEN, WIRE_KAIRO, WIRE_SENBAN, WIRE_KYOKU,  WIRE_LENGTH, WIRE_SENKEI, WIRE_SENSYU, WIRE_SHEET,
    WIRE_SIZE1,  WIRE_SIZE2, WIRE_SYORI1, WIRE_SYORI2, WIRE_TANSI1, WIRE_TANSI2, WIRE_ZAHYO1, WIRE_ZAHYO2,
};
static_assert(sizeof kSortColumns / sizeof kSortColumns[0] == kTableHeadings.count);

/// Mode of Set_Disable. A hidden field is erased whole and takes no key input.
constexpr int kHide = 1;

constexpr int kAnyState = -1;

/// How a key moves key input through the table. The first row that fits counts.
struct Move {
    unsigned int key;
    int state;
    int columns;
    int lines;
    bool wraps; ///< past the last column to the next line, before the first to the previous
};
constexpr Move kMoves[] = {
    {KEYVAL_TAB, MODIFIER_SHIFT, -1, 0, true}, {KEYVAL_TAB, kAnyState, 1, 0, true},
    {KEYVAL_RETURN, kAnyState, 1, 0, true},    {KEYVAL_LEFT, kAnyState, -1, 0, false},
    {KEYVAL_RIGHT, kAnyState, 1, 0, false},    {KEYVAL_UP, kAnyState, 0, -1, false},
    {KEYVAL_DOWN, kAnyState, 0, 1, false},
};

const Move* FindMove(int key, int state)
{
    for (const Move& move : kMoves)
        if (move.key == static_cast<unsigned int>(key) && (move.state == kAnyState || move.state == state))
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
    return kTableCell + kTableStride * column + line;
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
    if (place.line < std::min(Records(), kTableLines) - 1)
        place.line++;
    else if (place.first < Records() - kTableLines)
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
    else if (column >= 0 && column <= kLastColumn)
        place.column = column;
    else if (move.wraps && (column < 0 ? LineUp(place) : LineDown(place)))
        place.column = column < 0 ? kLastColumn : 0;
    return place;
}

void ShowLine(int line, int number, const HAISENDATA& wire)
{
    Set_iData(kTableLineNoCell + line, number, nullptr, 0);
    for (int column = 0; column < kTableColumns; column++) {
        const int cell = CellOf(column, line);
        if (column == WIRE_LENGTH)
            Set_iData(cell, wire.length, nullptr, 0);
        else
            Set_sData(cell, WireText(wire, column).c_str(), nullptr, 0);
        Set_Disable(cell, 0, kHide, nullptr, 0);
    }
    Set_Disable(kTableLineNoCell + line, 0, kHide, nullptr, 0);
}

void ShowNothing(int line)
{
    const auto empty = [](int cell) {
        Set_iData(cell, 0, nullptr, 0);
        Set_sData(cell, nullptr, nullptr, 0);
        Set_Disable(cell, 1, kHide, nullptr, 0);
    };
    empty(kTableLineNoCell + line);
    for (int column = 0; column < kTableColumns; column++)
        empty(CellOf(column, line));
}

void StoreLine(int line, HAISENDATA& wire)
{
    for (int column = 0; column < kTableColumns; column++) {
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
    if (no == kTableVScrollCell)
        DispDataSet(Get_iData(kTableVScrollCell, nullptr, 0));
    else if (no == kTableHScrollCell)
        PtrnSetOffset(0, Get_iData(kTableHScrollCell, nullptr, 0), Offset.y, nullptr, 0);
    else if (kTableHeadings.holds(no))
        SortDispData(kSortColumns[no - kTableHeadings.first]);
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
        Set_iData(kTableHScrollCell, x, nullptr, 0);
    }
    return 1;
}

void CHaisenhyo::PtrnKeyFunc(int key, int state, PTRNDATA* item)
{
    if (key == KEYVAL_ESCAPE)
        return;
    DispDataGet();
    const int cell = item->DataNo - kTableCell;
    const Move* move = FindMove(key, state);
    if (!kTableCells.holds(item->DataNo) || cell % kTableStride >= kTableLines || !move)
        return;

    const Place next = Next({DispDtno, cell % kTableStride, cell / kTableStride}, *move);
    if (next.first != DispDtno) {
        DispDataSet(next.first);
        Set_iData(kTableVScrollCell, next.first, nullptr, 0);
    }
    KeyInputStart(CellOf(next.column, next.line), nullptr, 0);
}

void CHaisenhyo::DispDataSet(int first)
{
    DispDtno = first;
    for (int line = 0; line < kTableLines; line++) {
        const int position = PositionOf(first, line);
        if (const HAISENDATA* wire = WireAt(position))
            ShowLine(line, position + 1, *wire);
        else
            ShowNothing(line);
    }
}

void CHaisenhyo::DispDataGet()
{
    for (int line = 0; line < kTableLines; line++)
        if (HAISENDATA* wire = WireAt(PositionOf(DispDtno, line)))
            StoreLine(line, *wire);
}

void CHaisenhyo::SortDispData(int column)
{
    SortFlag = column == SortCulm ? !SortFlag : 0;
    SortCulm = column;
    SortHaisenhyo(column, SortFlag);
    Set_iData(kTableVScrollCell, 0, nullptr, 0);
    DispDataSet(0);
}
