// What golden pictures are drawn with: named colours, and bitmap fonts that are the same on every machine.
#pragma once

#include "tests/support/Canvas.h"

/// Colour numbers of useSheet().
enum SheetColor {
    BLACK,
    WHITE,
    PAPER,
    STRIPE,
    SILVER,
    GREY,
    CHARCOAL,
    NAVY,
    BLUE,
    SKY,
    GREEN,
    LIME,
    YELLOW,
    ORANGE,
    RED,
    MAROON,
};

/// Sets the colours above and loads font 0, 1 and 2 with 14, 16 and 24 pixels.
void useSheet();

/// Loads the bitmap fonts of that height (14, 16, 24) by their full names, so that other fonts of a machine
/// are never taken instead; the test fails, naming the packages, when one of them is not installed.
void useBitmapFont(int number, int height);

/// A canvas of PAPER with STRIPEs of four rows, on which every transparent pixel can be told.
class Sheet : public Canvas
{
  public:
    Sheet(int width, int height);
};

/// Each pixel as a square of `factor` x `factor`.
Picture enlarged(const Picture& picture, int factor);
