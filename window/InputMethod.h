// Japanese text entry: while a text field is in edit, the desktop's input method sees the keys first. What it
// commits is converted to EUC-JP and typed byte by byte, as if by keys; its own window, which shows what is
// being composed, stands at the field's cursor.
//
// Without an input method, in numeric fields and while nothing is in edit, no key passes through here.
#pragma once

#include <gtk/gtk.h>

class CPtrnDisp;

/// Puts another input method in the place of the desktop's.
/// @param context  kept until the next call; null returns to the desktop's, which is looked for at the next
///                 text field
void SetInputMethod(GtkIMContext* context);

/// An edit has started, its cursor or text has changed, or it has ended.
void InputMethodStart(CPtrnDisp* wnd);
void InputMethodMove(const CPtrnDisp* wnd);
void InputMethodStop(const CPtrnDisp* wnd);

/// Offers a key press or release to the input method.
/// @param top  the top-level window that has received it
/// @return true when the method has taken it; a key that it would only type as it is counts as not taken
bool InputMethodFilter(GtkWidget* top, GdkEventKey* event);

/// The window's connection to the server goes: the method must let go of it.
void InputMethodRelease(GtkWidget* top);
