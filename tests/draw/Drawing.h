// What the tests of lines, rectangles and ellipses share.
#pragma once

#include "tests/support/Canvas.h"

#include <gtest/gtest.h>
#include <vector>

constexpr int SOLID = 0;
constexpr int CENTRED = 0;
constexpr int INSIDE = 1;
constexpr int OUTSIDE = 2;
constexpr int NONE = -1;

class Drawing : public testing::Test
{
  protected:
    Drawing() : canvas(40, 30) { usePalette(); }

    Canvas canvas;
};

/// Insets that the outlines of a thick frame have, as the rules list them.
inline std::vector<int> frameInsets(int fomt, int wide)
{
    const std::vector<int> centred = {0, -1, 1, -2, 2, -3, 3};
    const std::vector<int> inside = {0, 1, 2, 3, 4, 5, 6};
    const std::vector<int> outside = {-1, -2, -3, -4, -5, -6, -7};
    const auto& all = fomt == INSIDE ? inside : fomt == OUTSIDE ? outside : centred;
    return {all.begin(), all.begin() + wide};
}
