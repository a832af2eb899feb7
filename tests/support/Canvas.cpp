#include "tests/support/Canvas.h"

#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "tests/support/Toolkit.h"

#include <cstdio>

using namespace tessary;

std::uint32_t color(int number)
{
    const auto part = [](int value) { return static_cast<std::uint32_t>(value) & 0xFF; };
    return part(number * 2 + 17) << 16 | part(number * 5 + 3) << 8 | part(255 - number);
}

void setColor(int number, int red, int green, int blue)
{
    ColrData[number] = {red, green, blue};
    GdkColor& allocated = DrawColr[number];
    allocated.pixel = 0;
    allocated.red = static_cast<guint16>(red);
    allocated.green = static_cast<guint16>(green);
    allocated.blue = static_cast<guint16>(blue);
    gdk_color_alloc(gdk_colormap_get_system(), &allocated);
}

void usePalette()
{
    useToolkit();
    for (int number = 0; number < CONT_COLR; number++) {
        const auto component = [&](int shift) {
            return static_cast<int>(color(number) >> shift & 0xFF) * 257;
        };
        setColor(number, component(16), component(8), component(0));
    }
    for (int number = 0; number < CONT_FONT; number++) {
        DrawFont[number] = nullptr;
        FontSize[number] = {0, 0};
    }
}

void useFont(int number, int height)
{
    useToolkit();
    char name[100];
    std::snprintf(name, sizeof name, "-*-fixed-medium-r-normal--%d-*-*-*-c-*-*-*", height);
    DrawFont[number] = gdk_fontset_load(name);
    FontSize[number] = {height / 2, height};
}

Canvas::Canvas(int width, int height) : width_(width), height_(height)
{
    useToolkit();
    pixmap_ = gdk_pixmap_new(gdk_get_default_root_window(), width, height, -1);
    draw_.reset(new CPaintDraw(pixmap_));
    clear();
}

Canvas::~Canvas()
{
    draw_.reset();
    g_object_unref(pixmap_);
}

void Canvas::clear()
{
    const GcPtr gc(gdk_gc_new(pixmap_));
    GdkColor fill{};
    fill.red = (GROUND >> 16 & 0xFF) * 257;
    fill.green = (GROUND >> 8 & 0xFF) * 257;
    fill.blue = (GROUND & 0xFF) * 257;
    gdk_gc_set_rgb_fg_color(gc.get(), &fill);
    gdk_draw_rectangle(pixmap_, gc.get(), TRUE, 0, 0, width_, height_);
}

Picture Canvas::blank() const
{
    return {width_, height_, GROUND};
}

Picture Canvas::picture() const
{
    const ObjectPtr<GdkImage> image(gdk_drawable_get_image(pixmap_, 0, 0, width_, height_));
    Picture picture = blank();
    for (int y = 0; y < height_; y++)
        for (int x = 0; x < width_; x++)
            picture.set(x, y, gdk_image_get_pixel(image.get(), x, y) & 0xFFFFFF);
    return picture;
}
