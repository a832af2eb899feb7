#include "tests/support/Canvas.h"

#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "tests/support/Toolkit.h"

#include <algorithm>
#include <cstdio>

Picture::Picture(int width, int height, std::uint32_t ground)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), ground)
{
}

std::uint32_t Picture::at(int x, int y) const
{
    return pixels_.at(static_cast<std::size_t>(y * width_ + x));
}

Picture& Picture::set(int x, int y, std::uint32_t rgb)
{
    if (x >= 0 && x < width_ && y >= 0 && y < height_)
        pixels_[static_cast<std::size_t>(y * width_ + x)] = rgb;
    return *this;
}

Picture& Picture::fill(int x1, int y1, int x2, int y2, std::uint32_t rgb)
{
    for (int y = std::max(y1, 0); y < std::min(y2, height_); y++)
        for (int x = std::max(x1, 0); x < std::min(x2, width_); x++)
            set(x, y, rgb);
    return *this;
}

Picture& Picture::frame(int x1, int y1, int x2, int y2, std::uint32_t rgb)
{
    row(x1, x2 + 1, y1, rgb);
    row(x1, x2 + 1, y2, rgb);
    column(x1, y1, y2 + 1, rgb);
    return column(x2, y1, y2 + 1, rgb);
}

Picture& Picture::row(int x1, int x2, int y, std::uint32_t rgb)
{
    return fill(x1, y, x2, y + 1, rgb);
}

Picture& Picture::column(int x, int y1, int y2, std::uint32_t rgb)
{
    return fill(x, y1, x + 1, y2, rgb);
}

Picture& Picture::paste(int x, int y, const Picture& part, std::int64_t transparent)
{
    for (int v = 0; v < part.height(); v++)
        for (int u = 0; u < part.width(); u++)
            if (part.at(u, v) != transparent)
                set(x + u, y + v, part.at(u, v));
    return *this;
}

int Picture::count(std::uint32_t rgb) const
{
    return static_cast<int>(std::count(pixels_.begin(), pixels_.end(), rgb));
}

std::string Picture::bounds(std::uint32_t ground) const
{
    int left = width_;
    int top = height_;
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < height_; y++)
        for (int x = 0; x < width_; x++)
            if (at(x, y) != ground) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = y;
            }
    if (right < 0)
        return "";
    char text[64];
    std::snprintf(text, sizeof text, "%d,%d-%d,%d", left, top, right, bottom);
    return text;
}

testing::AssertionResult same(const Picture& drawn, const Picture& expected)
{
    if (drawn.width() != expected.width() || drawn.height() != expected.height())
        return testing::AssertionFailure() << "sizes differ";
    int differences = 0;
    char first[128] = "";
    for (int y = 0; y < drawn.height(); y++)
        for (int x = 0; x < drawn.width(); x++)
            if (drawn.at(x, y) != expected.at(x, y) && differences++ == 0)
                std::snprintf(first, sizeof first, "first at (%d, %d): drawn %06X, expected %06X", x, y,
                              drawn.at(x, y), expected.at(x, y));
    if (differences == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << differences << " pixels differ, " << first;
}

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
    fill.red = (ground >> 16 & 0xFF) * 257;
    fill.green = (ground >> 8 & 0xFF) * 257;
    fill.blue = (ground & 0xFF) * 257;
    gdk_gc_set_rgb_fg_color(gc.get(), &fill);
    gdk_draw_rectangle(pixmap_, gc.get(), TRUE, 0, 0, width_, height_);
}

Picture Canvas::blank() const
{
    return {width_, height_, ground};
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
