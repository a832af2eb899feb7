#include "comndata/LimtData.h"

#include "base/EucText.h"
#include "base/Limits.h"
#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "comndata/TableFile.h"
#include "config/Edition.h"
#include "config/Profile.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <deque>

using namespace tessary;

LIMTDATA* LimtData[CONT_LIMTDATA];

namespace
{

std::deque<LIMTDATA> rows; // what LimtData points at; a deque never moves its rows
unsigned boundTo;          // the code table that the rows were looked up in; 0 none

/// Where a limit is read to. A profile's letter "f" reads a hexadecimal word, which fills the low half of
/// the float; nothing ever sets the high half. The limits of a table are therefore tiny (denormal) numbers.
struct LimitArea {
    WORD low = 0;
    WORD high = 0;

    float Value() const
    {
        float value;
        static_assert(sizeof value == sizeof *this);
        std::memcpy(&value, this, sizeof value);
        return value;
    }
};

/// Where limits bind they are numbers as people write them, and what is no number is 0.
float DecimalLimit(const char* text)
{
    const double value = std::strtod(text, nullptr);
    return std::isfinite(value) ? static_cast<float>(value) : 0.0F;
}

int Resolve(const LIMTDATA& row, int offset, int number)
{
    const int no = ConvertDtno(row.ID_Code, offset);
    if (no == -1)
        LogText(CATEGORY_LIMITS, __FILE__, __LINE__, "LimtData Error [%d / %s / %d]", number, row.ID_Code,
                offset);
    return no;
}

/// True for a number that can have limits; cell 0 has none. Any other is logged when it has a name.
bool CheckNumber(int no, const char* file, int line)
{
    if (no >= 1 && no < PtrnDataNo)
        return true;
    char name[SIZE_DTNONAME];
    if (ConvertDtno(no, name))
        LogText(CATEGORY_LIMITS, file, line, "Data No Error [%s]", name);
    return false;
}

} // namespace

namespace
{

/// What a key of the table holds.
struct TableRow {
    char code[PROFILE_FIELD_SIZE];
    int offset[2];
    int error[2];
};

/// The limits come as hexadecimal words; how they become floats is the area's business.
int ReadWords(const char* path, int number, TableRow* read, LIMTDATA* row)
{
    static LimitArea minimum;
    static LimitArea maximum;
    if (number == 1)
        minimum = maximum = {};
    if (ProfileRead(path, "LIMTDATA", "LIMT", number, "siiffii", read->code, &read->offset[0],
                    &read->offset[1], &minimum.low, &maximum.low, &read->error[0], &read->error[1],
                    nullptr) == 0)
        return 0;
    row->MIN_Data = minimum.Value();
    row->MAX_Data = maximum.Value();
    return 1;
}

int ReadDecimals(const char* path, int number, TableRow* read, LIMTDATA* row)
{
    char minimum[PROFILE_FIELD_SIZE];
    char maximum[PROFILE_FIELD_SIZE];
    if (ProfileRead(path, "LIMTDATA", "LIMT", number, "siissii", read->code, &read->offset[0],
                    &read->offset[1], minimum, maximum, &read->error[0], &read->error[1], nullptr) == 0)
        return 0;
    row->MIN_Data = DecimalLimit(minimum);
    row->MAX_Data = DecimalLimit(maximum);
    return 1;
}

} // namespace

void LoadLimtData()
{
    ExitLimtData();
    boundTo = 0;
    char path[SIZE_PATH + 1];
    if (!TablePath(path, "LimtData", CATEGORY_LIMITS))
        return;

    const bool bound = tessary::Has(tessary::Correction::LimitsBind);
    for (int number = 1; number <= CONT_LIMTDATA; number++) {
        TableRow read;
        LIMTDATA found{};
        if ((bound ? ReadDecimals : ReadWords)(path, number, &read, &found) == 0)
            continue;

        LIMTDATA& row = rows.emplace_back(found);
        read.code[EucCut(read.code, SIZE_ID_CODE)] = '\0';
        CopyText(row.ID_Code, read.code);
        row.ID_No1 = read.offset[0];
        row.ID_No2 = read.offset[1];
        row.ErrorNo1 = read.error[0];
        row.ErrorNo2 = read.error[1];
        LimtData[number - 1] = &row;
        if (!bound) {
            row.DataNo1 = Resolve(row, read.offset[0], number);
            row.DataNo2 = Resolve(row, read.offset[1], number);
        }
    }
}

void tessary::BindLimits()
{
    boundTo = CodeTableGeneration();
    for (int number = 1; number <= CONT_LIMTDATA; number++) {
        LIMTDATA* row = LimtData[number - 1];
        if (!row)
            continue;
        const auto [first, last] = std::minmax({int{row->ID_No1}, int{row->ID_No2}}); // the record is packed
        row->DataNo1 = Resolve(*row, last, number);
        row->DataNo2 = Resolve(*row, first, number);
    }
}

const LIMTDATA* tessary::FindLimitRow(int no)
{
    if (Has(Correction::LimitsBind) && boundTo != CodeTableGeneration())
        BindLimits();
    // A row covers the numbers from `DataNo2` up to `DataNo1`.
    for (const LIMTDATA* row : LimtData)
        if (row && row->DataNo1 >= no && row->DataNo2 <= no)
            return row;
    return nullptr;
}

void ExitLimtData()
{
    rows.clear();
    std::fill(std::begin(LimtData), std::end(LimtData), nullptr);
}

int ChckLimtData(int no, float value, const char* file, int line)
{
    if (!CheckNumber(no, file, line))
        return 1;
    const LIMTDATA* row = tessary::FindLimitRow(no);
    if (!row)
        return 1;

    int error = 0; // also for NaN, which is neither below nor above
    if (value < row->MIN_Data)
        error = row->ErrorNo1;
    else if (value > row->MAX_Data)
        error = row->ErrorNo2;
    if (error == 0)
        return 1;
    DispErrorMesg(error);
    return 0;
}

int Get_LimtData(int no, float* min, float* max, const char* file, int line)
{
    const LIMTDATA* row = CheckNumber(no, file, line) ? tessary::FindLimitRow(no) : nullptr;
    *min = row ? row->MIN_Data : 0.0F;
    *max = row ? row->MAX_Data : 0.0F;
    return row ? 1 : 0;
}
