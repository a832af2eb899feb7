#include "window/OnDisplay.h"

#include "base/Limits.h"
#include "draw/Resource.h"
#include "draw/Scale.h"
#include "pattern/ItemParm.h"
#include "window/PtrnDisp.h"

#include <algorithm>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

int Extent(int pixels)
{
    return std::clamp(pixels, 1, COORDINATE_MAX);
}

int Place(int pixels)
{
    return std::clamp(pixels, -COORDINATE_MAX, COORDINATE_MAX); // X knows no place beyond
}

/// What lies between a covering window and its drawing area.
GtkWidget* GroundOf(const GtkWidget* area)
{
    GtkWidget* const parent = area->parent;
    return parent && GTK_IS_FIXED(parent) ? parent : nullptr;
}

void SizeGround(GtkWidget* ground)
{
    const Box& display = DisplayScale().display();
    gtk_widget_set_size_request(ground, Extent(display.right - display.left),
                                Extent(display.bottom - display.top));
}

} // namespace

void AddArea(GtkWidget* top, GtkWidget* area, const RECT& rect, bool covers)
{
    SizeOnDisplay(area, rect);
    GtkWidget* inner = area;
    if (covers && CoversDisplay()) {
        inner = gtk_fixed_new();
        gtk_fixed_put(GTK_FIXED(inner), area, 0, 0);
        gtk_widget_set_app_paintable(top, TRUE); // no theme may paint over the colour
        gtk_widget_show(inner);
    }
    gtk_container_add(GTK_CONTAINER(top), inner);
}

bool IsCovering(const GtkWidget* area)
{
    return GroundOf(area) != nullptr;
}

bool CoversDisplay()
{
    return !DisplayScale().natural();
}

POINT PlaceOnDisplay(GtkWidget* top, GtkWidget* area, const RECT& rect)
{
    POINT place = DisplayScale().toDisplay({rect.left, rect.top});
    if (GtkWidget* const ground = GroundOf(area)) {
        const Box& display = DisplayScale().display();
        SizeGround(ground);
        gtk_fixed_move(GTK_FIXED(ground), area, Place(place.x - display.left), Place(place.y - display.top));
        place = {display.left, display.top};
    }
    gtk_window_move(GTK_WINDOW(top), Place(place.x), Place(place.y));
    return place;
}

void SizeOnDisplay(GtkWidget* area, const RECT& rect)
{
    const SIZE size = DisplayScale().size({rect.width, rect.height});
    gtk_widget_set_size_request(area, Extent(size.cx), Extent(size.cy));
}

void PaintRest(const CPtrnDisp& wnd)
{
    const int color = wnd.PtrnData->PtrnHedr.Parm1[HEDR_BODY_COLOR];
    if (!IsCovering(wnd.DrawArea) || color < 0 || color >= CONT_COLR)
        return;
    // A style, since the toolkit sets the background of its windows anew whenever styles change.
    GtkRcStyle* const style = gtk_widget_get_modifier_style(wnd.Widget);
    for (int state = GTK_STATE_NORMAL; state <= GTK_STATE_INSENSITIVE; ++state) {
        g_free(style->bg_pixmap_name[state]);
        style->bg_pixmap_name[state] = g_strdup("<none>");
        style->color_flags[state] = static_cast<GtkRcFlags>(style->color_flags[state] | GTK_RC_BG);
        style->bg[state] = DrawColr[color];
    }
    gtk_widget_modify_style(wnd.Widget, style);
    if (wnd.Widget->window)
        gdk_window_clear(wnd.Widget->window);
}

} // namespace tessary
