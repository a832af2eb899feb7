#include "tests/support/WindowManager.h"

#include "tests/support/XServer.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <X11/Xlib.h>

namespace
{

/// A connection for one question.
class Connection
{
  public:
    Connection() : display_(XOpenDisplay(XServer::display().c_str())) {}
    ~Connection() { XCloseDisplay(display_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Numbers of a property; none when the window lacks it.
    std::vector<unsigned long> property(Window window, const char* name)
    {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        XGetWindowProperty(display_, window ? window : DefaultRootWindow(display_),
                           XInternAtom(display_, name, False), 0, 16, False, AnyPropertyType, &type, &format,
                           &count, &left, &data);
        std::vector<unsigned long> numbers;
        if (format == 32) {
            const auto* values = reinterpret_cast<unsigned long*>(data);
            numbers.assign(values, values + count);
        }
        if (data)
            XFree(data);
        return numbers;
    }

    /// A window manager is the one client that redirects what others do with their windows.
    bool managed()
    {
        XWindowAttributes root;
        XGetWindowAttributes(display_, DefaultRootWindow(display_), &root);
        return (root.all_event_masks & SubstructureRedirectMask) != 0;
    }

    /// Whether a window comes up when it is asked for.
    bool showsWindows()
    {
        if (!probe_)
            probe_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 10, 10, 0, 0, 0);
        XMapWindow(display_, probe_);
        XSync(display_, False);
        XWindowAttributes state;
        XGetWindowAttributes(display_, probe_, &state);
        return state.map_state == IsViewable;
    }

  private:
    Display* display_;
    Window probe_ = 0;
};

void waitFor(const char* what, const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            ADD_FAILURE() << what;
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

} // namespace

WindowManager::WindowManager()
{
    XServer::ensure();
    pid_ = fork();
    if (pid_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        setenv("HOME", home_.path().c_str(), 1);
        setenv("LC_ALL", "C", 1);
        execlp("openbox", "openbox", "--sm-disable", static_cast<char*>(nullptr));
        _exit(127);
    }
    Connection connection;
    waitFor("openbox does not run; its package is openbox", [&] { return connection.managed(); });
}

void WindowManager::waitReady()
{
    {
        Connection connection;
        waitFor("openbox shows no window", [&] { return connection.showsWindows(); });
    }
    waitFor("openbox has a window too many",
            [] { return Connection().property(0, "_NET_CLIENT_LIST").empty(); });
}

WindowManager::~WindowManager()
{
    if (pid_ > 0) {
        kill(pid_, SIGTERM);
        resume();
        waitpid(pid_, nullptr, 0);
    }
}

void WindowManager::pause() const
{
    kill(pid_, SIGSTOP);
}

void WindowManager::resume() const
{
    kill(pid_, SIGCONT);
}

unsigned long WindowManager::active() const
{
    const auto window = Connection().property(0, "_NET_ACTIVE_WINDOW");
    return window.empty() ? 0 : window[0];
}

int WindowManager::frame(unsigned long window) const
{
    int sum = 0;
    for (const unsigned long width : Connection().property(window, "_NET_FRAME_EXTENTS"))
        sum += static_cast<int>(width);
    return sum;
}
