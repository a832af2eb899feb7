// The plain types that every module and every record shares.
#pragma once

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using UINT = std::uint32_t;
using BOOL = std::int32_t;
using LPTSTR = char*;

/// A position in pixels; x grows to the right, y downwards.
struct POINT {
    std::int32_t x;
    std::int32_t y;
};

/// An extent in pixels.
struct SIZE {
    std::int32_t cx;
    std::int32_t cy;
};

/// A rectangle in pixels. `width` is right - left and `height` is bottom - top, without the "+1".
/// Functions that take a RECT read the four edges only, unless they say otherwise.
struct RECT {
    std::int32_t left;
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
    std::int32_t width;
    std::int32_t height;
};

/// Builds the rectangle between two opposite corners, given in either order.
/// Coordinates are pixels; `width` and `height` of the result are plain differences.
RECT SetRect(int x1, int y1, int x2, int y2);
