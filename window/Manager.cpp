#include "window/Manager.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

/// A window manager is the one client that redirects what other clients do with their windows.
bool IsManaged(Display* display)
{
    XWindowAttributes root;
    return XGetWindowAttributes(display, DefaultRootWindow(display), &root) &&
           (root.all_event_masks & SubstructureRedirectMask);
}

} // namespace

void FreeKeyboard(GtkWidget* top, bool pressed)
{
    Display* display = GDK_WINDOW_XDISPLAY(top->window);
    Window owner = PointerRoot;
    int revert = 0;
    XGetInputFocus(display, &owner, &revert);
    if (owner == PointerRoot || (owner != None && !pressed) || IsManaged(display))
        return;
    XSetInputFocus(display, PointerRoot, RevertToPointerRoot, CurrentTime);
}

void ShowAgain(GtkWidget* top)
{
    XMapWindow(GDK_WINDOW_XDISPLAY(top->window), GDK_WINDOW_XID(top->window));
}

} // namespace tessary
