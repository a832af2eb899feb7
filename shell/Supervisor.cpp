#include "shell/Supervisor.h"

#include "log/Guard.h"

#include <cstdint>
#include <gtk/gtk.h>
#include <systemd/sd-daemon.h>
#include <utility>

namespace tessary
{

namespace
{

bool ticked; ///< since the last sign of life

/// Time from one sign of life to the next, in milliseconds; 0 when none is expected.
guint Interval()
{
    std::uint64_t within = 0; // microseconds
    return sd_watchdog_enabled(0, &within) > 0 ? static_cast<guint>(within / 2 / 1000) : 0;
}

/// A message box that is opened within a tick waits for the operator, and the ticks wait with it: its main
/// loop is a sign of life too.
gboolean TellLife(void*)
{
    if (std::exchange(ticked, false) || gtk_main_level() > 1)
        sd_notify(0, "WATCHDOG=1");
    return TRUE;
}

} // namespace

void TellSupervisor()
{
    static const bool READY = [] {
        sd_notify(0, "READY=1");
        if (const guint interval = Interval())
            g_timeout_add(interval, Guarded<TellLife, TRUE>::call, nullptr);
        return true;
    }();
    ticked = READY;
}

void TellSupervisorOfEnd()
{
    sd_notify(0, "STOPPING=1");
}

} // namespace tessary
