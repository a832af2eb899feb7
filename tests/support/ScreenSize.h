// The size of a screen, as programs for the settings of displays change it.
#pragma once

struct _XDisplay;

/// Gives the screen of a server another size than it has begun with, at most as large.
void resizeScreen(_XDisplay* display, int width, int height);
