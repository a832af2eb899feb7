// The plain types that every module and every record shares.
#pragma once

#include <cstdint>

using BYTE = std::uint8_t;  ///< eight bits
using WORD = std::uint16_t; ///< the word of a cell
using UINT = std::uint32_t; ///< 32 bits without sign
using BOOL = std::int32_t;  ///< 0 or 1
using LPTSTR = char*;       ///< a text, EUC-JP

/// A position in pixels; x grows to the right, y downwards.
struct POINT {
    std::int32_t x; ///< from the left
    std::int32_t y; ///< from the top
};

/// An extent in pixels.
struct SIZE {
    std::int32_t cx; ///< width
    std::int32_t cy; ///< height
};

/// A rectangle in pixels. `width` is right - left and `height` is bottom - top, without the "+1".
/// Functions that take a RECT read the four edges only, unless they say otherwise.
struct RECT {
    std::int32_t left;   ///< first column
    std::int32_t top;    ///< first row
    std::int32_t right;  ///< last column
    std::int32_t bottom; ///< last row
    std::int32_t width;  ///< right - left
    std::int32_t height; ///< bottom - top
};

/// Builds the rectangle between two opposite corners, given in either order.
/// Coordinates are pixels; `width` and `height` of the result are plain differences.
RECT SetRect(int x1, int y1, int x2, int y2);
