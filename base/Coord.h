// Arithmetic on coordinates that a damaged pattern may have put anywhere in the int range.
#pragma once

#include <cstdint>

namespace tessary
{

/// A sum or product computed in 64 bits, held at the ends of the int range. Both ends lie far outside any
/// drawable, so nothing that can be seen moves.
constexpr int Saturate(std::int64_t value)
{
    return value < INT32_MIN ? INT32_MIN : value > INT32_MAX ? INT32_MAX : static_cast<int>(value);
}

/// A coordinate moved by an offset.
constexpr int Shift(int coordinate, int offset)
{
    return Saturate(std::int64_t{coordinate} + offset);
}

} // namespace tessary
