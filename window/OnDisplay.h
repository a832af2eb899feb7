// Where pattern windows lie on the display. They are where their WindRect says as long as the panel has the
// display's size. On a scaled panel they are as large as the scale makes them, and the application window
// covers the display: its drawing area lies within it, and the rest is painted in the colour of its body.
#pragma once

#include "base/Types.h"
#include "draw/ToolkitTypes.h"

class CPtrnDisp;

namespace tessary
{

/// Puts a drawing area into its top-level window, both new, in its size.
/// @param covers  for the application window
void AddArea(GtkWidget* top, GtkWidget* area, const RECT& rect, bool covers);

/// Whether the top-level window of a drawing area covers the display.
bool IsCovering(const GtkWidget* area);
/// Whether one of the application would now.
bool CoversDisplay();

/// Brings a window to the place of its rectangle. @return the place of its top-level window on the display
POINT PlaceOnDisplay(GtkWidget* top, GtkWidget* area, const RECT& rect);

/// Gives a drawing area the size of its window's rectangle.
void SizeOnDisplay(GtkWidget* area, const RECT& rect);

/// Gives what a covering window shows beside its pattern the colour of its body; other windows stay as they
/// are.
void PaintRest(const CPtrnDisp& wnd);

} // namespace tessary
