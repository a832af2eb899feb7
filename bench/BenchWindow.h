// Windows in a program that measures: it has no registry of its own and no hooks. To be included by the one
// source file of such a program.
#pragma once

#include "window/PtrnDisp.h"
#include "window/Registry.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

CPtrnDisp* GetPtrnWnd(const char*)
{
    return nullptr;
}
int UserInit()
{
    return 1;
}
void UserExit() {}
void UserTimr() {}

inline void SyncServer()
{
    gdk_display_sync(gdk_display_get_default());
}

/// Handles events until none is left and the X server has nothing more to say.
inline void HandleEvents()
{
    for (bool busy = true; busy;) {
        SyncServer();
        busy = false;
        while (g_main_context_iteration(nullptr, FALSE))
            busy = true;
    }
}

/// An application window that counts its full paints.
class BenchWindow : public CPtrnDisp
{
  public:
    /// Opens the pattern and returns when it is on the screen. Ends the program when it does not come up.
    explicit BenchWindow(const char* name)
    {
        PtrnDispInit(nullptr, name, tessary::KIND_APPLICATION);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        do {
            HandleEvents();
            if (std::chrono::steady_clock::now() > deadline) {
                std::fprintf(stderr, "the window \"%s\" was not painted\n", name);
                std::exit(1);
            }
        } while (!Pixmap || !gdk_window_is_viewable(DrawArea->window));
    }
    ~BenchWindow() override { PtrnExit(); }

    int paints() const { return paints_; }

  private:
    void PtrnDispFunc(CDraw*, int mode) override { paints_ += mode == 0; }

    int paints_ = 0;
};
