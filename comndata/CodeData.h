// The code table, the log flags and the names of the patterns as they lie in memory; comndata/PtrnCode.h
// loads them and asks them.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"

#pragma pack(push, 1)

/// One row of the code table, as it lies in the file "PtrnCode".
struct PTRNCODE {
    char ID_Code[SIZE_ID_CODE + 2]; ///< may fill its field without a terminator
    std::int32_t DataCount;         ///< data numbers of the code, not negative
    std::int32_t DataNo;            ///< first data number, as it stands in the file
    std::int32_t DispNo;            ///< first line shown on the maintenance screen; never written back
};
static_assert(sizeof(PTRNCODE) == 34);

/// A pattern file's name without folder and extension.
struct PTRNNAME {
    char name[SIZE_PTRNNAME + 2]; ///< EUC-JP
};

#pragma pack(pop)

extern PTRNCODE* PtrnCode;     ///< rows in file order; null without any
extern std::int32_t PtrnRecd;  ///< number of rows
extern BYTE* PtrnFlag;         ///< one byte for each data number; bit 0: it has a name and is logged; or null
extern PTRNNAME* PtrnName;     ///< in the order of the directory; null without any
extern std::int32_t PtrnCount; ///< number of names
