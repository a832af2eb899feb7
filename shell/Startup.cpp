#include "shell/Startup.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "config/Edition.h"
#include "config/FileCntl.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "dialogs/MessageBox.h"
#include "dialogs/PtrnMente.h"
#include "draw/Resource.h"
#include "log/Category.h"
#include "log/Clock.h"
#include "log/Logfile.h"
#include "shell/Locale.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Request.h"
#include "window/Retire.h"
#include "window/WindowExit.h"

#include <algorithm>
#include <cstdio>
#include <gtk/gtk.h>

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

int RefuseStart(const char* text)
{
    MessageBox("起動不可", text, 1, 1);
    return 0;
}

} // namespace

int TessaryInit(char* path)
{
    Platform = 3;

    FindProfile(path);
    if (!FileExist(ProfName, "")) {
        char text[SIZE_PATH + 64];
        std::snprintf(text, sizeof text, "環境設定ファイル(%s)が存在しません。", ProfName);
        return RefuseStart(text);
    }

    CopyText(ProjPath, ProfileReadAsc(ProfName, "TESSARY", "PROJECT"));
    if (!ProjPath[0])
        return RefuseStart("プロジェクトへのパスが設定されていません。");

    LogfileInit();
    LogfileWrite("", "システム起動", nullptr, 0);
    if (const char* problem = LocaleProblem())
        LogfileWrite(CATEGORY_SYSTEM, problem, nullptr, 0);

    if (ComnDataInit() != 1)
        return 0;
    DrawCntlInit();
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

/// Ends the main loops around one that has been ended.
gboolean QuitOuter(void*)
{
    gtk_main_quit();
    return gtk_main_level() > 1;
}

/// Counts the stop request down; at zero the windows go and the main loop ends, also when the stop finds the
/// operator in front of a message box, which has a main loop of its own.
void CountStop()
{
    if (WaitTimer == 0 || --WaitTimer != 0)
        return;
    if (SystmWnd)
        SystmWnd->PtrnExit();
    if (AppliWnd)
        AppliWnd->PtrnExit();
    if (gtk_main_level() > 1)
        g_timeout_add(1, QuitOuter, nullptr);
    gtk_main_quit();
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
    DeleteRetiredWnd();
    return 1;
}

void ShutDown(int mode)
{
    if (mode == 0)
        ProfileReadInt(ProfName, "TESSARY", "SHUTDOWN");
}
