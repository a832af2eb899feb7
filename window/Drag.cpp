// Dragging a window by its title bar and a scroll bar by its thumb.
#include "base/Coord.h"
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "window/OnDisplay.h"
#include "window/PtrnDisp.h"

using namespace tessary;

void CPtrnDisp::MoveWindow1(POINT pt)
{
    if (Header(HEDR_KIND) != 1 || Header(HEDR_NO_DRAG) != 0)
        return;
    MoveWnd = 1;
    MovePoint = {Shift(WindRect.left, pt.x), Shift(WindRect.top, pt.y)};
}

void CPtrnDisp::MoveWindow2(POINT pt)
{
    const POINT current = {Shift(WindRect.left, pt.x), Shift(WindRect.top, pt.y)};
    const int dx = Saturate(std::int64_t{current.x} - MovePoint.x);
    const int dy = Saturate(std::int64_t{current.y} - MovePoint.y);

    RECT& rect = WindRect;
    rect.left = Shift(rect.left, dx);
    rect.right = Shift(rect.right, dx);
    rect.top = Shift(rect.top, dy);
    rect.bottom = Shift(rect.bottom, dy);
    // Inside the display; a window larger than it ends at its right and bottom edges.
    if (rect.top < 0) {
        rect.top = 0;
        rect.bottom = rect.height;
    }
    if (rect.left < 0) {
        rect.left = 0;
        rect.right = rect.width;
    }
    if (rect.bottom > DispSizeY) {
        rect.bottom = DispSizeY;
        rect.top = Saturate(std::int64_t{DispSizeY} - rect.height);
    }
    if (rect.right > DispSizeX) {
        rect.right = DispSizeX;
        rect.left = Saturate(std::int64_t{DispSizeX} - rect.width);
    }
    rect.width = Saturate(std::int64_t{rect.right} - rect.left);
    rect.height = Saturate(std::int64_t{rect.bottom} - rect.top);

    MovePoint = current;
    if (Widget)
        Placed = PlaceOnDisplay(Widget, DrawArea, rect);
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
    if (PtrnData->SetScrollPos(pt, &ScrollPtrn) != 0)
        ExecMessage(&ScrollPtrn);
}

void CPtrnDisp::MoveScrollBar3()
{
    ScrollBar = 0;
}
