#include "tests/support/Picture.h"

#include "draw/ToolkitPtr.h"

#include <algorithm>
#include <cstdio>

using namespace tessary;

namespace
{

constexpr char SOFTWARE[] = "tEXt::Software";

} // namespace

Picture::Picture(int width, int height, std::uint32_t ground)
    : pixels(static_cast<std::size_t>(width * height), ground), width_(width), height_(height)
{
}

std::uint32_t Picture::at(int x, int y) const
{
    return pixels.at(static_cast<std::size_t>(y * width_ + x));
}

Picture& Picture::set(int x, int y, std::uint32_t rgb)
{
    if (x >= 0 && x < width_ && y >= 0 && y < height_)
        pixels[static_cast<std::size_t>(y * width_ + x)] = rgb;
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
    return static_cast<int>(std::count(pixels.begin(), pixels.end(), rgb));
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
        return testing::AssertionFailure()
               << "sizes differ: drawn " << drawn.width() << " x " << drawn.height() << ", expected "
               << expected.width() << " x " << expected.height();
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

bool Picture::save(const std::string& path, const std::string& software) const
{
    const PixbufPtr image(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, width_, height_));
    for (int y = 0; y < height_; y++) {
        guchar* target = gdk_pixbuf_get_pixels(image.get()) + y * gdk_pixbuf_get_rowstride(image.get());
        for (int x = 0; x < width_; x++)
            for (int shift = 16; shift >= 0; shift -= 8)
                *target++ = static_cast<guchar>(at(x, y) >> shift);
    }
    const char* key = software.empty() ? nullptr : SOFTWARE;
    return gdk_pixbuf_save(image.get(), path.c_str(), "png", nullptr, key, software.c_str(), nullptr);
}

std::optional<Picture> Picture::load(const std::string& path, std::string* software)
{
    const PixbufPtr image(gdk_pixbuf_new_from_file(path.c_str(), nullptr));
    if (!image)
        return std::nullopt;
    if (software) {
        const char* text = gdk_pixbuf_get_option(image.get(), SOFTWARE);
        *software = text ? text : "";
    }
    Picture picture(gdk_pixbuf_get_width(image.get()), gdk_pixbuf_get_height(image.get()), 0);
    const int step = gdk_pixbuf_get_n_channels(image.get());
    for (int y = 0; y < picture.height(); y++) {
        const guchar* source = gdk_pixbuf_get_pixels(image.get()) + y * gdk_pixbuf_get_rowstride(image.get());
        for (int x = 0; x < picture.width(); x++, source += step)
            picture.set(x, y, static_cast<std::uint32_t>(source[0] << 16 | source[1] << 8 | source[2]));
    }
    return picture;
}
