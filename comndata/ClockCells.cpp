#include "comndata/ClockCells.h"

#include "base/Constants.h"
#include "comndata/ComnData.h"

namespace
{

void GetCells(int first, int* values, int count)
{
    for (int i = 0; i < count; i++)
        values[i] = Get_iData(first + i, nullptr, 0);
}

} // namespace

void Get_Caln(int* cal)
{
    GetCells(DTNO_SYSCALN, cal, 7);
}

void Get_Caln(int* date, int* time)
{
    GetCells(DTNO_SYSCALN, date, 4);
    GetCells(DTNO_SYSCALN + 4, time, 3);
}
