// Texts and buttons.
#include "base/Coord.h"
#include "draw/DrawBounds.h"
#include "draw/DrawCheck.h"
#include "draw/DrawCntl.h"
#include "draw/DrawScope.h"
#include "draw/Resource.h"

#include <algorithm>
#include <cstring>

using namespace tessary;

namespace
{

/// A text's extents from its origin on the baseline; `width` is the advance to the next text.
struct Extents {
    int lbearing = 0;
    int rbearing = 0;
    int width = 0;
    int ascent = 0;
    int descent = 0;
};

bool Drawable(int font, const char* text)
{
    return text && *text && font >= 0 && font < CONT_FONT && DrawFont[font];
}

Extents Measure(int font, const char* text)
{
    Extents extents;
    gdk_text_extents(DrawFont[font], text, static_cast<int>(std::strlen(text)), &extents.lbearing,
                     &extents.rbearing, &extents.width, &extents.ascent, &extents.descent);
    return extents;
}

/// The ink of a text with its origin at (x, y) on the baseline.
Box InkOf(const Extents& extents, int x, int y)
{
    return {Shift(x, std::min(0, extents.lbearing)), Shift(y, -extents.ascent),
            Shift(x, std::max(extents.rbearing, extents.width)), Shift(y, extents.descent)};
}

} // namespace

SIZE tessary::FontCell(int font)
{
    return font >= 0 && font < CONT_FONT ? FontSize[font] : SIZE{0, 0};
}

void CDraw::DrawText(int xpos, int ypos, int font, int colr1, int colr2, const char* text)
{
    // clang-format off
    DRAW_CHECK((font >= 0) && (font < CONT_FONT));
    DRAW_CHECK((colr1 >= 0) && (colr1 < CONT_COLR));
    DRAW_CHECK((colr2 >= -1) && (colr2 < CONT_COLR));
    // clang-format on
    if (!Drawable(font, text))
        return;
    const OwnRequests own(gc);
    const Extents extents = Measure(font, text);
    const int line = FontSize[font].cy;
    if (colr2 != -1)
        DrawRect(xpos, ypos, Shift(xpos, std::max(0, extents.width)), Shift(ypos, line), 0, 0, colr2, colr2);
    const int baseline = Shift(ypos, (extents.ascent + line - extents.descent) / 2);
    if (!Admits(gc, InkOf(extents, xpos, baseline)))
        return;
    gdk_gc_set_foreground(gc, &DrawColr[colr1]);
    TextBounded(window, gc, DrawFont[font], xpos, baseline, text);
}

void CDraw::ClearText(int xpos, int ypos, int font, int colr, const char* text)
{
    // clang-format off
    DRAW_CHECK((font >= 0) && (font < CONT_FONT));
    DRAW_CHECK((colr >= 0) && (colr < CONT_COLR));
    // clang-format on
    const SIZE size = GetTextSize(font, text);
    DrawRect(xpos, ypos, Shift(xpos, std::max(0, size.cx)), Shift(ypos, std::max(0, size.cy)), 0, 0, colr,
             colr);
}

SIZE CDraw::GetTextSize(int font, const char* text)
{
    if (!Drawable(font, text))
        return {0, 0};
    const Extents extents = Measure(font, text);
    return {extents.lbearing + extents.rbearing, extents.ascent + extents.descent};
}

void CDraw::DrawButn(int xpos1, int ypos1, int xpos2, int ypos2, int wide, int colr1, int colr2, int colr3,
                     int colr4, int post, int font, const char* butn)
{
    // clang-format off
    DRAW_CHECK((font >= 0) && (font < CONT_FONT));
    DRAW_CHECK((wide >= 0) && (wide < 99));
    DRAW_CHECK((colr1 >= 0) && (colr1 < CONT_COLR));
    DRAW_CHECK((colr2 >= 0) && (colr2 < CONT_COLR));
    DRAW_CHECK((colr3 >= 0) && (colr3 < CONT_COLR));
    DRAW_CHECK((colr4 >= 0) && (colr4 < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const OwnRequests own(gc);
    DrawGbox(xpos1, ypos1, xpos2, ypos2, wide, wide, wide, wide, colr1, colr2, colr1, colr2, colr3);
    if (!Drawable(font, butn))
        return;

    // Centred by the sum of the bearings, not by the ink's width: a caption whose ink begins right of its
    // origin stands that much to the left.
    const Extents extents = Measure(font, butn);
    const std::int64_t width = std::int64_t{xpos2} - xpos1;
    const std::int64_t height = std::int64_t{ypos2} - ypos1;
    const std::int64_t indent = post != -1 ? post : (width - (extents.lbearing + extents.rbearing)) / 2;
    const std::int64_t baseline = (height - (extents.ascent + extents.descent)) / 2 + extents.ascent;
    const POINT origin = {Saturate(xpos1 + indent), Saturate(ypos1 + baseline)};
    if (!Admits(gc, InkOf(extents, origin.x, origin.y)))
        return;
    gdk_gc_set_foreground(gc, &DrawColr[colr4]);
    gdk_gc_set_background(gc, &DrawColr[colr3]);
    TextBounded(window, gc, DrawFont[font], origin.x, origin.y, butn);
}
