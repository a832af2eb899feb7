// Toolkit handlers beside those that window/PtrnDisp.h declares.
#pragma once

#include "draw/ToolkitTypes.h"

class CPtrnDisp;

namespace tessary
{

/// Wheel clicks come as scroll events: up is direction 0, down is direction 1.
int Mouse_Wheel(GtkWidget* widget, GdkEventScroll* event, CPtrnDisp* wnd);

/// Only an input method wants to know.
int Key_Release(GtkWidget* widget, GdkEventKey* event, CPtrnDisp* wnd);

/// Whether another program has destroyed the toolkit window of the application window since the last call.
bool TakeLostWindow();

} // namespace tessary
