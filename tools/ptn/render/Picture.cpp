#include "tools/ptn/render/Picture.h"

#include <algorithm>
#include <cmath>
#include <gtk/gtk.h>

namespace ptn
{

namespace
{

constexpr int THUMB_WIDTH = 400;
constexpr int THUMB_HEIGHT = 300;
constexpr int MARGIN = 16;
constexpr guint32 SHEET_COLOR = 0x808890FF;

} // namespace

bool OpenDisplay()
{
    // The locale is that of UseEucLocale, which fonts are loaded in.
    gtk_disable_setlocale();
    return gtk_init_check(nullptr, nullptr) != FALSE;
}

Pixmap::Pixmap(int width, int height)
    : width_(width), height_(height),
      pixmap_(gdk_pixmap_new(gdk_get_default_root_window(), width, height, -1)),
      draw_(new CPaintDraw(pixmap_))
{
    // A window's buffer begins with whatever the server has; a picture with black.
    GdkGC* black = gdk_gc_new(pixmap_);
    gdk_draw_rectangle(pixmap_, black, TRUE, 0, 0, width, height);
    g_object_unref(black);
}

Pixmap::~Pixmap()
{
    draw_.reset();
    g_object_unref(pixmap_);
}

PicturePtr Pixmap::picture() const
{
    return PicturePtr(gdk_pixbuf_get_from_drawable(nullptr, pixmap_, gdk_colormap_get_system(), 0, 0, 0, 0,
                                                   width_, height_));
}

bool SavePicture(GdkPixbuf* picture, const std::filesystem::path& file, Diagnostics& diagnostics)
{
    GError* problem = nullptr;
    if (gdk_pixbuf_save(picture, file.c_str(), "png", &problem, nullptr))
        return true;
    diagnostics.error({file.string(), 0},
                      std::string(problem->message) + ". Check the folder's rights and space.");
    g_error_free(problem);
    return false;
}

PicturePtr ContactSheet(const std::vector<PicturePtr>& pictures)
{
    const int count = static_cast<int>(pictures.size());
    const int columns = std::max(1, static_cast<int>(std::ceil(std::sqrt(count))));
    const int rows = std::max(1, (count + columns - 1) / columns);
    PicturePtr sheet(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, columns * (THUMB_WIDTH + MARGIN) + MARGIN,
                                    rows * (THUMB_HEIGHT + MARGIN) + MARGIN));
    gdk_pixbuf_fill(sheet.get(), SHEET_COLOR);
    for (int i = 0; i < count; ++i) {
        GdkPixbuf* picture = pictures[static_cast<std::size_t>(i)].get();
        const double scale = std::min({1.0, 1.0 * THUMB_WIDTH / gdk_pixbuf_get_width(picture),
                                       1.0 * THUMB_HEIGHT / gdk_pixbuf_get_height(picture)});
        const auto scaled = [&](int pixels) { return std::max(1, static_cast<int>(pixels * scale)); };
        const int width = scaled(gdk_pixbuf_get_width(picture));
        const int height = scaled(gdk_pixbuf_get_height(picture));
        const PicturePtr small(gdk_pixbuf_scale_simple(picture, width, height, GDK_INTERP_BILINEAR));
        gdk_pixbuf_copy_area(small.get(), 0, 0, width, height, sheet.get(),
                             MARGIN + i % columns * (THUMB_WIDTH + MARGIN) + (THUMB_WIDTH - width) / 2,
                             MARGIN + i / columns * (THUMB_HEIGHT + MARGIN) + (THUMB_HEIGHT - height) / 2);
    }
    return sheet;
}

} // namespace ptn
