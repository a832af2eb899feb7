// What depends on whether a window manager runs.
#pragma once

#include "draw/ToolkitTypes.h"

namespace tessary
{

/// Without a window manager the keyboard follows the pointer, unless some program has taken it or it was
/// lost with a program that had it. This makes it follow the pointer again: when nobody has it, and after a
/// press in a panel window also when another program has it. With a window manager nothing is done.
/// @param top      a realized panel window
/// @param pressed  the operator has just pressed a button in it
void FreeKeyboard(GtkWidget* top, bool pressed);

/// Asks once more for a window to be shown: a window manager that is just starting may overlook the first
/// time, and the window would never come up.
void ShowAgain(GtkWidget* top);

} // namespace tessary
