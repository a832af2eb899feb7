// Other programs around a panel.
#pragma once

#include <gmock/gmock.h> // before the macros of the X library, which have its names
#include <gtest/gtest.h>

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
