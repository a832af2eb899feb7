// The toolkit's side of a pattern window: making it, and turning its events into the window's calls.
#include "base/EucText.h"
#include "shell/Request.h"
#include "window/PtrnDisp.h"
#include "window/Retire.h"

#include <algorithm>
#include <gdk/gdkkeysyms.h>

namespace
{

/// X allows no larger window or pixmap.
constexpr int kLargest = 32767;

template <class Handler> void Connect(GtkWidget* widget, const char* signal, Handler* handler, CPtrnDisp* wnd)
{
    gtk_signal_connect(GTK_OBJECT(widget), signal, GTK_SIGNAL_FUNC(handler), wnd);
}

/// One value for the modifiers: Shift first.
int Modifiers(guint state)
{
    if (state & GDK_SHIFT_MASK)
        return 1;
    if (state & GDK_CONTROL_MASK)
        return 2;
    if (state & GDK_MOD1_MASK)
        return 4;
    return 0;
}

POINT PointOf(double x, double y)
{
    return {static_cast<int>(x), static_cast<int>(y)};
}

/// The keypad types what is printed on it. Its decimal key is left as it is: only the separator key types
/// '.'.
guint TranslateKeypad(guint key)
{
    if (key >= GDK_KP_0 && key <= GDK_KP_9)
        return '0' + (key - GDK_KP_0);
    switch (key) {
    case GDK_KP_Enter:
        return GDK_Return;
    case GDK_KP_Multiply:
        return '*';
    case GDK_KP_Add:
        return '+';
    case GDK_KP_Separator:
        return '.';
    case GDK_KP_Subtract:
        return '-';
    case GDK_KP_Divide:
        return '/';
    default:
        return key;
    }
}

/// Wheel clicks come as scroll events: up is button 4, down is button 5.
int Mouse_Wheel(GtkWidget*, GdkEventScroll* event, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    if (event->direction == GDK_SCROLL_UP)
        wnd->MouseWheel(PointOf(event->x, event->y), 0);
    else if (event->direction == GDK_SCROLL_DOWN)
        wnd->MouseWheel(PointOf(event->x, event->y), 1);
    return TRUE;
}

/// A window manager may not close a panel's window: windows close by their items' actions.
int Refuse_Delete(GtkWidget*, GdkEvent*, CPtrnDisp*)
{
    return TRUE;
}

void ShowTitle(GtkWidget* widget, const char* name)
{
    gtk_window_set_title(GTK_WINDOW(widget), EucToUtf8(name).c_str());
}

} // namespace

/// However the toolkit window went, nothing may draw on it or destroy it again.
int Widget_Destroy(GtkWidget*, CPtrnDisp* wnd)
{
    wnd->Widget = nullptr;
    wnd->DrawArea = nullptr;
    wnd->MoveWnd = 0;
    wnd->ScrollBar = 0;
    wnd->ReleaseBuffer();
    return TRUE;
}

void PtrnDispStart(CPtrnDisp* wnd, GtkWidget* parent, RECT rect)
{
    const int width = std::clamp(rect.width, 1, kLargest);
    const int height = std::clamp(rect.height, 1, kLargest);

    GtkWidget* top = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    wnd->Widget = top;
    ShowTitle(top, wnd->PtrnName);
    gtk_window_set_decorated(GTK_WINDOW(top), FALSE);
    gtk_window_set_resizable(GTK_WINDOW(top), FALSE);
    gtk_window_set_gravity(GTK_WINDOW(top), GDK_GRAVITY_STATIC);
    gtk_window_move(GTK_WINDOW(top), rect.left, rect.top);
    if (parent)
        gtk_window_set_transient_for(GTK_WINDOW(top), GTK_WINDOW(parent));

    GtkWidget* area = gtk_drawing_area_new();
    wnd->DrawArea = area;
    gtk_widget_set_size_request(area, width, height);
    // The back buffer is this window's own; the toolkit's would only cost a copy.
    gtk_widget_set_double_buffered(area, FALSE);
    gtk_widget_set_app_paintable(area, TRUE);
    gtk_container_add(GTK_CONTAINER(top), area);
    gtk_widget_show(area);
    gtk_widget_set_events(area, GDK_POINTER_MOTION_MASK | GDK_POINTER_MOTION_HINT_MASK |
                                    GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK | GDK_KEY_PRESS_MASK |
                                    GDK_LEAVE_NOTIFY_MASK | GDK_EXPOSURE_MASK | GDK_SCROLL_MASK);

    Connect(area, "configure_event", Configure_Event, wnd);
    Connect(area, "expose_event", Expose_Event, wnd);
    Connect(area, "button_press_event", Mouse_Press, wnd);
    Connect(area, "button_release_event", Mouse_Release, wnd);
    Connect(area, "motion_notify_event", Mouse_Motion, wnd);
    Connect(area, "leave_notify_event", Mouse_Leave, wnd);
    Connect(area, "scroll_event", Mouse_Wheel, wnd);
    Connect(top, "key_press_event", Key_Press, wnd);
    Connect(top, "delete_event", Refuse_Delete, wnd);
    Connect(top, "destroy", Widget_Destroy, wnd);

    wnd->PtrnInit();
    if (wnd->Widget != top) // the hook has closed the window
        return;

    gtk_widget_realize(top);
    gtk_widget_realize(area);
    // No background: the server would clear each newly exposed part before the back buffer is copied.
    gdk_window_set_back_pixmap(area->window, nullptr, FALSE);
    gtk_widget_show(top);
    gdk_window_set_decorations(top->window, static_cast<GdkWMDecoration>(0));
}

int Configure_Event(GtkWidget*, GdkEventConfigure*, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    wnd->PaintEvent();
    return TRUE;
}

int Expose_Event(GtkWidget*, GdkEventExpose*, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    wnd->UpdateEvent();
    return TRUE;
}

int Mouse_Press(GtkWidget*, GdkEventButton* event, CPtrnDisp* wnd)
{
    // The toolkit adds an event of its own for a second and a third click; each real press counts once.
    if (event->type != GDK_BUTTON_PRESS)
        return TRUE;

    const HandlerScope scope;
    const POINT pt = PointOf(event->x, event->y);
    const int flags = Modifiers(event->state);
    switch (event->button) {
    case 1:
        wnd->LButtonDown(pt, flags);
        break;
    case 3:
        wnd->RButtonDown(pt, flags);
        break;
    case 4:
        wnd->MouseWheel(pt, 0);
        break;
    case 5:
        wnd->MouseWheel(pt, 1);
        break;
    default:
        break;
    }
    return TRUE;
}

int Mouse_Release(GtkWidget*, GdkEventButton* event, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    const POINT pt = PointOf(event->x, event->y);
    const int flags = Modifiers(event->state);
    if (event->button == 1)
        wnd->LButtonUp(pt, flags);
    else if (event->button == 3)
        wnd->RButtonUp(pt, flags);
    return TRUE;
}

int Mouse_Motion(GtkWidget* widget, GdkEventMotion* event, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    POINT pt = PointOf(event->x, event->y);
    if (event->is_hint)
        gdk_window_get_pointer(widget->window, &pt.x, &pt.y, nullptr);
    wnd->MouseMove(pt, Modifiers(event->state));
    return TRUE;
}

int Mouse_Leave(GtkWidget*, GdkEventCrossing*, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    wnd->MouseLeave();
    return TRUE;
}

int Key_Press(GtkWidget*, GdkEventKey* event, CPtrnDisp*)
{
    // A modifier key types nothing; its effect comes with the key it modifies.
    if (event->is_modifier)
        return TRUE;
    const HandlerScope scope;
    ReqKeyEntry(TranslateKeypad(event->keyval), static_cast<unsigned>(Modifiers(event->state)));
    return TRUE;
}
