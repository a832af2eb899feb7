// The program's entry: everything else lies in the framework's library and in the application.
#include "config/Profile.h"
#include "config/Settings.h"
#include "shell/Locale.h"
#include "shell/Startup.h"
#include "window/Registry.h"
#include "window/Request.h"

#include <gtk/gtk.h>

using namespace tessary;

int main(int argc, char** argv)
{
    gtk_set_locale();
    UseEucLocale();
    gtk_init(&argc, &argv);
    gdk_rgb_init();

    // Before the start-up, so that a message box it shows already lives among ticks.
    const guint tick = gtk_timeout_add(100, Timer_Event, nullptr);

    if (TessaryInit(argv[0]) == 1 && UserInit() == 1) {
        PtrnDispTopWnd(ProfileReadAsc(ProfName, "PTRN", "PTRNSTART"), nullptr, 0);
        gtk_main();
    }

    gtk_timeout_remove(tick);
    UserExit();
    TessaryExit();
    gtk_exit(0);
    return 0;
}
