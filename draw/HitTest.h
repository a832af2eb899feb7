// Does a point hit a shape? All results are 1 for a hit and 0 otherwise. The tolerances decide how forgiving
// the panel is to a finger. Only the four edges of a RECT are read.
#pragma once

#include "base/Types.h"

/// Inside or on the edge of a box whose corners come in any order.
int PointInRect(POINT p, int x1, int y1, int x2, int y2);
int PointInRect(POINT p, RECT r); ///< the same

/// Same as PointInRect.
int TestRect(POINT p, RECT r);

/// In the nominal box of a text: one font cell per byte. A font number without a font, or outside the
/// table, has an empty cell, so that only the box's corner hits.
int TestText(POINT p, int x, int y, int font, const char* text);

/// Near the line from (left, top) to (right, bottom), which need not be ordered: 5 pixels beside a vertical
/// line, 4 beside a horizontal one, vertically less than 10 from any other.
int TestLine(POINT p, RECT r);

/// In the ellipse inscribed in r, enlarged by 10 % of the squared radius and cut at r; an r without width or
/// height is never hit.
int TestCrcl(POINT p, RECT r);
