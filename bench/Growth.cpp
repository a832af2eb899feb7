// How costs grow: the processor time of a tick with the items of a screen, memory with the windows that are
// open.
//
//   bench_growth ticks      a line for each number of items: items, the same changed and unchanged, in
//   seconds bench_growth windows    a line for each number of windows: windows, KiB of the program, KiB of
//   pixmaps
//
// Needs the X server of $DISPLAY. The lines are for a program that plots; see scripts/plots.sh.
#include "bench/BenchProject.h"
#include "bench/BenchWindow.h"
#include "bench/Holdings.h"
#include "draw/DrawCntl.h"
#include "pattern/PtrnData.h"
#include "window/Request.h"

#include <algorithm>
#include <memory>

namespace
{

constexpr int ITEM_COUNTS[] = {10, 20, 50, 100, 200, 500, 1000, 2000, 5000, 10000};
constexpr int WINDOW_COUNTS[] = {1, 2, 4, 8, 16, 32, 64, 100};

/// Median processor time of a tick, of batches that take long enough to be measured.
template <typename Change> double TickTime(CPtrnDisp& window, Change change)
{
    constexpr int BATCHES = 5;
    constexpr double BATCH_SECONDS = 0.02;
    std::vector<double> times;
    for (int batch = 0; batch < BATCHES; batch++) {
        int ticks = 0;
        const double start = ProcessorTime();
        double time = 0;
        while (time < BATCH_SECONDS) {
            change();
            window.TimrEvent();
            HandleEvents();
            ticks++;
            time = ProcessorTime() - start;
        }
        times.push_back(time / ticks);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void MeasureTicks()
{
    const int most = *std::max_element(std::begin(ITEM_COUNTS), std::end(ITEM_COUNTS));
    const BenchProject project(most);
    std::printf(
        "# numeric fields, seconds of a tick when nothing changes, when one item changes, when all change\n");
    for (const int items : ITEM_COUNTS) {
        std::vector<POINT> places;
        for (int i = 0; i < items; i++)
            places.push_back({i % 100 * 12, i / 100 * 10});
        project.fields("growth", places, 1);
        BenchWindow window("growth");
        int value = 0;
        const auto store = [&](int first, int end) {
            value++;
            for (int i = first; i < end; i++)
                Set_fData(BenchProject::FIRST_CELL + i, static_cast<float>(value), nullptr, 0);
        };
        const double quiet = TickTime(window, [] {});
        const double one = TickTime(window, [&] { store(items / 2, items / 2 + 1); });
        const double all = TickTime(window, [&] { store(0, items); });
        std::printf("%d %.9f %.9f %.9f\n", items, quiet, one, all);
        std::fflush(stdout);
    }
}

void MeasureWindows()
{
    const BenchProject project(100);
    project.screen("growth", 100, 100, {400, 300});
    std::vector<std::unique_ptr<BenchWindow>> windows;
    std::printf(
        "# windows of 400 x 300 pixels and 100 items, KiB of the program, KiB of pixmaps on the server\n");
    for (const int count : WINDOW_COUNTS) {
        while (windows.size() < static_cast<std::size_t>(count))
            windows.push_back(std::make_unique<BenchWindow>("growth"));
        for (const auto& window : windows)
            window->TimrEvent();
        HandleEvents();
        const Holdings held = MeasureHoldings();
        std::printf("%d %ld %lu\n", count, held.resident, held.pixmaps / 1024);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::string what = argc == 2 ? argv[1] : "";
    if (what == "ticks") {
        MeasureTicks();
    } else if (what == "windows") {
        MeasureWindows();
    } else {
        std::fprintf(stderr, "Usage: bench_growth ticks|windows\n");
        return 2;
    }
    return 0;
}
