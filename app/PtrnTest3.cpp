#include "app/PtrnTest3.h"

#include "app/Cells.h"
#include "app/Input.h"
#include "app/Places.h"
#include "app/WireTable.h"

using namespace tessary;

namespace
{

constexpr char kTableName[] = "テスト  （表）";
constexpr int kTableSlot = 1;

/// Where key input goes on from a header field. The fields are two columns: system number and delivery, work
/// and board number, comment.
struct Move {
    int from;
    int next;     ///< Return, Tab
    int previous; ///< Shift and Tab
    int up;
    int down;
    int left;
    int right;
};
constexpr int kStay = -1;
constexpr Move kMoves[] = {
    {kSystemNoCell, kDeliveryCell, kCommentCell, kStay, kWorkNoCell, kStay, kDeliveryCell},
    {kDeliveryCell, kWorkNoCell, kSystemNoCell, kStay, kBoardNoCell, kSystemNoCell, kStay},
    {kWorkNoCell, kBoardNoCell, kDeliveryCell, kSystemNoCell, kCommentCell, kStay, kBoardNoCell},
    {kBoardNoCell, kCommentCell, kWorkNoCell, kDeliveryCell, kCommentCell, kWorkNoCell, kStay},
    {kCommentCell, kSystemNoCell, kBoardNoCell, kWorkNoCell, kStay, kStay, kStay},
};

const Move* FindMove(int field)
{
    for (const Move& move : kMoves)
        if (move.from == field)
            return &move;
    return nullptr;
}

int Target(const Move& move, unsigned int key, int state)
{
    switch (key) {
    case KEYVAL_TAB:
        return state == MODIFIER_SHIFT ? move.previous : move.next;
    case KEYVAL_RETURN:
        return move.next;
    case KEYVAL_UP:
        return move.up;
    case KEYVAL_DOWN:
        return move.down;
    case KEYVAL_LEFT:
        return move.left;
    case KEYVAL_RIGHT:
        return move.right;
    default:
        return kStay;
    }
}

template <std::size_t N> void ShowField(int cell, const char (&field)[N])
{
    Set_sData(cell, FieldText(field).c_str(), nullptr, 0);
}

template <std::size_t N> void TakeField(char (&field)[N], int cell)
{
    SetFieldText(field, Get_sData(cell, nullptr, 0));
}

void ShowHeader()
{
    ShowField(kSystemNoCell, HaisenHedr.systemno);
    ShowField(kDeliveryCell, HaisenHedr.nousaki);
    ShowField(kWorkNoCell, HaisenHedr.sakuban);
    ShowField(kBoardNoCell, HaisenHedr.banno);
    ShowField(kCommentCell, HaisenHedr.comment);
}

void TakeHeader()
{
    TakeField(HaisenHedr.systemno, kSystemNoCell);
    TakeField(HaisenHedr.nousaki, kDeliveryCell);
    TakeField(HaisenHedr.sakuban, kWorkNoCell);
    TakeField(HaisenHedr.banno, kBoardNoCell);
    TakeField(HaisenHedr.comment, kCommentCell);
}

/// The screen whose table is loaded. When the screen is replaced by a new one of its kind, the new one loads
/// the table before the old one is taken down.
const CPtrnTest3* tableOwner = nullptr;

} // namespace

void CPtrnTest3::PtrnInitFunc()
{
    InitHaisenhyo();
}

void CPtrnTest3::PtrnExitFunc()
{
    if (tableOwner != this)
        return;
    tableOwner = nullptr;
    FreeHaisenhyo();
}

void CPtrnTest3::InitHaisenhyo()
{
    tableOwner = this;
    LoadHaisenhyo();
    ShowHeader();

    PTRNHEDR table{};
    PtrnReadHedr(kTableName, &table);
    PtrnSetScroll(kTableVScrollCell, HaisenHedr.datacount, 0, nullptr, 0);
    PtrnSetScroll(kTableHScrollCell, table.Parm1[HEDR_WIDTH], 0, nullptr, 0);

    const RECT frame = ItemRect(*this, kTableFrameCell, PTRN_RECT);
    if (!IsEmptyRect(frame))
        PtrnDispChild(kTableSlot, kTableName, OnScreen(*this, frame), nullptr, 0);
}

void CPtrnTest3::PtrnMesgFunc(int no)
{
    if (no == kTableSaveCell) {
        SaveHaisenhyo();
    } else if (no == kTablePrintCell) {
        PtrnSetCursor(CURSOR_BUSY, nullptr, 0);
        PrintHaisenhyo();
        PtrnSetCursor(CURSOR_ARROW, nullptr, 0);
    }
}

void CPtrnTest3::PrintHaisenhyo() {}

int CPtrnTest3::PtrnKeyStart(PTRNDATA* item)
{
    RefreshFieldText(item);
    return 1;
}

void CPtrnTest3::PtrnKeyFunc(int key, int state, PTRNDATA* item)
{
    if (key == KEYVAL_ESCAPE)
        return;
    TakeHeader();
    const Move* move = FindMove(item->DataNo);
    if (!move)
        return;
    const int target = Target(*move, static_cast<unsigned int>(key), state);
    KeyInputStart(target == kStay ? move->from : target, nullptr, 0);
}
