// The back buffer, its copy to the screen, and the tick.
#include "base/Coord.h"
#include "config/Edition.h"
#include "draw/DrawScope.h"
#include "draw/Resource.h"
#include "draw/Scale.h"
#include "log/Category.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "window/Buffer.h"
#include "window/Enlarge.h"
#include "window/Manager.h"
#include "window/Pointer.h"
#include "window/PtrnDisp.h"
#include "window/WindowCodes.h"

#include <algorithm>
#include <gtk/gtk.h>

using namespace tessary;

namespace
{

/// Leaves out of an area of the buffer what is not in view. @return false when nothing remains
bool HoldToView(GdkRegion* area, const RECT& view)
{
    const GdkRectangle seen = {view.left, view.top, view.width, view.height};
    GdkRegion* const region = gdk_region_rectangle(&seen);
    gdk_region_intersect(area, region);
    gdk_region_destroy(region);
    return !gdk_region_empty(area);
}

/// The part of a window that shows what is in view of its buffer; empty when nothing is.
Box CoveredBy(const RECT& view, POINT offset)
{
    if (view.width <= 0 || view.height <= 0)
        return {};
    const Scale& scale = DisplayScale();
    return {scale.length(view.left - offset.x), scale.length(view.top - offset.y),
            scale.length(view.right - offset.x), scale.length(view.bottom - offset.y)};
}

/// Copies what a window shows in an area of it.
void CopyBuffer(GtkWidget* area, GdkPixmap* buffer, POINT offset, const Box& shown)
{
    const Scale& scale = DisplayScale();
    if (!scale.sized())
        CopyScaled(area->window, buffer, offset, scale, shown);
    else
        gdk_draw_drawable(area->window, area->style->black_gc, buffer, shown.left + offset.x,
                          shown.top + offset.y, shown.left, shown.top, shown.right - shown.left,
                          shown.bottom - shown.top);
}

/// What of a window an area of its buffer is shown in.
GdkRegion* RegionOnWindow(GdkRegion* drawn, POINT offset)
{
    gdk_region_offset(drawn, -offset.x, -offset.y);
    const Scale& scale = DisplayScale();
    if (scale.sized())
        return drawn;
    GdkRegion* const shown = gdk_region_new();
    GdkRectangle* parts = nullptr;
    int count = 0;
    gdk_region_get_rectangles(drawn, &parts, &count);
    for (int i = 0; i < count; i++) {
        const GdkRectangle& part = parts[i];
        const Box box = scale.areaOf({part.x, part.y, part.x + part.width, part.y + part.height});
        const GdkRectangle sized = {box.left, box.top, box.right - box.left, box.bottom - box.top};
        gdk_region_union_with_rect(shown, &sized);
    }
    g_free(parts);
    gdk_region_destroy(drawn);
    return shown;
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
    if (const Box covered = CoveredBy(view, Offset); !covered.empty())
        CopyBuffer(DrawArea, Pixmap, Offset, covered);
    if (view.width < WindRect.width || view.height < WindRect.height)
        ClearUncovered(view);
}

/// Copies a part of the window, or clears it where it shows nothing of the back buffer.
void CPtrnDisp::UpdateArea(const GdkEventExpose& event)
{
    if (!DrawArea || !DrawArea->window || !Pixmap)
        return;
    const Box covered = CoveredBy(ViewOfBuffer(), Offset);
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
            CopyBuffer(DrawArea, Pixmap, Offset, shown);
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
    const Box shown = CoveredBy(view, Offset);
    const GdkRectangle covered = {shown.left, shown.top, shown.right - shown.left, shown.bottom - shown.top};
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
        gtk_widget_queue_draw_area(DrawArea, 0, 0, DisplayScale().length(WindRect.width),
                                   DisplayScale().length(WindRect.height));
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
    const POINT place =
        DisplayScale().toPanel({Placed.x + DrawArea->allocation.x, Placed.y + DrawArea->allocation.y});
    const int dx = Saturate(std::int64_t{place.x} - WindRect.left);
    const int dy = Saturate(std::int64_t{place.y} - WindRect.top);
    WindRect.left = place.x;
    WindRect.right = Shift(WindRect.right, dx);
    WindRect.top = place.y;
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
    if (CopiesDrawn())
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
    GdkRegion* region = DrawingsOf(Pixmap) ? DrawingsOf(Pixmap)->take() : nullptr;
    const RECT view =
        SetRect(Offset.x, Offset.y, Shift(Offset.x, WindRect.width), Shift(Offset.y, WindRect.height));
    const bool moved = !(BoxOf(view) == BoxOf(ViewRect));
    ViewRect = view;
    if (moved) {
        PtrnUpdate();
    } else if (region && HoldToView(region, ViewOfBuffer())) {
        region = RegionOnWindow(region, Offset);
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
