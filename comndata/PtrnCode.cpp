#include "comndata/PtrnCode.h"

#include "base/BuiltIn.h"
#include "comndata/Cells.h"
#include "comndata/CodeTable.h"
#include "comndata/PatternNames.h"

#include <cstdio>
#include <cstring>
#include <limits>

using namespace tessary;

int LoadCodeData()
{
    LoadCodeTable();
    LoadPatternNames();
    return 1;
}

int ConvertDtno(int no, char* name)
{
    name[0] = '\0';
    if (!HasCell(no) || !PtrnFlag || !(PtrnFlag[no] & 1))
        return 0;
    const PTRNCODE* row = FindCode(no);
    if (!row)
        return 0;
    std::snprintf(name, SIZE_DTNONAME, "%.*s+%d", static_cast<int>(sizeof row->ID_Code), row->ID_Code,
                  static_cast<int>(OffsetIn(*row, no)));
    return 1;
}

int ConvertDtno(const char* code, int offset)
{
    if (!code || !*code)
        return 0;
    const PTRNCODE* row = FindCode(code);
    if (!row || offset >= row->DataCount)
        return -1;
    const std::int64_t no = std::int64_t{row->DataNo} + offset;
    const bool isInt = no >= std::numeric_limits<int>::min() && no <= std::numeric_limits<int>::max();
    return isInt ? static_cast<int>(no) : -1;
}

int ConvertPtrn(const char* pattern)
{
    if (!pattern)
        return -1;
    for (std::int32_t i = 0; i < PtrnCount; i++)
        if (std::strcmp(PtrnName[i].name, pattern) == 0)
            return i;
    if (std::strcmp(pattern, tessary::VERSION_PATTERN) == 0)
        return PtrnCount;
    if (std::strcmp(pattern, tessary::MAINTENANCE_PATTERN) == 0)
        return PtrnCount + 1;
    return -1;
}
