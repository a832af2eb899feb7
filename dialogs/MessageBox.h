// The modal message box, for the moments before the first screen is up.
#pragma once

#include "draw/ToolkitTypes.h"

/// Number of the pressed button; 0 from the moment a box opens.
extern int MessageButnNo;

/// Shows a title, a line of text and the buttons of a type, and waits for one in a nested main loop.
/// The tick and the windows behind go on running; their input is blocked. One box at a time. A box that is
/// opened within a tick (in UserTimr, PtrnTimrFunc, PtrnDispFunc) stops the ticks until it is closed. From
/// edition 2 on the buttons are " OK ", " Yes ", " No " and " Cancel " unless the language is 0, which it is
/// until the drawing resources are loaded; Escape presses the last button, and Return the first unless the
/// focus has been moved to another; and the box stands over the panel's front window, see dialogs/BoxPlace.h.
/// @param title    EUC-JP; null counts as empty
/// @param text     EUC-JP; null counts as empty, 1,000 bytes are shown. A text wider than the screen is
/// wrapped.
/// @param ignored  not used
/// @param type     1: " 確認 "; 2: " はい " and " いいえ "; 3: the same and " キャンセル "; any other: no
///                 button, so that only the window manager can close the box
/// @return 1 " 確認 " or " はい ", 2 " いいえ ", 3 " キャンセル "; 0 when the box was closed in another way
int MessageBox(const char* title, const char* text, int ignored, int type);

/// Handlers of the box. `window` is the box: the first three set MessageButnNo and destroy it.
void Message_Button1(GtkWidget* widget, void* window);
void Message_Button2(GtkWidget* widget, void* window); ///< the second button
void Message_Button3(GtkWidget* widget, void* window); ///< the third button
/// Ends the nested main loop and gives the input back.
void Message_Destroy(GtkWidget* widget);
