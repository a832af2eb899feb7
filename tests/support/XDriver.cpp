#include "tests/support/XDriver.h"

#include "base/EucText.h"
#include "tests/support/XServer.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <gdk/gdk.h>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/XKBlib.h>
#include <X11/Xutil.h>

using namespace tessary;

namespace
{

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds PATIENCE(20);
constexpr guint POLL_MILLISECONDS = 5;
/// Of a pixel that is to be drawn over; no screen has it.
constexpr std::uint32_t BLOT_COLOR = 0xFE01FD;

struct Release {
    void operator()(void* memory) const { XFree(memory); }
    void operator()(XImage* image) const { XDestroyImage(image); }
};

/// Other programs' windows may go away between two requests about them.
class ErrorTrap
{
  public:
    explicit ErrorTrap(Display* display)
        : display_(display), previous_(XSetErrorHandler([](Display*, XErrorEvent*) { return 0; }))
    {
    }
    ~ErrorTrap()
    {
        XSync(display_, False);
        XSetErrorHandler(previous_);
    }
    ErrorTrap(const ErrorTrap&) = delete;
    ErrorTrap& operator=(const ErrorTrap&) = delete;

  private:
    Display* display_;
    XErrorHandler previous_;
};

/// Empty when the window lacks the property.
std::string property(Display* display, Window window, const char* name)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 1024, False, AnyPropertyType,
                       &type, &format, &count, &left, &data);
    const std::unique_ptr<unsigned char, Release> owner(data);
    return data ? std::string(reinterpret_cast<char*>(data), count * static_cast<unsigned>(format) / 8) : "";
}

std::vector<Window> children(Display* display, Window window)
{
    Window root = 0;
    Window parent = 0;
    Window* list = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &parent, &list, &count))
        return {};
    const std::unique_ptr<Window, Release> owner(list);
    return {list, list + count};
}

/// A window manager puts an application's window into a frame of its own and marks it; 0 without such a
/// window.
Window managedWindow(Display* display, Window window)
{
    if (!property(display, window, "WM_STATE").empty())
        return window;
    for (const Window child : children(display, window))
        if (const Window found = managedWindow(display, child))
            return found;
    return 0;
}

std::string title(Display* display, Window window)
{
    const std::string name = property(display, window, "_NET_WM_NAME");
    return name.empty() ? property(display, window, "WM_NAME") : Utf8ToEuc(name);
}

std::string pictureOfFailure()
{
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test ? std::string(test->test_suite_name()) + "." + test->name() : "screen";
    std::replace(name.begin(), name.end(), '/', '.'); // of a test with parameters
    return std::string(TESSARY_BUILD "/") + name + ".png";
}

} // namespace

XDriver::XDriver()
{
    XServer::ensure();
    display_ = XOpenDisplay(XServer::display().c_str());
    int ignored = 0;
    if (!display_ || !XTestQueryExtension(display_, &ignored, &ignored, &ignored, &ignored)) {
        std::fprintf(stderr, "The X server lacks the XTEST extension.\n");
        std::exit(1);
    }
    XTestGrabControl(display_, True);
}

XDriver::~XDriver()
{
    XCloseDisplay(display_);
}

void XDriver::move(int x, int y)
{
    XTestFakeMotionEvent(display_, DefaultScreen(display_), x, y, CurrentTime);
    XSync(display_, False);
}

void XDriver::press(unsigned button)
{
    XTestFakeButtonEvent(display_, button, True, CurrentTime);
    XSync(display_, False);
}

void XDriver::release(unsigned button)
{
    XTestFakeButtonEvent(display_, button, False, CurrentTime);
    XSync(display_, False);
    // A window manager holds back the press, and the release with it, until it has looked at them. The server
    // may lose what follows before that, which no user's hand is fast enough for.
    const auto deadline = Clock::now() + PATIENCE;
    while (isPressed(button)) {
        if (Clock::now() > deadline) {
            ADD_FAILURE() << "button " << button << " stays pressed";
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

bool XDriver::isPressed(unsigned button)
{
    Window window = 0;
    int ignored = 0;
    unsigned state = 0;
    XQueryPointer(display_, DefaultRootWindow(display_), &window, &window, &ignored, &ignored, &ignored,
                  &ignored, &state);
    return state & (Button1Mask << (button - 1));
}

void XDriver::click(unsigned button)
{
    press(button);
    release(button);
}

void XDriver::clickAt(int x, int y, unsigned button)
{
    move(x, y);
    click(button);
}

void XDriver::fakeKey(unsigned long symbol, bool down)
{
    const KeyCode code = XKeysymToKeycode(display_, symbol);
    if (!code)
        ADD_FAILURE() << "the X server's keyboard has no key " << XKeysymToString(symbol);
    XTestFakeKeyEvent(display_, code, down, CurrentTime);
    XSync(display_, False);
}

void XDriver::pressKey(unsigned long symbol)
{
    fakeKey(symbol, true);
}

void XDriver::releaseKey(unsigned long symbol)
{
    fakeKey(symbol, false);
}

void XDriver::key(unsigned long symbol, std::initializer_list<unsigned long> modifiers)
{
    const KeyCode code = XKeysymToKeycode(display_, symbol);
    const bool second = code && XkbKeycodeToKeysym(display_, code, 0, 0) != symbol &&
                        XkbKeycodeToKeysym(display_, code, 0, 1) == symbol;
    std::vector<unsigned long> held(modifiers);
    const unsigned numLock = second && IsKeypadKey(symbol) ? XkbKeysymToModifiers(display_, XK_Num_Lock) : 0;
    if (second && !numLock)
        held.push_back(XK_Shift_L);

    XkbLockModifiers(display_, XkbUseCoreKbd, numLock, numLock);
    for (const unsigned long modifier : held)
        pressKey(modifier);
    pressKey(symbol);
    releaseKey(symbol);
    for (auto modifier = held.rbegin(); modifier != held.rend(); ++modifier)
        releaseKey(*modifier);
    XkbLockModifiers(display_, XkbUseCoreKbd, numLock, 0);
    XSync(display_, False);
}

void XDriver::type(const std::string& text)
{
    for (const unsigned char character : text)
        key(character);
}

void XDriver::focus(unsigned long window)
{
    const ErrorTrap trap(display_);
    XSetInputFocus(display_, window, RevertToPointerRoot, CurrentTime);
}

bool XDriver::waitFor(const std::function<bool()>& condition, const std::string& what)
{
    // The timer wakes the loop for conditions that no event of this process announces.
    const guint timer = g_timeout_add(
        POLL_MILLISECONDS, [](gpointer) -> gboolean { return TRUE; }, nullptr);
    const auto deadline = Clock::now() + PATIENCE;
    bool holds = condition();
    while (!holds && Clock::now() < deadline) {
        g_main_context_iteration(nullptr, TRUE);
        holds = condition();
    }
    g_source_remove(timer);
    if (!holds) {
        save(pictureOfFailure());
        ADD_FAILURE() << "waited in vain for " << what << "; the screen is " << pictureOfFailure();
    }
    return holds;
}

void XDriver::settle()
{
    const auto deadline = Clock::now() + PATIENCE;
    for (bool busy = true; busy;) {
        // The round trips bring everything that the server has sent so far into the event queue.
        XSync(display_, False);
        if (GdkDisplay* own = gdk_display_get_default())
            gdk_display_sync(own);
        busy = false;
        while (g_main_context_iteration(nullptr, FALSE)) {
            busy = true;
            if (Clock::now() > deadline) {
                ADD_FAILURE() << "the event loop does not come to rest";
                return;
            }
        }
    }
}

std::uint32_t XDriver::pixel(int x, int y)
{
    return picture(x, y, 1, 1).pixels[0];
}

Picture XDriver::picture(int x, int y, int width, int height)
{
    if (GdkDisplay* own = gdk_display_get_default())
        gdk_display_sync(own); // what this process has drawn is on the screen now
    Picture result(width, height, 0);
    const ErrorTrap trap(display_);
    const std::unique_ptr<XImage, Release> image(
        XGetImage(display_, DefaultRootWindow(display_), x, y, static_cast<unsigned>(width),
                  static_cast<unsigned>(height), AllPlanes, ZPixmap));
    if (!image) {
        ADD_FAILURE() << width << " x " << height << " pixels at " << x << "," << y
                      << " are not all on the screen";
        return result;
    }
    auto target = result.pixels.begin();
    for (int row = 0; row < height; row++)
        for (int column = 0; column < width; column++)
            *target++ = static_cast<std::uint32_t>(XGetPixel(image.get(), column, row)) & 0xFFFFFF;
    return result;
}

Picture XDriver::screen()
{
    const int number = DefaultScreen(display_);
    return picture(0, 0, DisplayWidth(display_, number), DisplayHeight(display_, number));
}

void XDriver::save(const std::string& path)
{
    if (!screen().save(path))
        ADD_FAILURE() << "can not write " << path;
}

std::vector<ScreenWindow> XDriver::windows()
{
    const ErrorTrap trap(display_);
    const Window root = DefaultRootWindow(display_);
    std::vector<ScreenWindow> shown;
    for (const Window top : children(display_, root)) {
        const Window managed = managedWindow(display_, top);
        ScreenWindow window;
        window.id = managed ? managed : top;
        XWindowAttributes state{};
        if (!XGetWindowAttributes(display_, window.id, &state) || state.map_state != IsViewable ||
            state.c_class != InputOutput)
            continue;
        Window ignored = 0;
        XTranslateCoordinates(display_, window.id, root, 0, 0, &window.x, &window.y, &ignored);
        window.title = title(display_, window.id);
        window.width = state.width;
        window.height = state.height;
        window.unmanaged = state.override_redirect;
        shown.push_back(window);
    }
    return shown;
}

ScreenWindow XDriver::waitForWindow(const std::string& title)
{
    ScreenWindow found;
    waitFor(
        [&] {
            for (const ScreenWindow& window : windows())
                if (window.title == title)
                    found = window;
            return found.id != 0;
        },
        "the window \"" + EucToUtf8(title) + "\"");
    return found;
}

void XDriver::blot(const ScreenWindow& window)
{
    const ErrorTrap trap(display_);
    XGCValues values{};
    values.foreground = BLOT_COLOR;
    values.subwindow_mode = IncludeInferiors;
    GC gc = XCreateGC(display_, DefaultRootWindow(display_), GCForeground | GCSubwindowMode, &values);
    XFillRectangle(display_, window.id, gc, 0, 0, 1, 1);
    XFreeGC(display_, gc);
}

ScreenWindow XDriver::waitForDrawn(const std::string& title)
{
    ScreenWindow window;
    do {
        window = waitForWindow(title);
        blot(window);
        waitFor([&] { return pixel(window.x, window.y) != BLOT_COLOR; }, EucToUtf8(title) + " to be drawn");
    } while (waitForWindow(title).id != window.id);
    return window;
}

void XDriver::requestClose(unsigned long window)
{
    const ErrorTrap trap(display_);
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display_, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display_, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(display_, window, False, NoEventMask, &event);
}

void XDriver::requestMove(unsigned long window, int x, int y)
{
    const ErrorTrap trap(display_);
    constexpr long staticGravity = 10;
    constexpr long givesXAndY = 3L << 8;
    constexpr long fromTheUser = 2L << 12;
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display_, "_NET_MOVERESIZE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = staticGravity | givesXAndY | fromTheUser;
    event.xclient.data.l[1] = x;
    event.xclient.data.l[2] = y;
    XSendEvent(display_, DefaultRootWindow(display_), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
}
