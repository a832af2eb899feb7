// The drawing context and its primitives. Everything a pattern window shows is drawn through them.
//
// Conventions of all primitives:
// - Coordinates are pixels of the drawable; any int is accepted, what lies outside it is not drawn.
// - Colours, fonts and marks are numbers of the tables in draw/Resource.h; -1 means no colour where a
//   colour is optional.
// - `wide` is a thickness in pixels, built of that many one-pixel lines or outlines. An outline covers both
//   of its corners; a fill and the end of a line leave the second corner out.
// - `fomt` says where the extra pixels of a thick line go: 0 centred, 1 inside (left of a vertical line,
//   above a horizontal one, inwards for frames), 2 outside; other values count as 0.
// - Arguments are checked on entry. A failed check logs the condition at the error level of glib's log,
//   which ends the process (draw/DrawCheck.h). A box needs xpos1 <= xpos2 and ypos1 <= ypos2.
// - Each call sets the state of the graphics context that it needs and leaves no clipping or dashes that a
//   later call would show. What tessary::ClipScope holds a context to stays.
// - The RECT forms use the four edges; width and height are ignored.
#pragma once

#include "base/Types.h"
#include "draw/ToolkitTypes.h"

#include <memory>

/// Dash lists of line types 1 and 2: pixels on, pixels off.
extern signed char dash1[2];
extern signed char dash2[2]; ///< of line type 2

/// A drawing context. The windows make those that hooks are given.
class CDraw
{
  public:
    GdkWindow* window; ///< the drawable, a window or a pixmap; not owned
    GdkGC* gc;         ///< its graphics context; see CPaintDraw for who releases it

    /// Fills the whole drawable, a rectangle, or a box.
    void ClearScreen(int colr);
    void ClearScreen(RECT rect, int colr);                                  ///< a rectangle
    void ClearScreen(int xpos1, int ypos1, int xpos2, int ypos2, int colr); ///< a box

    /// Draws a text whose line has its top at ypos; an empty text or a font that is not loaded draws nothing.
    /// @param colr1  text colour
    /// @param colr2  colour of the box behind the text, as high as the font's line; -1 none
    void DrawText(int xpos, int ypos, int font, int colr1, int colr2, const char* text);
    void DrawText(POINT point, int font, int colr1, int colr2, const char* text); ///< the same

    /// Fills the box of a text (GetTextSize).
    void ClearText(int xpos, int ypos, int font, int colr, const char* text);
    void ClearText(POINT point, int font, int colr, const char* text); ///< the same

    /// Extent of a text's ink; (0, 0) for an empty text or a font that is not loaded.
    SIZE GetTextSize(int font, const char* text);

    /// Draws a line; its ends may come in any order.
    /// @param type  0 solid, 1 dashed 12 on 4 off, 2 dashed 4 on 2 off
    /// @param wide  1..98
    void DrawLine(int xpos1, int ypos1, int xpos2, int ypos2, int type, int wide, int fomt, int colr);
    void DrawLine(RECT rect, int type, int wide, int fomt, int colr); ///< the same

    /// Draws a rectangle.
    /// @param wide   0..98; 0 draws no outline
    /// @param colr1  outline
    /// @param colr2  fill, -1 none
    void DrawRect(int xpos1, int ypos1, int xpos2, int ypos2, int wide, int fomt, int colr1, int colr2);
    void DrawRect(RECT rect, int wide, int fomt, int colr1, int colr2); ///< the same

    /// Fills a box with a shade that darkens downwards from the colour almost to black. A colour number
    /// outside the table or a box without rows draws nothing.
    void DrawRect(int xpos1, int ypos1, int xpos2, int ypos2, int colr);
    void DrawRect(RECT rect, int colr); ///< the same

    /// Draws the ellipse in a box; parameters as DrawRect.
    void DrawCrcl(int xpos1, int ypos1, int xpos2, int ypos2, int wide, int fomt, int colr1, int colr2);
    void DrawCrcl(RECT rect, int wide, int fomt, int colr1, int colr2); ///< the same

    /// Draws a bevelled box. Later edges cover earlier ones at the corners.
    /// @param wide1,wide2,wide3,wide4  widths of the top, bottom, left and right edge, 0..98
    /// @param colr1,colr2,colr3,colr4  colours of those edges
    /// @param colr5                    face
    void DrawGbox(int xpos1, int ypos1, int xpos2, int ypos2, int wide1, int wide2, int wide3, int wide4,
                  int colr1, int colr2, int colr3, int colr4, int colr5);
    void DrawGbox(RECT rect, int wide1, int wide2, int wide3, int wide4, int colr1, int colr2, int colr3,
                  int colr4, int colr5); ///< the same

    /// Draws a button.
    /// @param wide   width of all four edges, 0..98
    /// @param colr1  top and left edge
    /// @param colr2  bottom and right edge
    /// @param colr3  face
    /// @param colr4  caption
    /// @param post   caption's distance from xpos1, -1 centred
    /// @param butn   caption, may be empty
    void DrawButn(int xpos1, int ypos1, int xpos2, int ypos2, int wide, int colr1, int colr2, int colr3,
                  int colr4, int post, int font, const char* butn);
    void DrawButn(RECT rect, int wide, int colr1, int colr2, int colr3, int colr4, int post, int font,
                  const char* butn); ///< the same

    // Images are scaled to the box. A box with an edge longer than 32767 pixels shows no image.

    /// Draws a mark.
    /// @param colr1  foreground
    /// @param colr2  background, -1 transparent
    /// @param mark   0..CONT_MARK + 3
    void DrawMark(int xpos1, int ypos1, int xpos2, int ypos2, int colr1, int colr2, int mark);
    void DrawMark(RECT rect, int colr1, int colr2, int mark); ///< the same

    /// Draws an image file of the project's folder "Bitmap", which is read again by every call. A file that
    /// can not be loaded draws nothing; the log names it once.
    /// @param colr  colour that is transparent, -1 none
    /// @param name  file name in that folder
    void DrawBmap(int xpos1, int ypos1, int xpos2, int ypos2, int colr, const char* name);
    void DrawBmap(RECT rect, int colr, const char* name); ///< the same

    /// Draws an image given as XPM lines; lines that are no XPM image draw nothing.
    void DrawXpm(int xpos1, int ypos1, int xpos2, int ypos2, const char* const* name);
    void DrawXpm(RECT rect, const char* const* name); ///< the same

    /// One rectangle or ellipse in the current foreground, corners in any order.
    /// @param mode  0 outline, other values filled
    void DrawRect1(int mode, int xpos1, int ypos1, int xpos2, int ypos2);
    void DrawCrcl1(int mode, int xpos1, int ypos1, int xpos2, int ypos2); ///< an ellipse

  protected:
    explicit CDraw(GdkWindow* drawable); ///< with a graphics context of its own
    ~CDraw() = default;
};

/// A context on a back buffer. Its destructor leaves the graphics context alone: whoever makes a CPaintDraw
/// makes one per drawable, keeps it, and releases `gc` with it (PaintDrawPtr does).
class CPaintDraw : public CDraw
{
  public:
    explicit CPaintDraw(GdkWindow* drawable) : CDraw(drawable) {} ///< draws on it
    ~CPaintDraw() {}
};

/// A context on a window itself; otherwise the same.
class CClientDraw : public CDraw
{
  public:
    explicit CClientDraw(GdkWindow* drawable) : CDraw(drawable) {} ///< draws on it
    ~CClientDraw() {}
};

namespace tessary
{

/// Releases the graphics context together with its CPaintDraw.
struct PaintDrawRelease {
    void operator()(CPaintDraw* draw) const; ///< both of them
};
using PaintDrawPtr = std::unique_ptr<CPaintDraw, PaintDrawRelease>; ///< the owner of one

/// Cell size of a font (FontSize); (0, 0) for a font number outside the table.
SIZE FontCell(int font);

} // namespace tessary
