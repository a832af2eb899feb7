// Child and popup windows.
#include "draw/Resource.h"
#include "log/Category.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Retire.h"

#include <string>
#include <utility>

using namespace tessary;

namespace
{

/// Puts a new window of the pattern into the slot and opens it. The occupant is destroyed first, without its
/// exit hook: its position is not saved and its own children are not exited.
/// @param open  called with the new window and the name
template <class Open>
void FillSlot(CPtrnDisp*& slot, int kind, const char* name, const char* file, int line, Open open)
{
    const std::string pattern(name ? name : ""); // what it points to may go with the occupant
    const bool first = kind == KIND_CHILD1;
    if (CPtrnDisp* old = std::exchange(slot, nullptr)) {
        old->DestroyWidget();
        RetirePtrnWnd(old);
    }
    slot = GetPtrnWnd(pattern.c_str());
    if (!slot) {
        LogText(CATEGORY_WINDOW, file, line,
                first ? "子ウィンドウ（１）表示に失敗  [%s]" : "子ウィンドウ（２）表示に失敗  [%s]",
                pattern.c_str());
        return;
    }
    if (file)
        LogText(CATEGORY_WINDOW, file, line,
                first ? "子ウィンドウ（１）表示  [%s]" : "子ウィンドウ（２）表示  [%s]", pattern.c_str());
    open(slot, pattern.c_str());
}

int SlotKind(int which)
{
    return which == 1 ? KIND_CHILD1 : KIND_CHILD2;
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
    const int kind = SlotKind(which);
    FillSlot(Slot(kind), kind, name, file, line,
             [&](CPtrnDisp* wnd, const char* pattern) { wnd->PtrnDispInit(this, pattern, kind); });
}

void CPtrnDisp::PtrnDispChild(int which, const char* name, int x, int y, const char* file, int line)
{
    const int kind = SlotKind(which);
    FillSlot(Slot(kind), kind, name, file, line,
             [&](CPtrnDisp* wnd, const char* pattern) { wnd->PtrnDispInit(this, pattern, kind, x, y); });
}

void CPtrnDisp::PtrnDispChild(int which, const char* name, RECT rect, const char* file, int line)
{
    const int kind = SlotKind(which);
    FillSlot(Slot(kind), kind, name, file, line,
             [&](CPtrnDisp* wnd, const char* pattern) { wnd->PtrnDispInit(this, pattern, kind, rect); });
}

void CPtrnDisp::PtrnDispPopup(int which, const char* name, RECT rect, const char* file, int line)
{
    PTRNHEDR header;
    if (!PtrnReadHedr(name, &header)) {
        LogText(CATEGORY_WINDOW, file, line, "ポップアップウィンドウ表示に失敗  [%s]", name ? name : "");
        return;
    }
    const int x = BesideArea(rect.right, rect.left, header.Parm1[HEDR_WIDTH], DispSizeX);
    const int y = BesideArea(rect.top, rect.bottom, header.Parm1[HEDR_HEIGHT], DispSizeY);
    if (file)
        LogText(CATEGORY_WINDOW, file, line, "ポップアップウィンドウ表示  [%s]", name);
    PtrnDispChild(which, name, x, y, nullptr, 0);
}

void CPtrnDisp::PtrnDispPopup(int which, const char* name, POINT pt, const char* file, int line)
{
    PtrnDispPopup(which, name, SetRect(pt.x, pt.y, pt.x, pt.y), file, line);
}
