// Boxes of pixels, as what is drawn is recorded and restored: the right column and the bottom row are left
// out.
#pragma once

#include "base/Types.h"

#include <algorithm>
#include <cstdint>

namespace tessary
{

struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr bool empty() const { return left >= right || top >= bottom; }
    constexpr std::int64_t pixels() const
    {
        return empty() ? 0 : (std::int64_t{right} - left) * (std::int64_t{bottom} - top);
    }
    constexpr bool operator==(const Box& other) const
    {
        return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
    }
};

constexpr Box BoxOf(const RECT& rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

/// What two boxes have in common, maybe nothing.
constexpr Box Common(const Box& one, const Box& other)
{
    return {std::max(one.left, other.left), std::max(one.top, other.top), std::min(one.right, other.right),
            std::min(one.bottom, other.bottom)};
}

constexpr bool Meet(const Box& one, const Box& other)
{
    return !Common(one, other).empty();
}

/// The smallest box with all pixels of both.
constexpr Box Around(const Box& one, const Box& other)
{
    if (one.empty())
        return other;
    if (other.empty())
        return one;
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

constexpr bool Contains(const Box& outer, const Box& inner)
{
    return inner.empty() || Common(outer, inner) == inner;
}

} // namespace tessary
