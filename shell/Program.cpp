#include "shell/Program.h"

#include "config/Profile.h"
#include "config/Settings.h"
#include "shell/Locale.h"
#include "shell/Options.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"
#include "shell/Startup.h"
#include "window/Registry.h"
#include "window/Request.h"

#include <cstdlib>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

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

} // namespace

bool PrepareProgram(int* argc, char*** argv)
{
    WatchSignals();
    gtk_set_locale();
    UseEucLocale();
    if (!StartToolkit(argc, argv))
        return false;
    gdk_rgb_init();
    return true;
}

void RunProgram(char* path, const std::string& screen)
{
    // Before the start-up, so that a message box it shows already lives among ticks.
    const guint tick = gtk_timeout_add(100, Timer_Event, nullptr);

    if (Start(path)) {
        PtrnDispTopWnd(screen.empty() ? ProfileReadAsc(ProfName, "PTRN", "PTRNSTART") : screen.c_str(),
                       nullptr, 0);
        gtk_main();
    }

    gtk_timeout_remove(tick);
    UserExit();
    TessaryExit();
    gtk_exit(EndedBySignal() ? 0 : StartStatus());
    std::abort(); // the toolkit does not say that it never returns
}

} // namespace tessary
