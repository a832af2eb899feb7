// Marks, bitmap files and built-in pictures. Every call makes its image anew, scales the part of it that can
// be seen, and releases it; only files that are drawn in parts are kept.
#include "base/Limits.h"
#include "config/Edition.h"
#include "config/Settings.h"
#include "draw/DrawCheck.h"
#include "draw/DrawCntl.h"
#include "draw/DrawScope.h"
#include "draw/ImageFile.h"
#include "draw/Resource.h"

#include <cstdio>
#include <string>

using namespace tessary;

namespace
{

/// Longest edge of a scaled image, the end of the display's coordinates.
constexpr std::int64_t EDGE_MAX = COORDINATE_MAX;

/// What becomes of an image's transparent pixels.
enum class Alpha {
    Ignored,
    OneBit,  ///< all but the opaque ones are left out
    Blended, ///< what lies below shows through
};

/// Where images go.
struct Target {
    GdkDrawable* window;
    GdkGC* gc;
    Box visible; ///< the part that can be drawn on
};

/// Whether a colour of the display has more than the eight bits that the toolkit's own images know.
bool IsDeep()
{
    return gdk_visual_get_system()->red_prec > 8;
}

/// A copy of an image on which every pixel is either opaque or not there. @param least  alpha of the opaque
/// ones
PixbufPtr Decided(GdkPixbuf* image, int least)
{
    PixbufPtr copy(gdk_pixbuf_copy(image));
    if (!copy || !gdk_pixbuf_get_has_alpha(copy.get()))
        return copy;
    guchar* row = gdk_pixbuf_get_pixels(copy.get());
    for (int y = 0; y < gdk_pixbuf_get_height(copy.get()); ++y, row += gdk_pixbuf_get_rowstride(copy.get()))
        for (int x = 0; x < gdk_pixbuf_get_width(copy.get()); ++x)
            row[4 * x + 3] = row[4 * x + 3] >= least ? 255 : 0;
    return copy;
}

/// The same as below for displays of ten bits a colour.
void PutDeep(const Target& target, GdkPixbuf* part, int x, int y, Alpha alpha)
{
    PixbufPtr decided;
    if (alpha != Alpha::Blended)
        decided = Decided(part, alpha == Alpha::OneBit ? 255 : 0);
    GdkPixbuf* const image = decided ? decided.get() : part;
    cairo_t* const context = gdk_cairo_create(target.window);
    const Box& visible = target.visible;
    cairo_rectangle(context, visible.left, visible.top, visible.right - visible.left,
                    visible.bottom - visible.top);
    cairo_clip(context);
    gdk_cairo_set_source_pixbuf(context, image, x, y);
    cairo_paint(context);
    cairo_destroy(context);
}

void PutPixels(const Target& target, GdkPixbuf* image, int x, int y)
{
    const auto put = gdk_pixbuf_get_has_alpha(image) ? gdk_draw_rgb_32_image : gdk_draw_rgb_image;
    put(target.window, target.gc, x, y, gdk_pixbuf_get_width(image), gdk_pixbuf_get_height(image),
        GDK_RGB_DITHER_NONE, gdk_pixbuf_get_pixels(image), gdk_pixbuf_get_rowstride(image));
}

/// Draws only the pixels that are opaque to the last bit, through a clip mask that is taken away again. The
/// image lies within the clip that the mask takes the place of.
void PutOpaquePixels(const Target& target, GdkPixbuf* image, int x, int y)
{
    const int width = gdk_pixbuf_get_width(image);
    const int height = gdk_pixbuf_get_height(image);
    const BitmapPtr mask(gdk_pixmap_new(target.window, width, height, 1));
    gdk_pixbuf_render_threshold_alpha(image, mask.get(), 0, 0, 0, 0, width, height, 255);
    gdk_gc_set_clip_mask(target.gc, mask.get());
    gdk_gc_set_clip_origin(target.gc, x, y);
    PutPixels(target, image, x, y);
    gdk_gc_set_clip_mask(target.gc, nullptr);
    gdk_gc_set_clip_origin(target.gc, 0, 0);
    if (IsClipped(target.gc))
        ApplyClip(target.gc);
}

void PutPart(const Target& target, GdkPixbuf* part, int x, int y, Alpha alpha)
{
    if (IsDeep())
        PutDeep(target, part, x, y, alpha);
    else if (alpha == Alpha::OneBit)
        PutOpaquePixels(target, part, x, y);
    else if (alpha == Alpha::Blended && gdk_pixbuf_get_has_alpha(part))
        gdk_draw_pixbuf(target.window, target.gc, part, 0, 0, x, y, -1, -1, GDK_RGB_DITHER_NONE, 0, 0);
    else
        PutPixels(target, part, x, y);
}

/// Scales an image into a box and draws it. Memory is taken only for the part that can be seen.
void PutScaled(const Target& target, GdkPixbuf* image, RECT box, Alpha alpha)
{
    const std::int64_t width = std::int64_t{box.right} - box.left;
    const std::int64_t height = std::int64_t{box.bottom} - box.top;
    if (!image || width <= 0 || height <= 0 || width > EDGE_MAX || height > EDGE_MAX)
        return;
    const Box seen = Common(BoxOf(box), target.visible);
    if (seen.empty())
        return;

    const int cx = seen.right - seen.left;
    const int cy = seen.bottom - seen.top;
    const PixbufPtr part(gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(image), 8, cx, cy));
    if (!part)
        return;
    gdk_pixbuf_scale(image, part.get(), 0, 0, cx, cy, box.left - seen.left, box.top - seen.top,
                     static_cast<double>(width) / gdk_pixbuf_get_width(image),
                     static_cast<double>(height) / gdk_pixbuf_get_height(image), GDK_INTERP_TILES);
    PutPart(target, part.get(), seen.left, seen.top, alpha);
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

/// What becomes of the transparency that an image file itself has.
Alpha FileAlpha(const PixbufPtr& image, Alpha otherwise)
{
    return Has(Correction::Transparency) && gdk_pixbuf_get_has_alpha(image.get()) ? Alpha::Blended
                                                                                  : otherwise;
}

/// Writes one of a mark's two colour lines.
void SetMarkColor(int mark, int line, char key, int red, int green, int blue)
{
    std::snprintf(Mark_XPM[mark].data[line], SIZE_MARKLINE, "%c c #%02X%02X%02X", key, red, green, blue);
}

} // namespace

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
    if (!Admits(gc, BoxOf(box)))
        return;
    const OwnRequests own(gc);
    const Target target = {window, gc, VisibleOn(window, gc)};
    const GdkColor& front = DrawColr[colr1];
    SetMarkColor(mark, 2, 'X', front.red >> 8, front.green >> 8, front.blue >> 8);
    if (colr2 == -1) {
        SetMarkColor(mark, 1, '.', 1, 2, 3);
        const PixbufPtr image = KeyedImage(XpmImage(Mark_XPM[mark].mark), 1, 2, 3);
        PutScaled(target, image.get(), box, Alpha::OneBit);
        return;
    }
    const GdkColor& back = DrawColr[colr2];
    SetMarkColor(mark, 1, '.', back.red >> 8, back.green >> 8, back.blue >> 8);
    PutScaled(target, XpmImage(Mark_XPM[mark].mark).get(), box, Alpha::Ignored);
}

void CDraw::DrawBmap(int xpos1, int ypos1, int xpos2, int ypos2, int colr, const char* name)
{
    // clang-format off
    DRAW_CHECK((colr >= -1) && (colr < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const RECT box = ::SetRect(xpos1, ypos1, xpos2, ypos2);
    if (!name || !*name || !Admits(gc, BoxOf(box)))
        return;
    // What is drawn again in parts, many times a second, is not read from the disk each time.
    const std::string folder = std::string(ProjPath) + "/Bitmap";
    if (Has(Correction::PictureFolder) && !StaysInFolder(folder, name)) {
        ReportOutside(name);
        return;
    }
    const std::string path = folder + "/" + name;
    const PixbufPtr image = IsClipped(gc) ? KeptImage(path) : FileImage(path);
    if (!image) {
        ReportMissing(name);
        return;
    }
    const OwnRequests own(gc);
    const Target target = {window, gc, VisibleOn(window, gc)};
    if (colr == -1) {
        PutScaled(target, image.get(), box, FileAlpha(image, Alpha::Ignored));
        return;
    }
    // The low byte of each component is the key, not the high byte as for marks.
    const GdkColor& key = DrawColr[colr];
    PutScaled(target, KeyedImage(image, key.red & 0xFF, key.green & 0xFF, key.blue & 0xFF).get(), box,
              FileAlpha(image, Alpha::OneBit));
}

void CDraw::DrawXpm(int xpos1, int ypos1, int xpos2, int ypos2, const char* const* name)
{
    // clang-format off
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const RECT box = ::SetRect(xpos1, ypos1, xpos2, ypos2);
    if (!Admits(gc, BoxOf(box)))
        return;
    const OwnRequests own(gc);
    PutScaled({window, gc, VisibleOn(window, gc)}, XpmImage(name).get(), box, Alpha::Ignored);
}
