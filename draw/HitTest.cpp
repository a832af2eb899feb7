#include "draw/HitTest.h"

#include "base/Coord.h"
#include "draw/DrawCntl.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace tessary;

namespace
{

/// Inclusive, the ends in either order.
bool Between(std::int64_t value, std::int64_t end1, std::int64_t end2)
{
    return std::min(end1, end2) <= value && value <= std::max(end1, end2);
}

/// The test of a line that no tolerance across an axis has accepted: a box around it, and in the box the
/// vertical distance from the box's falling diagonal. So a line that rises to the right is tested against
/// the other diagonal.
int TestDiagonal(POINT p, RECT r)
{
    // The corners are padded before they are ordered: a line drawn to the left or upwards gets a box that is
    // narrower or lower by the padding.
    constexpr int pad = 5;
    const RECT b =
        SetRect(Shift(r.left, -pad), Shift(r.top, -pad), Shift(r.right, pad), Shift(r.bottom, pad));
    if (!PointInRect(p, b) || b.left == b.right || b.top == b.bottom)
        return 0;

    // Single precision throughout, so that points on the limit decide the same way everywhere.
    const float left = static_cast<float>(b.left);
    const float top = static_cast<float>(b.top);
    const float slope = (top - static_cast<float>(b.bottom)) / (left - static_cast<float>(b.right));
    const float offset = top - left * slope;
    const float distance = static_cast<float>(p.y) - static_cast<float>(p.x) * slope - offset;
    return std::fabs(distance) < 10.0f;
}

} // namespace

int PointInRect(POINT p, int x1, int y1, int x2, int y2)
{
    return Between(p.x, x1, x2) && Between(p.y, y1, y2);
}

int PointInRect(POINT p, RECT r)
{
    return PointInRect(p, r.left, r.top, r.right, r.bottom);
}

int TestRect(POINT p, RECT r)
{
    return PointInRect(p, r);
}

int TestText(POINT p, int x, int y, int font, const char* text)
{
    const SIZE cell = FontCell(font);
    const std::int64_t length = text ? static_cast<std::int64_t>(std::strlen(text)) : 0;
    return PointInRect(p, x, y, Saturate(x + cell.cx * length), Shift(y, cell.cy));
}

int TestLine(POINT p, RECT r)
{
    if (r.left == r.right && r.top != r.bottom && Between(std::int64_t{p.x} - r.left, -5, 5) &&
        Between(p.y, r.top, r.bottom))
        return 1;
    if (r.top == r.bottom && r.left != r.right && Between(std::int64_t{p.y} - r.top, -4, 4) &&
        Between(p.x, r.left, r.right))
        return 1;
    return TestDiagonal(p, r);
}

int TestCrcl(POINT p, RECT r)
{
    if (!PointInRect(p, r) || r.left == r.right || r.top == r.bottom)
        return 0;
    const double left = r.left;
    const double top = r.top;
    const double dx = p.x - (r.right + left) / 2.0;
    const double dy = p.y - (r.bottom + top) / 2.0;
    const double a = (left - r.right) / 2.0;
    const double b = (top - r.bottom) / 2.0;
    return dy * dy / (b * b) + dx * dx / (a * a) <= 1.1;
}
