#include "window/Buffer.h"

#include "base/Limits.h"
#include "config/Edition.h"
#include "draw/DrawScope.h"
#include "draw/Scale.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

constexpr int MOST_PIXELS = 32 * 1024 * 1024;
/// Smaller ones are not refused by any server that shows their window.
constexpr int DOUBTFUL_PIXELS = 4 * 1024 * 1024;

/// @return null when the server refuses it
GdkPixmap* TryPixmap(GdkWindow* window, SIZE size)
{
    gdk_error_trap_push();
    GdkPixmap* pixmap = gdk_pixmap_new(window, size.cx, size.cy, -1);
    gdk_flush();
    const bool refused = gdk_error_trap_pop() != 0;
    if (!refused)
        return pixmap;
    gdk_error_trap_push(); // the server knows nothing of what is released here
    g_object_unref(pixmap);
    gdk_flush();
    gdk_error_trap_pop();
    return nullptr;
}

GdkPixmap* NewPixmap(GdkWindow* window, SIZE size)
{
    if (size.cx * size.cy <= DOUBTFUL_PIXELS)
        return gdk_pixmap_new(window, size.cx, size.cy, -1);
    if (GdkPixmap* pixmap = TryPixmap(window, size))
        return pixmap;
    LogText(CATEGORY_WINDOW, nullptr, 0, "Xサーバーのメモリが足りない  [%d x %d]", size.cx, size.cy);
    return gdk_pixmap_new(window, 1, 1, -1);
}

} // namespace

bool CopiesDrawn()
{
    return Has(Correction::QuietTick) || !DisplayScale().natural();
}

SIZE BoundedBuffer(int width, int height)
{
    const int cx = std::clamp(width, 1, COORDINATE_MAX);
    return {cx, std::clamp(height, 1, std::min(COORDINATE_MAX, MOST_PIXELS / cx))};
}

std::shared_ptr<CPaintDraw> NewBuffer(GtkWidget* area, SIZE size)
{
    GdkPixmap* pixmap = NewPixmap(area->window, size);
    // Not everything need be drawn on: a picture of the body may be missing.
    gdk_draw_rectangle(pixmap, area->style->bg_gc[GTK_STATE_NORMAL], TRUE, 0, 0, size.cx, size.cy);
    if (CopiesDrawn())
        RecordDrawings(pixmap)->add({0, 0, size.cx, size.cy});
    return {new CPaintDraw(pixmap), [](CPaintDraw* draw) {
                GdkDrawable* buffer = draw->window;
                PaintDrawRelease()(draw);
                g_object_unref(buffer);
            }};
}

void FillGround(GtkWidget* area, CDraw* draw)
{
    const Box whole = WholeOf(draw->window);
    gdk_gc_set_foreground(draw->gc, &area->style->bg[GTK_STATE_NORMAL]);
    draw->DrawRect1(1, whole.left, whole.top, whole.right, whole.bottom);
}

} // namespace tessary
