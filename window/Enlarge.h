// Back buffers on a display that the panel is enlarged or reduced to.
#pragma once

#include "base/Box.h"
#include "draw/Scale.h"
#include "draw/ToolkitTypes.h"

namespace tessary
{

/// Copies a buffer to a window by a scale that changes its size. The server does it, and only where it is
/// asked to. By whole steps each pixel becomes a square. Otherwise it is enlarged by the next whole step and
/// reduced from there, so that only the edges of pixels are blended; what is reduced is averaged.
/// @param offset  the buffer's pixel in the left upper corner of the window
/// @param area    of the window
void CopyScaled(GdkDrawable* window, GdkPixmap* buffer, POINT offset, const Scale& scale, const Box& area);

} // namespace tessary
