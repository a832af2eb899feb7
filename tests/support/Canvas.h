// A pixmap to draw on, read back as pixels, and pictures that a test builds from the rules to compare with.
#pragma once

#include "draw/DrawCntl.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// Pixels as 0xRRGGBB.
class Picture
{
  public:
    Picture(int width, int height, std::uint32_t ground);

    int width() const { return width_; }
    int height() const { return height_; }
    std::uint32_t at(int x, int y) const;

    /// One pixel; outside the picture nothing happens.
    Picture& set(int x, int y, std::uint32_t rgb);
    /// Box without its right column and bottom row.
    Picture& fill(int x1, int y1, int x2, int y2, std::uint32_t rgb);
    /// One-pixel outline with both corners.
    Picture& frame(int x1, int y1, int x2, int y2, std::uint32_t rgb);
    /// Columns x1..x2 - 1 of a row, rows y1..y2 - 1 of a column.
    Picture& row(int x1, int x2, int y, std::uint32_t rgb);
    Picture& column(int x, int y1, int y2, std::uint32_t rgb);
    /// The pixels of `part` that are not `transparent`, with its corner at (x, y).
    Picture& paste(int x, int y, const Picture& part, std::int64_t transparent = -1);

    /// Number of pixels of a colour.
    int count(std::uint32_t rgb) const;
    /// "x1,y1-x2,y2" of the smallest box, both corners included, of all pixels that are not `ground`; "" for
    /// none.
    std::string bounds(std::uint32_t ground) const;

  private:
    int width_;
    int height_;
    std::vector<std::uint32_t> pixels_;
};

/// True when both are alike; tells the first pixel that differs, and how many do.
testing::AssertionResult same(const Picture& drawn, const Picture& expected);

/// Fills the colour tables with 100 different colours and empties the font table.
/// Colour number n is 0xRRGGBB = color(n); all are different from Canvas::ground.
void usePalette();
std::uint32_t color(int number);
/// Gives a colour number other components, on the scale 0..65535.
void setColor(int number, int red, int green, int blue);

/// Loads a font of `height` pixels (14, 16, 24) for a font number; its nominal cell is (height / 2, height).
void useFont(int number, int height);

class Canvas
{
  public:
    static constexpr std::uint32_t ground = 0xFEDCBA;

    /// A pixmap of the display's depth, all `ground`.
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CPaintDraw* operator->() { return draw_.get(); }
    CPaintDraw* draw() { return draw_.get(); }
    GdkPixmap* pixmap() { return pixmap_; }

    /// The pixels as they are now.
    Picture picture() const;
    /// A picture of this size that is all ground, to build the expected one on.
    Picture blank() const;
    void clear();

  private:
    int width_;
    int height_;
    GdkPixmap* pixmap_;
    PaintDrawPtr draw_;
};
