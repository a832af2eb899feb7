// Ten thousand child windows opened and closed again, with ticks in between: what is held at the end, against
// what was held after the first thousand.
//
//   bench_soak_windows [OPENINGS]
//
// Needs the X server of $DISPLAY, with or without a window manager. Ends with 1 when something is left
// behind, see bench/Holdings.h.
#include "bench/BenchProject.h"
#include "bench/Holdings.h"
#include "shell/Startup.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Request.h"

#include <algorithm>
#include <chrono>

CPtrnDisp* GetPtrnWnd(const char*)
{
    return new CPtrnDisp;
}
int UserInit()
{
    return 1;
}
void UserExit() {}
void UserTimr() {}

namespace
{

void HandleEvents()
{
    gdk_display_sync(gdk_display_get_default());
    while (g_main_context_iteration(nullptr, FALSE))
        ;
}

/// Opens a child, lets it come up, ticks and closes it.
void Open(int round)
{
    const int slot = 1 + round % 2;
    if (round % 10 == 9)
        AppliWnd->PtrnDispChild(slot, "child", nullptr, 0); // to be replaced by the next
    AppliWnd->PtrnDispChild(slot, "child", 40 + round % 200, 30, nullptr, 0);
    HandleEvents();
    Timer_Event(nullptr);
    HandleEvents();
    AppliWnd->PtrnCloseWnd(slot, nullptr, 0);
    HandleEvents();
}

} // namespace

int main(int argc, char** argv)
{
    const int openings = std::max(argc > 1 ? std::atoi(argv[1]) : 10000, 2 * SOAK_BEGIN);
    const BenchProject project(100);
    project.screen("main", 50, 50);
    project.screen("child", 100, 50);
    PtrnDispTopWnd("main", nullptr, 0);
    HandleEvents();

    const auto start = std::chrono::steady_clock::now();
    const bool kept = Soak("Child windows of 100 items, opened and closed", openings, Open);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("%.1f ms each\n", time.count() / openings);
    return kept ? 0 : 1;
}
