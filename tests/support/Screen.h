// A screen of the test's own process: a project with the drawing resources loaded, and pattern windows that
// the test opens, ticks and looks at.
#pragma once

#include "tests/support/PatternBuilder.h"
#include "tests/support/Project.h"
#include "tests/support/Registry.h"
#include "tests/support/Toolkit.h"
#include "tests/support/XDriver.h"
#include "window/PtrnDisp.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

/// What the hooks of a window were called with, in order: "init", "exit", "disp 0", "timr", "mesg 5",
/// "rbtn 5", "mouse 1 20,30 4", "keystart 5", "keyfunc 65293 0 5" ... The list outlives the window. The
/// pointer's motions are not in it.
using Calls = std::vector<std::string>;

/// What the windows of a test do in their hooks, beside being written down.
struct Hooks {
    std::function<void(CPtrnDisp&)> init;
    std::function<void(CPtrnDisp&)> exit;
    std::function<void(CPtrnDisp&)> timr;
    std::function<void(CPtrnDisp&, CDraw*, int mode)> disp;
    std::function<void(CPtrnDisp&, int mesg)> mesg;
    std::function<void(CPtrnDisp&, int dataNo)> rbtn;
    std::function<int(CPtrnDisp&, POINT, int button, int flags)> mouse;
    std::function<int(CPtrnDisp&, PTRNDATA*)> keyStart;
    std::function<void(CPtrnDisp&, int key, int flags, PTRNDATA*)> keyFunc;
};

/// A window class that writes down its hooks.
class RecordingWnd : public CPtrnDisp
{
  public:
    /// Both outlive the window.
    RecordingWnd(Calls& calls, const Hooks& hooks) : calls_(calls), hooks_(hooks) { alive.insert(this); }
    ~RecordingWnd() override { alive.erase(this); }
    static std::set<RecordingWnd*> alive; ///< objects that were not deleted
    void PtrnInitFunc() override;
    void PtrnExitFunc() override;
    void PtrnDispFunc(CDraw* draw, int mode) override;
    void PtrnTimrFunc() override;
    void PtrnMesgFunc(int mesg) override;
    void PtrnRbtnFunc(int dataNo) override;
    int PtrnMouseFunc(POINT pt, int button, int flags) override;
    int PtrnKeyStart(PTRNDATA* item) override;
    void PtrnKeyFunc(int key, int flags, PTRNDATA* item) override;

  private:
    void record(const std::string& name, std::initializer_list<int> values = {});
    Calls& calls_;
    const Hooks& hooks_;
};

/// Fixture: a project of 100 colours, all different (color()), a 1280 x 1024 display, font 0 of 8 x 16 pixels
/// a character, and a registry that makes a RecordingWnd for every known pattern.
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
    /// Opens a known pattern as the system window and waits until it is on the screen.
    CPtrnDisp* openSystem(const std::string& name);
    /// Opens a known pattern in a child slot, at its own place, and waits until it is on the screen.
    CPtrnDisp* openChild(CPtrnDisp* parent, int which, const std::string& name);
    CPtrnDisp* openChild(CPtrnDisp* parent, int which, const std::string& name, int x, int y);
    /// Waits until the window has its back buffer and the server shows it at its place.
    void waitShown(CPtrnDisp* wnd);
    /// One tick of the framework; windows are updated on the screen.
    void tick(int count = 1);

    // --- the user, in window coordinates; everything that follows is handled when they return ----------

    void moveTo(const CPtrnDisp* wnd, int x, int y);
    void press(const CPtrnDisp* wnd, int x, int y, unsigned button = 1);
    void release(unsigned button = 1);
    void click(const CPtrnDisp* wnd, int x, int y, unsigned button = 1);
    /// Presses and releases a key; the pointer has to be over a window.
    void key(unsigned long symbol, std::initializer_list<unsigned long> modifiers = {});
    void type(const std::string& text);

    /// Where the display shows a point of a window, and whether a window of it is the one of a pattern.
    virtual POINT onDisplay(const CPtrnDisp* wnd, int x, int y) const;
    virtual bool isAtPlace(const CPtrnDisp* wnd, const ScreenWindow& shown) const;

    /// A pixel of a window as it is on the screen.
    std::uint32_t pixel(const CPtrnDisp* wnd, int x, int y);
    /// Its back buffer, by pattern coordinates.
    static std::uint32_t bufferPixel(const CPtrnDisp* wnd, int x, int y);
    static Picture bufferPicture(const CPtrnDisp* wnd, int x, int y, int width, int height);

    /// Those of the calls that begin with one of the names, in order; all others are left out.
    Calls callsOf(std::initializer_list<const char*> names) const;

    Project project;
    XDriver user;
    Calls calls; ///< hooks of all windows
    Hooks hooks;
    std::vector<std::string> known;
};
