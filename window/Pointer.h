// The pointer over a window.
#pragma once

#include <gtk/gtk.h>

namespace tessary
{

/// Gives a window the pointer of this number, from 0 below CONT_CURSOR, as large as the panel is shown. From
/// the edition with quiet ticks on nothing is sent when it has that one already.
void SendPointer(GdkWindow* window, int type);

} // namespace tessary
