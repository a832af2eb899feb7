#include "app/Places.h"

#include "app/Cells.h"

namespace
{

constexpr int SLOT = 1; ///< child slot of everything that the test screens open

constexpr const char* CHILD_NAMES[] = {panel::screen::子ウィンドウ_1, panel::screen::子ウィンドウ_2,
                                       panel::screen::子ウィンドウ_3};
static_assert(sizeof CHILD_NAMES / sizeof CHILD_NAMES[0] == CHILD_BUTTONS.count);

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
    if (!CHILD_BUTTONS.holds(button))
        return false;
    wnd.PtrnDispChild(SLOT, CHILD_NAMES[button - CHILD_BUTTONS.first], nullptr, 0);
    return true;
}

void OpenPopupMenu(CPtrnDisp& wnd, const RECT& beside)
{
    wnd.PtrnDispPopup(SLOT, panel::screen::ポップアップメニュー, OnScreen(wnd, beside), nullptr, 0);
}

void CloseOpened(CPtrnDisp& wnd)
{
    wnd.PtrnCloseWnd(SLOT, nullptr, 0);
}
