// A pixmap to draw on, read back as pixels to compare with those that a test builds from the rules.
#pragma once

#include "draw/DrawCntl.h"
#include "tests/support/Picture.h"

#include <cstdint>

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
    static constexpr std::uint32_t GROUND = 0xFEDCBA;

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
    tessary::PaintDrawPtr draw_;
};
