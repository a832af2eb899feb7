#include "window/Pointer.h"

#include "config/Edition.h"
#include "draw/Resource.h"
#include "draw/Scale.h"
#include "draw/ToolkitPtr.h"

#include <algorithm>
#include <string>

namespace tessary
{

namespace
{

constexpr int POINTER_EDGE = 32;

/// Whole steps that the pointer is enlarged by: as the panel is, up to what the server can show.
int PointerSteps()
{
    const int wanted = DisplayScale().steps();
    if (wanted == 1)
        return 1;
    guint width = 0;
    guint height = 0;
    gdk_display_get_maximal_cursor_size(gdk_display_get_default(), &width, &height);
    return std::clamp(static_cast<int>(std::min(width, height)) / POINTER_EDGE, 1, wanted);
}

/// Bits of a pointer with each of them as a square.
std::string EnlargedBits(const char* bits, int steps)
{
    if (steps == 1)
        return std::string(bits, SIZE_CURSOR);
    const int edge = POINTER_EDGE * steps;
    std::string enlarged(static_cast<std::size_t>(edge * edge / 8), '\0');
    for (int y = 0; y < edge; y++) {
        for (int x = 0; x < edge; x++) {
            const int at = y / steps * POINTER_EDGE + x / steps;
            if (bits[at / 8] >> at % 8 & 1)
                enlarged[static_cast<std::size_t>((y * edge + x) / 8)] |= static_cast<char>(1 << x % 8);
        }
    }
    return enlarged;
}

/// A cursor's picture. One that is sent to the server in one piece would be looked up in the cursor themes on
/// disk, at every tick, and a theme might have another picture in its place; a copy drawn there is not.
BitmapPtr DrawnBitmap(const std::string& bits, int edge)
{
    const BitmapPtr sent(gdk_bitmap_create_from_data(nullptr, bits.data(), edge, edge));
    BitmapPtr drawn(gdk_pixmap_new(sent.get(), edge, edge, 1));
    const GcPtr gc(gdk_gc_new(drawn.get()));
    gdk_draw_drawable(drawn.get(), gc.get(), sent.get(), 0, 0, 0, 0, edge, edge);
    return drawn;
}

/// Whether a window has another pointer than this one, which it has from now on.
bool ChangesPointer(GdkWindow* window, int type)
{
    constexpr char key[] = "tessary-pointer"; // counted from 1
    const int before = GPOINTER_TO_INT(g_object_get_data(G_OBJECT(window), key));
    g_object_set_data(G_OBJECT(window), key, GINT_TO_POINTER(type + 1));
    return before != type + 1;
}

} // namespace

void SendPointer(GdkWindow* window, int type)
{
    if (Has(Correction::QuietTick) && !ChangesPointer(window, type))
        return;
    // Made anew at every call: a screen class changes the pointer by storing another number, and the next
    // tick brings it to the screen. The window keeps its cursor until it gets another.
    const int steps = PointerSteps();
    const int edge = POINTER_EDGE * steps;
    const BitmapPtr source = DrawnBitmap(EnlargedBits(CursorData[type], steps), edge);
    const BitmapPtr mask(
        gdk_bitmap_create_from_data(nullptr, EnlargedBits(CursorMask[type], steps).data(), edge, edge));
    const CursorPtr cursor(gdk_cursor_new_from_pixmap(source.get(), mask.get(), &CusrColr[0], &CusrColr[1],
                                                      CursorHome[type].x * steps,
                                                      CursorHome[type].y * steps));
    gdk_window_set_cursor(window, cursor.get());
}

} // namespace tessary
