#include "window/Front.h"

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
    int x = 0;
    int y = 0;
    gtk_widget_get_pointer(wnd.DrawArea, &x, &y);
    return x >= 0 && y >= 0 && x < wnd.WindRect.width && y < wnd.WindRect.height;
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
