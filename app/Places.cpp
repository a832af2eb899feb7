#include "app/Places.h"

#include "app/Cells.h"

namespace
{

constexpr int kSlot = 1; ///< child slot of everything that the test screens open

constexpr const char* kChildNames[] = {"子ウィンドウ (1)", "子ウィンドウ (2)", "子ウィンドウ (3)"};
static_assert(sizeof kChildNames / sizeof kChildNames[0] == kChildButtons.count);

} // namespace

RECT ItemRect(CPtrnDisp& wnd, int dataNo, int type)
{
    PTRNDATA item;
    return wnd.PtrnReadData(dataNo, type, &item) ? item.Rect : RECT{};
}

bool IsEmptyRect(const RECT& rect)
{
    return rect.right <= rect.left || rect.bottom <= rect.top;
}

RECT OnScreen(const CPtrnDisp& wnd, const RECT& rect)
{
    const int dx = wnd.WindRect.left - wnd.Offset.x;
    const int dy = wnd.WindRect.top - wnd.Offset.y;
    return SetRect(rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy);
}

bool OpenChildOf(CPtrnDisp& wnd, int button)
{
    if (!kChildButtons.holds(button))
        return false;
    wnd.PtrnDispChild(kSlot, kChildNames[button - kChildButtons.first], nullptr, 0);
    return true;
}

void OpenPopupMenu(CPtrnDisp& wnd, const RECT& beside)
{
    wnd.PtrnDispPopup(kSlot, "ポップアップメニュー", OnScreen(wnd, beside), nullptr, 0);
}

void CloseOpened(CPtrnDisp& wnd)
{
    wnd.PtrnCloseWnd(kSlot, nullptr, 0);
}
