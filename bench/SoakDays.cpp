// Ten days of a panel that logs a line a second, in a clock that goes ten times as fast as its ticks: what is
// held at the end, against what was held after the first thousand ticks.
//
//   bench_soak_days [DAYS]
//
// Needs the X server of $DISPLAY, with or without a window manager. Ends with 1 when something is left
// behind, see bench/Holdings.h, or when not each day has a file.
#include "bench/BenchProject.h"
#include "bench/Holdings.h"
#include "config/FileCntl.h"
#include "config/Profile.h"
#include "log/Logfile.h"
#include "shell/Startup.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Request.h"

#include <algorithm>

namespace
{

constexpr int DAY = 24 * 60 * 60;

std::time_t now = 1798675200 - DAY / 2; // over the end of a year: noon of the last but one day of 2026

} // namespace

/// Takes the place of the C library's, for this program's own code.
extern "C" std::time_t time(std::time_t* out) noexcept
{
    if (out)
        *out = now;
    return now;
}

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
    LogfileWrite("BENCH", "a line of the usual length, with a number in it", __FILE__, __LINE__);
}

int main(int argc, char** argv)
{
    const int days = std::max(argc > 1 ? std::atoi(argv[1]) : 10, 1);
    setenv("TZ", "UTC", 1);
    const BenchProject project(100);
    const std::string folder = project.folder() + "/log";
    ProfileWriteAsc(ProfName, "LOG", "LOGFILE", folder.c_str());
    CreateFolder(folder.c_str(), nullptr, 0);
    LogfileInit();
    project.screen("main", 20, 20, {320, 256});
    PtrnDispTopWnd("main", nullptr, 0);
    while (!AppliWnd->Pixmap)
        g_main_context_iteration(nullptr, TRUE);

    const bool same = Soak("Seconds of a panel that logs a line in each", days * DAY, [](int) {
        now++;
        Timer_Event(nullptr);
        while (g_main_context_iteration(nullptr, FALSE))
            ;
    });
    LogfileExit();
    const int files = FileCount(folder.c_str(), "*.log");
    std::printf("files of the log: %d, of %d\n", files, days + 1);
    return same && files == days + 1 ? 0 : 1;
}
