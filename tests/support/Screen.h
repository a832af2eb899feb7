// A screen of the test's own process: a project with the drawing resources loaded, and pattern windows that
// the test opens, ticks and looks at.
#pragma once

#include "tests/support/PatternBuilder.h"
#include "tests/support/Project.h"
#include "tests/support/Registry.h"
#include "tests/support/Toolkit.h"
#include "tests/support/XDriver.h"
#include "window/PtrnDisp.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

/// What the hooks of a window were called with, in order: "init", "exit", "disp 0", "timr", "mesg 5", ...
/// The list outlives the window.
using Calls = std::vector<std::string>;

/// A window class that writes down its hooks.
class RecordingWnd : public CPtrnDisp
{
  public:
    explicit RecordingWnd(Calls& calls) : calls_(calls) {}
    void PtrnInitFunc() override { calls_.push_back("init"); }
    void PtrnExitFunc() override { calls_.push_back("exit"); }
    void PtrnDispFunc(CDraw*, int mode) override { calls_.push_back("disp " + std::to_string(mode)); }
    void PtrnTimrFunc() override { calls_.push_back("timr"); }
    void PtrnMesgFunc(int mesg) override { calls_.push_back("mesg " + std::to_string(mesg)); }
    void PtrnRbtnFunc(int dataNo) override { calls_.push_back("rbtn " + std::to_string(dataNo)); }

  private:
    Calls& calls_;
};

/// Fixture: a project of 100 colours (number n is 0x0n0n0n times two and a bit, all different; see color()),
/// 640 x 480 display in the profile, and a registry that makes a RecordingWnd for every saved pattern.
class Screen : public testing::Test
{
  protected:
    Screen();
    ~Screen() override;

    /// 0xRRGGBB of a colour number of the project.
    static std::uint32_t color(int number);

    /// Adds a pattern and makes the registry know it.
    void know(const Pattern& pattern);
    /// Loads the store and the drawing resources; after every code() and flag() of the project.
    void start();
    /// Opens a known pattern as the application window and waits until it is on the screen.
    CPtrnDisp* openTop(const std::string& name);
    /// Waits until the window has its back buffer and the server shows it at its place.
    void waitShown(CPtrnDisp* wnd);
    /// One tick of the framework, without the clock; windows are updated on the screen.
    void tick(int count = 1);

    Project project;
    XDriver user;
    Calls calls; ///< hooks of all windows
    std::vector<std::string> known;
};
