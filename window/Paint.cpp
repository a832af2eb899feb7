// The back buffer, its copy to the screen, and the tick.
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "shell/LogText.h"
#include "window/PtrnDisp.h"

#include <algorithm>

void CPtrnDisp::PaintEvent()
{
    if (!DrawArea || !DrawArea->window)
        return;
    ReleaseBuffer();
    // A pattern that could not be loaded has no size; X allows no pixmap beyond 32767.
    const auto pixels = [](int size) { return std::clamp(size, 1, 32767); };
    Pixmap = gdk_pixmap_new(DrawArea->window, pixels(Header(HEDR_WIDTH)), pixels(Header(HEDR_HEIGHT)), -1);
    Draw.reset(new CPaintDraw(Pixmap));

    PtrnData->DispTitle(Draw.get());
    PtrnData->DispPtrnData(Draw.get());
    PtrnDispFunc(Draw.get(), 0);
}

void CPtrnDisp::UpdateEvent()
{
    if (!DrawArea || !DrawArea->window || !Pixmap)
        return;
    gdk_draw_drawable(DrawArea->window, DrawArea->style->black_gc, Pixmap, Offset.x, Offset.y, 0, 0,
                      WindRect.width, WindRect.height);
}

void CPtrnDisp::PtrnUpdate()
{
    if (DrawArea)
        gtk_widget_queue_draw_area(DrawArea, 0, 0, WindRect.width, WindRect.height);
}

void CPtrnDisp::TimrEvent()
{
    if (!Pixmap)
        return;
    PtrnSetCursor(CursorType, nullptr, 0);
    PtrnTimrFunc();
    // Any hook or action may close this window; what follows then has nothing to draw on.
    if (!Pixmap)
        return;

    CDraw* const draw = Draw.get();
    KeyTimer(draw);
    PtrnData->DispCalender(draw);
    PtrnData->FlikPtrnData(draw);
    PtrnData->UpdtPtrnData(draw);
    PtrnDispFunc(draw, 1);
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
        // One cursor for all windows, made anew at every call: a screen class changes the pointer by storing
        // another number, and the next tick brings it to the screen.
        static GdkCursor* cursor = nullptr;
        if (cursor)
            gdk_cursor_unref(cursor);
        GdkBitmap* source = gdk_bitmap_create_from_data(nullptr, CursorData[type], 32, 32);
        GdkBitmap* mask = gdk_bitmap_create_from_data(nullptr, CursorMask[type], 32, 32);
        cursor = gdk_cursor_new_from_pixmap(source, mask, &CusrColr[0], &CusrColr[1], CursorHome[type].x,
                                            CursorHome[type].y);
        g_object_unref(source);
        g_object_unref(mask);
        gdk_window_set_cursor(DrawArea->window, cursor);
    }
    if (file)
        LogText("PTRNDISP", file, line, "カーソル設定  [%d]", type);
}
