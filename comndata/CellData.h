// The cells of the common data as they lie in memory; they are read and written by comndata/ComnData.h.
#pragma once

#include "base/Limits.h"
#include "base/Types.h"

#pragma pack(push, 1)

/// One cell.
struct COMNDATA {
    WORD wData;   ///< display state of the items, STATE_...
    float fData;  ///< integers are kept here too, so those beyond 2^24 lose their last digits (Get_dData has
                  ///< all)
    LPTSTR sData; ///< owned by the store, or the text of a message row; null when empty
};
static_assert(sizeof(COMNDATA) == sizeof(WORD) + sizeof(float) + sizeof(LPTSTR));

#pragma pack(pop)

extern COMNDATA* ComnData;      ///< the cells; to be read only. Null without a code table
extern std::int32_t PtrnDataNo; ///< number of cells; valid data numbers are 0 to PtrnDataNo - 1

namespace tessary
{

/// Most cells a store may have. The code table ends before the row that would pass it.
constexpr int CONT_COMNDATA = 1000000;

/// Size of the buffer that Get_sData returns: 255 bytes of text and the terminator.
constexpr int SIZE_SDATA = TEXT_BUFFER;

} // namespace tessary
