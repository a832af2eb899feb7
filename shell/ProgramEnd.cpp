#include "shell/ProgramEnd.h"

#include "window/PtrnDisp.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <csignal>
#include <glib-unix.h>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

bool signalled;

/// Ends the main loops around one that has been ended.
gboolean QuitOuter(void*)
{
    gtk_main_quit();
    return gtk_main_level() > 1;
}

/// Ends main loops for as long as the program lives.
gboolean QuitEvery(void*)
{
    if (gtk_main_level() > 0)
        gtk_main_quit();
    return TRUE;
}

gboolean TakeSignal(void*)
{
    if (signalled)
        return TRUE;
    signalled = true;
    const HandlerScope scope;
    g_timeout_add(1, QuitEvery, nullptr); // before the exit hooks, which may ask the operator something
    EndProgram();
    return TRUE;
}

} // namespace

void EndProgram()
{
    WaitTimer = 0;
    if (SystmWnd)
        SystmWnd->PtrnExit();
    if (AppliWnd)
        AppliWnd->PtrnExit();
    if (gtk_main_level() > 1)
        g_timeout_add(1, QuitOuter, nullptr);
    if (gtk_main_level() > 0)
        gtk_main_quit();
}

void WatchSignals()
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        g_unix_signal_add(number, TakeSignal, nullptr);
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow fails to be written, as on a full disk
}

bool EndedBySignal()
{
    return signalled;
}

} // namespace tessary
