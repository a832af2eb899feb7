#include "comndata/ComnData.h"

#include "base/EucText.h"
#include "comndata/Cells.h"
#include "comndata/CodeTable.h"
#include "comndata/PtrnCode.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

using namespace tessary;

namespace
{

/// Casting a float that no int can hold is undefined; application and keyboard may write any.
int Truncate(float value)
{
    if (std::isnan(value))
        return 0;
    if (value >= 2147483648.0F)
        return std::numeric_limits<int>::max();
    if (value < -2147483648.0F)
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

/// True when accesses to the number are logged; `name` then holds its name.
bool IsLogged(int no, const char* file, char* name)
{
    return file && ConvertDtno(no, name) == 1;
}

/// Both forms have the same width, so that the names stand below each other in the log.
const char* AccessText(int write)
{
    return write ? "WRITE  " : "READ   ";
}

/// As SetLogfile for a float, with the digits that one of those can not hold.
void LogNumber(int no, int write, double value, const char* file, int line)
{
    char name[SIZE_DTNONAME];
    if (IsLogged(no, file, name))
        LogText("COMNMEM", file, line, "%s[%s] %.2f", AccessText(write), name, value);
}

template <typename Operation> void ChangeWord(int no, const char* file, int line, Operation operation)
{
    if (!CheckComnData(no, file, line))
        return;
    LockComnData();
    const auto word = static_cast<WORD>(operation(ComnData[no].wData));
    ComnData[no].wData = word;
    UnlockComnData();
    SetLogfile(no, 1, word, file, line);
}

/// Sets the cell after `no`. One round does what `count` rounds would: each sets the same cell.
template <typename Setter> void FillNext(int no, int count, Setter set)
{
    if (count < 1 || no == std::numeric_limits<int>::max())
        return;
    LockComnData();
    set(no + 1);
    UnlockComnData();
}

/// Sets `count` cells from `no` on, as far as they lie in the store.
void FillRange(int no, std::int64_t count, WORD word, double value, const char* text)
{
    // The text may belong to one of the cells, which frees it when it is set.
    const std::string copy(text ? text : "");
    const std::int64_t end = std::min<std::int64_t>(no + count, PtrnDataNo);
    LockComnData();
    for (int cell = std::max(no, 0); cell < end; cell++) {
        Set_wData(cell, word, nullptr, 0);
        Set_dData(cell, value, nullptr, 0);
        Set_sData(cell, copy.c_str(), nullptr, 0);
    }
    UnlockComnData();
}

} // namespace

int CheckComnData(int no, const char* file, int line)
{
    if (HasCell(no))
        return 1;
    if (file)
        LogText(CATEGORY_CELLS, file, line, "Data No Error [%d]", no);
    return 0;
}

WORD Get_wData(int no, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return 0;
    const WORD value = ComnData[no].wData;
    SetLogfile(no, 0, value, file, line);
    return value;
}

int Get_iData(int no, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return 0;
    const int value = Truncate(ComnData[no].fData);
    SetLogfile(no, 0, value, file, line);
    return value;
}

float Get_fData(int no, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return 0.0F;
    const float value = ComnData[no].fData;
    SetLogfile(no, 0, value, file, line);
    return value;
}

double Get_dData(int no, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return 0.0;
    const double value = StoredNumber(no);
    LogNumber(no, 0, value, file, line);
    return value;
}

LPTSTR Get_sData(int no, const char* file, int line)
{
    static char text[SIZE_SDATA];

    text[0] = '\0';
    if (!CheckComnData(no, file, line))
        return text;
    const char* stored = ComnData[no].sData;
    if (stored && !CopyText(text, stored))
        text[EucCut(stored, sizeof text - 1)] = '\0';
    SetLogfile(no, 0, text, file, line);
    return text;
}

void Set_wData(int no, WORD value, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return;
    ComnData[no].wData = value;
    SetLogfile(no, 1, value, file, line);
}

void Set_iData(int no, int value, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return;
    StoreNumber(no, value);
    SetLogfile(no, 1, value, file, line);
}

void Set_fData(int no, float value, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return;
    StoreNumber(no, static_cast<double>(value));
    SetLogfile(no, 1, value, file, line);
}

void Set_dData(int no, double value, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return;
    StoreNumber(no, value);
    LogNumber(no, 1, value, file, line);
}

void Set_sData(int no, const char* text, const char* file, int line)
{
    if (!CheckComnData(no, file, line))
        return;

    StoreText(no, text);
    const char* stored = ComnData[no].sData;
    SetLogfile(no, 1, stored ? stored : "", file, line);
}

void OR_wData(int no, WORD mask, const char* file, int line)
{
    ChangeWord(no, file, line, [mask](WORD word) { return word | mask; });
}

void AND_wData(int no, WORD mask, const char* file, int line)
{
    ChangeWord(no, file, line, [mask](WORD word) { return word & mask; });
}

void EOR_wData(int no, WORD mask, const char* file, int line)
{
    ChangeWord(no, file, line, [mask](WORD word) { return word ^ mask; });
}

void LockComnData() {}

void UnlockComnData() {}

void Clear_wData(int no, int count, WORD value, const char*, int)
{
    FillNext(no, count, [value](int cell) { Set_wData(cell, value, nullptr, 0); });
}

void Clear_iData(int no, int count, int value, const char*, int)
{
    FillNext(no, count, [value](int cell) { Set_iData(cell, value, nullptr, 0); });
}

void Clear_fData(int no, int count, float value, const char*, int)
{
    FillNext(no, count, [value](int cell) { Set_fData(cell, value, nullptr, 0); });
}

void Clear_sData(int no, int count, const char* text, const char*, int)
{
    FillNext(no, count, [text](int cell) { Set_sData(cell, text, nullptr, 0); });
}

void Clear_AllData(int no, int count, const char*, int)
{
    FillRange(no, count, 0, 0.0, nullptr);
}

void Clear_AllData(int no, int count, WORD word, int value, const char* text, const char*, int)
{
    FillRange(no, count, word, static_cast<double>(value), text);
}

void Clear_AllData(int no, int count, WORD word, float value, const char* text, const char*, int)
{
    FillRange(no, count, word, static_cast<double>(value), text);
}

void Clear_AllData(int no, const char* file, int line)
{
    if (const PTRNCODE* row = FindCode(no)) {
        FillRange(no, std::int64_t{row->DataCount} - no, 0, 0.0, nullptr);
        return;
    }
    char name[SIZE_DTNONAME];
    ConvertDtno(no, name);
    LogText(CATEGORY_CELLS, file, line, "Clear_AllData Error [%s / %d]", name, no);
}

void SetLogfile(int no, int write, WORD value, const char* file, int line)
{
    char name[SIZE_DTNONAME];
    if (IsLogged(no, file, name))
        LogText(CATEGORY_CELLS, file, line, "%s[%s] 0x%04X", AccessText(write), name, value);
}

void SetLogfile(int no, int write, int value, const char* file, int line)
{
    char name[SIZE_DTNONAME];
    if (IsLogged(no, file, name))
        LogText(CATEGORY_CELLS, file, line, "%s[%s] %d", AccessText(write), name, value);
}

void SetLogfile(int no, int write, float value, const char* file, int line)
{
    char name[SIZE_DTNONAME];
    if (IsLogged(no, file, name))
        LogText(CATEGORY_CELLS, file, line, "%s[%s] %.2f", AccessText(write), name, value);
}

void SetLogfile(int no, int write, const char* value, const char* file, int line)
{
    char name[SIZE_DTNONAME];
    if (IsLogged(no, file, name))
        LogText(CATEGORY_CELLS, file, line, "%s[%s] %s", AccessText(write), name, value);
}
