#include "app/PtrnTest3.h"

#include "app/Cells.h"
#include "app/Input.h"
#include "app/Places.h"
#include "app/WireTable.h"

using namespace tessary;

namespace
{

constexpr int TABLE_SLOT = 1;

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
constexpr int STAY = -1;
constexpr Move MOVES[] = {
    {SYSTEM_NO_CELL, DELIVERY_CELL, COMMENT_CELL, STAY, WORK_NO_CELL, STAY, DELIVERY_CELL},
    {DELIVERY_CELL, WORK_NO_CELL, SYSTEM_NO_CELL, STAY, BOARD_NO_CELL, SYSTEM_NO_CELL, STAY},
    {WORK_NO_CELL, BOARD_NO_CELL, DELIVERY_CELL, SYSTEM_NO_CELL, COMMENT_CELL, STAY, BOARD_NO_CELL},
    {BOARD_NO_CELL, COMMENT_CELL, WORK_NO_CELL, DELIVERY_CELL, COMMENT_CELL, WORK_NO_CELL, STAY},
    {COMMENT_CELL, SYSTEM_NO_CELL, BOARD_NO_CELL, WORK_NO_CELL, STAY, STAY, STAY},
};

const Move* FindMove(int field)
{
    for (const Move& move : MOVES)
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
        return STAY;
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
    ShowField(SYSTEM_NO_CELL, HaisenHedr.systemno);
    ShowField(DELIVERY_CELL, HaisenHedr.nousaki);
    ShowField(WORK_NO_CELL, HaisenHedr.sakuban);
    ShowField(BOARD_NO_CELL, HaisenHedr.banno);
    ShowField(COMMENT_CELL, HaisenHedr.comment);
}

void TakeHeader()
{
    TakeField(HaisenHedr.systemno, SYSTEM_NO_CELL);
    TakeField(HaisenHedr.nousaki, DELIVERY_CELL);
    TakeField(HaisenHedr.sakuban, WORK_NO_CELL);
    TakeField(HaisenHedr.banno, BOARD_NO_CELL);
    TakeField(HaisenHedr.comment, COMMENT_CELL);
}

/// The screen whose table is loaded. When the screen is replaced by a new one of its kind, the new one loads
/// the table before the old one is taken down.
const CPtrnTest3* tableOwner = nullptr;

/// The error line has a look of its own for good news.
void AnswerSaving(bool saved)
{
    const char* const texts[][2] = {
        {"配線表を保存できません", "配線表を保存しました"},
        {"The wiring table could not be saved", "The wiring table is saved"},
        {"Die Verdrahtung konnte nicht gesichert werden", "Die Verdrahtung ist gesichert"}};
    const int language = Language == 0 || Language == 1 ? Language : 2;
    DispErrorMesg(texts[language][saved ? 1 : 0]);
    Set_Color(DTNO_SYSEROR, saved ? 2 : 1, nullptr, 0);
}

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
    PtrnReadHedr(panel::screen::テスト_表, &table);
    PtrnSetScroll(TABLE_V_SCROLL_CELL, HaisenHedr.datacount, 0, nullptr, 0);
    PtrnSetScroll(TABLE_H_SCROLL_CELL, table.Parm1[HEDR_WIDTH], 0, nullptr, 0);

    const RECT frame = ItemRect(*this, TABLE_FRAME_CELL, PTRN_RECT);
    if (!IsEmptyRect(frame))
        PtrnDispChild(TABLE_SLOT, panel::screen::テスト_表, OnScreen(*this, frame), nullptr, 0);
}

void CPtrnTest3::PtrnMesgFunc(int no)
{
    if (no == TABLE_SAVE_CELL) {
        AnswerSaving(SaveHaisenhyo());
    } else if (no == TABLE_PRINT_CELL) {
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
    KeyInputStart(target == STAY ? move->from : target, nullptr, 0);
}
