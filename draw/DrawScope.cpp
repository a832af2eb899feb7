#include "draw/DrawScope.h"

#include "base/Limits.h"

#include <algorithm>
#include <gdk/gdkx.h>
#include <utility>

namespace tessary
{

namespace
{

/// An area of more boxes becomes the one around it: finding out where it is would cost more than to copy it.
constexpr int MOST_PARTS = 1000;

/// What a recorded drawable carries with it.
struct Recorded {
    DrawnArea area;
    DrawState state{nullptr, nullptr, false, &area};
};

constexpr char RECORD_KEY[] = "tessary-drawn";

/// Nothing has to be looked up before there was a state.
bool anyState = false;

GQuark StateKey()
{
    static const GQuark KEY = g_quark_from_static_string("tessary-state");
    return KEY;
}

void SetState(GdkGC* gc, const DrawState* state)
{
    anyState = true;
    g_object_set_qdata(G_OBJECT(gc), StateKey(), const_cast<DrawState*>(state));
}

Recorded* RecordOf(GdkDrawable* drawable)
{
    return static_cast<Recorded*>(g_object_get_data(G_OBJECT(drawable), RECORD_KEY));
}

unsigned long Sent()
{
    return NextRequest(GDK_DISPLAY());
}

/// A box that may reach beyond every drawable.
GdkRectangle RectangleOf(const Box& box)
{
    constexpr Box drawable = {0, 0, COORDINATE_MAX, COORDINATE_MAX};
    const Box bound = Common(box, drawable);
    return {bound.left, bound.top, std::max(0, bound.right - bound.left),
            std::max(0, bound.bottom - bound.top)};
}

} // namespace

DrawnArea::~DrawnArea()
{
    if (region_)
        gdk_region_destroy(region_);
}

void DrawnArea::add(const Box& box)
{
    const GdkRectangle added = RectangleOf(box);
    if (added.width == 0 || added.height == 0)
        return;
    if (!region_)
        region_ = gdk_region_new();
    gdk_region_union_with_rect(region_, &added);
    if (++parts_ < MOST_PARTS)
        return;
    GdkRectangle around{};
    gdk_region_get_clipbox(region_, &around);
    gdk_region_union_with_rect(region_, &around);
    parts_ = 1;
}

GdkRegion* DrawnArea::take()
{
    parts_ = 0;
    return std::exchange(region_, nullptr);
}

void DrawnArea::enter()
{
    if (depth_++ == 0)
        entered_ = Sent();
}

void DrawnArea::leave()
{
    if (--depth_ == 0)
        own_ += Sent() - entered_;
}

unsigned long DrawnArea::foreignRequests()
{
    const unsigned long others = Sent() - own_;
    return others - std::exchange(asked_, others);
}

bool DrawState::admits(const Box& box) const
{
    if (extent)
        *extent = Around(*extent, box);
    if (silent)
        return false;
    const Box seen = clip ? Common(box, *clip) : box;
    if (seen.empty())
        return false;
    if (drawn)
        drawn->add(seen);
    return true;
}

DrawnArea* RecordDrawings(GdkDrawable* drawable)
{
    auto* recorded = new Recorded;
    g_object_set_data_full(G_OBJECT(drawable), RECORD_KEY, recorded,
                           [](gpointer data) { delete static_cast<Recorded*>(data); });
    return &recorded->area;
}

DrawnArea* DrawingsOf(GdkDrawable* drawable)
{
    Recorded* recorded = RecordOf(drawable);
    return recorded ? &recorded->area : nullptr;
}

void RecordWith(GdkGC* gc, GdkDrawable* drawable)
{
    if (const Recorded* recorded = RecordOf(drawable))
        SetState(gc, &recorded->state);
}

const DrawState* StateOf(GdkGC* gc)
{
    return anyState ? static_cast<const DrawState*>(g_object_get_qdata(G_OBJECT(gc), StateKey())) : nullptr;
}

Box WholeOf(GdkDrawable* drawable)
{
    Box whole;
    gdk_drawable_get_size(drawable, &whole.right, &whole.bottom);
    return whole;
}

Box VisibleOn(GdkDrawable* drawable, GdkGC* gc)
{
    const Box whole = WholeOf(drawable);
    return IsClipped(gc) ? Common(whole, *StateOf(gc)->clip) : whole;
}

bool IsClipped(GdkGC* gc)
{
    const DrawState* state = StateOf(gc);
    return state && state->clip;
}

void ApplyClip(GdkGC* gc)
{
    if (!IsClipped(gc)) {
        gdk_gc_set_clip_rectangle(gc, nullptr);
        return;
    }
    const GdkRectangle clip = RectangleOf(*StateOf(gc)->clip);
    gdk_gc_set_clip_rectangle(gc, &clip);
}

DrawScope::DrawScope(GdkGC* gc) : gc_(gc), outer_(StateOf(gc))
{
    if (outer_)
        state_ = *outer_;
    SetState(gc_, &state_);
}

DrawScope::~DrawScope()
{
    SetState(gc_, outer_);
}

ClipScope::ClipScope(GdkGC* gc, const Box& area)
    : DrawScope(gc), area_(state_.clip ? Common(area, *state_.clip) : area), before_(state_.clip)
{
    state_.clip = &area_;
    ApplyClip(gc_);
}

ClipScope::~ClipScope()
{
    state_.clip = before_;
    ApplyClip(gc_);
}

ExtentScope::ExtentScope(GdkGC* gc, Mode mode) : DrawScope(gc)
{
    state_.extent = &extent_;
    state_.silent = state_.silent || mode == ONLY_MEASURED;
}

} // namespace tessary
