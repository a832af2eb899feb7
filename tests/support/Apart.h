// How much colours and pictures differ, where they need not be alike to the bit.
#pragma once

#include "tests/support/Picture.h"

#include <algorithm>
#include <cstdlib>

/// How far the channels of two colours are apart at most.
inline int apart(std::uint32_t one, std::uint32_t other)
{
    int most = 0;
    for (int shift = 0; shift <= 16; shift += 8)
        most = std::max(
            most, std::abs(static_cast<int>(one >> shift & 0xFF) - static_cast<int>(other >> shift & 0xFF)));
    return most;
}

/// How far the colours of two pictures of one size are apart at most.
inline int apart(const Picture& one, const Picture& other)
{
    EXPECT_EQ(one.pixels.size(), other.pixels.size());
    int most = 0;
    for (std::size_t i = 0; i < std::min(one.pixels.size(), other.pixels.size()); ++i)
        most = std::max(most, apart(one.pixels[i], other.pixels[i]));
    return most;
}
