// The back buffer, its copy to the screen, and the tick.
#include "base/Coord.h"
#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "window/Buffer.h"
#include "window/Manager.h"
#include "window/PtrnDisp.h"
#include "window/WindowCodes.h"

#include <algorithm>
#include <gtk/gtk.h>

using namespace tessary;

namespace
{

/// A cursor's picture. One that is sent to the server in one piece would be looked up in the cursor themes on
/// disk, at every tick, and a theme might have another picture in its place; a copy drawn there is not.
BitmapPtr DrawnBitmap(const char* bits)
{
    const BitmapPtr sent(gdk_bitmap_create_from_data(nullptr, bits, 32, 32));
    BitmapPtr drawn(gdk_pixmap_new(sent.get(), 32, 32, 1));
    const GcPtr gc(gdk_gc_new(drawn.get()));
    gdk_draw_drawable(drawn.get(), gc.get(), sent.get(), 0, 0, 0, 0, 32, 32);
    return drawn;
}

} // namespace

void CPtrnDisp::PaintEvent()
{
    if (!DrawArea || !DrawArea->window)
        return;
    ReleaseBuffer();
    const SIZE size = BoundedBuffer(Header(HEDR_WIDTH), Header(HEDR_HEIGHT));
    const std::shared_ptr<CPaintDraw> draw = NewBuffer(DrawArea, size);
    Draw = draw;
    Pixmap = draw->window;

    PtrnData->PtrnCalnSec = -1; // the new buffer has no clock yet, whichever second was shown last
    PtrnData->DispTitle(draw.get());
    PtrnData->DispPtrnData(draw.get());
    if (KeyInputMode == 1)
        ShowKeyInput();
    PtrnDispFunc(draw.get(), DISPLAY_PAINT);
}

void CPtrnDisp::ReleaseBuffer()
{
    Draw.reset();
    Pixmap = nullptr;
}

void CPtrnDisp::UpdateEvent()
{
    if (!DrawArea || !DrawArea->window || !Pixmap)
        return;
    // What of the pattern is in view. The whole of it is copied, whatever part was exposed.
    SIZE buffer{};
    gdk_drawable_get_size(Pixmap, &buffer.cx, &buffer.cy);
    const int left = std::clamp(Offset.x, 0, buffer.cx);
    const int top = std::clamp(Offset.y, 0, buffer.cy);
    const int right = std::clamp(Shift(Offset.x, WindRect.width), left, buffer.cx);
    const int bottom = std::clamp(Shift(Offset.y, WindRect.height), top, buffer.cy);
    const RECT view = SetRect(left, top, right, bottom);
    if (view.width > 0 && view.height > 0)
        gdk_draw_drawable(DrawArea->window, DrawArea->style->black_gc, Pixmap, left, top, left - Offset.x,
                          top - Offset.y, view.width, view.height);
    if (view.width < WindRect.width || view.height < WindRect.height)
        ClearUncovered(view);
}

/// The window has no background of its own: where it shows more than the pattern something must be drawn.
void CPtrnDisp::ClearUncovered(RECT view)
{
    int width = 0;
    int height = 0;
    gdk_drawable_get_size(DrawArea->window, &width, &height);
    const GdkRectangle window = {0, 0, width, height};
    const bool any = view.width > 0 && view.height > 0;
    const GdkRectangle covered = {any ? view.left - Offset.x : 0, any ? view.top - Offset.y : 0, view.width,
                                  view.height};
    GdkRegion* region = gdk_region_rectangle(&window);
    GdkRegion* taken = gdk_region_rectangle(&covered);
    gdk_region_subtract(region, taken);
    GdkRectangle* parts = nullptr;
    int count = 0;
    gdk_region_get_rectangles(region, &parts, &count);
    for (int i = 0; i < count; i++)
        gdk_draw_rectangle(DrawArea->window, DrawArea->style->bg_gc[GTK_STATE_NORMAL], TRUE, parts[i].x,
                           parts[i].y, parts[i].width, parts[i].height);
    g_free(parts);
    gdk_region_destroy(taken);
    gdk_region_destroy(region);
}

void CPtrnDisp::PtrnUpdate()
{
    if (DrawArea)
        gtk_widget_queue_draw_area(DrawArea, 0, 0, WindRect.width, WindRect.height);
}

/// A window manager may have placed the window elsewhere. Reports come late, so what is true now counts. A
/// place that a screen class has stored in WindRect stays until the window is really moved.
void CPtrnDisp::FollowWindow()
{
    if (!Configured || MoveWnd == 1)
        return;
    Configured = false;
    if (Reported.x == Placed.x && Reported.y == Placed.y)
        return;
    gdk_window_get_origin(Widget->window, &Placed.x, &Placed.y);
    const int dx = Saturate(std::int64_t{Placed.x} - WindRect.left);
    const int dy = Saturate(std::int64_t{Placed.y} - WindRect.top);
    WindRect.left = Placed.x;
    WindRect.right = Shift(WindRect.right, dx);
    WindRect.top = Placed.y;
    WindRect.bottom = Shift(WindRect.bottom, dy);
}

void CPtrnDisp::InsistOnShowing()
{
    constexpr int second = 10; // ticks
    if (!Shown && ++Hidden % second == 0)
        ShowAgain(Widget);
}

void CPtrnDisp::TimrEvent()
{
    if (!Pixmap)
        return;
    InsistOnShowing();
    FollowWindow();
    PtrnSetCursor(CursorType, nullptr, 0);
    PtrnTimrFunc();
    // Any hook or action may close this window; what follows then has nothing to draw on.
    if (!Pixmap)
        return;

    const std::shared_ptr<CPaintDraw> draw = Draw;
    KeyTimer(draw.get());
    PtrnData->DispCalender(draw.get());
    PtrnData->FlikPtrnData(draw.get());
    PtrnData->UpdtPtrnData(draw.get());
    PtrnDispFunc(draw.get(), DISPLAY_TICK);
    if (!Pixmap)
        return;
    PtrnUpdate();

    PTRNDATA held;
    if (PtrnData->ReptPtrnData(&held) == 1)
        ExecMessage(&held);

    if (ChildWnd1)
        ChildWnd1->TimrEvent();
    if (ChildWnd2)
        ChildWnd2->TimrEvent();
}

void CPtrnDisp::PtrnSetCursor(int type, const char* file, int line)
{
    CursorType = type;
    if (type >= 0 && type < CONT_CURSOR && DrawArea && DrawArea->window) {
        // Made anew at every call: a screen class changes the pointer by storing another number, and the next
        // tick brings it to the screen. The window keeps its cursor until it gets another.
        const BitmapPtr source = DrawnBitmap(CursorData[type]);
        const BitmapPtr mask(gdk_bitmap_create_from_data(nullptr, CursorMask[type], 32, 32));
        const CursorPtr cursor(gdk_cursor_new_from_pixmap(
            source.get(), mask.get(), &CusrColr[0], &CusrColr[1], CursorHome[type].x, CursorHome[type].y));
        gdk_window_set_cursor(DrawArea->window, cursor.get());
    }
    if (file)
        LogText("PTRNDISP", file, line, "カーソル設定  [%d]", type);
}
