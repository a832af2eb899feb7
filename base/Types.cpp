#include "base/Types.h"

#include <algorithm>

RECT SetRect(int x1, int y1, int x2, int y2)
{
    RECT rect{};
    rect.left = std::min(x1, x2);
    rect.top = std::min(y1, y2);
    rect.right = std::max(x1, x2);
    rect.bottom = std::max(y1, y2);
    // Unsigned, so that a damaged file with corners two thousand million pixels apart wraps and does not
    // trap.
    rect.width = static_cast<int>(static_cast<unsigned>(rect.right) - static_cast<unsigned>(rect.left));
    rect.height = static_cast<int>(static_cast<unsigned>(rect.bottom) - static_cast<unsigned>(rect.top));
    return rect;
}
