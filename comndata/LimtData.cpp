#include "comndata/LimtData.h"

#include "base/EucText.h"
#include "base/Limits.h"
#include "comndata/ComnData.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "comndata/TableFile.h"
#include "config/Profile.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>
#include <cstring>
#include <deque>

using namespace tessary;

LIMTDATA* LimtData[CONT_LIMTDATA];

namespace
{

std::deque<LIMTDATA> rows; // what LimtData points at; a deque never moves its rows

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

int Resolve(const LIMTDATA& row, int offset, int number)
{
    const int no = ConvertDtno(row.ID_Code, offset);
    if (no == -1)
        LogText(CATEGORY_LIMITS, __FILE__, __LINE__, "LimtData Error [%d / %s / %d]", number, row.ID_Code,
                offset);
    return no;
}

/// The row that limits a data number. A row covers the numbers from `DataNo2` up to `DataNo1`.
const LIMTDATA* FindLimits(int no)
{
    for (const LIMTDATA* row : LimtData)
        if (row && row->DataNo1 >= no && row->DataNo2 <= no)
            return row;
    return nullptr;
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

void LoadLimtData()
{
    ExitLimtData();
    char path[SIZE_PATH + 1];
    if (!TablePath(path, "LimtData", CATEGORY_LIMITS))
        return;

    LimitArea minimum;
    LimitArea maximum;
    for (int number = 1; number <= CONT_LIMTDATA; number++) {
        char code[PROFILE_FIELD_SIZE];
        int offset[2];
        int error[2];
        if (ProfileRead(path, "LIMTDATA", "LIMT", number, "siiffii", code, &offset[0], &offset[1],
                        &minimum.low, &maximum.low, &error[0], &error[1], nullptr) == 0)
            continue;

        LIMTDATA& row = rows.emplace_back();
        code[EucCut(code, SIZE_ID_CODE)] = '\0';
        CopyText(row.ID_Code, code);
        row.ID_No1 = offset[0];
        row.ID_No2 = offset[1];
        row.DataNo1 = Resolve(row, offset[0], number);
        row.DataNo2 = Resolve(row, offset[1], number);
        row.MIN_Data = minimum.Value();
        row.MAX_Data = maximum.Value();
        row.ErrorNo1 = error[0];
        row.ErrorNo2 = error[1];
        LimtData[number - 1] = &row;
    }
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
    const LIMTDATA* row = FindLimits(no);
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
    const LIMTDATA* row = CheckNumber(no, file, line) ? FindLimits(no) : nullptr;
    *min = row ? row->MIN_Data : 0.0F;
    *max = row ? row->MAX_Data : 0.0F;
    return row ? 1 : 0;
}
