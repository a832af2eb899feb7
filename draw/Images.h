// Built-in pictures: XPM text in the program itself, so that a panel needs no icon files.
#pragma once

namespace tessary
{

/// Lines of a 32-row picture with three colours: header, three colour lines, rows.
constexpr int CONT_IMAGELINE = 1 + 3 + 32;
/// Lines of a built-in mark: header, two colour lines, 16 rows.
constexpr int CONT_BUILTINLINE = 1 + 2 + 16;
/// Bytes of a cursor's one-bit picture: 32 rows of 4 bytes, the lowest bit leftmost.
constexpr int SIZE_CURSOR = 128;
/// Bytes of a colour line such as "X c #FF8000", its terminator included.
constexpr int SIZE_XPMCOLR = 12;

} // namespace tessary

// Pictures on buttons. Keys: space light, "." grey, "X" dark. Only lines 1..3 (the colours) ever change.
extern char* XPM_Printer[tessary::CONT_IMAGELINE];  ///< 32 x 32, hard-copy button of the title bar
extern char* XPM_SpinButn[tessary::CONT_IMAGELINE]; ///< 16 x 32, an up button above a down button

/// @{
/// Buttons of a scroll bar, 32 x 32: ...1 moves by a line, ...2 by a page.
extern char* XPM_LeftArrow1[tessary::CONT_IMAGELINE];
extern char* XPM_LeftArrow2[tessary::CONT_IMAGELINE];
extern char* XPM_RightArrow1[tessary::CONT_IMAGELINE];
extern char* XPM_RightArrow2[tessary::CONT_IMAGELINE];
extern char* XPM_UpArrow1[tessary::CONT_IMAGELINE];
extern char* XPM_UpArrow2[tessary::CONT_IMAGELINE];
extern char* XPM_DownArrow1[tessary::CONT_IMAGELINE];
extern char* XPM_DownArrow2[tessary::CONT_IMAGELINE];
/// @}

// Pointer cursors, 32 x 32. Keys: space transparent, "." background, "X" foreground.
extern char* XPM_Cursor1[tessary::CONT_IMAGELINE]; ///< arrow
extern char* XPM_Cursor2[tessary::CONT_IMAGELINE]; ///< cross hair
extern char* XPM_Cursor3[tessary::CONT_IMAGELINE]; ///< busy
extern char* XPM_Cursor4[tessary::CONT_IMAGELINE]; ///< move in all directions
extern char* XPM_Cursor5[tessary::CONT_IMAGELINE]; ///< move up and down
extern char* XPM_Cursor6[tessary::CONT_IMAGELINE]; ///< move left and right
extern char* XPM_Cursor7[tessary::CONT_IMAGELINE]; ///< move along the falling diagonal
extern char* XPM_Cursor8[tessary::CONT_IMAGELINE]; ///< move along the rising diagonal

/// @{
/// Radio and check marks, 16 x 16. Keys: "." background, "X" foreground.
extern char* XPM_Radio_OFF[tessary::CONT_BUILTINLINE];
extern char* XPM_Radio_ON[tessary::CONT_BUILTINLINE];
extern char* XPM_Check_OFF[tessary::CONT_BUILTINLINE];
extern char* XPM_Check_ON[tessary::CONT_BUILTINLINE];
/// @}

/// @{
/// Bits of the cursors: picture and mask.
extern char XPM_Cursor1_data[tessary::SIZE_CURSOR], XPM_Cursor1_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor2_data[tessary::SIZE_CURSOR], XPM_Cursor2_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor3_data[tessary::SIZE_CURSOR], XPM_Cursor3_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor4_data[tessary::SIZE_CURSOR], XPM_Cursor4_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor5_data[tessary::SIZE_CURSOR], XPM_Cursor5_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor6_data[tessary::SIZE_CURSOR], XPM_Cursor6_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor7_data[tessary::SIZE_CURSOR], XPM_Cursor7_mask[tessary::SIZE_CURSOR];
extern char XPM_Cursor8_data[tessary::SIZE_CURSOR], XPM_Cursor8_mask[tessary::SIZE_CURSOR];
/// @}

/// Gives every button picture the colours that the profile file sets and makes the bits of the cursors.
void XPM_DataInit();

/// Replaces colours of one picture by those of the profile key "XPM_COLR" + `no` of section "COLOR", three
/// texts RRGGBB. A text that is not six characters long leaves its colour as it is.
/// The second colour is written with the key "," and not ".", so pixels "." lose theirs and are drawn in
/// the first colour.
/// @param xpm    picture with three colour lines in lines 1..3
/// @param colr1  with `colr2` and `colr3`: receive the new lines, SIZE_XPMCOLR bytes each; they belong to the
///               caller and must live as long as the picture points at them
void SetXpmColr(char** xpm, int no, char* colr1, char* colr2, char* colr3);

/// Converts a 32 x 32 cursor picture into bits, the lowest bit of a byte leftmost.
/// @param xpm   header, three colour lines and 32 rows; a short row counts as filled up with blanks
/// @param data  128 bytes: pixels "X"
/// @param mask  128 bytes: pixels that are not blank
void MakeCursor(char** xpm, char* data, char* mask);
