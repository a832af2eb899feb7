// The back buffer, its copy to the screen, and the tick.
#include "base/Coord.h"
#include "config/Edition.h"
#include "draw/DrawScope.h"
#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "log/Category.h"
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

/// Whether a window has another pointer than this one, which it has from now on.
bool ChangesPointer(GdkWindow* window, int type)
{
    constexpr char key[] = "tessary-pointer"; // counted from 1
    const int before = GPOINTER_TO_INT(g_object_get_data(G_OBJECT(window), key));
    g_object_set_data(G_OBJECT(window), key, GINT_TO_POINTER(type + 1));
    return before != type + 1;
}

/// Leaves out of an area of the buffer what is not in view. @return false when nothing remains
bool HoldToView(GdkRegion* area, const RECT& view)
{
    const GdkRectangle seen = {view.left, view.top, view.width, view.height};
    GdkRegion* const region = gdk_region_rectangle(&seen);
    gdk_region_intersect(area, region);
    gdk_region_destroy(region);
    return !gdk_region_empty(area);
}

void SendPointer(GdkWindow* window, int type)
{
    if (Has(Correction::QuietTick) && !ChangesPointer(window, type))
        return;
    // Made anew at every call: a screen class changes the pointer by storing another number, and the next
    // tick brings it to the screen. The window keeps its cursor until it gets another.
    const BitmapPtr source = DrawnBitmap(CursorData[type]);
    const BitmapPtr mask(gdk_bitmap_create_from_data(nullptr, CursorMask[type], 32, 32));
    const CursorPtr cursor(gdk_cursor_new_from_pixmap(source.get(), mask.get(), &CusrColr[0], &CusrColr[1],
                                                      CursorHome[type].x, CursorHome[type].y));
    gdk_window_set_cursor(window, cursor.get());
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

/// What of the back buffer is in view; without width or height when nothing is.
RECT CPtrnDisp::ViewOfBuffer() const
{
    SIZE buffer{};
    gdk_drawable_get_size(Pixmap, &buffer.cx, &buffer.cy);
    const int left = std::clamp(Offset.x, 0, buffer.cx);
    const int top = std::clamp(Offset.y, 0, buffer.cy);
    const int right = std::clamp(Shift(Offset.x, WindRect.width), left, buffer.cx);
    const int bottom = std::clamp(Shift(Offset.y, WindRect.height), top, buffer.cy);
    return SetRect(left, top, right, bottom);
}

void CPtrnDisp::UpdateEvent()
{
    if (!DrawArea || !DrawArea->window || !Pixmap)
        return;
    // The whole of what is in view is copied, whatever part was exposed.
    const RECT view = ViewOfBuffer();
    if (view.width > 0 && view.height > 0)
        gdk_draw_drawable(DrawArea->window, DrawArea->style->black_gc, Pixmap, view.left, view.top,
                          view.left - Offset.x, view.top - Offset.y, view.width, view.height);
    if (view.width < WindRect.width || view.height < WindRect.height)
        ClearUncovered(view);
}

/// Copies a part of the window, or clears it where it shows nothing of the back buffer.
void CPtrnDisp::UpdateArea(const GdkEventExpose& event)
{
    if (!DrawArea || !DrawArea->window || !Pixmap)
        return;
    const RECT view = ViewOfBuffer();
    const bool any = view.width > 0 && view.height > 0;
    const Box covered =
        any ? Box{view.left - Offset.x, view.top - Offset.y, view.right - Offset.x, view.bottom - Offset.y}
            : Box{};
    GdkRectangle* parts = nullptr;
    int count = 0;
    gdk_region_get_rectangles(event.region, &parts, &count);
    for (int i = 0; i < count; i++) {
        const GdkRectangle& part = parts[i];
        const Box exposed = {part.x, part.y, part.x + part.width, part.y + part.height};
        const Box shown = Common(exposed, covered);
        if (!(shown == exposed))
            gdk_draw_rectangle(DrawArea->window, DrawArea->style->bg_gc[GTK_STATE_NORMAL], TRUE, part.x,
                               part.y, part.width, part.height);
        if (!shown.empty())
            gdk_draw_drawable(DrawArea->window, DrawArea->style->black_gc, Pixmap, shown.left + Offset.x,
                              shown.top + Offset.y, shown.left, shown.top, shown.right - shown.left,
                              shown.bottom - shown.top);
    }
    g_free(parts);
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
    if (!Shown && GTK_WIDGET_VISIBLE(Widget) && ++Hidden % second == 0)
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
    RunDispFunc(draw.get());
    if (!Pixmap)
        return;
    if (Has(Correction::QuietTick))
        ShowDrawn();
    else
        PtrnUpdate();

    PTRNDATA held;
    if (PtrnData->ReptPtrnData(&held) == 1)
        ExecMessage(&held);

    if (ChildWnd1)
        ChildWnd1->TimrEvent();
    if (ChildWnd2)
        ChildWnd2->TimrEvent();
}

/// A screen class may draw on the buffer by other means than the primitives, whose area nobody knows. Whoever
/// has sent requests of his own may have drawn everywhere.
void CPtrnDisp::RunDispFunc(CDraw* draw)
{
    DrawnArea* const drawn = DrawingsOf(draw->window);
    if (drawn)
        drawn->foreignRequests();
    PtrnDispFunc(draw, DISPLAY_TICK);
    if (!drawn || drawn->foreignRequests() == 0)
        return;
    drawn->add(WholeOf(draw->window));
}

/// Has the toolkit expose what was drawn since the last tick, or everything when another part of the pattern
/// has come into view.
void CPtrnDisp::ShowDrawn()
{
    GdkRegion* const region = DrawingsOf(Pixmap) ? DrawingsOf(Pixmap)->take() : nullptr;
    const RECT view =
        SetRect(Offset.x, Offset.y, Shift(Offset.x, WindRect.width), Shift(Offset.y, WindRect.height));
    const bool moved = !(BoxOf(view) == BoxOf(ViewRect));
    ViewRect = view;
    if (moved) {
        PtrnUpdate();
    } else if (region && HoldToView(region, ViewOfBuffer())) {
        gdk_region_offset(region, -Offset.x, -Offset.y);
        gdk_window_invalidate_region(DrawArea->window, region, FALSE);
    }
    if (region)
        gdk_region_destroy(region);
}

void CPtrnDisp::PtrnSetCursor(int type, const char* file, int line)
{
    CursorType = type;
    if (type >= 0 && type < CONT_CURSOR && DrawArea && DrawArea->window)
        SendPointer(DrawArea->window, type);
    if (file)
        LogText(CATEGORY_WINDOW, file, line, "カーソル設定  [%d]", type);
}
