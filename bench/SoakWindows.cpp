// Ten thousand child windows opened and closed again, with ticks in between: resident memory and resources of
// the X server at the end, against those after the first hundred and the first thousand.
//
//   bench_soak_windows [OPENINGS]
//
// Needs the X server of $DISPLAY, with or without a window manager. Ends with 1 when the server holds more
// than after the first hundred, or resident memory has grown by more than 1 % since the first thousand.
#include "bench/BenchProject.h"
#include "shell/Request.h"
#include "shell/Startup.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"

#include <algorithm>
#include <chrono>
#include <gdk/gdkx.h>
#include <map>
#include <unistd.h>
#include <X11/extensions/XRes.h>

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

struct Held {
    long resident = 0; ///< KiB
    std::map<std::string, unsigned> server;
    unsigned long pixmaps = 0; ///< bytes
};

long Resident()
{
    long total = 0;
    long resident = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &total, &resident) != 2)
            resident = 0;
        std::fclose(file);
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

Held Measure()
{
    Held held;
    Display* display = gdk_x11_get_default_xdisplay();
    XSync(display, False);
    const XID own = GDK_WINDOW_XID(gdk_display_get_default_group(gdk_display_get_default()));
    int count = 0;
    XResType* types = nullptr;
    XResQueryClientResources(display, own, &count, &types);
    for (int i = 0; i < count; i++) {
        char* kind = XGetAtomName(display, types[i].resource_type);
        held.server[kind] = types[i].count;
        XFree(kind);
    }
    XFree(types);
    XResQueryClientPixmapBytes(display, own, &held.pixmaps);
    held.resident = Resident();
    return held;
}

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

void Print(int openings, const Held& held)
{
    std::printf("%9d %10ld %12lu", openings, held.resident, held.pixmaps / 1024);
    for (const auto& [kind, count] : held.server)
        std::printf("  %s %u", kind.c_str(), count);
    std::printf("\n");
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
    std::printf("%9s %10s %12s  %s\n", "openings", "RSS (KiB)", "pixmaps (KiB)", "resources of the X server");
    Held hundred;
    Held thousand;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 1; i <= openings; i++) {
        Open(i);
        if (i == 100)
            Print(i, hundred = Measure());
        else if (i == 1000)
            Print(i, thousand = Measure());
        else if (i % 2500 == 0 && i < openings)
            Print(i, Measure());
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    const Held end = Measure();
    Print(openings, end);
    std::printf("%.1f ms each\n", time.count() / openings);

    const bool leaks = end.server != hundred.server || end.pixmaps != hundred.pixmaps ||
                       end.resident > thousand.resident + thousand.resident / 100;
    std::printf("%s\n", leaks ? "MISSED: something is left behind" : "nothing is left behind");
    return leaks ? 1 : 0;
}
