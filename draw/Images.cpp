// Colours of the button pictures and bits of the cursors.
#include "draw/Images.h"

#include "base/Limits.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/ResourceLoad.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <initializer_list>

using namespace tessary;

char XPM_Cursor1_data[SIZE_CURSOR], XPM_Cursor1_mask[SIZE_CURSOR];
char XPM_Cursor2_data[SIZE_CURSOR], XPM_Cursor2_mask[SIZE_CURSOR];
char XPM_Cursor3_data[SIZE_CURSOR], XPM_Cursor3_mask[SIZE_CURSOR];
char XPM_Cursor4_data[SIZE_CURSOR], XPM_Cursor4_mask[SIZE_CURSOR];
char XPM_Cursor5_data[SIZE_CURSOR], XPM_Cursor5_mask[SIZE_CURSOR];
char XPM_Cursor6_data[SIZE_CURSOR], XPM_Cursor6_mask[SIZE_CURSOR];
char XPM_Cursor7_data[SIZE_CURSOR], XPM_Cursor7_mask[SIZE_CURSOR];
char XPM_Cursor8_data[SIZE_CURSOR], XPM_Cursor8_mask[SIZE_CURSOR];

namespace
{

constexpr int SIZE_RRGGBB = 6;

char builtin1[] = "  c #FFFFFF";
char builtin2[] = ". c #C0C0C0";
char builtin3[] = "X c #000000";

char** const BUTTONS[] = {
    XPM_Printer,     XPM_SpinButn, XPM_LeftArrow1, XPM_LeftArrow2, XPM_RightArrow1,
    XPM_RightArrow2, XPM_UpArrow1, XPM_UpArrow2,   XPM_DownArrow1, XPM_DownArrow2,
};

/// A cursor's picture and what it is made into.
struct CursorBits {
    char** xpm;
    char* data;
    char* mask;
};
constexpr CursorBits CURSORS[] = {
    {XPM_Cursor1, XPM_Cursor1_data, XPM_Cursor1_mask}, {XPM_Cursor2, XPM_Cursor2_data, XPM_Cursor2_mask},
    {XPM_Cursor3, XPM_Cursor3_data, XPM_Cursor3_mask}, {XPM_Cursor4, XPM_Cursor4_data, XPM_Cursor4_mask},
    {XPM_Cursor5, XPM_Cursor5_data, XPM_Cursor5_mask}, {XPM_Cursor6, XPM_Cursor6_data, XPM_Cursor6_mask},
    {XPM_Cursor7, XPM_Cursor7_data, XPM_Cursor7_mask}, {XPM_Cursor8, XPM_Cursor8_data, XPM_Cursor8_mask},
};

/// The colour lines of one family of pictures, which share a profile key.
struct ColorLines {
    char colr1[SIZE_XPMCOLR];
    char colr2[SIZE_XPMCOLR];
    char colr3[SIZE_XPMCOLR];
};
ColorLines printer;
ColorLines spinButn;
ColorLines arrow;

void OverrideColors(char** xpm, int no, ColorLines& lines)
{
    SetXpmColr(xpm, no, lines.colr1, lines.colr2, lines.colr3);
}

void ReplaceColor(char*& line, char* text, const char* format, const char* color)
{
    if (std::strlen(color) != SIZE_RRGGBB)
        return;
    std::snprintf(text, SIZE_XPMCOLR, format, color);
    line = text;
}

} // namespace

void SetXpmColr(char** xpm, int no, char* colr1, char* colr2, char* colr3)
{
    char text1[PROFILE_FIELD_SIZE];
    char text2[PROFILE_FIELD_SIZE];
    char text3[PROFILE_FIELD_SIZE];
    ProfileRead(ProfName, "COLOR", "XPM_COLR", no, "sss", text1, text2, text3);

    ReplaceColor(xpm[1], colr1, "  c #%s", text1);
    ReplaceColor(xpm[2], colr2, ", c #%s", text2); // the key "," is this system's, see the header
    ReplaceColor(xpm[3], colr3, "X c #%s", text3);
}

void MakeCursor(char** xpm, char* data, char* mask)
{
    constexpr int side = 32;
    std::memset(data, 0, SIZE_CURSOR);
    std::memset(mask, 0, SIZE_CURSOR);
    for (int row = 0; row < side; ++row) {
        const char* pixels = xpm[4 + row];
        for (int column = 0; column < side && pixels[column]; ++column) {
            const int at = row * (side / 8) + column / 8;
            const int bit = 1 << column % 8;
            if (pixels[column] != ' ')
                mask[at] = static_cast<char>(mask[at] | bit);
            if (pixels[column] == 'X')
                data[at] = static_cast<char>(data[at] | bit);
        }
    }
}

void XPM_DataInit()
{
    XPM_DataExit();

    OverrideColors(XPM_Printer, 1, printer);
    OverrideColors(XPM_SpinButn, 2, spinButn);

    // XPM_DownArrow1 comes twice and XPM_DownArrow2 keeps its own colours.
    for (char** xpm : {XPM_LeftArrow1, XPM_LeftArrow2, XPM_RightArrow1, XPM_RightArrow2, XPM_UpArrow1,
                       XPM_UpArrow2, XPM_DownArrow1, XPM_DownArrow1})
        OverrideColors(xpm, 3, arrow);

    for (const CursorBits& cursor : CURSORS)
        MakeCursor(cursor.xpm, cursor.data, cursor.mask);
}

void tessary::XPM_DataExit()
{
    for (char** xpm : BUTTONS) {
        xpm[1] = builtin1;
        xpm[2] = builtin2;
        xpm[3] = builtin3;
    }
    printer = {};
    spinButn = {};
    arrow = {};
    for (const CursorBits& cursor : CURSORS) {
        std::fill_n(cursor.data, SIZE_CURSOR, '\0');
        std::fill_n(cursor.mask, SIZE_CURSOR, '\0');
    }
}
