// Dragging a window by its title bar and a scroll bar by its thumb.
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "window/PtrnDisp.h"

void CPtrnDisp::MoveWindow1(POINT pt)
{
    if (Header(HEDR_KIND) != 1 || Header(HEDR_NO_DRAG) != 0)
        return;
    MoveWnd = 1;
    MovePoint = {WindRect.left + pt.x, WindRect.top + pt.y};
}

void CPtrnDisp::MoveWindow2(POINT pt)
{
    const POINT current = {WindRect.left + pt.x, WindRect.top + pt.y};
    const int dx = current.x - MovePoint.x;
    const int dy = current.y - MovePoint.y;
    const int width = WindRect.right - WindRect.left;
    const int height = WindRect.bottom - WindRect.top;

    RECT& rect = WindRect;
    rect.left += dx;
    rect.right += dx;
    rect.top += dy;
    rect.bottom += dy;
    // Inside the display; a window larger than it ends at its right and bottom edges.
    if (rect.top < 0) {
        rect.top = 0;
        rect.bottom = height;
    }
    if (rect.left < 0) {
        rect.left = 0;
        rect.right = width;
    }
    if (rect.bottom > DispSizeY) {
        rect.bottom = DispSizeY;
        rect.top = DispSizeY - height;
    }
    if (rect.right > DispSizeX) {
        rect.right = DispSizeX;
        rect.left = DispSizeX - width;
    }
    rect.width = rect.right - rect.left;
    rect.height = rect.bottom - rect.top;

    MovePoint = current;
    if (Widget)
        gtk_window_move(GTK_WINDOW(Widget), rect.left, rect.top);
}

void CPtrnDisp::MoveWindow3()
{
    MoveWnd = 0;
}

void CPtrnDisp::MoveScrollBar1(PTRNDATA* item)
{
    ScrollBar = 1;
    ScrollPtrn = *item;
}

void CPtrnDisp::MoveScrollBar2(POINT pt)
{
    if (PtrnData->SetScrollPos(pt, &ScrollPtrn) == 0)
        return;
    PTRNDATA item = ScrollPtrn; // the action may close this window
    ExecMessage(&item);
}

void CPtrnDisp::MoveScrollBar3()
{
    ScrollBar = 0;
}
