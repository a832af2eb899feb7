// A user at the screen: real X events through the XTEST extension, and eyes for what is shown.
//
// The driver has its own connection to the server. It serves a screen of the test's own process, whose
// events are handled while a call of waitFor() or settle() runs, and a program started beside it.
#pragma once

#include "tests/support/Picture.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

struct _XDisplay;

/// A mapped top-level window; the position is that of its contents on the screen, without a frame.
struct ScreenWindow {
    unsigned long id = 0;
    std::string title; ///< EUC-JP
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool unmanaged = false; ///< asked window managers to leave it alone
};

class XDriver
{
  public:
    /// Connects to the tests' X server and starts it when needed.
    XDriver();
    ~XDriver();
    XDriver(const XDriver&) = delete;
    XDriver& operator=(const XDriver&) = delete;

    /// Pointer, in pixels of the screen. Buttons: 1 left, 2 middle, 3 right, 4 wheel up, 5 wheel down.
    void move(int x, int y);
    /// A release returns when the server has come to it: a window manager may hold it back with its press.
    void press(unsigned button = 1);
    void release(unsigned button = 1);
    void click(unsigned button = 1);
    void clickAt(int x, int y, unsigned button = 1);

    /// Presses and releases a key (XK_Return ...) while the modifiers (XK_Shift_L, XK_Control_L, XK_Alt_L
    /// ...) are held. Shift and Num Lock are added where the key symbol needs them.
    void key(unsigned long symbol, std::initializer_list<unsigned long> modifiers = {});
    void pressKey(unsigned long symbol);
    void releaseKey(unsigned long symbol);
    /// Types a line of ASCII text.
    void type(const std::string& text);
    /// Gives the keyboard to a window; without a window manager it follows the pointer otherwise.
    void focus(unsigned long window);

    /// Handles the process's own events until the condition holds. After twenty seconds the test fails with
    /// `what` in the text, and the screen is left as a picture in the build folder.
    /// @return whether the condition holds
    bool waitFor(const std::function<bool()>& condition, const std::string& what);
    /// Handles everything in the process's own event loop that follows from what the driver has done so
    /// far: afterwards a test may state that nothing has happened.
    void settle();

    /// What is visible on the screen, without the pointer.
    std::uint32_t pixel(int x, int y);
    Picture picture(int x, int y, int width, int height);
    Picture screen();
    /// Writes the screen as PNG.
    void save(const std::string& path);

    /// Mapped top-level windows, lowest first, with or without a window manager.
    std::vector<ScreenWindow> windows();
    /// Waits for the window with that title, topmost first.
    ScreenWindow waitForWindow(const std::string& title);
    /// The same until the window has been drawn by a program that draws at every tick: before, it shows what
    /// lay below it. One that goes and comes again meanwhile, as when a system action runs twice, is waited
    /// for again.
    ScreenWindow waitForDrawn(const std::string& title);
    /// Asks a window to close, as a window manager does when its close button is pressed.
    void requestClose(unsigned long window);
    /// Has the window manager move a window, as when its user moves it by the manager's own means.
    void requestMove(unsigned long window, int x, int y);

  private:
    void blot(const ScreenWindow& window);
    bool isPressed(unsigned button);
    void fakeKey(unsigned long symbol, bool down);
    _XDisplay* display_;
};
