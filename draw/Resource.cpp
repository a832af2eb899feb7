// Loading order of the drawing resources, and the colours.
#include "draw/Resource.h"

#include "config/FileCntl.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/Images.h"
#include "draw/ResourceLoad.h"
#include "draw/Scale.h"

#include <cstring>

using namespace tessary;

COLRDATA ColrData[CONT_COLR];
GdkColor DrawColr[CONT_COLR];
int DispSizeX;
int DispSizeY;

namespace
{

void AllocateColors()
{
    for (int i = 0; i < CONT_COLR; ++i) {
        DrawColr[i].pixel = 0;
        DrawColr[i].red = static_cast<guint16>(ColrData[i].red);
        DrawColr[i].green = static_cast<guint16>(ColrData[i].green);
        DrawColr[i].blue = static_cast<guint16>(ColrData[i].blue);
        gdk_color_alloc(gdk_colormap_get_system(), &DrawColr[i]);
    }
}

} // namespace

void DrawCntlInit()
{
    DrawCntlExit();

    ProfileRead(ProfName, "TESSARY", "DISPSIZE", "ii", &DispSizeX, &DispSizeY);
    ScaleInit({DispSizeX, DispSizeY});
    FileRead(ProjPath, "PtrnColr", ColrData, sizeof ColrData, 0, nullptr, 0);
    FileRead(ProjPath, "PtrnMark", MarkData, sizeof MarkData, 0, nullptr, 0);
    MarkDataSet();
    AllocateColors();
    Language = ProfileReadInt(ProfName, "FONT", "LANGUAGE");
    FontInit();
    CursorColorInit();
    XPM_DataInit();
    MarkDataInit();
}

void tessary::DrawCntlExit()
{
    ScaleExit();
    DispSizeX = 0;
    DispSizeY = 0;
    Language = 0;
    std::memset(ColrData, 0, sizeof ColrData);
    std::memset(DrawColr, 0, sizeof DrawColr);
    FontExit();
    MarkExit();
    CursorColorExit();
    BitmapExit();
    XPM_DataExit();
}
