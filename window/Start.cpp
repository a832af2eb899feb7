// The toolkit window of a pattern window.
#include "base/EucText.h"
#include "log/Guard.h"
#include "window/Events.h"
#include "window/InputMethod.h"
#include "window/Manager.h"
#include "window/OnDisplay.h"
#include "window/PtrnDisp.h"
#include "window/Reload.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <utility>

using namespace tessary;

namespace
{

bool lost; ///< the application window, to another program

template <auto Handler> void Connect(GtkWidget* widget, const char* signal, CPtrnDisp* wnd)
{
    gtk_signal_connect(GTK_OBJECT(widget), signal, GTK_SIGNAL_FUNC(Guarded<Handler>::call), wnd);
}

/// A window manager may not close a panel's window: windows close by their items' actions.
int Refuse_Delete(GtkWidget*, GdkEvent*, CPtrnDisp*)
{
    return TRUE;
}

void Window_Unrealize(GtkWidget* widget, CPtrnDisp*)
{
    DesktopMethod().release(widget);
}

GtkWidget* NewTop(GtkWidget* parent, const char* name)
{
    GtkWidget* top = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_title(GTK_WINDOW(top), EucToUtf8(name).c_str());
    gtk_window_set_decorated(GTK_WINDOW(top), FALSE);
    gtk_window_set_resizable(GTK_WINDOW(top), FALSE);
    gtk_window_set_gravity(GTK_WINDOW(top), GDK_GRAVITY_STATIC);
    if (parent)
        gtk_window_set_transient_for(GTK_WINDOW(top), GTK_WINDOW(parent));
    return top;
}

GtkWidget* NewArea()
{
    GtkWidget* area = gtk_drawing_area_new();
    // The back buffer is this window's own; the toolkit's would only cost a copy.
    gtk_widget_set_double_buffered(area, FALSE);
    gtk_widget_set_app_paintable(area, TRUE);
    gtk_widget_show(area);
    gtk_widget_set_events(area, GDK_POINTER_MOTION_MASK | GDK_POINTER_MOTION_HINT_MASK |
                                    GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK | GDK_KEY_PRESS_MASK |
                                    GDK_LEAVE_NOTIFY_MASK | GDK_EXPOSURE_MASK | GDK_SCROLL_MASK);
    return area;
}

/// A window that is being drawn on with cairo is not buffered by the toolkit, which would make a pixmap of
/// the window's size for every expose, use it for nothing and free it again. Ends with the toolkit window.
void KeepUnbuffered(GdkWindow* window)
{
    g_object_set_data_full(G_OBJECT(window), "tessary-unbuffered", gdk_cairo_create(window),
                           [](gpointer context) { cairo_destroy(static_cast<cairo_t*>(context)); });
}

/// The window lies over its parent, also over one that comes later.
void KeepAbove(const CPtrnDisp& wnd, GtkWidget* parent)
{
    if (!wnd.Widget || !GTK_WIDGET_REALIZED(wnd.Widget))
        return;
    gtk_window_set_transient_for(GTK_WINDOW(wnd.Widget), GTK_WINDOW(parent));
    gdk_window_raise(wnd.Widget->window);
}

/// Without a window manager the window shown last lies on top, also of the children that its own init hook
/// has opened. A window manager, which did not know this window when it was told that they belong to it, is
/// told again.
void RaiseChildren(const CPtrnDisp& wnd)
{
    for (const CPtrnDisp* child : {wnd.ChildWnd1, wnd.ChildWnd2}) {
        if (!child)
            continue;
        KeepAbove(*child, wnd.Widget);
        RaiseChildren(*child);
    }
}

} // namespace

/// Handlers of the top-level window.
struct tessary::WindowSignals {
    static int Configure(GtkWidget*, GdkEventConfigure* event, CPtrnDisp* wnd)
    {
        wnd->Configured = true;
        wnd->Reported = {event->x, event->y};
        return FALSE; // the toolkit has to know it too
    }

    static int Map(GtkWidget* widget, GdkEvent*, CPtrnDisp* wnd)
    {
        wnd->Shown = true;
        FreeKeyboard(widget, false);
        RaiseChildren(*wnd);
        if (wnd == AppliWnd && SystmWnd)
            KeepAbove(*SystmWnd, widget);
        return FALSE;
    }

    /// A window manager raises the window that was clicked with its own children only, and the system window
    /// is no child of a child. Without one no click changes what lies above.
    static int Focus(GtkWidget* widget, GdkEvent*, CPtrnDisp* wnd)
    {
        const bool managed = gdk_x11_screen_supports_net_wm_hint(
            gtk_widget_get_screen(widget), gdk_atom_intern_static_string("_NET_ACTIVE_WINDOW"));
        if (managed && SystmWnd && wnd != SystmWnd && SystmWnd->Widget && SystmWnd->Widget->window)
            gdk_window_raise(SystmWnd->Widget->window);
        return FALSE;
    }

    /// By another program: nobody else takes a panel's window away. The ticks bring it back.
    static int Unmap(GtkWidget* widget, GdkEvent* event, CPtrnDisp* wnd)
    {
        wnd->Shown = false;
        wnd->Hidden = 0;
        return LetGo(widget, event, wnd);
    }

    /// The button that holds a control may be released where this window does not hear of it.
    static int LetGo(GtkWidget*, GdkEvent*, CPtrnDisp* wnd)
    {
        if (wnd->PtrnData)
            wnd->PtrnData->LButtonUp();
        wnd->MouseLeave();
        return FALSE;
    }

    static int Destroy(GtkWidget* widget, CPtrnDisp* wnd)
    {
        if (wnd->Widget == widget) {
            wnd->LeaveWidget();
            lost = lost || wnd == AppliWnd;
        }
        return TRUE;
    }
};

bool tessary::TakeLostWindow()
{
    return std::exchange(lost, false);
}

/// However the toolkit window went, nothing may draw on it or destroy it again.
void CPtrnDisp::LeaveWidget()
{
    Closed = true;
    Widget = nullptr;
    DrawArea = nullptr;
    MoveWnd = 0;
    ScrollBar = 0;
    DropKeyInput();
    ReleaseBuffer();
}

void CPtrnDisp::DestroyWidget()
{
    Exited = true;
    if (!Widget)
        return;
    GtkWidget* const top = Widget;
    for (GtkWidget* widget : {DrawArea, top})
        g_signal_handlers_disconnect_matched(widget, G_SIGNAL_MATCH_DATA, 0, 0, nullptr, nullptr, this);
    DesktopMethod().release(top);
    LeaveWidget();
    DestroyTop(top);
}

void PtrnDispStart(CPtrnDisp* wnd, GtkWidget* parent, RECT rect)
{
    const HandlerScope scope;
    GtkWidget* top = NewTop(parent, wnd->PtrnName);
    GtkWidget* area = NewArea();
    AddArea(top, area, rect, wnd->PtrnType == KIND_APPLICATION);
    wnd->Widget = top;
    wnd->DrawArea = area;
    wnd->Placed = PlaceOnDisplay(top, area, rect);
    PaintRest(*wnd);
    wnd->Shown = false;
    wnd->Hidden = 0;

    Connect<Configure_Event>(area, "configure_event", wnd);
    Connect<Expose_Event>(area, "expose_event", wnd);
    Connect<Mouse_Press>(area, "button_press_event", wnd);
    Connect<Mouse_Release>(area, "button_release_event", wnd);
    Connect<Mouse_Motion>(area, "motion_notify_event", wnd);
    Connect<Mouse_Leave>(area, "leave_notify_event", wnd);
    Connect<Mouse_Wheel>(area, "scroll_event", wnd);
    Connect<Key_Press>(top, "key_press_event", wnd);
    Connect<Key_Release>(top, "key_release_event", wnd);
    Connect<WindowSignals::Configure>(top, "configure_event", wnd);
    Connect<WindowSignals::Map>(top, "map_event", wnd);
    Connect<WindowSignals::Focus>(top, "focus_in_event", wnd);
    Connect<WindowSignals::Unmap>(top, "unmap_event", wnd);
    Connect<WindowSignals::LetGo>(area, "grab_broken_event", wnd);
    Connect<Refuse_Delete>(top, "delete_event", wnd);
    Connect<Window_Unrealize>(top, "unrealize", wnd);
    Connect<WindowSignals::Destroy>(top, "destroy", wnd);

    wnd->PtrnInit();
    // Each step calls hooks, which may close the window: the toolkit paints it when it is realized.
    const auto open = [&] { return wnd->Widget == top; };
    if (open())
        gtk_widget_realize(area);
    if (!open())
        return;
    // No background: the server would clear each newly exposed part before the back buffer is copied.
    gdk_window_set_back_pixmap(area->window, nullptr, FALSE);
    KeepUnbuffered(area->window);
    if (CoversDisplay())
        FollowDisplay();
    gtk_widget_show(top);
    if (!open())
        return;
    gdk_window_set_decorations(top->window, static_cast<GdkWMDecoration>(0));
    RaiseChildren(*wnd);
}
