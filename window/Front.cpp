#include "window/Front.h"

#include "draw/Scale.h"
#include "pattern/ItemParm.h"
#include "window/PtrnDisp.h"
#include "window/Slots.h"

#include <gtk/gtk.h>
#include <vector>

namespace tessary
{

struct WindowOrder {
    static bool isLater(const CPtrnDisp& wnd, const CPtrnDisp& than) { return wnd.Opened > than.Opened; }
};

namespace
{

bool HoldsPointer(const CPtrnDisp& wnd)
{
    if (!wnd.DrawArea || !wnd.DrawArea->window)
        return false;
    POINT pointer{};
    gtk_widget_get_pointer(wnd.DrawArea, &pointer.x, &pointer.y);
    pointer = DisplayScale().inWindow(pointer);
    return pointer.x >= 0 && pointer.y >= 0 && pointer.x < wnd.WindRect.width &&
           pointer.y < wnd.WindRect.height;
}

bool IsBefore(const CPtrnDisp& child)
{
    return child.Widget && (child.PtrnData->PtrnHedr.Parm1[HEDR_MODELESS] == 0 || HoldsPointer(child));
}

} // namespace

CPtrnDisp* FrontWnd()
{
    CPtrnDisp* const root = SystmWnd ? SystmWnd : AppliWnd;
    CPtrnDisp* front = nullptr;
    std::vector<CPtrnDisp*> waiting{root};
    while (!waiting.empty()) {
        CPtrnDisp* const wnd = waiting.back();
        waiting.pop_back();
        if (!wnd)
            continue;
        if (wnd != root && IsBefore(*wnd) && (!front || WindowOrder::isLater(*wnd, *front)))
            front = wnd;
        waiting.insert(waiting.end(), {wnd->ChildWnd1, wnd->ChildWnd2});
    }
    return front ? front : root;
}

} // namespace tessary
