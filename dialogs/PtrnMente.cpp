#include "dialogs/PtrnMente.h"

#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "window/FieldText.h"
#include "window/KeyValue.h"
#include "window/MaintenanceWnd.h"

#include <limits>
#include <string>

using namespace tessary;

std::int32_t SlctCode;
std::int32_t LineNo1;
std::int32_t LineNo2;

namespace
{

constexpr int LINES = 10; ///< of each list

// First cell of each column.
constexpr int CODE_CELL = DTNO_MENTE;
constexpr int OFFSET_CELL = DTNO_MENTE + 10;
constexpr int FLAG_CELL = DTNO_MENTE + 20;
constexpr int WORD_CELL = DTNO_MENTE + 30;
constexpr int VALUE_CELL = DTNO_MENTE + 40;
constexpr int TEXT_CELL = DTNO_MENTE + 50;
constexpr int CODE_BAR = DTNO_MENTE + 60;
constexpr int DATA_BAR = DTNO_MENTE + 61;
constexpr int DATA_COLUMNS[] = {OFFSET_CELL, FLAG_CELL, WORD_CELL, VALUE_CELL, TEXT_CELL};

bool IsInColumn(int no, int column)
{
    return no >= column && no < column + LINES;
}

/// The line of a list that a cell belongs to.
int LineOf(int no)
{
    return no % LINES;
}

/// Place `line` lines behind `first`, whatever `first` is.
int LineAt(int first, int line)
{
    return first > std::numeric_limits<int>::max() - 2 * LINES ? first : first + line;
}

/// Row 0 is the framework's own and not listed.
bool IsListed(int row)
{
    return row >= 1 && row < PtrnRecd;
}

PTRNCODE* SelectedCode()
{
    return IsListed(SlctCode) ? &PtrnCode[SlctCode] : nullptr;
}

/// Data number at an offset of the selected code; -1 when there is none.
int NumberAt(int offset)
{
    const PTRNCODE* code = SelectedCode();
    if (!code || offset < 0 || offset >= code->DataCount)
        return -1;
    const std::int64_t no = std::int64_t{code->DataNo} + offset;
    return no >= 0 && no < PtrnDataNo ? static_cast<int>(no) : -1;
}

/// Data number shown in a line.
int NumberInLine(int line)
{
    return NumberAt(LineAt(LineNo2, line));
}

void ShowNumber(int line, int offset, int no)
{
    Set_iData(OFFSET_CELL + line, offset, nullptr, 0);
    Set_iData(FLAG_CELL + line, PtrnFlag[no], nullptr, 0);
    Set_iData(WORD_CELL + line, Get_wData(no, nullptr, 0), nullptr, 0);
    Set_fData(VALUE_CELL + line, Get_fData(no, nullptr, 0), nullptr, 0);
    Set_sData(TEXT_CELL + line, Get_sData(no, nullptr, 0), nullptr, 0);
}

void ChangeFlag(int cell)
{
    const int no = NumberInLine(LineOf(cell));
    if (no < 0)
        return;
    PtrnFlag[no] = static_cast<BYTE>(Get_iData(cell, nullptr, 0));
    if (!SaveFlags())
        DispErrorMesg(Language == 0 ? "ログフラグを保存できません" : "The log flags could not be saved");
}

} // namespace

void CPtrnMente::PtrnInitFunc()
{
    SlctDispData(SlctCode);
}

void CPtrnMente::PtrnTimrFunc()
{
    SetDispData2(LineNo2);
}

// Disabling an item blanks the text that it has now; a longer one that was there before would stay.
void CPtrnMente::PtrnDispFunc(CDraw* draw, int)
{
    for (int line = 0; line < LINES; line++) {
        const bool shown = NumberInLine(line) >= 0;
        if (!shown && !IsWiped[line])
            WipeLine(draw, line);
        IsWiped[line] = !shown;
    }
}

void CPtrnMente::WipeLine(CDraw* draw, int line)
{
    for (const int column : DATA_COLUMNS) {
        PTRNDATA field;
        if (!PtrnReadData(column + line, PTRN_CHAR, &field) &&
            !PtrnReadData(column + line, PTRN_NUMR, &field))
            continue;
        // An empty text paints the whole field in its background.
        field.Type = PTRN_CHAR;
        field.wData = 0;
        field.sData[0] = '\0';
        PtrnData->DispPtrnData(draw, &field, 0);
    }
}

void CPtrnMente::PtrnMesgFunc(int no)
{
    if (IsInColumn(no, CODE_CELL)) {
        const int row = LineAt(LineNo1, LineOf(no) + 1);
        if (IsListed(row))
            SlctDispData(row);
    } else if (IsInColumn(no, FLAG_CELL)) {
        ChangeFlag(no);
    } else if (no == CODE_BAR) {
        SetDispData1(Get_iData(CODE_BAR, nullptr, 0));
    } else if (no == DATA_BAR) {
        SetDispData2(Get_iData(DATA_BAR, nullptr, 0));
    }
}

int CPtrnMente::PtrnKeyStart(PTRNDATA* item)
{
    RefreshFieldText(item);
    return 1;
}

void CPtrnMente::PtrnKeyFunc(int key, int, PTRNDATA* item)
{
    if (key != KEYVAL_RETURN)
        return;
    const int cell = item->DataNo;
    const int no = NumberInLine(LineOf(cell));
    if (no < 0)
        return;
    // A change by hand is recorded like any other access to a number whose log flag is set.
    if (IsInColumn(cell, WORD_CELL))
        Set_wData(no, static_cast<WORD>(Get_iData(cell, nullptr, 0)), __FILE__, __LINE__);
    else if (IsInColumn(cell, VALUE_CELL))
        Set_fData(no, Get_fData(cell, nullptr, 0), __FILE__, __LINE__);
    else if (IsInColumn(cell, TEXT_CELL))
        Set_sData(no, Get_sData(cell, nullptr, 0), __FILE__, __LINE__);
}

void CPtrnMente::SlctDispData(int row)
{
    if (PTRNCODE* left = SelectedCode())
        left->DispNo = LineNo2;
    SlctCode = IsListed(row) ? row : 1;

    const PTRNCODE* code = SelectedCode();
    SetDispData1(LineNo1);
    SetDispData2(code && NumberAt(code->DispNo) >= 0 ? code->DispNo : 0);
}

void CPtrnMente::SetDispData1(int first)
{
    LineNo1 = first;
    PtrnSetScroll(CODE_BAR, PtrnRecd - 1, first, nullptr, 0);
    Clear_AllData(CODE_CELL, LINES, nullptr, 0);
    for (int line = 0; line < LINES; line++) {
        const int row = LineAt(first, line + 1);
        if (!IsListed(row))
            continue;
        Set_sData(CODE_CELL + line, CodeOf(PtrnCode[row]).c_str(), nullptr, 0);
        Set_wData(CODE_CELL + line, row == SlctCode ? 1 : 0, nullptr, 0);
    }
}

void CPtrnMente::SetDispData2(int first)
{
    const PTRNCODE* code = SelectedCode();
    if (code)
        LineNo2 = first;
    PtrnSetScroll(DATA_BAR, code ? code->DataCount : 0, code ? first : 0, nullptr, 0);

    for (const int column : DATA_COLUMNS)
        Clear_AllData(column, LINES, nullptr, 0);
    for (int line = 0; line < LINES; line++) {
        const int offset = LineAt(first, line);
        const int no = NumberAt(offset);
        if (no >= 0) {
            ShowNumber(line, offset, no);
            continue;
        }
        for (const int column : DATA_COLUMNS)
            Set_Disable(column + line, 1, 0, nullptr, 0);
    }
    // What is being typed stays on top of a value that changes.
    if (KeyInputMode == 1)
        OR_wData(KeyInputPtrn.DataNo, STATE_FROZEN, nullptr, 0);
}

void tessary::PtrnMenteExit()
{
    SlctCode = LineNo1 = LineNo2 = 0;
}

CPtrnDisp* tessary::NewMaintenanceWnd()
{
    return new CPtrnMente;
}
