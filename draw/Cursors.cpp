// Bits, hot spots and colours of the pointer cursors.
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/Images.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"

#include <algorithm>
#include <cstring>

GdkColor CusrColr[2];

char XPM_Cursor1_data[SIZE_CURSOR], XPM_Cursor1_mask[SIZE_CURSOR];
char XPM_Cursor2_data[SIZE_CURSOR], XPM_Cursor2_mask[SIZE_CURSOR];
char XPM_Cursor3_data[SIZE_CURSOR], XPM_Cursor3_mask[SIZE_CURSOR];
char XPM_Cursor4_data[SIZE_CURSOR], XPM_Cursor4_mask[SIZE_CURSOR];
char XPM_Cursor5_data[SIZE_CURSOR], XPM_Cursor5_mask[SIZE_CURSOR];
char XPM_Cursor6_data[SIZE_CURSOR], XPM_Cursor6_mask[SIZE_CURSOR];
char XPM_Cursor7_data[SIZE_CURSOR], XPM_Cursor7_mask[SIZE_CURSOR];
char XPM_Cursor8_data[SIZE_CURSOR], XPM_Cursor8_mask[SIZE_CURSOR];

char* const CursorData[CONT_CURSOR] = {
    XPM_Cursor1_data, XPM_Cursor2_data, XPM_Cursor3_data, XPM_Cursor4_data,
    XPM_Cursor5_data, XPM_Cursor6_data, XPM_Cursor7_data, XPM_Cursor8_data,
};

char* const CursorMask[CONT_CURSOR] = {
    XPM_Cursor1_mask, XPM_Cursor2_mask, XPM_Cursor3_mask, XPM_Cursor4_mask,
    XPM_Cursor5_mask, XPM_Cursor6_mask, XPM_Cursor7_mask, XPM_Cursor8_mask,
};

const POINT CursorHome[CONT_CURSOR] = {
    {1, 1}, {15, 15}, {15, 16}, {15, 15}, {9, 15}, {15, 9}, {12, 12}, {12, 12},
};

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

namespace
{

/// @return true when the key has all three components
bool ReadColor(const char* key, GdkColor& color)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    const int count = ProfileRead(ProfName, "COLOR", key, "iii", &red, &green, &blue);
    color.pixel = 0;
    color.red = static_cast<guint16>(red);
    color.green = static_cast<guint16>(green);
    color.blue = static_cast<guint16>(blue);
    return count == 3;
}

} // namespace

void CursorColorInit()
{
    const bool foreground = ReadColor("CURSOR_FG", CusrColr[0]);
    const bool background = ReadColor("CURSOR_BG", CusrColr[1]);
    if (!foreground || !background)
        return;
    for (GdkColor& color : CusrColr)
        gdk_color_alloc(gdk_colormap_get_system(), &color);
}

void CursorExit()
{
    for (GdkColor& color : CusrColr)
        color = {};
    for (char* bits : CursorData)
        std::fill_n(bits, SIZE_CURSOR, '\0');
    for (char* bits : CursorMask)
        std::fill_n(bits, SIZE_CURSOR, '\0');
}
