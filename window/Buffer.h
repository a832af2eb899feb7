// Back buffers: a pixmap with its one drawing context.
#pragma once

#include "base/Types.h"
#include "draw/DrawCntl.h"

#include <memory>

namespace tessary
{

/// The size of the back buffer of a pattern: at least one pixel each way, at most what the display server
/// allows (32767) and 32 Mi pixels in all, for which the height is cut.
SIZE BoundedBuffer(int width, int height);

/// Whether a tick copies to the window only what was drawn, and an expose only what it names. To scale the
/// whole window at every tick would cost too much in any edition.
bool CopiesDrawn();

/// A new back buffer with the depth and all over the plain background of the drawing area; its `window` is
/// the pixmap. Pixmap and graphics context go with the last owner. When the server has no memory for it, the
/// buffer is one pixel large; that is logged.
std::shared_ptr<CPaintDraw> NewBuffer(GtkWidget* area, SIZE size);

/// Fills what a context may draw on with the plain background that new back buffers have.
void FillGround(GtkWidget* area, CDraw* draw);

} // namespace tessary
