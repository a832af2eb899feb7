// The program's entry: everything else lies in the framework's library and in the application.
#include "config/Profile.h"
#include "config/Settings.h"
#include "shell/Locale.h"
#include "shell/Options.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"
#include "shell/Startup.h"
#include "window/Registry.h"
#include "window/Request.h"

#include <gtk/gtk.h>

using namespace tessary;

namespace
{

/// @return whether the first window is to be shown; not when a signal came while a message box was up
bool Start(char* path)
{
    if (TessaryInit(path) != 1 || EndedBySignal())
        return false;
    const int answer = UserInit();
    if (answer != 1 && !EndedBySignal())
        Tell("The application has refused the start: its UserInit() returned " + std::to_string(answer) +
             " instead of 1. Its log may tell more.");
    return answer == 1 && !EndedBySignal();
}

} // namespace

int main(int argc, char** argv)
{
    if (AnswerOption(argc, argv))
        return 0;
    WatchSignals();
    gtk_set_locale();
    UseEucLocale();
    if (!StartToolkit(&argc, &argv))
        return 1;
    gdk_rgb_init();

    // Before the start-up, so that a message box it shows already lives among ticks.
    const guint tick = gtk_timeout_add(100, Timer_Event, nullptr);

    if (Start(argv[0])) {
        PtrnDispTopWnd(ProfileReadAsc(ProfName, "PTRN", "PTRNSTART"), nullptr, 0);
        gtk_main();
    }

    gtk_timeout_remove(tick);
    UserExit();
    TessaryExit();
    gtk_exit(EndedBySignal() ? 0 : StartStatus());
    return 0;
}
