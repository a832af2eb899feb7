// Fixture: a canvas, and marks that hold a pattern by which any shift or turn of it shows.
#pragma once

#include "draw/Resource.h"
#include "tests/support/Canvas.h"

#include <cstring>
#include <gtest/gtest.h>

constexpr int NONE = -1;

/// Whether the mark of these tests has its foreground at a place: a pattern that no mirror, turn or shift
/// maps to itself, with solid blocks of two by two.
inline bool isSet(int x, int y)
{
    return (x * 7 + y * 3) % 5 < 2 || (x / 4 + y / 2) % 3 == 0;
}

/// Pixels of the pattern that lie under one of its half size.
inline int setOfFour(int x, int y)
{
    return isSet(2 * x, 2 * y) + isSet(2 * x + 1, 2 * y) + isSet(2 * x, 2 * y + 1) +
           isSet(2 * x + 1, 2 * y + 1);
}

class Images : public testing::Test
{
  protected:
    Images() : canvas(100, 90)
    {
        usePalette();
        std::memset(MarkData, 0, sizeof MarkData);
        MarkDataInit();
    }

    /// Fills a mark with the pattern above.
    void makeMark(int mark)
    {
        const int width = MarkXsize[mark / 50];
        const int height = MarkYsize[mark / 50];
        for (int bit = 0; bit < width * height; bit++)
            if (isSet(bit % width, bit / width))
                MarkData[mark].mark[bit / 8] |= static_cast<BYTE>(1 << bit % 8);
        MarkDataSet();
        MarkDataInit();
    }

    /// That pattern, every pixel `scale` wide and high.
    static Picture pattern(int width, int height, std::uint32_t front, std::uint32_t back, int scale = 1)
    {
        Picture picture(width * scale, height * scale, back);
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                if (isSet(x, y))
                    picture.fill(x * scale, y * scale, (x + 1) * scale, (y + 1) * scale, front);
        return picture;
    }

    Canvas canvas;
};
