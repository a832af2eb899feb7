// Lines, rectangles, ellipses and bevelled boxes. Thick ones are built of lines one pixel wide, so that the
// place of every pixel is known.
#include "base/Coord.h"
#include "draw/DrawBounds.h"
#include "draw/DrawCheck.h"
#include "draw/DrawCntl.h"
#include "draw/DrawScope.h"
#include "draw/Resource.h"

#include <algorithm>
#include <array>

using namespace tessary;

signed char dash1[2] = {12, 4};
signed char dash2[2] = {4, 2};

namespace
{

// Where the extra pixels of a thick line or frame go; every other value is centred.
enum Format { FOMT_INSIDE = 1, FOMT_OUTSIDE = 2 };

void SetColor(GdkGC* gc, int colr)
{
    gdk_gc_set_foreground(gc, &DrawColr[colr]);
}

/// Of outlines and lines, which cover both of their corners.
Box WithLastPixels(const RECT& box)
{
    return {box.left, box.top, Shift(box.right, 1), Shift(box.bottom, 1)};
}

/// Whether nothing of a box's outline can be seen although it lies around the clip.
bool ClipLiesWithin(GdkGC* gc, const RECT& box)
{
    const DrawState* state = StateOf(gc);
    return state && state->clip &&
           Contains({Shift(box.left, 1), Shift(box.top, 1), box.right, box.bottom}, *state->clip);
}

/// A line one pixel wide with the pen of the context.
void Line1(const CDraw& draw, int xpos1, int ypos1, int xpos2, int ypos2)
{
    if (Admits(draw.gc, WithLastPixels(::SetRect(xpos1, ypos1, xpos2, ypos2))))
        LineBounded(draw.window, draw.gc, xpos1, ypos1, xpos2, ypos2);
}

void SetSolidPen(GdkGC* gc)
{
    gdk_gc_set_line_attributes(gc, 1, GDK_LINE_SOLID, GDK_CAP_BUTT, GDK_JOIN_MITER);
}

void SetDashedPen(GdkGC* gc, signed char (&dashes)[2])
{
    gdk_gc_set_dashes(gc, 0, dashes, 2);
    gdk_gc_set_line_attributes(gc, 1, GDK_LINE_ON_OFF_DASH, GDK_CAP_BUTT, GDK_JOIN_MITER);
}

/// Offset of line i of a thick line parallel to an axis.
int StraightOffset(int fomt, int i)
{
    if (fomt == FOMT_INSIDE)
        return -i - 1;
    if (fomt == FOMT_OUTSIDE)
        return i;
    return i % 2 == 0 ? i / 2 : -(i / 2) - 1;
}

/// Offset of line i of any other thick line. The sequence repeats -1 and leans one pixel to the negative
/// side: 0, -1, -1, 0, -2, 1, ...
int SlantedOffset(int i)
{
    return i % 2 == 0 ? -(i / 2) : i / 2 - 1;
}

/// How far outline i of a thick frame lies inside its box; negative outside.
int FrameInset(int fomt, int i)
{
    if (fomt == FOMT_INSIDE)
        return i;
    if (fomt == FOMT_OUTSIDE)
        return -i - 1;
    return i % 2 == 0 ? i / 2 : -(i / 2) - 1;
}

/// Draws fill and outlines of a frame with DrawRect1 or DrawCrcl1.
using Shape = void (CDraw::*)(int mode, int xpos1, int ypos1, int xpos2, int ypos2);
void DrawFrame(CDraw* draw, Shape shape, RECT box, int wide, int fomt, int colr1, int colr2)
{
    SetSolidPen(draw->gc);
    if (colr2 >= 0) {
        SetColor(draw->gc, colr2);
        (draw->*shape)(1, box.left, box.top, box.right, box.bottom);
    }
    if (wide == 0)
        return;
    SetColor(draw->gc, colr1);
    for (int i = 0; i < wide; i++) {
        const int inset = FrameInset(fomt, i);
        (draw->*shape)(0, Shift(box.left, inset), Shift(box.top, inset), Shift(box.right, -inset),
                       Shift(box.bottom, -inset));
    }
}

/// The 256 shades of the shaded fill, shade k darker by k / 256. They are allocated for every fill.
std::array<GdkColor, 256> MakeShades(const COLRDATA& colr)
{
    std::array<GdkColor, 256> shades{};
    for (int k = 0; k < 256; k++) {
        const auto component = [k](std::int64_t full) { return static_cast<guint16>(full - k * full / 256); };
        GdkColor& shade = shades[static_cast<std::size_t>(k)];
        shade.red = component(colr.red);
        shade.green = component(colr.green);
        shade.blue = component(colr.blue);
        gdk_color_alloc(gdk_colormap_get_system(), &shade);
    }
    return shades;
}

} // namespace

void CDraw::DrawLine(int xpos1, int ypos1, int xpos2, int ypos2, int type, int wide, int fomt, int colr)
{
    // clang-format off
    DRAW_CHECK((type >= 0) && (type < 3 ));
    DRAW_CHECK((wide >= 1) && (wide < 99 ));
    DRAW_CHECK((colr >= 0) && (colr < CONT_COLR));
    // clang-format on
    const OwnRequests own(gc);
    SetColor(gc, colr);
    if (type == 0)
        SetSolidPen(gc);
    else
        SetDashedPen(gc, type == 1 ? dash1 : dash2);

    if (wide == 1) {
        Line1(*this, xpos1, ypos1, xpos2, ypos2);
        return;
    }
    const std::int64_t width = std::abs(std::int64_t{xpos1} - xpos2);
    const std::int64_t height = std::abs(std::int64_t{ypos1} - ypos2);
    const bool slanted = width != 0 && height != 0;
    const bool sideways = slanted ? width < height : width == 0;
    for (int i = 0; i < wide; i++) {
        const int offset = slanted ? SlantedOffset(i) : StraightOffset(fomt, i);
        const int dx = sideways ? offset : 0;
        const int dy = sideways ? 0 : offset;
        Line1(*this, Shift(xpos1, dx), Shift(ypos1, dy), Shift(xpos2, dx), Shift(ypos2, dy));
    }
}

void CDraw::DrawRect(int xpos1, int ypos1, int xpos2, int ypos2, int wide, int fomt, int colr1, int colr2)
{
    // clang-format off
    DRAW_CHECK((wide >= 0) && (wide < 99 ));
    DRAW_CHECK((colr1 >= 0) && (colr1 < CONT_COLR));
    DRAW_CHECK((colr2 >= -1) && (colr2 < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const OwnRequests own(gc);
    DrawFrame(this, &CDraw::DrawRect1, ::SetRect(xpos1, ypos1, xpos2, ypos2), wide, fomt, colr1, colr2);
}

void CDraw::DrawCrcl(int xpos1, int ypos1, int xpos2, int ypos2, int wide, int fomt, int colr1, int colr2)
{
    // clang-format off
    DRAW_CHECK((wide >= 0) && (wide < 99 ));
    DRAW_CHECK((colr1 >= 0) && (colr1 < CONT_COLR));
    DRAW_CHECK((colr2 >= -1) && (colr2 < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const OwnRequests own(gc);
    DrawFrame(this, &CDraw::DrawCrcl1, ::SetRect(xpos1, ypos1, xpos2, ypos2), wide, fomt, colr1, colr2);
}

void CDraw::DrawGbox(int xpos1, int ypos1, int xpos2, int ypos2, int wide1, int wide2, int wide3, int wide4,
                     int colr1, int colr2, int colr3, int colr4, int colr5)
{
    // clang-format off
    DRAW_CHECK((wide1 >= 0) && (wide1 < 99 ));
    DRAW_CHECK((wide2 >= 0) && (wide2 < 99 ));
    DRAW_CHECK((wide3 >= 0) && (wide3 < 99 ));
    DRAW_CHECK((wide4 >= 0) && (wide4 < 99 ));
    DRAW_CHECK((colr1 >= 0) && (colr1 < CONT_COLR));
    DRAW_CHECK((colr2 >= 0) && (colr2 < CONT_COLR));
    DRAW_CHECK((colr3 >= 0) && (colr3 < CONT_COLR));
    DRAW_CHECK((colr4 >= 0) && (colr4 < CONT_COLR));
    DRAW_CHECK((colr5 >= 0) && (colr5 < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    const OwnRequests own(gc);
    SetSolidPen(gc);
    SetColor(gc, colr5);
    DrawRect1(1, xpos1, ypos1, xpos2, ypos2);

    const auto row = [&](int y) { Line1(*this, xpos1, y, xpos2, y); };
    const auto column = [&](int x) { Line1(*this, x, ypos1, x, ypos2); };
    SetColor(gc, colr1);
    for (int i = 0; i < wide1; i++)
        row(Shift(ypos1, i));
    SetColor(gc, colr2);
    for (int i = 0; i < wide2; i++)
        row(Shift(ypos2, -i - 1));
    SetColor(gc, colr3);
    for (int i = 0; i < wide3; i++)
        column(Shift(xpos1, i));
    SetColor(gc, colr4);
    for (int i = 0; i < wide4; i++)
        column(Shift(xpos2, -i - 1));
}

void CDraw::DrawRect(int xpos1, int ypos1, int xpos2, int ypos2, int colr)
{
    const std::int64_t height = std::int64_t{ypos2} - ypos1;
    if (colr < 0 || colr >= CONT_COLR || height <= 0)
        return;

    const OwnRequests own(gc);
    if (!Admits(gc, {std::min(xpos1, xpos2), ypos1, std::max(xpos1, xpos2), ypos2}))
        return;
    // Only the rows that can be seen are visited, however high the box is.
    const Box visible = VisibleOn(window, gc);
    const std::int64_t first = std::max<std::int64_t>(0, std::int64_t{visible.top} - ypos1);
    const std::int64_t last = std::min(height, std::int64_t{visible.bottom} - ypos1);

    SetSolidPen(gc);
    const auto shades = MakeShades(ColrData[colr]);
    for (std::int64_t r = first; r < last; r++) {
        gdk_gc_set_foreground(gc, &shades[static_cast<std::size_t>(r * 255 / height)]);
        const int y = Saturate(ypos1 + r);
        LineBounded(window, gc, xpos1, y, xpos2, y);
    }
}

void CDraw::DrawRect1(int mode, int xpos1, int ypos1, int xpos2, int ypos2)
{
    const OwnRequests own(gc);
    const RECT box = ::SetRect(xpos1, ypos1, xpos2, ypos2);
    if (mode) {
        if (Admits(gc, BoxOf(box)))
            FillBounded(window, gc, box.left, box.top, box.right, box.bottom);
    } else if (Admits(gc, WithLastPixels(box)) && !ClipLiesWithin(gc, box)) {
        FrameBounded(window, gc, box.left, box.top, box.right, box.bottom);
    }
}

void CDraw::DrawCrcl1(int mode, int xpos1, int ypos1, int xpos2, int ypos2)
{
    const OwnRequests own(gc);
    const RECT box = ::SetRect(xpos1, ypos1, xpos2, ypos2);
    if (Admits(gc, WithLastPixels(box)))
        EllipseBounded(window, gc, mode != 0, box.left, box.top, box.right, box.bottom);
}
