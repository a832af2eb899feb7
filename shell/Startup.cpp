#include "shell/Startup.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "config/Edition.h"
#include "config/FileCntl.h"
#include "config/Profile.h"
#include "config/ProjectMark.h"
#include "config/Settings.h"
#include "dialogs/PtrnMente.h"
#include "draw/FontProblem.h"
#include "draw/Resource.h"
#include "log/Category.h"
#include "log/Clock.h"
#include "log/Logfile.h"
#include "shell/DisplayGuard.h"
#include "shell/Instance.h"
#include "shell/Locale.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Request.h"
#include "window/Retire.h"
#include "window/WindowExit.h"

#include <algorithm>
#include <optional>
#include <string>

using namespace tessary;

int Platform;

namespace
{

constexpr int LOG_TICKS = 10; ///< ticks from one look at the log's timer to the next

int ticks; ///< since the last look

/// "<folder>/<base name>.ini" of the program.
void FindProfile(const char* program)
{
    char dir[SIZE_PATH + 1];
    char base[SIZE_PATH + 1];
    SplitPath(program, dir, base, nullptr);
    MakePath(ProfName, dir, base, "ini");
}

/// What is wrong with the profile; nothing when a start can be made with it.
std::optional<Refusal> ProfileProblem()
{
    const std::string profile = ProfName;
    if (!FileExist(ProfName, ""))
        return Refusal{"環境設定ファイル(" + profile + ")が存在しません。",
                       "The profile '" + profile +
                           "' does not exist. Put it beside the program, under the program's "
                           "name with the extension \"ini\"; \"ptn build\" makes it.",
                       0};
    const int edition = ReadEdition();
    if (edition > LATEST_EDITION)
        return Refusal{"このプログラムは EDITION=" + std::to_string(edition) +
                           " のプロジェクトを実行できません。",
                       "'" + profile + "' asks for edition " + std::to_string(edition) +
                           ", but this program knows no edition above " + std::to_string(LATEST_EDITION) +
                           ". Install a newer program, or correct EDITION in the section [TESSARY].",
                       1};
    SetEdition(edition);
    CopyText(ProjPath, ProfileReadAsc(ProfName, "TESSARY", "PROJECT"));
    if (!ProjPath[0])
        return Refusal{"プロジェクトへのパスが設定されていません。",
                       "'" + profile +
                           "' names no project. Set PROJECT in the section [TESSARY] to the "
                           "project's folder.",
                       Has(Correction::StartStatus) ? 1 : 0};
    if (FileExist(ProjPath, UNFINISHED_MARK))
        return Refusal{"プロジェクト(" + std::string(ProjPath) + ")の作成が完了していません。",
                       "The project '" + std::string(ProjPath) +
                           "' is half old and half new: a build was interrupted, or is going on. Build it "
                           "again with \"ptn build\".",
                       1};
    return std::nullopt;
}

} // namespace

int TessaryInit(char* path)
{
    Platform = 3;

    FindProfile(path);
    if (const auto problem = ProfileProblem()) {
        RefuseStart(*problem);
        return 0;
    }
    if (Has(Correction::OneInstance) && !BeOnlyInstance(ProfName)) {
        Fail("A program with the profile '" + std::string(ProfName) +
                 "' is running already. End it first, or give this one a profile of its own.",
             1);
        return 0;
    }

    LogfileInit();
    LogfileWrite("", "システム起動", nullptr, 0);
    if (const char* problem = LocaleProblem())
        LogfileWrite(CATEGORY_SYSTEM, problem, nullptr, 0);

    if (ComnDataInit() != 1)
        return 0;
    DrawCntlInit();
    if (const std::string problem = FontProblem(); !problem.empty())
        Tell(problem);
    return 1;
}

void TessaryExit()
{
    WindowExit();
    PtrnMenteExit();
    DrawCntlExit();
    ComnDataExit();
    LogfileWrite("", "システム停止", nullptr, 0);
    LogfileExit();
    EndInstance();
    SetEdition(1);
    Platform = 0;
    ticks = 0;
    std::fill(std::begin(ProfName), std::end(ProfName), '\0');
    std::fill(std::begin(ProjPath), std::end(ProjPath), '\0');
}

void TessaryTimr()
{
    GetLocalTime();
    const int clock[] = {LocalTime.tm_year, LocalTime.tm_mon, LocalTime.tm_mday, LocalTime.tm_wday,
                         LocalTime.tm_hour, LocalTime.tm_min, LocalTime.tm_sec};
    int no = DTNO_SYSCALN;
    for (const int value : clock)
        Set_iData(no++, value, nullptr, 0);

    if (++ticks >= LOG_TICKS) {
        ticks = 0;
        LogfileTimr();
    }
}

namespace
{

/// Counts the stop request down; at zero the windows go and the main loop ends, also when the stop finds the
/// operator in front of a message box.
void CountStop()
{
    if (WaitTimer != 0 && --WaitTimer == 0)
        EndProgram();
}

} // namespace

int Timer_Event(void*)
{
    const HandlerScope scope;
    UserTimr();
    TessaryTimr();
    if (AppliWnd)
        AppliWnd->TimrEvent();
    if (SystmWnd)
        SystmWnd->TimrEvent();
    CountStop();
    NoticeLostWindow();
    DeleteRetiredWnd();
    return 1;
}

void ShutDown(int mode)
{
    if (mode == 0)
        ProfileReadInt(ProfName, "TESSARY", "SHUTDOWN");
}
