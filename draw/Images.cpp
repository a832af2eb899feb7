// Colours of the button pictures.
#include "draw/Images.h"

#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/Resource.h"

#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace
{

constexpr int SIZE_RRGGBB = 6;
constexpr int SIZE_PROFTEXT = 100; // what the profile reader may store for one field

char builtin1[] = "  c #FFFFFF";
char builtin2[] = ". c #C0C0C0";
char builtin3[] = "X c #000000";

char** const buttons[] = {
    XPM_Printer,     XPM_SpinButn, XPM_LeftArrow1, XPM_LeftArrow2, XPM_RightArrow1,
    XPM_RightArrow2, XPM_UpArrow1, XPM_UpArrow2,   XPM_DownArrow1, XPM_DownArrow2,
};

char** const cursors[CONT_CURSOR] = {
    XPM_Cursor1, XPM_Cursor2, XPM_Cursor3, XPM_Cursor4, XPM_Cursor5, XPM_Cursor6, XPM_Cursor7, XPM_Cursor8,
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
    char text1[SIZE_PROFTEXT];
    char text2[SIZE_PROFTEXT];
    char text3[SIZE_PROFTEXT];
    ProfileRead(ProfName, "COLOR", "XPM_COLR", no, "sss", text1, text2, text3);

    ReplaceColor(xpm[1], colr1, "  c #%s", text1);
    ReplaceColor(xpm[2], colr2, ", c #%s", text2); // the key "," is this system's, see the header
    ReplaceColor(xpm[3], colr3, "X c #%s", text3);
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

    for (int n = 0; n < CONT_CURSOR; ++n)
        MakeCursor(cursors[n], CursorData[n], CursorMask[n]);
}

void XPM_DataExit()
{
    for (char** xpm : buttons) {
        xpm[1] = builtin1;
        xpm[2] = builtin2;
        xpm[3] = builtin3;
    }
}
