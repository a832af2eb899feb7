#include "dialogs/BoxPlace.h"

#include "log/Guard.h"
#include "window/Front.h"
#include "window/PtrnDisp.h"

#include <algorithm>
#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <memory>

namespace tessary
{

namespace
{

/// Whether another window of the program lies above one that no window manager has put into a frame.
bool IsBelowOwn(GdkWindow* window)
{
    Display* const display = GDK_WINDOW_XDISPLAY(window);
    Window root = None;
    Window parent = None;
    Window* list = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &list, &count))
        return false;
    const std::unique_ptr<Window, int (*)(void*)> owned(list, XFree);
    Window* const end = list + count; // the topmost one is the last
    Window* const own = std::find(list, end, GDK_WINDOW_XID(window));
    return own != end && std::any_of(own + 1, end, [](Window above) {
               GdkWindow* const other = gdk_window_lookup(static_cast<GdkNativeWindow>(above));
               return other && gdk_window_is_visible(other);
           });
}

/// Without a window manager the window shown or raised last lies on top. Another program's window may.
gboolean StayAbove(GtkWidget* box, GdkEventVisibility* event, gpointer)
{
    if (event->state != GDK_VISIBILITY_UNOBSCURED && IsBelowOwn(box->window))
        gdk_window_raise(box->window);
    return FALSE;
}

} // namespace

void PlaceOverPanel(GtkWidget* box)
{
    const CPtrnDisp* const front = FrontWnd();
    if (front && front->Widget) {
        gtk_window_set_transient_for(GTK_WINDOW(box), GTK_WINDOW(front->Widget));
        gtk_window_set_position(GTK_WINDOW(box), GTK_WIN_POS_CENTER_ON_PARENT);
    }
    gtk_window_set_keep_above(GTK_WINDOW(box), TRUE);
    gtk_widget_add_events(box, GDK_VISIBILITY_NOTIFY_MASK);
    g_signal_connect(box, "visibility-notify-event", G_CALLBACK(Guarded<StayAbove>::call), nullptr);
}

} // namespace tessary
