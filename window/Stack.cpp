// Child and popup windows.
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "shell/LogText.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Retire.h"

namespace
{

constexpr char kLog[] = "PTRNDISP";

/// Puts a new window of the pattern into the slot. The occupant is destroyed first, without its exit hook:
/// its position is not saved and its own children are not exited.
/// @return the new window, not yet opened; null for a name the registry does not know
CPtrnDisp* RefillSlot(CPtrnDisp*& slot, int kind, const char* name, const char* file, int line)
{
    if (CPtrnDisp* old = slot) {
        old->DestroyWidget();
        RetirePtrnWnd(old);
    }
    slot = GetPtrnWnd(name);
    if (!slot)
        LogText(kLog, file, line,
                kind == KIND_CHILD1 ? "子ウィンドウ（１）表示に失敗  [%s]"
                                    : "子ウィンドウ（２）表示に失敗  [%s]",
                name);
    else if (file)
        LogText(kLog, file, line,
                kind == KIND_CHILD1 ? "子ウィンドウ（１）表示  [%s]" : "子ウィンドウ（２）表示  [%s]", name);
    return slot;
}

/// Where a popup goes along one axis: behind the area when it fits there, else before it, else centred.
/// Fitting exactly is not fitting.
int BesideArea(int behind, int before, int size, int display)
{
    const auto wide = [](int value) { return static_cast<std::int64_t>(value); };
    if (wide(behind) + size < display)
        return behind;
    if (before > size)
        return before - size;
    return static_cast<int>((wide(display) - size) / 2);
}

} // namespace

void CPtrnDisp::PtrnDispChild(int which, const char* name, const char* file, int line)
{
    const int kind = which == 1 ? KIND_CHILD1 : KIND_CHILD2;
    if (CPtrnDisp* wnd = RefillSlot(kind == KIND_CHILD1 ? ChildWnd1 : ChildWnd2, kind, name, file, line))
        wnd->PtrnDispInit(this, name, kind);
}

void CPtrnDisp::PtrnDispChild(int which, const char* name, int x, int y, const char* file, int line)
{
    const int kind = which == 1 ? KIND_CHILD1 : KIND_CHILD2;
    if (CPtrnDisp* wnd = RefillSlot(kind == KIND_CHILD1 ? ChildWnd1 : ChildWnd2, kind, name, file, line))
        wnd->PtrnDispInit(this, name, kind, x, y);
}

void CPtrnDisp::PtrnDispChild(int which, const char* name, RECT rect, const char* file, int line)
{
    const int kind = which == 1 ? KIND_CHILD1 : KIND_CHILD2;
    if (CPtrnDisp* wnd = RefillSlot(kind == KIND_CHILD1 ? ChildWnd1 : ChildWnd2, kind, name, file, line))
        wnd->PtrnDispInit(this, name, kind, rect);
}

void CPtrnDisp::PtrnDispPopup(int which, const char* name, RECT rect, const char* file, int line)
{
    PTRNHEDR header;
    if (!PtrnReadHedr(name, &header)) {
        LogText(kLog, file, line, "ポップアップウィンドウ表示に失敗  [%s]", name);
        return;
    }
    const int x = BesideArea(rect.right, rect.left, header.Parm1[HEDR_WIDTH], DispSizeX);
    const int y = BesideArea(rect.top, rect.bottom, header.Parm1[HEDR_HEIGHT], DispSizeY);
    if (file)
        LogText(kLog, file, line, "ポップアップウィンドウ表示  [%s]", name);
    PtrnDispChild(which, name, x, y, nullptr, 0);
}

void CPtrnDisp::PtrnDispPopup(int which, const char* name, POINT pt, const char* file, int line)
{
    PtrnDispPopup(which, name, SetRect(pt.x, pt.y, pt.x, pt.y), file, line);
}
