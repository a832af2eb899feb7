#include "tests/support/XProbe.h"

#include "tests/support/XServer.h"

#include <gdk/gdkx.h>
#include <memory>
#include <X11/extensions/Xfixes.h>
#include <X11/XKBlib.h>
#include <X11/Xlib.h>

namespace
{

struct Release {
    void operator()(void* memory) const { XFree(memory); }
};

Display* own()
{
    return gdk_x11_get_default_xdisplay();
}

} // namespace

PointerPicture pointerPicture()
{
    const std::unique_ptr<XFixesCursorImage, Release> image(XFixesGetCursorImage(own()));
    PointerPicture picture{image->xhot, image->yhot, image->width, image->height, {}};
    for (int i = 0; i < image->width * image->height; i++)
        picture.pixels.push_back(static_cast<std::uint32_t>(image->pixels[i]));
    return picture;
}

unsigned long keyboardOwner()
{
    Window window = 0;
    int revert = 0;
    XGetInputFocus(own(), &window, &revert);
    return window;
}

void setKeyboardOwner(unsigned long window)
{
    XSetInputFocus(own(), window, RevertToNone, CurrentTime);
    XSync(own(), False);
}

unsigned long requestsSent()
{
    return NextRequest(GDK_DISPLAY());
}

BellWatch::BellWatch()
{
    Display* display = XOpenDisplay(XServer::display().c_str());
    display_ = display;
    int error = 0;
    int major = XkbMajorVersion;
    int minor = XkbMinorVersion;
    int opcode = 0;
    XkbQueryExtension(display, &opcode, &event_, &error, &major, &minor);
    XkbSelectEvents(display, XkbUseCoreKbd, XkbBellNotifyMask, XkbBellNotifyMask);
    XSync(display, False);
}

BellWatch::~BellWatch()
{
    XCloseDisplay(static_cast<Display*>(display_));
}

int BellWatch::rung()
{
    XSync(own(), False);
    auto* const display = static_cast<Display*>(display_);
    XSync(display, False);
    while (XPending(display)) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type == event_)
            ++count_;
    }
    return count_;
}

ForeignWindow::ForeignWindow(int x, int y, int width, int height)
{
    Display* display = XOpenDisplay(XServer::display().c_str());
    display_ = display;
    window_ = XCreateSimpleWindow(display, DefaultRootWindow(display), x, y, static_cast<unsigned>(width),
                                  static_cast<unsigned>(height), 0, 0, 0);
    XMapWindow(display, window_);
    XSync(display, False);
}

ForeignWindow::~ForeignWindow()
{
    XCloseDisplay(static_cast<Display*>(display_));
}
