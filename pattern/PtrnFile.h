// The records of a pattern file, `NAME.ptn`, exactly as they lie on disk: little-endian, packed.
//
// A file is one header, `DataCount` item records, and a text block of `TextSize` bytes that holds five
// terminated strings per item: the text in three languages, ID_Name and ID_Code.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"

#pragma pack(push, 1)

/// The header.
struct HEDRFILE {
    std::int32_t Version;              ///< not interpreted
    std::int32_t Parm1[CONT_PARM1];    ///< HedrParm
    std::int32_t Parm2[CONT_PARM2];    ///< numbers for the application
    char PtrnName1[SIZE_PTRNNAME + 2]; ///< title, language 0
    char PtrnName2[SIZE_PTRNNAME + 2]; ///< title, language 1
    char PtrnName3[SIZE_PTRNNAME + 2]; ///< title, any other language
    char LogoName[SIZE_LOGONAME + 2];  ///< file in "Bitmap"
    char BmapName[SIZE_BMAPNAME + 2];  ///< file in "Bitmap", the background
    std::int32_t DataCount;            ///< item records that follow
    std::int32_t TextSize;             ///< bytes of the text block
    std::int32_t UndfFlag;             ///< reserved
};
static_assert(sizeof(HEDRFILE) == 466);

/// An item.
struct PTRNFILE {
    std::int32_t Type;            ///< PtrnType
    std::int32_t Parm[CONT_PARM]; ///< ItemParm, and those of the type
    std::int32_t ID_Type;         ///< action code
    std::int32_t ID_No;           ///< offset within the item's code
    std::int32_t UndfFlag;        ///< reserved
};
static_assert(sizeof(PTRNFILE) == 136);

#pragma pack(pop)
