#include "window/Retire.h"

#include "shell/Request.h"
#include "window/PtrnDisp.h"

#include <deque>

namespace
{

int handlers = 0;
std::deque<CPtrnDisp*> retired;

void DeleteTree(CPtrnDisp* wnd)
{
    for (CPtrnDisp* child : {wnd->ChildWnd1, wnd->ChildWnd2}) {
        if (child) {
            child->DestroyWidget();
            DeleteTree(child);
        }
    }
    // The system window may outlive the application window that it was opened over.
    if (SystmWnd && SystmWnd->ParentWnd == wnd)
        SystmWnd->ParentWnd = AppliWnd;
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

void RetirePtrnWnd(CPtrnDisp* wnd)
{
    retired.push_back(wnd);
}

void DeleteRetiredWnd(std::size_t kept)
{
    if (handlers > 1)
        return;
    while (retired.size() > kept) {
        CPtrnDisp* wnd = retired.front();
        retired.pop_front();
        DeleteTree(wnd);
    }
}
