// Start and end of the common data: the cells and the tables that name, fill and limit them.
#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "comndata/MesgData.h"
#include "comndata/PatternNames.h"
#include "comndata/PtrnCode.h"

using namespace tessary;

int ComnDataInit()
{
    ComnDataExit();
    LoadMesgData();
    LoadLimtData();
    return LoadCodeData();
}

void ComnDataExit()
{
    ExitCodeTable();
    ExitPatternNames();
    ExitMesgData();
    ExitLimtData();
}
