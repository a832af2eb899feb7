// Everything the screens draw with, set up once at start-up and named by small numbers afterwards:
// colours, fonts, marks and pointer cursors. The built-in pictures are in draw/Images.h.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"
#include "draw/Images.h"

#include <gdk/gdk.h>

/// One record of the file "PtrnColr": components on the 0..65535 scale of the display.
struct COLRDATA {
    std::int32_t red;   ///< 0..65535
    std::int32_t green; ///< 0..65535
    std::int32_t blue;  ///< 0..65535
};
static_assert(sizeof(COLRDATA) == 12);

/// One record of the file "PtrnMark": pixels as one stream of bits, row after row, the lowest bit of a
/// byte first. A set bit is foreground.
struct MARKDATA {
    BYTE mark[SIZE_MARK]; ///< the bits
};
static_assert(sizeof(MARKDATA) == SIZE_MARK);

namespace tessary
{

/// Lines of a mark as XPM text: header, background and foreground colour, up to 64 rows.
constexpr int CONT_MARKLINE = 3 + 64;
/// Bytes of such a line, its terminator included.
constexpr int SIZE_MARKLINE = 66;

/// The built-in marks follow those of the project: radio off, radio on, check off, check on.
constexpr int CONT_BUILTINMARK = 4;
/// Sizes of marks: marks of one size are numbered in groups.
constexpr int CONT_MARKGROUP = 7;
constexpr int SIZE_MARKGROUP = 50; ///< marks of one size
static_assert(CONT_MARKGROUP * SIZE_MARKGROUP == CONT_MARK);

constexpr int CONT_CURSOR = 8; ///< pointer cursors

} // namespace tessary

/// A mark as XPM text. `mark[k]` always points at `data[k]` of the same entry, so `mark` can be passed
/// to gdk-pixbuf. Lines 1 (background, key ".") and 2 (foreground, key "X") are written by whoever
/// draws the mark, each time.
struct MARK_XPM {
    char* mark[tessary::CONT_MARKLINE];                        ///< lines, as gdk-pixbuf takes them
    char data[tessary::CONT_MARKLINE][tessary::SIZE_MARKLINE]; ///< their texts
};

/// Colours as the project's file has them, and the same allocated in the system colormap. All black
/// when the file is missing or short.
extern COLRDATA ColrData[CONT_COLR];
extern GdkColor DrawColr[CONT_COLR]; ///< as the server has them

/// Font set of each font number; null when the number is unused or nothing could be loaded.
extern GdkFont* DrawFont[CONT_FONT];
/// Nominal cell of each font number in pixels: width of a single-byte character, height of a line.
/// Taken from the font's name, so it is set even when the font could not be loaded.
extern SIZE FontSize[CONT_FONT];

/// Marks as the project's file has them, and all marks as XPM text.
extern MARKDATA MarkData[CONT_MARK];
extern MARK_XPM Mark_XPM[CONT_MARK + tessary::CONT_BUILTINMARK]; ///< with the built-in ones
/// Width and height in pixels of marks 0..49, 50..99, ... 300..349.
extern const int MarkXsize[tessary::CONT_MARKGROUP];
extern const int MarkYsize[tessary::CONT_MARKGROUP]; ///< the heights

namespace tessary
{
/// Size of a mark in pixels. The built-in marks, and any number that is none, are as large as the smallest
/// cell that radio buttons and check boxes draw them in: 16 by 16.
SIZE MarkSize(int mark);
} // namespace tessary

/// Size of the display in pixels, profile key "DISPSIZE"; 0 when the key is missing.
extern int DispSizeX;
extern int DispSizeY; ///< the height

/// Foreground (0) and background (1) of the pointer cursors.
extern GdkColor CusrColr[2];
/// Picture and mask of each cursor, SIZE_CURSOR bytes each, 32 x 32 pixels, as
/// gdk_bitmap_create_from_data takes them. A pixel of the mask that is not in the picture has the
/// background colour.
extern char* const CursorData[tessary::CONT_CURSOR];
extern char* const CursorMask[tessary::CONT_CURSOR]; ///< the masks
/// Hot spot of each cursor.
extern const POINT CursorHome[tessary::CONT_CURSOR];

/// Fills all of the above and `Language` from the profile file (`ProfName`) and the files "PtrnColr" and
/// "PtrnMark" of the project directory (`ProjPath`). Called once by start-up, when the display is open and
/// the log is running. Nothing that is missing stops it: the log tells what, and what to install or set.
void DrawCntlInit();

namespace tessary
{

/// Releases fonts and colours and returns every table to zero and every built-in picture to its own
/// colours.
void DrawCntlExit();

} // namespace tessary

/// Derives `FontSize[no]` from an X logical font description: pixel size, or when that is "*" the point
/// size in tenths. (0, 0) when the name has no such field.
/// @param no    font number; out of range does nothing
/// @param name  font name; null counts as empty
void FontDataInit(int no, const char* name);

/// Turns the bits of `MarkData` into the header line and the pixel rows of `Mark_XPM` 0..349; the colour
/// lines become empty.
void MarkDataSet();

/// Points the line pointers of all `Mark_XPM` entries at their lines and copies the built-in marks into
/// the last four.
void MarkDataInit();
