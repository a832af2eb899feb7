#include "tools/ptn/system/PrivateServer.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ptn
{

namespace
{

constexpr int START_SECONDS = 60;

pid_t server = -1;
pid_t owner = -1;

[[noreturn]] void RunServer(int displayPipe)
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != owner)
        _exit(1);
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nowhere, stream);
    fcntl(displayPipe, F_SETFD, 0);
    char number[16];
    std::snprintf(number, sizeof number, "%d", displayPipe);
    execlp("Xvfb", "Xvfb", "-displayfd", number, "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
           "-noreset", static_cast<char*>(nullptr));
    _exit(127);
}

// The server writes the display's number and a line feed once it accepts connections.
std::string ReadDisplay(int pipe)
{
    std::string number;
    for (pollfd ready{pipe, POLLIN, 0}; poll(&ready, 1, START_SECONDS * 1000) == 1;) {
        char byte;
        if (read(pipe, &byte, 1) != 1)
            return "";
        if (byte == '\n')
            return ":" + number;
        number += byte;
    }
    return "";
}

void StopServer()
{
    if (getpid() != owner) // a child
        return;
    kill(server, SIGTERM);
    waitpid(server, nullptr, 0);
}

std::string StartServer()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return "";
    owner = getpid();
    server = fork();
    if (server == 0)
        RunServer(ends[1]);
    close(ends[1]);
    const std::string display = server > 0 ? ReadDisplay(ends[0]) : "";
    close(ends[0]);
    if (server > 0)
        std::atexit(StopServer);
    return display;
}

} // namespace

const std::string& PrivateDisplay()
{
    static const std::string DISPLAY = StartServer();
    return DISPLAY;
}

} // namespace ptn
