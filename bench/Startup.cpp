// Time from exec to the first painted window of a program, on the X server of $DISPLAY.
//
//   bench_startup [-n RUNS] PROGRAM [ARGUMENTS]...
//
// The program's window counts as painted when its middle has more than one colour. Prints the median and
// the range; to compare two programs, run both in the same minute on the same machine.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

/// Windows vanish between two requests; that is no reason to end.
int IgnoreError(Display*, XErrorEvent*)
{
    return 0;
}

bool Painted(Display* display, Window window)
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, window, &attributes) || attributes.map_state != IsViewable)
        return false;
    const unsigned width = static_cast<unsigned>(attributes.width);
    const unsigned height = static_cast<unsigned>(attributes.height);
    XImage* image = XGetImage(display, window, 0, 0, width, height, AllPlanes, ZPixmap);
    if (!image)
        return false;
    const unsigned long first = XGetPixel(image, 0, 0);
    bool painted = false;
    for (int i = 0; i < attributes.width && !painted; i++)
        painted = XGetPixel(image, i, attributes.height * i / attributes.width) != first;
    XDestroyImage(image);
    return painted;
}

bool AnyPainted(Display* display)
{
    Window root;
    Window parent;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count))
        return false;
    bool painted = false;
    for (unsigned i = 0; i < count && !painted; i++)
        painted = Painted(display, children[i]);
    XFree(children);
    return painted;
}

/// Milliseconds, or a negative value when no window came up within ten seconds.
double Measure(Display* display, char** command)
{
    const auto start = Clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        execvp(command[0], command);
        std::perror(command[0]);
        _exit(127);
    }
    double elapsed = -1;
    while (elapsed < 0 && Clock::now() - start < std::chrono::seconds(10)) {
        usleep(500);
        if (AnyPainted(display))
            elapsed = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
    while (AnyPainted(display))
        usleep(500);
    return elapsed;
}

} // namespace

int main(int argc, char** argv)
{
    int runs = 11;
    int at = 1;
    if (argc > 2 && std::strcmp(argv[1], "-n") == 0) {
        runs = std::max(std::atoi(argv[2]), 1);
        at = 3;
    }
    if (at >= argc) {
        std::fprintf(stderr, "Usage: bench_startup [-n RUNS] PROGRAM [ARGUMENTS]...\n");
        return 2;
    }
    Display* display = XOpenDisplay(nullptr);
    if (!display) {
        std::fprintf(stderr, "bench_startup: no X server at $DISPLAY\n");
        return 1;
    }
    XSetErrorHandler(IgnoreError);

    std::vector<double> times;
    for (int i = 0; i < runs; i++) {
        const double time = Measure(display, argv + at);
        if (time < 0) {
            std::fprintf(stderr, "bench_startup: %s showed no window\n", argv[at]);
            return 1;
        }
        times.push_back(time);
    }
    std::sort(times.begin(), times.end());
    std::printf("%s: %.0f ms from exec to the first painted window (median of %d, %.0f to %.0f)\n", argv[at],
                times[times.size() / 2], runs, times.front(), times.back());
    XCloseDisplay(display);
    return 0;
}
