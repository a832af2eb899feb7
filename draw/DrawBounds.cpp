#include "draw/DrawBounds.h"

#include "base/Limits.h"

#include <algorithm>
#include <cmath>
#include <gdk/gdk.h>

namespace tessary
{

namespace
{

// One less than the display's negative limit, so that an outline from end to end still has a 16-bit width.
constexpr int COORD_MAX = tessary::COORDINATE_MAX;
constexpr int COORD_MIN = -COORD_MAX;

int Bound(int coordinate)
{
    return std::clamp(coordinate, COORD_MIN, COORD_MAX);
}

bool InBounds(int coordinate)
{
    return Bound(coordinate) == coordinate;
}

/// Narrows the part [from, to] of a line, in fractions of its length, to that within the display's
/// coordinates along one axis. False when nothing of it is.
bool ClipAxis(double start, double delta, double& from, double& to)
{
    if (delta == 0)
        return start >= COORD_MIN && start <= COORD_MAX;
    double enter = (COORD_MIN - start) / delta;
    double leave = (COORD_MAX - start) / delta;
    if (enter > leave)
        std::swap(enter, leave);
    from = std::max(from, enter);
    to = std::min(to, leave);
    return from <= to;
}

} // namespace

void FillBounded(GdkDrawable* window, GdkGC* gc, int left, int top, int right, int bottom)
{
    const int x = Bound(left);
    const int y = Bound(top);
    gdk_draw_rectangle(window, gc, TRUE, x, y, Bound(right) - x, Bound(bottom) - y);
}

void FrameBounded(GdkDrawable* window, GdkGC* gc, int left, int top, int right, int bottom)
{
    const int x = Bound(left);
    const int y = Bound(top);
    gdk_draw_rectangle(window, gc, FALSE, x, y, Bound(right) - x, Bound(bottom) - y);
}

void EllipseBounded(GdkDrawable* window, GdkGC* gc, bool filled, int left, int top, int right, int bottom)
{
    const int x = Bound(left);
    const int y = Bound(top);
    gdk_draw_arc(window, gc, filled, x, y, Bound(right) - x, Bound(bottom) - y, 0, 360 * 64);
}

void LineBounded(GdkDrawable* window, GdkGC* gc, int x1, int y1, int x2, int y2)
{
    if (InBounds(x1) && InBounds(y1) && InBounds(x2) && InBounds(y2)) {
        gdk_draw_line(window, gc, x1, y1, x2, y2);
        return;
    }

    const double dx = static_cast<double>(x2) - x1;
    const double dy = static_cast<double>(y2) - y1;
    double from = 0;
    double to = 1;
    if (!ClipAxis(x1, dx, from, to) || !ClipAxis(y1, dy, from, to))
        return;
    const auto along = [](double start, double delta, double part) {
        return Bound(static_cast<int>(std::lround(start + part * delta)));
    };
    gdk_draw_line(window, gc, along(x1, dx, from), along(y1, dy, from), along(x1, dx, to), along(y1, dy, to));
}

void TextBounded(GdkDrawable* window, GdkGC* gc, GdkFont* font, int x, int y, const char* text)
{
    if (InBounds(x) && InBounds(y))
        gdk_draw_string(window, font, gc, x, y, text);
}

} // namespace tessary
