// What a program holds in memory and on the X server, to see that long work leaves nothing behind.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gdk/gdkx.h>
#include <map>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <X11/extensions/XRes.h>

struct Holdings {
    long resident = 0;       ///< KiB
    long serverResident = 0; ///< KiB of the X server's process; 0 when it is on another machine
    std::map<std::string, unsigned> server; ///< resources by kind: "GC", "PIXMAP", "CURSOR", ...
    unsigned long pixmaps = 0;              ///< bytes
};

/// Resident memory of a process in KiB; 0 when there is no such process.
/// @param process  its number, or "self"
inline long ResidentMemory(const std::string& process = "self")
{
    long total = 0;
    long resident = 0;
    if (std::FILE* file = std::fopen(("/proc/" + process + "/statm").c_str(), "r")) {
        if (std::fscanf(file, "%ld %ld", &total, &resident) != 2)
            resident = 0;
        std::fclose(file);
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// Resident memory of the X server, which the other end of the connection tells.
inline long ServerMemory(Display* display)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(ConnectionNumber(display), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.pid <= 0)
        return 0;
    return ResidentMemory(std::to_string(peer.pid));
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
    held.serverResident = ServerMemory(display);
    return held;
}

/// One line: after that much work.
inline void PrintHoldings(int work, const Holdings& held)
{
    std::printf("%9d %10ld %12ld %12lu", work, held.resident, held.serverResident, held.pixmaps / 1024);
    for (const auto& [kind, count] : held.server)
        std::printf("  %s %u", kind.c_str(), count);
    std::printf("\n");
    std::fflush(stdout);
}

/// Tells what has become of a memory. @return whether it is the same within 1 %
inline bool MemoryIsSame(const char* whose, long before, long after)
{
    const double ratio = static_cast<double>(after) / static_cast<double>(std::max(before, 1L));
    std::printf("memory of %s: %.4f of that after the first thousand\n", whose, ratio);
    return before > 0 && std::abs(ratio - 1) <= 0.01;
}

constexpr int SOAK_BEGIN = 1000; ///< what is held after so much work is to be held at the end

/// Works long and compares what is held after the first thousand with what is held at the end: the memories
/// within 1 %, the resources of the server exactly.
/// @param step  does one piece of work, which is told its number, from 1
/// @return whether nothing was left behind; what was found is printed
template <class Step> bool Soak(const char* what, int count, Step step)
{
    count = std::max(count, 2 * SOAK_BEGIN);
    std::printf("%s\n%9s %10s %12s %12s  %s\n", what, "done", "RSS (KiB)", "server (KiB)", "pixmaps (KiB)",
                "resources of the X server");
    Holdings thousand;
    for (int i = 1; i <= count; i++) {
        step(i);
        if (i == SOAK_BEGIN)
            PrintHoldings(i, thousand = MeasureHoldings());
        else if (i % std::max(count / 8, 1) == 0 && i < count)
            PrintHoldings(i, MeasureHoldings());
    }
    const Holdings end = MeasureHoldings();
    PrintHoldings(count, end);
    const bool panel = MemoryIsSame("the panel", thousand.resident, end.resident);
    const bool server = MemoryIsSame("the server", thousand.serverResident, end.serverResident);
    const bool resources = end.server == thousand.server && end.pixmaps == thousand.pixmaps;
    std::printf("resources of the server: %s\n", resources ? "the same" : "others");
    const bool same = panel && server && resources;
    std::printf("%s\n", same ? "nothing is left behind" : "MISSED: something is left behind");
    return same;
}
