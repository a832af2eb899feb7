#include "window/Enlarge.h"

#include "draw/DrawScope.h"
#include "draw/ToolkitPtr.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <memory>

namespace tessary
{

namespace
{

/// Edge of the parts in which areas are copied. It bounds what the pixmaps between take, and how far the
/// server's fixed-point arithmetic can stray within one.
constexpr int TILE = 512;

struct ContextEnd {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using ContextPtr = std::unique_ptr<cairo_t, ContextEnd>;

/// A place in a drawable, between its pixels.
struct Spot {
    double x;
    double y;
};

/// Fills an area with another drawable: `step` pixels of it for one, from `origin` for (0, 0) on.
void Fill(GdkDrawable* target, const Box& area, GdkPixmap* source, double step, Spot origin,
          cairo_filter_t filter)
{
    const ContextPtr context(gdk_cairo_create(target));
    gdk_cairo_set_source_pixmap(context.get(), source, 0, 0);
    cairo_pattern_t* const pattern = cairo_get_source(context.get());
    const cairo_matrix_t matrix = {step, 0, 0, step, origin.x, origin.y};
    cairo_pattern_set_matrix(pattern, &matrix);
    cairo_pattern_set_filter(pattern, filter);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_rectangle(context.get(), area.left, area.top, area.right - area.left, area.bottom - area.top);
    cairo_fill(context.get());
}

PixmapPtr NewPixmap(GdkDrawable* like, int width, int height)
{
    return PixmapPtr(gdk_pixmap_new(like, width, height, -1));
}

/// One part of the copy.
class Tile
{
  public:
    Tile(GdkDrawable* window, GdkPixmap* buffer, POINT offset, const Scale& scale, const Box& area)
        : window_(window), buffer_(buffer), offset_(offset), factor_(scale.factor()), area_(area)
    {
    }

    void square() const { Fill(window_, area_, buffer_, 1 / factor_, begin({0, 0}), CAIRO_FILTER_NEAREST); }

    void enlarge() const
    {
        const Box needed = neededOfBuffer();
        if (needed.empty())
            return;
        const int steps = static_cast<int>(std::ceil(factor_));
        const PixmapPtr squares =
            NewPixmap(window_, (needed.right - needed.left) * steps, (needed.bottom - needed.top) * steps);
        Fill(squares.get(), WholeOf(squares.get()), buffer_, 1.0 / steps,
             {static_cast<double>(needed.left), static_cast<double>(needed.top)}, CAIRO_FILTER_NEAREST);
        const Spot origin = begin({needed.left, needed.top});
        Fill(window_, area_, squares.get(), steps / factor_, {origin.x * steps, origin.y * steps},
             CAIRO_FILTER_BILINEAR);
    }

    /// @param halvings  at least one
    void reduce(int halvings) const
    {
        int width = (area_.right - area_.left) << halvings;
        int height = (area_.bottom - area_.top) << halvings;
        PixmapPtr larger = NewPixmap(window_, width, height);
        Fill(larger.get(), WholeOf(larger.get()), buffer_, 1 / (factor_ * (1 << halvings)),
             {offset_.x + area_.left / factor_, offset_.y + area_.top / factor_}, CAIRO_FILTER_BILINEAR);
        while (--halvings > 0) {
            width /= 2;
            height /= 2;
            PixmapPtr half = NewPixmap(window_, width, height);
            Fill(half.get(), WholeOf(half.get()), larger.get(), 2, {0, 0}, CAIRO_FILTER_BILINEAR);
            larger = std::move(half);
        }
        Fill(window_, area_, larger.get(), 2, {-2.0 * area_.left, -2.0 * area_.top}, CAIRO_FILTER_BILINEAR);
    }

  private:
    /// The window's left upper corner in a part of the buffer.
    Spot begin(POINT part) const
    {
        return {static_cast<double>(offset_.x) - part.x, static_cast<double>(offset_.y) - part.y};
    }

    /// With the pixels around that are blended with.
    Box neededOfBuffer() const
    {
        const auto first = [&](int at, int offset) {
            return static_cast<int>(std::floor(at / factor_)) + offset - 1;
        };
        const auto end = [&](int at, int offset) {
            return static_cast<int>(std::ceil(at / factor_)) + offset + 1;
        };
        return Common(WholeOf(buffer_), {first(area_.left, offset_.x), first(area_.top, offset_.y),
                                         end(area_.right, offset_.x), end(area_.bottom, offset_.y)});
    }

    GdkDrawable* window_;
    GdkPixmap* buffer_;
    POINT offset_;
    double factor_;
    Box area_;
};

/// How often what is twice as large fits the buffer's own size.
int Halvings(double factor)
{
    return factor < 1 ? static_cast<int>(std::ceil(-std::log2(factor))) : 0;
}

} // namespace

void CopyScaled(GdkDrawable* window, GdkPixmap* buffer, POINT offset, const Scale& scale, const Box& area)
{
    const int halvings = std::min(Halvings(scale.factor()), 8);
    const int edge = TILE >> halvings;
    for (int top = area.top; top < area.bottom; top += edge) {
        for (int left = area.left; left < area.right; left += edge) {
            const Box part = {left, top, std::min(left + edge, area.right),
                              std::min(top + edge, area.bottom)};
            const Tile tile(window, buffer, offset, scale, part);
            if (halvings > 0)
                tile.reduce(halvings);
            else if (scale.whole())
                tile.square();
            else
                tile.enlarge();
        }
    }
}

} // namespace tessary
