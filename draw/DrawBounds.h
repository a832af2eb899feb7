// Drawing calls for coordinates anywhere in the int range. The display's own coordinates have 16 bits and
// wrap; these keep the part that can be seen and drop the rest. They draw with the context as it is.
#pragma once

#include "draw/ToolkitTypes.h"

namespace tessary
{

/// Filled box; left <= right and top <= bottom, the right column and the bottom row are left out.
void FillBounded(GdkDrawable* window, GdkGC* gc, int left, int top, int right, int bottom);

/// One-pixel outline of a box; left <= right and top <= bottom.
void FrameBounded(GdkDrawable* window, GdkGC* gc, int left, int top, int right, int bottom);

/// Ellipse in a box; left <= right and top <= bottom. A box that reaches beyond the display's coordinates
/// is cut to them, which changes the ellipse's shape.
void EllipseBounded(GdkDrawable* window, GdkGC* gc, bool filled, int left, int top, int right, int bottom);

/// Line with the pen of the context, clipped to the display's coordinates. Dashes of a clipped line begin
/// where it is clipped.
void LineBounded(GdkDrawable* window, GdkGC* gc, int x1, int y1, int x2, int y2);

/// Text with its baseline at y; nothing when it begins beyond the display's coordinates.
void TextBounded(GdkDrawable* window, GdkGC* gc, GdkFont* font, int x, int y, const char* text);

} // namespace tessary
