#include "shell/ProgramEnd.h"

#include "base/EucText.h"
#include "log/Guard.h"
#include "shell/Refusal.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <csignal>
#include <glib-unix.h>
#include <gtk/gtk.h>
#include <utility>

namespace tessary
{

namespace
{

bool signalled;
bool ended;
bool excepted;

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
    g_timeout_add(1, Guarded<QuitEvery, TRUE>::call,
                  nullptr); // before the exit hooks, which may ask the operator something
    EndProgram();
    return TRUE;
}

} // namespace

void EndProgram()
{
    WaitTimer = 0;
    ended = true;
    for (CPtrnDisp* const* slot : {&SystmWnd, &AppliWnd})
        if (*slot)
            Guard([&] { (*slot)->PtrnExit(); });
    if (gtk_main_level() > 1)
        g_timeout_add(1, Guarded<QuitOuter>::call, nullptr);
    if (gtk_main_level() > 0)
        gtk_main_quit();
}

void WatchSignals()
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        g_unix_signal_add(number, Guarded<TakeSignal, TRUE>::call, nullptr);
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow fails to be written, as on a full disk
}

bool Ended()
{
    return ended;
}

void EndAtException()
{
    CaughtSink = [](const std::string& text) {
        if (std::exchange(excepted, true)) // on the way to the end there may be another one
            return;
        Fail("An exception has ended the program: '" + EucToUtf8(text) +
                 "'. It comes from the application, or memory has run out; the log tells when.",
             1);
        EndProgram();
    };
}

bool EndedBySignal()
{
    return signalled && !excepted;
}

} // namespace tessary
