// What a tick of 100 ms costs on a screen where nothing changes: processor time, and requests to the X
// server.
//
//   bench_tick_cost
//
// Needs the X server of $DISPLAY. Ends with 1 when a screen of 10,000 bound items costs a millisecond or
// more, when the cost grows faster than the items, when items send a request, or when a tick that changes one
// item costs more than twice as much in the edition that restores layers as in the first one.
#include "base/EucText.h"
#include "bench/BenchProject.h"
#include "bench/BenchWindow.h"
#include "config/Edition.h"
#include "draw/DrawCntl.h"
#include "pattern/PtrnData.h"

#include <algorithm>
#include <gdk/gdkx.h>

using namespace tessary;

namespace
{

constexpr int LARGEST = 10000;
constexpr double LIMIT = 1e-3; ///< seconds a tick of the largest screen
/// The cost of an item may grow this much from the smallest screen to the largest one, which no longer fits
/// the fastest caches.
constexpr double GROWTH = 4.0;
/// Requests a tick of a whole window, which renews the pointer and copies the back buffer, whatever it shows.
constexpr unsigned long WINDOW_LIMIT = 20;

/// Times that a tick with one changed item may cost when what lies below and above it is drawn too.
constexpr double LAYERS_LIMIT = 2.0;

template <typename Number> Number Median(std::vector<Number> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers[numbers.size() / 2];
}

/// Pushes everything out of the caches, as whatever else runs in the 100 ms between two ticks may do.
void ForgetCaches()
{
    static std::vector<unsigned> other(std::size_t{16} * 1024 * 1024);
    for (std::size_t i = 0; i < other.size(); i += 16)
        other[i]++;
}

void FillCells(int count)
{
    for (int i = 0; i < count; i++) {
        const int no = BenchProject::FIRST_CELL + i;
        Set_fData(no, static_cast<float>(i), nullptr, 0);
        Set_sData(no, ("圧力" + std::to_string(i)).c_str(), nullptr, 0);
    }
}

/// The least that finding a change can cost: as many cells compared with copies that lie side by side.
double BareComparison(int count)
{
    struct Copy {
        WORD word;
        float number;
        char text[22];
    };
    std::vector<Copy> copies(static_cast<std::size_t>(count));
    const COMNDATA* const cells = ComnData + BenchProject::FIRST_CELL;
    for (int i = 0; i < count; i++) {
        Copy& copy = copies[static_cast<std::size_t>(i)];
        copy.word = cells[i].wData;
        copy.number = cells[i].fData;
        CopyText(copy.text, cells[i].sData);
    }
    constexpr int rounds = 1000;
    int changed = 0;
    const double start = ProcessorTime();
    for (int round = 0; round < rounds; round++) {
        for (int i = 0; i < count; i++) {
            const Copy& copy = copies[static_cast<std::size_t>(i)];
            changed += copy.word != cells[i].wData || copy.number != cells[i].fData ||
                       std::strcmp(copy.text, cells[i].sData) != 0;
        }
        asm volatile("" : : "r"(copies.data()) : "memory"); // every round reads anew
    }
    const double time = (ProcessorTime() - start) / rounds;
    if (changed != 0)
        std::fprintf(stderr, "%d copies were not like their cells\n", changed);
    return time;
}

struct Cost {
    double warm; ///< seconds a tick, ticks one after another
    double cold; ///< with empty caches
    unsigned long requests;
};

class TickScreen
{
  public:
    explicit TickScreen(const char* name)
        : pattern_(name), pixmap_(gdk_pixmap_new(gdk_get_default_root_window(), BenchProject::WIDTH,
                                                 BenchProject::HEIGHT, -1)),
          draw_(new CPaintDraw(pixmap_))
    {
        pattern_.DispTitle(draw_.get());
        pattern_.DispPtrnData(draw_.get());
        gdk_display_sync(gdk_display_get_default());
    }
    ~TickScreen()
    {
        draw_.reset();
        g_object_unref(pixmap_);
    }
    TickScreen(const TickScreen&) = delete;
    TickScreen& operator=(const TickScreen&) = delete;

    int items() const { return pattern_.PtrnCont; }

    void tick()
    {
        pattern_.DispCalender(draw_.get());
        pattern_.FlikPtrnData(draw_.get());
        pattern_.UpdtPtrnData(draw_.get());
    }

    Cost measure()
    {
        const int ticks = std::max(20, 2000000 / items());
        const unsigned long before = NextRequest(GDK_DISPLAY());
        std::vector<double> warm;
        for (int batch = 0; batch < 15; batch++) {
            const double start = ProcessorTime();
            for (int i = 0; i < ticks; i++)
                tick();
            warm.push_back((ProcessorTime() - start) / ticks);
        }
        std::vector<double> cold;
        for (int i = 0; i < 41; i++) {
            ForgetCaches();
            const double start = ProcessorTime();
            tick();
            cold.push_back(ProcessorTime() - start);
        }
        return {Median(warm), Median(cold), NextRequest(GDK_DISPLAY()) - before};
    }

    /// Seconds of a tick in which one item has changed, each time another one, with its part of the requests
    /// sent to the server.
    double measureChanged()
    {
        constexpr int TICKS = 300;
        const double start = ProcessorTime();
        for (int i = 0; i < TICKS; i++) {
            changed_ = (changed_ + 7919) % items();
            const int no = BenchProject::FIRST_CELL + changed_;
            Set_iData(no, Get_iData(no, nullptr, 0) + 1, nullptr, 0);
            tick();
        }
        const double time = (ProcessorTime() - start) / TICKS;
        gdk_display_sync(gdk_display_get_default());
        return time;
    }

  private:
    CPtrnData pattern_;
    GdkPixmap* pixmap_;
    PaintDrawPtr draw_;
    int changed_ = 0;
};

/// One of all items of a screen changes in each tick.
/// @return how many times a tick costs more in the edition that restores layers
double CompareEditions(const char* name)
{
    constexpr int ROUNDS = 31;
    TickScreen first(name);
    tessary::SetEdition(2);
    TickScreen second(name);
    std::vector<double> ratios; // of rounds in turn: what else the machine does meets both
    for (int round = 0; round < ROUNDS; round++) {
        tessary::SetEdition(1);
        const double before = first.measureChanged();
        tessary::SetEdition(2);
        ratios.push_back(second.measureChanged() / before);
    }
    tessary::SetEdition(1);
    const double ratio = Median(ratios);
    std::printf(
        "a tick that changes one item costs %.2f times in edition 2 what it costs in edition 1 (%s)\n", ratio,
        name);
    return ratio;
}

/// Requests of one tick of a window.
unsigned long WindowRequests(const char* name)
{
    BenchWindow window(name);
    window.TimrEvent();
    HandleEvents();
    std::vector<unsigned long> requests;
    for (int i = 0; i < 21; i++) { // a few ticks may have to answer a window manager
        const unsigned long before = NextRequest(GDK_DISPLAY());
        window.TimrEvent();
        while (g_main_context_iteration(nullptr, FALSE))
            ;
        requests.push_back(NextRequest(GDK_DISPLAY()) - before);
        HandleEvents();
    }
    return Median(requests);
}

} // namespace

int main()
{
    const BenchProject project(LARGEST);
    FillCells(LARGEST);
    bool missed = false;
    unsigned long windowRequests = 0;
    double smallest = 0;
    Cost cost{};
    std::printf("A tick in which nothing changes, %d types of items mixed, all bound\n", CONT_PTRN);
    std::printf("  items   warm us   ns/item   to 100   cold us   to 1 ms   requests\n");
    for (const int count : {100, 1000, LARGEST}) {
        project.screen("static", count, count);
        TickScreen screen("static");
        if (screen.items() != count) {
            std::fprintf(stderr, "the screen of %d items was not loaded\n", count);
            return 1;
        }
        cost = screen.measure();
        const double each = cost.warm / count;
        if (smallest == 0)
            smallest = each;
        std::printf("%7d %9.2f %9.2f %8.2f %9.1f %9.3f %10lu\n", count, cost.warm * 1e6, each * 1e9,
                    each / smallest, cost.cold * 1e6, cost.cold / LIMIT, cost.requests);
        const unsigned long inWindow = WindowRequests("static");
        windowRequests = std::max(windowRequests, inWindow);
        missed = missed || cost.requests != 0 || each > GROWTH * smallest || inWindow > WINDOW_LIMIT;
    }
    missed = missed || cost.warm >= LIMIT || cost.cold >= LIMIT;

    missed = missed || CompareEditions("static") > LAYERS_LIMIT;

    const double bare = BareComparison(LARGEST);
    std::printf("%d items cost %.1f times a bare comparison of as many cells (%.2f us)\n", LARGEST,
                cost.warm / bare, bare * 1e6);
    std::printf("requests of a window's whole tick: at most %lu, whatever it shows\n", windowRequests);
    std::printf("%s\n",
                missed ? "MISSED: see the limits at the top of bench/TickCost.cpp" : "within the limits");
    return missed ? 1 : 0;
}
