// Marks, bitmap files and built-in pictures. Every call makes its image anew, scales the part of it that can
// be seen, and releases it.
#include "base/Limits.h"
#include "config/Settings.h"
#include "draw/DrawCheck.h"
#include "draw/DrawCntl.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"
#include "draw/ToolkitPtr.h"
#include "log/Logfile.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <string>
#include <sys/stat.h>

using namespace tessary;

namespace
{

/// Longest edge of a scaled image, the end of the display's coordinates.
constexpr std::int64_t EDGE_MAX = tessary::COORDINATE_MAX;

/// Most pixels of a bitmap file; a larger one counts as damaged.
constexpr std::int64_t FILE_PIXELS_MAX = 100'000'000;

/// Most names of missing bitmaps that are remembered.
constexpr std::size_t MISSING_MAX = 1000;

std::set<std::string> missing; ///< bitmaps that the log has named

/// What becomes of an image's transparent pixels.
enum class Alpha { Ignored, OneBit };

void PutPixels(GdkDrawable* window, GdkGC* gc, GdkPixbuf* image, int x, int y)
{
    const auto put = gdk_pixbuf_get_has_alpha(image) ? gdk_draw_rgb_32_image : gdk_draw_rgb_image;
    put(window, gc, x, y, gdk_pixbuf_get_width(image), gdk_pixbuf_get_height(image), GDK_RGB_DITHER_NONE,
        gdk_pixbuf_get_pixels(image), gdk_pixbuf_get_rowstride(image));
}

/// Draws only the pixels that are opaque to the last bit, through a clip mask that is taken away again.
void PutOpaquePixels(GdkDrawable* window, GdkGC* gc, GdkPixbuf* image, int x, int y)
{
    const int width = gdk_pixbuf_get_width(image);
    const int height = gdk_pixbuf_get_height(image);
    const BitmapPtr mask(gdk_pixmap_new(window, width, height, 1));
    gdk_pixbuf_render_threshold_alpha(image, mask.get(), 0, 0, 0, 0, width, height, 255);
    gdk_gc_set_clip_mask(gc, mask.get());
    gdk_gc_set_clip_origin(gc, x, y);
    PutPixels(window, gc, image, x, y);
    gdk_gc_set_clip_mask(gc, nullptr);
    gdk_gc_set_clip_origin(gc, 0, 0);
}

/// Scales an image into a box and draws it. Memory is taken only for the part within the drawable.
void PutScaled(GdkDrawable* window, GdkGC* gc, GdkPixbuf* image, RECT box, Alpha alpha)
{
    const std::int64_t width = std::int64_t{box.right} - box.left;
    const std::int64_t height = std::int64_t{box.bottom} - box.top;
    if (!image || width <= 0 || height <= 0 || width > EDGE_MAX || height > EDGE_MAX)
        return;
    int right = 0;
    int bottom = 0;
    gdk_drawable_get_size(window, &right, &bottom);
    const int left = std::max(box.left, 0);
    const int top = std::max(box.top, 0);
    right = std::min(box.right, right);
    bottom = std::min(box.bottom, bottom);
    if (left >= right || top >= bottom)
        return;

    const PixbufPtr part(
        gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(image), 8, right - left, bottom - top));
    if (!part)
        return;
    gdk_pixbuf_scale(image, part.get(), 0, 0, right - left, bottom - top, box.left - left, box.top - top,
                     static_cast<double>(width) / gdk_pixbuf_get_width(image),
                     static_cast<double>(height) / gdk_pixbuf_get_height(image), GDK_INTERP_TILES);
    if (alpha == Alpha::OneBit)
        PutOpaquePixels(window, gc, part.get(), left, top);
    else
        PutPixels(window, gc, part.get(), left, top);
}

/// Copy of an image in which one colour is transparent.
PixbufPtr KeyedImage(const PixbufPtr& image, int red, int green, int blue)
{
    return PixbufPtr(image ? gdk_pixbuf_add_alpha(image.get(), TRUE, static_cast<guchar>(red),
                                                  static_cast<guchar>(green), static_cast<guchar>(blue))
                           : nullptr);
}

PixbufPtr XpmImage(const char* const* lines)
{
    if (!lines || !lines[0])
        return nullptr;
    return PixbufPtr(gdk_pixbuf_new_from_xpm_data(const_cast<const char**>(lines)));
}

/// Loads a plain file of a sane size; null otherwise.
PixbufPtr FileImage(const std::string& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return nullptr;
    int width = 0;
    int height = 0;
    if (!gdk_pixbuf_get_file_info(path.c_str(), &width, &height) ||
        std::int64_t{width} * height > FILE_PIXELS_MAX)
        return nullptr;
    return PixbufPtr(gdk_pixbuf_new_from_file(path.c_str(), nullptr));
}

/// Tells the log once about each bitmap that can not be loaded, not at every draw.
void ReportMissing(const char* name)
{
    if (missing.size() >= MISSING_MAX || !missing.insert(name).second)
        return;
    char text[SIZE_LOGMESG2 + 2];
    std::snprintf(text, sizeof text, "ビットマップの読込みに失敗 [%s]", name);
    LogfileWrite("DRAWCNTL", text, nullptr, 0);
}

/// Writes one of a mark's two colour lines.
void SetMarkColor(int mark, int line, char key, int red, int green, int blue)
{
    std::snprintf(Mark_XPM[mark].data[line], SIZE_MARKLINE, "%c c #%02X%02X%02X", key, red, green, blue);
}

} // namespace

void tessary::BitmapExit()
{
    missing.clear();
}

void CDraw::DrawMark(int xpos1, int ypos1, int xpos2, int ypos2, int colr1, int colr2, int mark)
{
    // clang-format off
    DRAW_CHECK((colr1 >= 0) && (colr1 < CONT_COLR ));
    DRAW_CHECK((colr2 >= -1) && (colr2 < CONT_COLR ));
    DRAW_CHECK((mark >= 0) && (mark < CONT_MARK+4));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const RECT box = ::SetRect(xpos1, ypos1, xpos2, ypos2);
    const GdkColor& front = DrawColr[colr1];
    SetMarkColor(mark, 2, 'X', front.red >> 8, front.green >> 8, front.blue >> 8);
    if (colr2 == -1) {
        SetMarkColor(mark, 1, '.', 1, 2, 3);
        const PixbufPtr image = KeyedImage(XpmImage(Mark_XPM[mark].mark), 1, 2, 3);
        PutScaled(window, gc, image.get(), box, Alpha::OneBit);
        return;
    }
    const GdkColor& back = DrawColr[colr2];
    SetMarkColor(mark, 1, '.', back.red >> 8, back.green >> 8, back.blue >> 8);
    PutScaled(window, gc, XpmImage(Mark_XPM[mark].mark).get(), box, Alpha::Ignored);
}

void CDraw::DrawBmap(int xpos1, int ypos1, int xpos2, int ypos2, int colr, const char* name)
{
    // clang-format off
    DRAW_CHECK((colr >= -1) && (colr < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    if (!name || !*name)
        return;
    const PixbufPtr image = FileImage(std::string(ProjPath) + "/Bitmap/" + name);
    if (!image) {
        ReportMissing(name);
        return;
    }
    const RECT box = ::SetRect(xpos1, ypos1, xpos2, ypos2);
    if (colr == -1) {
        PutScaled(window, gc, image.get(), box, Alpha::Ignored);
        return;
    }
    // The low byte of each component is the key, not the high byte as for marks.
    const GdkColor& key = DrawColr[colr];
    PutScaled(window, gc, KeyedImage(image, key.red & 0xFF, key.green & 0xFF, key.blue & 0xFF).get(), box,
              Alpha::OneBit);
}

void CDraw::DrawXpm(int xpos1, int ypos1, int xpos2, int ypos2, const char* const* name)
{
    // clang-format off
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    PutScaled(window, gc, XpmImage(name).get(), ::SetRect(xpos1, ypos1, xpos2, ypos2), Alpha::Ignored);
}
