// What the X server can tell about its state, beside windows and pixels (XDriver).
#pragma once

#include <cstdint>
#include <vector>

/// The pointer's picture on the screen. Pixels are 0xAARRGGBB, row by row.
struct PointerPicture {
    int hotX = 0;
    int hotY = 0;
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};
PointerPicture pointerPicture();

/// The window that has the keyboard; 0 none, 1 the one under the pointer.
unsigned long keyboardOwner();
/// Gives the keyboard to nobody (0), to the window under the pointer (1) or to a window.
void setKeyboardOwner(unsigned long window);

/// Requests that this process's toolkit has sent to the server so far.
unsigned long requestsSent();

/// Hears the bell of the screen, from its making on.
class BellWatch
{
  public:
    BellWatch();
    ~BellWatch();
    BellWatch(const BellWatch&) = delete;
    BellWatch& operator=(const BellWatch&) = delete;
    /// How often the bell was rung so far by what the server has come to.
    int rung();

  private:
    void* display_;
    int event_ = 0; ///< number of the server's keyboard events
    int count_ = 0;
};

/// Opens a window of another program at a place of the screen. @return its number
class ForeignWindow
{
  public:
    ForeignWindow(int x, int y, int width, int height);
    ~ForeignWindow();
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;
    unsigned long id() const { return window_; }

  private:
    void* display_;
    unsigned long window_;
};
