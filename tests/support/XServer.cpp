#include "tests/support/XServer.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <X11/cursorfont.h>
#include <X11/Xlib.h>

namespace
{

constexpr int startSeconds = 60;

std::string name;
pid_t owner;
pid_t server;

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "No X server for the tests: %s.\n", what);
    std::exit(1);
}

[[noreturn]] void runServer(int displayPipe)
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != owner)
        _exit(1);
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDIN_FILENO);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    char number[16];
    std::snprintf(number, sizeof number, "%d", displayPipe);
    execlp("Xvfb", "Xvfb", "-displayfd", number, "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
           "-noreset", static_cast<char*>(nullptr));
    _exit(127);
}

/// The server writes the display's number and a line feed once it accepts connections.
std::string readDisplay(int pipe)
{
    std::string number;
    for (pollfd ready{pipe, POLLIN, 0}; poll(&ready, 1, startSeconds * 1000) == 1;) {
        char byte;
        if (read(pipe, &byte, 1) != 1)
            fail("Xvfb is not installed or ended at once");
        if (byte == '\n')
            return ":" + number;
        number += byte;
    }
    fail("Xvfb did not come up");
}

void stopServer()
{
    if (getpid() != owner) // a child made by a death test
        return;
    kill(server, SIGTERM);
    waitpid(server, nullptr, 0);
}

/// A bare server shows no pointer at all.
void showPointer()
{
    Display* display = XOpenDisplay(name.c_str());
    if (!display)
        fail("Xvfb refused the connection");
    XDefineCursor(display, DefaultRootWindow(display), XCreateFontCursor(display, XC_left_ptr));
    XCloseDisplay(display);
}

/// What the tests see must not depend on the user's desktop.
void cleanEnvironment()
{
    for (const char* variable : {"XAUTHORITY", "XMODIFIERS", "GTK_MODULES", "GTK2_RC_FILES", "GDK_SCALE"})
        unsetenv(variable);
    setenv("GTK_IM_MODULE", "gtk-im-context-simple", 1);
    setenv("NO_AT_BRIDGE", "1", 1);
    setenv("DISPLAY", name.c_str(), 1);
}

} // namespace

void XServer::ensure()
{
    if (server)
        return;
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        fail("no pipe");
    owner = getpid();
    server = fork();
    if (server == 0) {
        fcntl(ends[1], F_SETFD, 0);
        runServer(ends[1]);
    }
    close(ends[1]);
    if (server < 0)
        fail("no process");
    name = readDisplay(ends[0]);
    close(ends[0]);
    std::atexit(stopServer);
    cleanEnvironment();
    showPointer();
}

const std::string& XServer::display()
{
    return name;
}
