// What it takes to bring a screen of 1,000 static and 100 bound items up: from its file to the finished
// picture, and from the request to the painted window. Measured on the clock, the X server's drawing
// included.
//
//   bench_call_up
//
// Needs the X server of $DISPLAY, with or without a window manager. Ends with 1 when it takes a tick (100 ms)
// or longer.
#include "bench/BenchProject.h"
#include "bench/BenchWindow.h"
#include "draw/DrawCntl.h"

#include <algorithm>
#include <chrono>
#include <functional>

using namespace tessary;

namespace
{

constexpr int BOUND = 100;
constexpr int ITEMS = 1000 + BOUND;
constexpr double TICK = 0.1; ///< seconds

using Clock = std::chrono::steady_clock;

/// The median of eleven runs in seconds, the X server idle before and after each.
double Measure(const std::function<void()>& run)
{
    std::vector<double> times;
    for (int i = 0; i < 11; i++) {
        SyncServer();
        const auto start = Clock::now();
        run();
        SyncServer();
        times.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

GdkPixmap* NewPixmap()
{
    return gdk_pixmap_new(gdk_get_default_root_window(), BenchProject::WIDTH, BenchProject::HEIGHT, -1);
}

void Load(const char* name)
{
    const CPtrnData pattern(name);
    if (pattern.PtrnCont != ITEMS) {
        std::fprintf(stderr, "the screen \"%s\" was not loaded\n", name);
        std::exit(1);
    }
}

void Paint(CPtrnData& pattern)
{
    GdkPixmap* const pixmap = NewPixmap();
    const PaintDrawPtr draw(new CPaintDraw(pixmap));
    pattern.DispTitle(draw.get());
    pattern.DispPtrnData(draw.get());
    g_object_unref(pixmap);
}

/// The least that a screen of so many items can take: a box and a text each, straight through the toolkit.
void PaintBare()
{
    GdkPixmap* const pixmap = NewPixmap();
    GdkGC* const gc = gdk_gc_new(pixmap);
    gdk_gc_set_foreground(gc, &DrawColr[30]);
    gdk_draw_rectangle(pixmap, gc, TRUE, 0, 0, BenchProject::WIDTH, BenchProject::HEIGHT);
    for (int i = 0; i < ITEMS; i++) {
        const int x = i % 34 * 37;
        const int y = i / 34 * 30;
        gdk_gc_set_foreground(gc, &DrawColr[i % CONT_COLR]);
        gdk_draw_rectangle(pixmap, gc, TRUE, x, y, 35, 28);
        gdk_gc_set_foreground(gc, &DrawColr[(i + 1) % CONT_COLR]);
        if (DrawFont[0])
            gdk_draw_string(pixmap, DrawFont[0], gc, x, y + 20, "圧力A");
    }
    g_object_unref(gc);
    g_object_unref(pixmap);
}

void Print(const char* what, double time, double bare)
{
    std::printf("%-42s %8.2f %9.3f %9.1f\n", what, time * 1e3, time / TICK, time / bare);
}

} // namespace

int main()
{
    const BenchProject project(BOUND);
    project.screen("mixed", ITEMS, BOUND);
    CPtrnData pattern("mixed");

    const double bare = Measure(PaintBare);
    const double load = Measure([] { Load("mixed"); });
    const double paint = Measure([&] { Paint(pattern); });
    int paints = 0;
    const double open = Measure([&] { paints = std::max(paints, BenchWindow("mixed").paints()); });

    std::printf("A screen of %d items, %d of them bound, all types mixed\n", ITEMS, BOUND);
    std::printf("%-42s %8s %9s %9s\n", "", "ms", "to a tick", "to bare");
    Print("bare boxes and texts", bare, bare);
    Print("load from the file", load, bare);
    Print("paint into a back buffer", paint, bare);
    Print("load and paint", load + paint, bare);
    Print("open a window, close it again", open, bare);
    std::printf("full paints of the window while it opens: %d\n", paints);
    const bool missed = open >= TICK || load + paint >= TICK;
    std::printf("%s\n", missed ? "MISSED: a call-up must fit into a tick" : "within a tick");
    return missed ? 1 : 0;
}
