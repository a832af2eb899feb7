#include "shell/Supervisor.h"

#include <cstdint>
#include <glib.h>
#include <systemd/sd-daemon.h>

namespace tessary
{

namespace
{

/// Time from one sign of life to the next, in microseconds; 0 when none is expected.
gint64 Interval()
{
    std::uint64_t within = 0;
    return sd_watchdog_enabled(0, &within) > 0 ? static_cast<gint64>(within / 2) : 0;
}

} // namespace

void TellSupervisor()
{
    static const gint64 INTERVAL = [] {
        sd_notify(0, "READY=1");
        return Interval();
    }();
    static gint64 next = 0;
    if (INTERVAL == 0 || g_get_monotonic_time() < next)
        return;
    next = g_get_monotonic_time() + INTERVAL;
    sd_notify(0, "WATCHDOG=1");
}

void TellSupervisorOfEnd()
{
    sd_notify(0, "STOPPING=1");
}

} // namespace tessary
