#include "window/Reload.h"

#include "base/BuiltIn.h"
#include "comndata/PtrnCode.h"
#include "draw/Scale.h"
#include "log/Guard.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnHedr.h"
#include "window/OnDisplay.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"

#include <algorithm>
#include <cstring>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

using Changed = std::function<bool(const char*)>;

constexpr HedrParm PLACE[] = {HEDR_KIND, HEDR_REMEMBER, HEDR_LEFT, HEDR_TOP};

bool IsBuiltIn(const char* name)
{
    return std::strcmp(name, VERSION_PATTERN) == 0 || std::strcmp(name, MAINTENANCE_PATTERN) == 0;
}

/// Opens the window's pattern anew where it is, with an object of another class.
void OpenAnew(const CPtrnDisp& wnd)
{
    if (wnd.PtrnType == KIND_APPLICATION)
        PtrnDispTopWnd(wnd.PtrnName, nullptr, 0);
    else if (wnd.PtrnType == KIND_SYSTEM)
        PtrnDispSysWnd(wnd.PtrnName, nullptr, 0);
    else if (wnd.ParentWnd)
        wnd.ParentWnd->PtrnDispChild(wnd.PtrnType, wnd.PtrnName, wnd.WindRect, nullptr, 0);
}

} // namespace

struct WindowReload {
    static void tree(CPtrnDisp* wnd, const Changed& changed)
    {
        if (!wnd || !wnd->Widget)
            return;
        wnd->PtrnNo = ConvertPtrn(wnd->PtrnName);
        tree(wnd->ChildWnd1, changed);
        tree(wnd->ChildWnd2, changed);
        PTRNHEDR header;
        if (!changed(wnd->PtrnName) || !ReadHedr(wnd->PtrnName, &header))
            return;
        const PTRNHEDR& before = wnd->PtrnData->PtrnHedr;
        if ((header.Parm1[HEDR_CLASS] != before.Parm1[HEDR_CLASS] && !IsBuiltIn(wnd->PtrnName)) ||
            (wnd == AppliWnd && IsCovering(wnd->DrawArea) != CoversDisplay()))
            OpenAnew(*wnd);
        else
            inPlace(*wnd);
    }

    static void inPlace(CPtrnDisp& wnd)
    {
        const PTRNHEDR before = wnd.PtrnData->PtrnHedr;
        wnd.DropKeyInput();
        wnd.MoveWnd = 0;
        wnd.ScrollBar = 0;
        wnd.TakePattern(wnd.PtrnName);
        place(wnd, before);
        wnd.PtrnInit();
        wnd.PaintEvent();
        wnd.PtrnUpdate();
    }

    /// Gives the window the place and size of the new header where they are not those of the old one.
    static void place(CPtrnDisp& wnd, const PTRNHEDR& before)
    {
        const auto differs = [&](HedrParm parm) { return wnd.Header(parm) != before.Parm1[parm]; };
        const bool sized = differs(HEDR_WIDTH) || differs(HEDR_HEIGHT);
        // One that shows a part of its pattern goes on showing a part of that size.
        const bool whole = wnd.WindRect.width == before.Parm1[HEDR_WIDTH] &&
                           wnd.WindRect.height == before.Parm1[HEDR_HEIGHT];
        const RECT old = wnd.WindRect;
        if (std::any_of(std::begin(PLACE), std::end(PLACE), differs))
            wnd.PlaceWindow();
        else if (sized && whole)
            wnd.WindRect = SetRect(old.left, old.top, old.left + wnd.Header(HEDR_WIDTH),
                                   old.top + wnd.Header(HEDR_HEIGHT));
        const bool scaled = !DisplayScale().natural(); // which may be another scale than before
        if (scaled || wnd.WindRect.width != old.width || wnd.WindRect.height != old.height)
            SizeOnDisplay(wnd.DrawArea, wnd.WindRect);
        if (scaled || wnd.WindRect.left != old.left || wnd.WindRect.top != old.top)
            wnd.Placed = PlaceOnDisplay(wnd.Widget, wnd.DrawArea, wnd.WindRect);
        PaintRest(wnd);
    }

    /// The display has another size.
    static void fit(CPtrnDisp* wnd)
    {
        if (!wnd)
            return;
        fit(wnd->ChildWnd1);
        fit(wnd->ChildWnd2);
        if (!wnd->Widget)
            return;
        SizeOnDisplay(wnd->DrawArea, wnd->WindRect);
        wnd->Placed = PlaceOnDisplay(wnd->Widget, wnd->DrawArea, wnd->WindRect);
        wnd->PtrnUpdate();
    }
};

namespace
{

void FitToDisplay(GdkScreen*, gpointer)
{
    if (!ScaleAnew())
        return;
    WindowReload::fit(AppliWnd);
    WindowReload::fit(SystmWnd);
}

} // namespace

void FollowDisplay()
{
    static const bool FOLLOWS = [] {
        for (const char* signal : {"size-changed", "monitors-changed"})
            g_signal_connect(gdk_screen_get_default(), signal, G_CALLBACK(Guarded<FitToDisplay>::call),
                             nullptr);
        return true;
    }();
    static_cast<void>(FOLLOWS);
}

void ReloadPtrnWnds(const Changed& changed)
{
    WindowReload::tree(AppliWnd, changed);
    WindowReload::tree(SystmWnd, changed);
}

} // namespace tessary
