// The same screen of 500 changing numbers in this framework, FLTK, GTK+ 2, GTK 3 and Qt, as far as they are
// installed, and drawn by bare calls: processor time of program and X server together for a tick, resident
// memory, and the time from the start to the first painted window. The programs run one after another,
// several times in turn.
//
//   bench_compare [ROUNDS [TICKS]]
//
// With BENCH_QUIET=1 in the environment nothing changes; with BENCH_EDITION=2 the panel is of that edition.
//
// Needs the X server of $DISPLAY, on the same machine, without a window manager and used by nobody else. Ends
// with 1 when a limit of the table below is missed.
#include "bench/BenchFiles.h"
#include "bench/compare/Fields.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <map>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace
{

using Clock = std::chrono::steady_clock;

constexpr char FRAMEWORK[] = "tessary";
constexpr int WARM_TICKS = 20;

/// What is compared, and what the framework may take as a part of it; 0 no limit.
struct Rival {
    const char* name;
    const char* program; ///< "compare_..."
    double processor;
    double memory;
    double start;
};
/// The first GTK 3 program on a server looks for visuals with OpenGL, and leaves what it has found there for
/// the others. A panel would be the first.
constexpr char FIRST_GTK3[] = "gtk3 first";
constexpr Rival RIVALS[] = {
    {"bare", "bare", 0, 0, 0},
    {FRAMEWORK, FRAMEWORK, 0, 0, 0},
    {"fltk", "fltk", 1.0, 0, 1.3},
    {"fltk server fonts", "fltk_server_fonts", 0, 0, 0},
    {"gtk2", "gtk2", 0, 0, 0},
    {"gtk3", "gtk3", 0.5, 1.0 / 3, 1.0},
    {FIRST_GTK3, "gtk3", 0.5, 1.0 / 3, 1.0},
    {"qt", "qt", 0.5, 1.0 / 3, 1.0},
};

struct Cost {
    double client; ///< seconds of processor time a tick
    double server;
    double resident; ///< KiB
    double start;    ///< seconds from the start to the painted screen

    double processor() const { return client + server; }
};
using Costs = std::map<std::string, std::vector<Cost>>;

[[noreturn]] void Fail(const std::string& what)
{
    throw std::runtime_error(what);
}

/// The program of the comparison with that name, which lies beside this one.
std::string ProgramFile(const std::string& name)
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / ("compare_" + name);
}

/// Processor time of a process in seconds.
double ProcessorTime(pid_t pid)
{
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(pid, &clock) != 0 || clock_gettime(clock, &time) != 0)
        Fail("the processor time of process " + std::to_string(pid) + " can not be read");
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Resident memory of a process in KiB.
double Resident(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/statm");
    double total = 0;
    double resident = 0;
    file >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

/// What is seen on the display.
class Watcher
{
  public:
    Watcher() : display_(XOpenDisplay(nullptr))
    {
        if (!display_)
            Fail("no X server at $DISPLAY");
        if (DisplayWidth(display_, 0) < SCREEN_WIDTH || DisplayHeight(display_, 0) < SCREEN_HEIGHT)
            Fail("the display has to have 1280 x 1024 pixels");
    }
    ~Watcher() { XCloseDisplay(display_); }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    /// The process of the X server.
    pid_t server() const
    {
        ucred peer{};
        socklen_t size = sizeof peer;
        if (getsockopt(ConnectionNumber(display_), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 ||
            peer.pid <= 0)
            Fail("the X server has to run on this machine");
        return peer.pid;
    }

    /// Makes the next GTK 3 program the first one of this server.
    void forgetVisuals() const
    {
        XDeleteProperty(display_, DefaultRootWindow(display_), XInternAtom(display_, "GDK_VISUALS", False));
        XSync(display_, False);
    }

    std::vector<unsigned long> pixels(int field) const
    {
        XImage* const image = XGetImage(display_, DefaultRootWindow(display_), FieldLeft(field),
                                        FieldTop(field), FIELD_WIDTH, FIELD_HEIGHT, AllPlanes, ZPixmap);
        std::vector<unsigned long> colors;
        for (int i = 0; i < FIELD_WIDTH * FIELD_HEIGHT; i++)
            colors.push_back(XGetPixel(image, i % FIELD_WIDTH, i / FIELD_WIDTH));
        XDestroyImage(image);
        return colors;
    }

    /// Whether the first and the last field show a text.
    bool painted() const
    {
        for (const int field : {0, FIELD_COUNT - 1}) {
            const auto colors = pixels(field);
            if (std::all_of(colors.begin(), colors.end(),
                            [&](unsigned long color) { return color == colors.front(); }))
                return false;
        }
        return true;
    }

  private:
    Display* display_;
};

class Program
{
  public:
    /// @param path  what the program sees as its own path
    Program(const std::string& file, const std::string& path)
    {
        int ends[2];
        if (pipe(ends) != 0)
            Fail("no pipe");
        pid_ = fork();
        if (pid_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            dup2(ends[1], STDOUT_FILENO);
            close(ends[0]);
            close(ends[1]);
            execl(file.c_str(), path.c_str(), static_cast<char*>(nullptr));
            _exit(127);
        }
        close(ends[1]);
        ticks_ = ends[0];
    }
    ~Program()
    {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        close(ticks_);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    pid_t pid() const { return pid_; }

    /// Returns when the program begins its next tick but `count` - 1.
    void waitTicks(int count) const
    {
        for (int i = 0; i < count; i++) {
            pollfd ready{ticks_, POLLIN, 0};
            char dot = 0;
            if (poll(&ready, 1, 20000) != 1 || read(ticks_, &dot, 1) != 1)
                Fail("a program has no ticks any more");
        }
    }

  private:
    pid_t pid_;
    int ticks_;
};

double Seconds(Clock::time_point since)
{
    return std::chrono::duration<double>(Clock::now() - since).count();
}

/// Returns when the screen is painted, or is not. @return seconds that it took
double WaitPainted(const Watcher& screen, bool painted)
{
    const auto start = Clock::now();
    while (screen.painted() != painted) {
        if (Seconds(start) > 20)
            Fail(painted ? "a program has shown nothing" : "a window did not go away");
        usleep(500);
    }
    return Seconds(start);
}

/// Every number has another last digit after two ticks: a program that leaves some out is cheap for nothing.
void RequireChanges(const Watcher& screen, const Program& program, const std::string& name)
{
    std::vector<std::vector<unsigned long>> before;
    for (int field = 0; field < FIELD_COUNT; field++)
        before.push_back(screen.pixels(field));
    program.waitTicks(3);
    for (int field = 0; field < FIELD_COUNT; field++)
        if (screen.pixels(field) == before[static_cast<std::size_t>(field)])
            Fail(name + " has not drawn field " + std::to_string(field) + " anew");
}

Cost Measure(const Watcher& screen, const Rival& rival, const std::string& path, int ticks)
{
    WaitPainted(screen, false);
    if (rival.name == std::string(FIRST_GTK3))
        screen.forgetVisuals();
    const auto start = Clock::now();
    const Program program(ProgramFile(rival.program), path);
    WaitPainted(screen, true);
    Cost cost{};
    cost.start = Seconds(start);
    program.waitTicks(WARM_TICKS);
    const double client = ProcessorTime(program.pid());
    const double server = ProcessorTime(screen.server());
    program.waitTicks(ticks);
    cost.client = (ProcessorTime(program.pid()) - client) / ticks;
    cost.server = (ProcessorTime(screen.server()) - server) / ticks;
    cost.resident = Resident(program.pid());
    if (!IsQuiet())
        RequireChanges(screen, program, rival.name);
    return cost;
}

template <typename Value> double Median(const std::vector<Cost>& costs, Value value)
{
    std::vector<double> values;
    for (const Cost& cost : costs)
        values.push_back(value(cost));
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

constexpr auto PROCESSOR = [](const Cost& cost) { return cost.processor(); };
constexpr auto MEMORY = [](const Cost& cost) { return cost.resident; };
constexpr auto START = [](const Cost& cost) { return cost.start; };

void PrintCosts(const Costs& costs)
{
    std::printf("%-18s %12s %12s %12s %14s %12s\n", "", "program us", "server us", "together us",
                "resident KiB", "start ms");
    for (const auto& [name, rounds] : costs)
        std::printf("%-18s %12.0f %12.0f %12.0f %14.0f %12.1f\n", name.c_str(),
                    Median(rounds, [](const Cost& cost) { return cost.client; }) * 1e6,
                    Median(rounds, [](const Cost& cost) { return cost.server; }) * 1e6,
                    Median(rounds, PROCESSOR) * 1e6, Median(rounds, MEMORY), Median(rounds, START) * 1e3);
}

/// Median over the rounds of what the framework takes, as a part of what the other one takes.
template <typename Value> double Part(const Costs& costs, const std::string& other, Value value)
{
    std::vector<double> parts;
    const auto& own = costs.at(FRAMEWORK);
    const auto& others = costs.at(other);
    for (std::size_t round = 0; round < own.size(); round++)
        parts.push_back(value(own[round]) / value(others[round]));
    std::sort(parts.begin(), parts.end());
    return parts[parts.size() / 2];
}

/// @return false when it is more than the limit
bool PrintPart(double part, double limit)
{
    if (limit == 0) {
        std::printf(" %8.2f %8s", part, "");
        return true;
    }
    char text[16];
    std::snprintf(text, sizeof text, "%s%.2f", part > limit ? "> " : "<= ", limit);
    std::printf(" %8.2f %8s", part, text);
    return part <= limit;
}

/// @return false when a limit is missed
bool PrintParts(const Costs& costs)
{
    bool kept = true;
    std::printf("\nwhat %s takes as a part of it, and the limit\n", FRAMEWORK);
    std::printf("%-18s %17s %17s %17s\n", "", "processor time", "resident memory", "start");
    for (const Rival& rival : RIVALS) {
        if (!costs.count(rival.name) || rival.name == std::string(FRAMEWORK))
            continue;
        std::printf("%-18s", rival.name);
        kept = PrintPart(Part(costs, rival.name, PROCESSOR), rival.processor) && kept;
        kept = PrintPart(Part(costs, rival.name, MEMORY), rival.memory) && kept;
        kept = PrintPart(Part(costs, rival.name, START), rival.start) && kept;
        std::printf("\n");
    }
    return kept;
}

/// @return costs of all programs that are there
Costs Compare(int rounds, int ticks)
{
    const Watcher screen;
    std::vector<POINT> places;
    for (int field = 0; field < FIELD_COUNT; field++)
        places.push_back({FieldLeft(field), FieldTop(field)});
    const BenchFiles files(FIELD_COUNT, "fields");
    files.fields("fields", places, FIELD_CHARS);
    const std::string panel = files.folder() + "/panel"; // its profile lies beside it

    Costs costs;
    for (int round = 0; round < rounds; round++)
        for (const Rival& rival : RIVALS)
            if (std::filesystem::exists(ProgramFile(rival.program)))
                costs[rival.name].push_back(Measure(screen, rival, panel, ticks));
    return costs;
}

} // namespace

int main(int argc, char** argv)
try {
    const int rounds = std::max(argc > 1 ? std::atoi(argv[1]) : 5, 1);
    const int ticks = std::max(argc > 2 ? std::atoi(argv[2]) : 100, 1);
    setenv("NO_AT_BRIDGE", "1", 1); // GTK 3 would look for a bus that is not there
    const Costs costs = Compare(rounds, ticks);
    std::printf("%d numbers%s every %d ms; median of %d rounds of %d ticks\n", FIELD_COUNT,
                IsQuiet() ? ", looked at" : " that change", TICK_MILLISECONDS, rounds, ticks);
    PrintCosts(costs);
    const bool kept = PrintParts(costs);
    std::printf("%s\n", kept ? "within the limits" : "MISSED: see the limits that are exceeded");
    return kept ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "bench_compare: %s\n", error.what());
    return 1;
}
