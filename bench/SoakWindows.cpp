// Ten thousand child windows opened and closed again, with ticks in between: resident memory and resources of
// the X server at the end, against those after the first hundred and the first thousand.
//
//   bench_soak_windows [OPENINGS]
//
// Needs the X server of $DISPLAY, with or without a window manager. Ends with 1 when the server holds more
// than after the first hundred, or resident memory has grown by more than 1 % since the first thousand.
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
    const int openings = std::max(argc > 1 ? std::atoi(argv[1]) : 10000, 1000);
    const BenchProject project(100);
    project.screen("main", 50, 50);
    project.screen("child", 100, 50);
    PtrnDispTopWnd("main", nullptr, 0);
    HandleEvents();

    std::printf("Child windows of 100 items, opened and closed\n");
    PrintHoldingsHead("openings");
    Holdings hundred;
    Holdings thousand;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 1; i <= openings; i++) {
        Open(i);
        if (i == 100)
            PrintHoldings(i, hundred = MeasureHoldings());
        else if (i == 1000)
            PrintHoldings(i, thousand = MeasureHoldings());
        else if (i % 2500 == 0 && i < openings)
            PrintHoldings(i, MeasureHoldings());
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    const Holdings end = MeasureHoldings();
    PrintHoldings(openings, end);
    std::printf("%.1f ms each\n", time.count() / openings);
    return Verdict(ServerHoldsMore(end, hundred) || MemoryHasGrown(end, thousand));
}
