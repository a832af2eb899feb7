// A window manager on the tests' own display: openbox with its standard settings, where a click focuses and
// raises a window and Alt with the left button moves it.
#pragma once

#include "tools/ptn/system/TemporaryFolder.h"

#include <sys/types.h>

class WindowManager
{
  public:
    /// Starts it and waits until it has taken over the display; then it may still overlook windows.
    WindowManager();
    /// Ends it; the windows stay.
    ~WindowManager();
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    /// Waits until it serves every window.
    void waitReady();
    /// Keeps it from doing anything, and lets it go on.
    void pause() const;
    void resume() const;
    /// The window that has the keyboard; 0 none.
    unsigned long active() const;
    /// Widths of the frame around a window: left, right, top and bottom together.
    int frame(unsigned long window) const;

  private:
    pid_t pid_ = -1;
    ptn::TemporaryFolder home_{"tessary-wm-"};
};
