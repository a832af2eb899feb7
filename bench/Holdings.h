// What a program holds in memory and on the X server, to see that long work leaves nothing behind.
#pragma once

#include <cstdio>
#include <gdk/gdkx.h>
#include <map>
#include <string>
#include <unistd.h>
#include <X11/extensions/XRes.h>

struct Holdings {
    long resident = 0;                      ///< KiB
    std::map<std::string, unsigned> server; ///< resources by kind: "GC", "PIXMAP", "CURSOR", ...
    unsigned long pixmaps = 0;              ///< bytes
};

/// Resident memory of this process in KiB.
inline long ResidentMemory()
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

/// The holdings now, when the server has done everything asked of it.
inline Holdings MeasureHoldings()
{
    Holdings held;
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
    held.resident = ResidentMemory();
    return held;
}

inline void PrintHoldingsHead(const char* work)
{
    std::printf("%9s %10s %12s  %s\n", work, "RSS (KiB)", "pixmaps (KiB)", "resources of the X server");
}

/// One line: after that much work.
inline void PrintHoldings(int work, const Holdings& held)
{
    std::printf("%9d %10ld %12lu", work, held.resident, held.pixmaps / 1024);
    for (const auto& [kind, count] : held.server)
        std::printf("  %s %u", kind.c_str(), count);
    std::printf("\n");
    std::fflush(stdout);
}

/// Whether `after` holds anything else on the server than `before`.
inline bool ServerHoldsMore(const Holdings& after, const Holdings& before)
{
    return after.server != before.server || after.pixmaps != before.pixmaps;
}

/// Whether resident memory has grown by more than 1 %.
inline bool MemoryHasGrown(const Holdings& after, const Holdings& before)
{
    return after.resident > before.resident + before.resident / 100;
}

/// Tells the result. @return the program's exit status
inline int Verdict(bool leaks)
{
    std::printf("%s\n", leaks ? "MISSED: something is left behind" : "nothing is left behind");
    return leaks ? 1 : 0;
}
