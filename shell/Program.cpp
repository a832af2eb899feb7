#include "shell/Program.h"

#include "base/EucText.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "log/Guard.h"
#include "shell/DisplayGuard.h"
#include "shell/Locale.h"
#include "shell/Options.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"
#include "shell/Startup.h"
#include "shell/Supervisor.h"
#include "shell/Unshown.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Request.h"
#include "window/Slots.h"

#include <algorithm>
#include <cstdlib>
#include <gtk/gtk.h>
#include <optional>
#include <sys/resource.h>

namespace tessary
{

namespace
{

bool lives; ///< the first screen is shown

int SupervisedTick(void*)
{
    TellSupervisor();
    Timer_Event(nullptr);
    if (lives)
        CloseUnshown();
    return TRUE;
}

/// @return whether the first window is to be shown; not when a signal came while a message box was up
bool Start(char* path)
{
    if (TessaryInit(path) != 1 || EndedBySignal())
        return false;
    const int answer = UserInit();
    if (answer != 1 && !EndedBySignal() && StartStatus() == 0)
        Tell("The application has refused the start: its UserInit() returned " + std::to_string(answer) +
             " instead of 1. Its log may tell more.");
    return answer == 1 && !EndedBySignal();
}

/// What keeps the operator from seeing the first screen. Without a registered one the panel goes on: it may
/// get a window later.
std::optional<Refusal> FirstScreenProblem()
{
    if (!AppliWnd || (AppliWnd->WindRect.width > 0 && AppliWnd->WindRect.height > 0))
        return std::nullopt;
    const std::string name = AppliWnd->PtrnName;
    return Refusal{"最初の画面「" + name + "」を表示できません。",
                   "The first screen '" + EucToUtf8(name) + "' can not be shown: its pattern in '" +
                       ProjPath + "' is missing, can not be read, or has no size. Build the project again.",
                   1};
}

/// With too few files the toolkit finds no fonts for the box that would tell so, or ends where it stands.
bool MayOpenFiles()
{
    constexpr rlim_t NEEDED = 24; // twice what an idle panel has open
    rlimit files{};
    if (getrlimit(RLIMIT_NOFILE, &files) != 0 || files.rlim_cur >= NEEDED)
        return true;
    const rlimit more = {std::min(NEEDED, files.rlim_max), files.rlim_max};
    if (more.rlim_cur >= NEEDED && setrlimit(RLIMIT_NOFILE, &more) == 0)
        return true;
    Tell("This process may open only " + std::to_string(files.rlim_max) + " files at a time, and needs " +
         std::to_string(NEEDED) + ". Raise its limit (ulimit -n, LimitNOFILE).");
    return false;
}

/// From the start-up to the end of the main loop.
void Live(char* path, const std::string& screen)
{
    if (!Start(path))
        return;
    PtrnDispTopWnd(screen.empty() ? ProfileReadAsc(ProfName, "PTRN", "PTRNSTART") : screen.c_str(), nullptr,
                   0);
    if (Ended())
        return;
    if (const auto problem = FirstScreenProblem())
        return RefuseStart(*problem);
    lives = true;
    gtk_main();
}

} // namespace

bool PrepareProgram(int* argc, char*** argv)
{
    if (!MayOpenFiles())
        return false;
    WatchSignals();
    gtk_set_locale();
    UseEucLocale();
    if (!StartToolkit(argc, argv))
        return false;
    GuardDisplay();
    gdk_rgb_init();
    return true;
}

void RunProgram(char* path, const std::string& screen)
{
    // Before the start-up, so that a message box it shows already lives among ticks.
    const guint tick = gtk_timeout_add(100, Guarded<SupervisedTick, TRUE>::call, nullptr);

    Guard([&] { Live(path, screen); });

    TellSupervisorOfEnd();
    gtk_timeout_remove(tick);
    Guard(UserExit);
    Guard(TessaryExit);
    gtk_exit(EndedBySignal() ? 0 : StartStatus());
    std::abort(); // the toolkit does not say that it never returns
}

} // namespace tessary
