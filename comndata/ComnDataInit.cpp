// Start and end of the common data: the cells and the tables that name, fill and limit them.
#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "comndata/MesgData.h"

int ComnDataInit()
{
    ComnDataExit();
    LoadMesgData();
    LoadLimtData();
    return LoadCodeData();
}

void ComnDataExit()
{
    tessary::ExitCodeData();
    ExitMesgData();
    ExitLimtData();
}
