#include "window/WindowExit.h"

#include "window/InputMethod.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <utility>

namespace
{

void TakeDown(CPtrnDisp* wnd)
{
    for (CPtrnDisp* child : {wnd->ChildWnd1, wnd->ChildWnd2})
        if (child)
            TakeDown(child);
    wnd->DestroyWidget();
}

} // namespace

void tessary::WindowExit()
{
    for (CPtrnDisp** slot : {&SystmWnd, &AppliWnd}) {
        if (CPtrnDisp* wnd = std::exchange(*slot, nullptr)) {
            TakeDown(wnd);
            RetirePtrnWnd(wnd);
        }
    }
    SystemWnd = 0;
    WaitTimer = 0;
    DestroyUnwantedTops();
    DesktopMethod().replace(nullptr);
}
