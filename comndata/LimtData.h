// The limit table: between which limits an entered value must lie, and what to say when it does not.
//
// The table is the profile file ProjPath/LimtData.prf below the working directory ("ProjPath" is that very
// name, not the project directory). Its section LIMTDATA holds the keys LIMT1 to LIMT500: code, two offsets,
// lower and upper limit, and the message numbers for a value below and above.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"

#pragma pack(push, 1)

/// The limits of a range of data numbers.
struct LIMTDATA {
    char ID_Code[SIZE_ID_CODE + 2]; ///< code of the cells
    std::int32_t ID_No1;            ///< offset of the last cell covered
    std::int32_t ID_No2;            ///< offset of the first one
    std::int32_t DataNo1;  ///< last number covered: ID_Code + ID_No1; -1 unknown, 0 for an empty code
    std::int32_t DataNo2;  ///< first number covered: ID_Code + ID_No2; the same rules
    float MIN_Data;        ///< limits are floats made of the 16 bits of a hexadecimal field
    float MAX_Data;        ///< the upper limit
    std::int32_t ErrorNo1; ///< message for a value below MIN_Data; 0 none
    std::int32_t ErrorNo2; ///< message for a value above MAX_Data; 0 none
};
static_assert(sizeof(LIMTDATA) == 54);

#pragma pack(pop)

extern LIMTDATA* LimtData[CONT_LIMTDATA]; ///< in table order; null where the table has no row

/// Loads the table, freeing the one before. A row whose code is not known covers nothing and is logged. At
/// start-up the code table comes after the limits, so that no code is known then.
void LoadLimtData();

/// Frees the table.
void ExitLimtData();

/// Checks an entered value and shows the message of its limit on the error line.
/// @return 0 when a message was to be shown; 1 for a value within its limits, without limits, beyond a limit
///         without message, NaN, or for a number that is 0 or outside the store
int ChckLimtData(int no, float value, const char* file, int line);

/// Limits of a data number.
/// @return 1 with the limits of the first row that covers it; 0 with both 0 when none does
int Get_LimtData(int no, float* min, float* max, const char* file, int line);

namespace tessary
{

/// The first row that covers a data number; null when none does.
const LIMTDATA* FindLimitRow(int no);

/// Where limits bind: looks the codes of all rows up again. Called after every load of the code table. A row
/// then covers the cells between its two offsets, whichever comes first, and codes that are not known are
/// logged here.
void BindLimits();

} // namespace tessary
