// What lies around a panel: other programs of its display, and a display of its own that can be taken away.
#pragma once

#include <gmock/gmock.h> // before the macros of the X library, which have its names
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <utility>
#include <X11/Xlib.h>

/// A connection of another program to the tests' display, or to one of its own.
class Client
{
  public:
    explicit Client(const char* display = nullptr) : display_(XOpenDisplay(display)) {}
    ~Client() { XCloseDisplay(display_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    operator Display*() const { return display_; }

  private:
    Display* display_;
};

/// An X server that can be taken away.
class OtherServer
{
  public:
    OtherServer()
    {
        int ends[2];
        if (pipe(ends) != 0)
            return;
        pid_ = fork();
        if (pid_ == 0) {
            const std::string number = std::to_string(ends[1]);
            execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1280x1024x24", "-nolisten",
                   "tcp", static_cast<char*>(nullptr));
            _exit(127);
        }
        close(ends[1]);
        char text[16] = "";
        for (std::size_t read_ = 0; read_ < sizeof text - 1 && read(ends[0], text + read_, 1) == 1; ++read_)
            if (text[read_] == '\n')
                break;
        close(ends[0]);
        name_ = ":" + std::to_string(std::atoi(text));
    }
    ~OtherServer() { end(); }
    OtherServer(const OtherServer&) = delete;
    OtherServer& operator=(const OtherServer&) = delete;

    const std::string& name() const { return name_; }
    void end()
    {
        if (pid_ > 0)
            kill(std::exchange(pid_, -1), SIGKILL);
    }

  private:
    pid_t pid_ = -1;
    std::string name_;
};
