#include "tests/support/XServer.h"

#include "tools/ptn/system/PrivateServer.h"

#include <cstdio>
#include <cstdlib>
#include <X11/cursorfont.h>
#include <X11/Xlib.h>

namespace
{

std::string name;

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "No X server for the tests: %s.\n", what);
    std::exit(1);
}

/// A bare server shows no pointer at all.
void showPointer()
{
    Display* display = XOpenDisplay(name.c_str());
    if (!display)
        fail("Xvfb refused the connection");
    XDefineCursor(display, DefaultRootWindow(display), XCreateFontCursor(display, XC_left_ptr));
    XCloseDisplay(display);
}

/// What the tests see must not depend on the user's desktop.
void cleanEnvironment()
{
    for (const char* variable : {"XAUTHORITY", "XMODIFIERS", "GTK_MODULES", "GTK2_RC_FILES", "GDK_SCALE"})
        unsetenv(variable);
    setenv("GTK_IM_MODULE", "gtk-im-context-simple", 1);
    setenv("NO_AT_BRIDGE", "1", 1);
    setenv("DISPLAY", name.c_str(), 1);
}

} // namespace

void XServer::ensure()
{
    if (!name.empty())
        return;
    name = ptn::PrivateDisplay();
    if (name.empty())
        fail("Xvfb is not installed or did not come up");
    cleanEnvironment();
    showPointer();
}

const std::string& XServer::display()
{
    return name;
}
