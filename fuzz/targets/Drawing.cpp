// The items of a pattern file, drawn on an X server of the process's own: as a whole, at ticks that change
// cells, blinking, and restored in part.
#include "comndata/ComnData.h"
#include "draw/Resource.h"
#include "fuzz/Target.h"
#include "pattern/PtrnData.h"
#include "tools/ptn/render/Picture.h"
#include "tools/ptn/system/PrivateServer.h"

#include <cstdio>
#include <cstdlib>
#include <gdk/gdk.h>

namespace
{

/// What a panel refuses to begin without.
const ptn::Pixmap& Screen()
{
    static const bool OPEN = [] {
        setenv("DISPLAY", ptn::PrivateDisplay().c_str(), 1);
        if (!ptn::OpenDisplay()) {
            std::fprintf(stderr, "no X server: is Xvfb installed?\n");
            std::exit(2);
        }
        DrawCntlInit();
        return true;
    }();
    static const ptn::Pixmap PIXMAP(320, OPEN ? 240 : 0);
    return PIXMAP;
}

void Run(const std::string& bytes)
{
    CDraw* draw = Screen().draw();
    fuzz::Project::own().write("ProjPath/p.ptn", bytes);
    fuzz::Project::own().load();
    CPtrnData data("p");
    data.DispPtrnData(draw);
    for (int tick = 0; tick < FLIKER_ON + FLIKER_OFF; ++tick) {
        for (int no = 1; no < PtrnDataNo; ++no) {
            Set_fData(no, static_cast<float>(tick * no) * 1.5F, nullptr, 0);
            Set_sData(no, "text", nullptr, 0);
            Set_wData(no, static_cast<WORD>(tick % 4 | (tick % 3 == 0 ? tessary::STATE_FLICKER : 0)), nullptr, 0);
        }
        data.UpdtPtrnData(draw);
        data.FlikPtrnData(draw);
    }
    data.RestoreArea(draw, SetRect(10, 10, 100, 100));
    gdk_display_sync(gdk_display_get_default());
}

const fuzz::Target TARGET("drawing", Run);

} // namespace
