// Where a message box stands while the panel's windows are up.
#pragma once

#include "draw/ToolkitTypes.h"

namespace tessary
{

/// Puts a box that is realized but not shown yet in the middle of the panel's front window, or of the screen
/// when there is none, and keeps it above all windows of the program, with or without a window manager.
void PlaceOverPanel(GtkWidget* box);

} // namespace tessary
