// Contract failures, clearing, and the forms of the primitives that take RECT and POINT.
#include "draw/DrawCntl.h"

#include "draw/DrawCheck.h"
#include "draw/DrawScope.h"
#include "draw/Resource.h"
#include "log/Category.h"
#include "log/Logfile.h"
#include "log/LogText.h"

#include <cstdlib>
#include <gdk/gdk.h>

using namespace tessary;

void tessary::DrawCheckFailed(int line, const char* function, const char* condition)
{
    // The panel's own log tells too why it ended, with the lines that were still buffered.
    LogText(CATEGORY_DRAW, nullptr, 0, "%s: assertion failed: (%s)", function, condition);
    LogfileSave();
    g_log(G_LOG_DOMAIN, G_LOG_LEVEL_ERROR, "file %s: line %d (%s): assertion failed: (%s)", "DrawCntl", line,
          function, condition);
    std::abort();
}

CDraw::CDraw(GdkWindow* drawable) : window(drawable), gc(gdk_gc_new(drawable))
{
    tessary::RecordWith(gc, drawable);
}

void tessary::PaintDrawRelease::operator()(CPaintDraw* draw) const
{
    if (draw->gc)
        g_object_unref(draw->gc);
    delete draw;
}

void CDraw::ClearScreen(int colr)
{
    // clang-format off
    DRAW_CHECK((colr >= 0) && (colr < CONT_COLR));
    // clang-format on
    int width = 0;
    int height = 0;
    gdk_drawable_get_size(window, &width, &height);
    ClearScreen(0, 0, width, height, colr);
}

void CDraw::ClearScreen(RECT rect, int colr)
{
    // clang-format off
    DRAW_CHECK((colr >= 0) && (colr < CONT_COLR));
    // clang-format on
    ClearScreen(rect.left, rect.top, rect.right, rect.bottom, colr);
}

void CDraw::ClearScreen(int xpos1, int ypos1, int xpos2, int ypos2, int colr)
{
    // clang-format off
    DRAW_CHECK((colr >= 0) && (colr < CONT_COLR));
    DRAW_CHECK(xpos1 <= xpos2);
    DRAW_CHECK(ypos1 <= ypos2);
    // clang-format on
    DrawRect(xpos1, ypos1, xpos2, ypos2, 0, 0, colr, colr);
}

void CDraw::DrawText(POINT point, int font, int colr1, int colr2, const char* text)
{
    DrawText(point.x, point.y, font, colr1, colr2, text);
}

void CDraw::ClearText(POINT point, int font, int colr, const char* text)
{
    ClearText(point.x, point.y, font, colr, text);
}

void CDraw::DrawLine(RECT rect, int type, int wide, int fomt, int colr)
{
    DrawLine(rect.left, rect.top, rect.right, rect.bottom, type, wide, fomt, colr);
}

void CDraw::DrawRect(RECT rect, int wide, int fomt, int colr1, int colr2)
{
    DrawRect(rect.left, rect.top, rect.right, rect.bottom, wide, fomt, colr1, colr2);
}

void CDraw::DrawRect(RECT rect, int colr)
{
    DrawRect(rect.left, rect.top, rect.right, rect.bottom, colr);
}

void CDraw::DrawCrcl(RECT rect, int wide, int fomt, int colr1, int colr2)
{
    DrawCrcl(rect.left, rect.top, rect.right, rect.bottom, wide, fomt, colr1, colr2);
}

void CDraw::DrawGbox(RECT rect, int wide1, int wide2, int wide3, int wide4, int colr1, int colr2, int colr3,
                     int colr4, int colr5)
{
    DrawGbox(rect.left, rect.top, rect.right, rect.bottom, wide1, wide2, wide3, wide4, colr1, colr2, colr3,
             colr4, colr5);
}

void CDraw::DrawButn(RECT rect, int wide, int colr1, int colr2, int colr3, int colr4, int post, int font,
                     const char* butn)
{
    DrawButn(rect.left, rect.top, rect.right, rect.bottom, wide, colr1, colr2, colr3, colr4, post, font,
             butn);
}

void CDraw::DrawMark(RECT rect, int colr1, int colr2, int mark)
{
    DrawMark(rect.left, rect.top, rect.right, rect.bottom, colr1, colr2, mark);
}

void CDraw::DrawBmap(RECT rect, int colr, const char* name)
{
    DrawBmap(rect.left, rect.top, rect.right, rect.bottom, colr, name);
}

void CDraw::DrawXpm(RECT rect, const char* const* name)
{
    DrawXpm(rect.left, rect.top, rect.right, rect.bottom, name);
}
