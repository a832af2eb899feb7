// The toolkit's events turned into the window's calls.
#include "window/Events.h"

#include "config/Edition.h"
#include "draw/Scale.h"
#include "window/Buffer.h"
#include "window/FieldEntry.h"
#include "window/InputMethod.h"
#include "window/Manager.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"
#include "window/Retire.h"
#include "window/WindowCodes.h"

#include <gdk/gdkkeysyms.h>
#include <gtk/gtk.h>

using namespace tessary;

namespace
{

/// Buttons of the pointer as the server numbers them; the middle one does nothing.
enum ServerButton : guint {
    BUTTON_LEFT = 1,
    BUTTON_RIGHT = 3,
    BUTTON_WHEEL_UP = 4,
    BUTTON_WHEEL_DOWN = 5,
};

/// One value for the modifiers: Shift first.
int Modifiers(guint state)
{
    if (state & GDK_SHIFT_MASK)
        return MODIFIER_SHIFT;
    if (state & GDK_CONTROL_MASK)
        return MODIFIER_CONTROL;
    if (state & GDK_MOD1_MASK)
        return MODIFIER_ALT;
    return MODIFIER_NONE;
}

// Every place that the toolkit tells comes through one of these two.

/// A point of a window as the panel sees it.
POINT PointOf(double x, double y)
{
    return DisplayScale().inWindow({static_cast<int>(x), static_cast<int>(y)});
}

/// A point of the display as the panel sees it.
POINT RootPointOf(double x, double y)
{
    return DisplayScale().toPanel({static_cast<int>(x), static_cast<int>(y)});
}

bool IsDragging(const CPtrnDisp* wnd)
{
    return wnd->MoveWnd == 1 || wnd->ScrollBar == 1;
}

/// A point of the panel, relative to a window that is being moved. A window manager lags behind: where the
/// window is on the screen is not yet where it is to be, and only the pointer's place on the screen is
/// certain.
POINT DragPoint(const CPtrnDisp* wnd, POINT root)
{
    return {root.x - wnd->WindRect.left, root.y - wnd->WindRect.top};
}

/// Takes the pointer's place of this moment, after which the server reports its motion again. Where the
/// pointer goes after the button of a drag was released is none of the drag's business.
void AskPointer(const CPtrnDisp* wnd, POINT* pt)
{
    const bool moving = wnd->MoveWnd == 1;
    POINT now{};
    GdkModifierType state{};
    gdk_window_get_pointer(moving ? gdk_get_default_root_window() : wnd->DrawArea->window, &now.x, &now.y,
                           &state);
    if (!IsDragging(wnd) || (state & GDK_BUTTON1_MASK))
        *pt = moving ? DragPoint(wnd, RootPointOf(now.x, now.y)) : PointOf(now.x, now.y);
}

/// The pointer may have moved on between the press that has started a drag and this moment, and its motion
/// was taken for known.
void CatchUp(CPtrnDisp* wnd, POINT pressed, int flags)
{
    if (!IsDragging(wnd))
        return;
    POINT pt = pressed;
    AskPointer(wnd, &pt);
    if (pt.x != pressed.x || pt.y != pressed.y)
        wnd->MouseMove(pt, flags);
}

/// The server may have kept the last motion of a drag to itself; its release tells where the drag has ended.
/// An event without a time was made by the program, and there was no motion before it.
void DragToRelease(CPtrnDisp* wnd, const GdkEventButton& event)
{
    if (!IsDragging(wnd) || event.time == GDK_CURRENT_TIME)
        return;
    POINT pt = PointOf(event.x, event.y);
    if (wnd->MoveWnd == 1) {
        pt = DragPoint(wnd, RootPointOf(event.x_root, event.y_root));
        const RECT& rect = wnd->WindRect;
        if (rect.left + wnd->Offset.x + pt.x == wnd->MovePoint.x &&
            rect.top + wnd->Offset.y + pt.y == wnd->MovePoint.y)
            return;
    }
    wnd->MouseMove(pt, Modifiers(event.state));
}

/// The keypad types what is printed on it. Its decimal key is left as it is: only the separator key types
/// '.'. With Shift the server gives the tabulator another name; which way it goes is told by the flags.
guint PrintedKey(guint key)
{
    if (key >= GDK_KP_0 && key <= GDK_KP_9)
        return '0' + (key - GDK_KP_0);
    switch (key) {
    case GDK_ISO_Left_Tab:
        return GDK_Tab;
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

/// The keypad does what the server says that it means: with Num Lock it types, the decimal key included,
/// without it moves and removes.
guint MeantKey(guint key)
{
    switch (key) {
    case GDK_KP_Decimal:
        return '.';
    case GDK_KP_Left:
        return GDK_Left;
    case GDK_KP_Right:
        return GDK_Right;
    case GDK_KP_Up:
        return GDK_Up;
    case GDK_KP_Down:
        return GDK_Down;
    case GDK_KP_Home:
        return GDK_Home;
    case GDK_KP_End:
        return GDK_End;
    case GDK_KP_Page_Up:
        return GDK_Page_Up;
    case GDK_KP_Page_Down:
        return GDK_Page_Down;
    case GDK_KP_Delete:
        return GDK_Delete;
    default:
        return PrintedKey(key);
    }
}

/// With Control or Alt, whatever else is held, a letter is a command of something else.
bool IsCommand(const GdkEventKey& event)
{
    return (event.state & (GDK_CONTROL_MASK | GDK_MOD1_MASK)) && !CharacterOfKey(event.keyval).empty();
}

} // namespace

int Configure_Event(GtkWidget*, GdkEventConfigure*, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    const LayoutScope layout;
    wnd->PaintEvent();
    return TRUE;
}

int Expose_Event(GtkWidget*, GdkEventExpose* event, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    if (event && event->region && CopiesDrawn())
        wnd->UpdateArea(*event);
    else
        wnd->UpdateEvent();
    return TRUE;
}

int Mouse_Press(GtkWidget* widget, GdkEventButton* event, CPtrnDisp* wnd)
{
    // The toolkit adds an event of its own for a second and a third click; each real press counts once.
    if (event->type == GDK_2BUTTON_PRESS || event->type == GDK_3BUTTON_PRESS)
        return TRUE;

    const HandlerScope scope;
    FreeKeyboard(gtk_widget_get_toplevel(widget), true);
    const POINT pt = PointOf(event->x, event->y);
    const int flags = Modifiers(event->state);
    switch (event->button) {
    case BUTTON_LEFT:
        wnd->LButtonDown(pt, flags);
        CatchUp(wnd, pt, flags);
        break;
    case BUTTON_RIGHT:
        wnd->RButtonDown(pt, flags);
        break;
    case BUTTON_WHEEL_UP:
        wnd->MouseWheel(pt, WHEEL_UP);
        break;
    case BUTTON_WHEEL_DOWN:
        wnd->MouseWheel(pt, WHEEL_DOWN);
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
    if (event->button == BUTTON_LEFT) {
        DragToRelease(wnd, *event);
        wnd->LButtonUp(pt, flags);
    } else if (event->button == BUTTON_RIGHT) {
        wnd->RButtonUp(pt, flags);
    }
    return TRUE;
}

int tessary::Mouse_Wheel(GtkWidget*, GdkEventScroll* event, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    if (event->direction == GDK_SCROLL_UP)
        wnd->MouseWheel(PointOf(event->x, event->y), WHEEL_UP);
    else if (event->direction == GDK_SCROLL_DOWN)
        wnd->MouseWheel(PointOf(event->x, event->y), WHEEL_DOWN);
    return TRUE;
}

int Mouse_Motion(GtkWidget*, GdkEventMotion* event, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    POINT pt = PointOf(event->x, event->y);
    if (event->is_hint) {
        if (IsDragging(wnd))
            pt = DragPoint(wnd, RootPointOf(event->x_root, event->y_root));
        AskPointer(wnd, &pt);
    }
    wnd->MouseMove(pt, Modifiers(event->state));
    return TRUE;
}

int Mouse_Leave(GtkWidget*, GdkEventCrossing*, CPtrnDisp* wnd)
{
    const HandlerScope scope;
    wnd->MouseLeave();
    return TRUE;
}

int Key_Press(GtkWidget* widget, GdkEventKey* event, CPtrnDisp*)
{
    const HandlerScope scope;
    if (DesktopMethod().filter(widget, event))
        return TRUE;
    // A modifier key types nothing; its effect comes with the key it modifies.
    if (event->is_modifier)
        return TRUE;
    const bool corrected = Has(Correction::EntryKeys);
    if (corrected && IsCommand(*event))
        return TRUE;
    const KeyReport report(event->hardware_keycode);
    ReqKeyEntry((corrected ? MeantKey : PrintedKey)(event->keyval),
                static_cast<unsigned>(Modifiers(event->state)));
    return TRUE;
}

int tessary::Key_Release(GtkWidget* widget, GdkEventKey* event, CPtrnDisp*)
{
    const HandlerScope scope;
    NoteKeyRelease(event->hardware_keycode);
    DesktopMethod().filter(widget, event);
    return TRUE;
}
