// A day of ticks of a busy screen, one after another: what is held at the end, against what was held after
// the first thousand. Every tick a tenth of the items, of all types, show another value, text, colour or
// state.
//
//   bench_soak_ticks [TICKS]
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

using namespace tessary;

namespace
{

constexpr int DAY_OF_TICKS = 864000;
constexpr int ITEMS = 100;
constexpr SIZE SCREEN_SIZE = {640, 512};

/// The state of an item: its four colours in turn, now and then locked, hidden or frozen.
WORD State(int step)
{
    constexpr WORD others[] = {0, STATE_DISABLE, 0, STATE_HIDDEN, 0, STATE_FROZEN};
    return static_cast<WORD>(step % 4 | others[step / 4 % std::size(others)]);
}

void ChangeCells()
{
    static int tick = 0;
    tick++;
    for (int i = tick % 10; i < ITEMS; i += 10) {
        const int no = BenchProject::FIRST_CELL + i;
        const int step = tick / 10 + i;
        Set_wData(no, State(step), nullptr, 0);
        Set_fData(no, static_cast<float>(step % 101), nullptr, 0);
        Set_sData(no, ("温度" + std::to_string(step % 1000)).c_str(), nullptr, 0);
    }
}

void HandleEvents()
{
    while (g_main_context_iteration(nullptr, FALSE))
        ;
}

} // namespace

CPtrnDisp* GetPtrnWnd(const char*)
{
    return new CPtrnDisp;
}
int UserInit()
{
    return 1;
}
void UserExit() {}
void UserTimr()
{
    ChangeCells();
}

int main(int argc, char** argv)
{
    const int ticks = std::max(argc > 1 ? std::atoi(argv[1]) : DAY_OF_TICKS, 2 * SOAK_BEGIN);
    const BenchProject project(ITEMS);
    project.screen("busy", ITEMS, ITEMS, SCREEN_SIZE);
    PtrnDispTopWnd("busy", nullptr, 0);
    while (!AppliWnd->Pixmap)
        g_main_context_iteration(nullptr, TRUE);

    const auto start = std::chrono::steady_clock::now();
    const bool kept = Soak("Ticks of a screen of 100 items, a tenth of which change at each", ticks, [](int) {
        Timer_Event(nullptr);
        HandleEvents();
    });
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("%.2f ms each\n", time.count() / ticks);
    return kept ? 0 : 1;
}
