#include "window/Retire.h"

#include "window/PtrnDisp.h"
#include "window/Slots.h"

#include <algorithm>
#include <gtk/gtk.h>
#include <utility>
#include <vector>

namespace tessary
{

namespace
{

using Windows = std::vector<CPtrnDisp*>;

int handlers = 0;
int layouts = 0;
std::vector<GtkWidget*> unwanted; ///< top-level windows to destroy
Windows retired;                  ///< oldest first

/// Never destroyed: an application may have window objects that live as long as the program.
Windows& Living()
{
    static Windows& living = *new Windows;
    return living;
}

void Remove(Windows& windows, CPtrnDisp* wnd)
{
    windows.erase(std::remove(windows.begin(), windows.end(), wnd), windows.end());
}

bool OnScreen(const CPtrnDisp* wnd)
{
    return wnd && (wnd->Widget || OnScreen(wnd->ChildWnd1) || OnScreen(wnd->ChildWnd2));
}

void DeleteTree(CPtrnDisp* wnd)
{
    for (CPtrnDisp* child : {wnd->ChildWnd1, wnd->ChildWnd2})
        if (child)
            DeleteTree(child);
    delete wnd;
}

} // namespace

HandlerScope::HandlerScope()
{
    ++handlers;
}

HandlerScope::~HandlerScope()
{
    --handlers;
}

LayoutScope::LayoutScope()
{
    ++layouts;
}

LayoutScope::~LayoutScope()
{
    --layouts;
}

void DestroyTop(GtkWidget* top)
{
    if (layouts)
        unwanted.push_back(top);
    else
        gtk_widget_destroy(top);
}

void DestroyUnwantedTops()
{
    for (GtkWidget* top : std::exchange(unwanted, {}))
        gtk_widget_destroy(top);
}

void RetirePtrnWnd(CPtrnDisp* wnd)
{
    if (std::find(retired.begin(), retired.end(), wnd) == retired.end())
        retired.push_back(wnd);
}

void DeleteRetiredWnd(std::size_t kept)
{
    if (handlers > 1 || gtk_main_level() > 1)
        return;
    DestroyUnwantedTops();
    if (retired.size() <= kept)
        return;
    const Windows old(retired.begin(), retired.end() - static_cast<std::ptrdiff_t>(kept));
    for (CPtrnDisp* wnd : old) {
        // Deleting one may have taken another with it, its child.
        const bool there = std::find(retired.begin(), retired.end(), wnd) != retired.end();
        if (there && (kept == 0 || !OnScreen(wnd)))
            DeleteTree(wnd);
    }
}

void RegisterPtrnWnd(CPtrnDisp* wnd)
{
    Living().push_back(wnd);
}

void ForgetPtrnWnd(CPtrnDisp* wnd)
{
    Remove(retired, wnd);
    Remove(Living(), wnd);
    if (AppliWnd == wnd)
        AppliWnd = nullptr;
    if (SystmWnd == wnd) {
        SystmWnd = nullptr;
        SystemWnd = 0;
    }
    for (CPtrnDisp* other : Living()) {
        // The system window outlives the application window that it was opened over.
        if (other->ParentWnd == wnd)
            other->ParentWnd = other == SystmWnd ? AppliWnd : nullptr;
        if (other->ChildWnd1 == wnd)
            other->ChildWnd1 = nullptr;
        if (other->ChildWnd2 == wnd)
            other->ChildWnd2 = nullptr;
    }
}

} // namespace tessary
