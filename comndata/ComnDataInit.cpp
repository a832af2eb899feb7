// Start and end of the common data: the cells and the tables that name, fill and limit them.
#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "comndata/MesgData.h"
#include "comndata/PatternNames.h"
#include "comndata/PtrnCode.h"
#include "config/ProfileReport.h"
#include "config/Settings.h"

using namespace tessary;

namespace
{

/// What an operator has changed and what a screen is to look like stand in the profile: he should know.
void ShowTrouble(ProfileProblem problem)
{
    const bool unsaved = problem == ProfileProblem::Unsaved;
    if (Language == 0)
        DispErrorMesg(unsaved ? "設定ファイルに保存できません" : "設定ファイルを読み込めません");
    else
        DispErrorMesg(unsaved ? "The profile could not be saved" : "The profile can not be read");
}

} // namespace

int ComnDataInit()
{
    ComnDataExit();
    LoadMesgData();
    LoadLimtData();
    const int loaded = LoadCodeData();
    ProfileTrouble = ShowTrouble;
    return loaded;
}

void ComnDataExit()
{
    ProfileTrouble = nullptr;
    ExitCodeTable();
    ExitPatternNames();
    ExitMesgData();
    ExitLimtData();
}
