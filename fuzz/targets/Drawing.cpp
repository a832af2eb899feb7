// What "ptn check" lets pass can be drawn: the items of a pattern file on an X server of the process's own,
// as a whole, at ticks that change cells, blinking, and restored in part. A colour that there is not ends a
// panel, which the check tells.
#include "comndata/ComnData.h"
#include "draw/Resource.h"
#include "fuzz/Target.h"
#include "pattern/PtrnData.h"
#include "tools/ptn/check/Check.h"
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

bool IsDrawable(const std::string& bytes)
{
    const ptn::ProjectSource none;
    ptn::Diagnostics found;
    const auto pattern = ptn::ParsePattern("p", bytes, {"p", 0}, found);
    if (pattern)
        ptn::CheckDrawable(*pattern, none, found);
    return pattern && found.errors() == 0 && found.warnings() == 0;
}

void Run(const std::string& bytes)
{
    if (!IsDrawable(bytes))
        return;
    CDraw* draw = Screen().draw();
    fuzz::Project::own().write("ProjPath/p.ptn", bytes);
    fuzz::Project::own().load();
    CPtrnData data("p");
    data.DispPtrnData(draw);
    constexpr int states[] = {0, tessary::STATE_FLICKER, tessary::STATE_DISABLE, tessary::STATE_HIDDEN};
    for (int tick = 0; tick < FLIKER_ON + FLIKER_OFF; ++tick) {
        for (int no = 1; no < PtrnDataNo; ++no) {
            Set_fData(no, static_cast<float>(tick * no) * 1.5F, nullptr, 0);
            Set_sData(no, "text", nullptr, 0);
            Set_wData(no, static_cast<WORD>(tick % 4 | states[(tick / 2 + no) % 4]), nullptr, 0);
        }
        data.UpdtPtrnData(draw);
        data.FlikPtrnData(draw);
    }
    data.RestoreArea(draw, SetRect(10, 10, 100, 100));
    gdk_display_sync(gdk_display_get_default());
}

const fuzz::Target TARGET("drawing", Run);

} // namespace
