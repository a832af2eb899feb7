// The pointer cursors by number: pictures, hot spots and colours.
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/Images.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"

using namespace tessary;

GdkColor CusrColr[2];

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

void tessary::CursorColorInit()
{
    const bool foreground = ReadColor("CURSOR_FG", CusrColr[0]);
    const bool background = ReadColor("CURSOR_BG", CusrColr[1]);
    if (!foreground || !background)
        return;
    for (GdkColor& color : CusrColr)
        gdk_color_alloc(gdk_colormap_get_system(), &color);
}

void tessary::CursorColorExit()
{
    for (GdkColor& color : CusrColr)
        color = {};
}
