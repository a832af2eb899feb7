#include "draw/Scale.h"

#include "base/Coord.h"
#include "config/Profile.h"
#include "config/Settings.h"

#include <algorithm>
#include <gdk/gdk.h>

namespace tessary
{

namespace
{

Scaling wanted = Scaling::Natural;
SIZE panelSize{};
Scale current;

std::int64_t Floor(std::int64_t value, std::int64_t divisor)
{
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

std::int64_t Ceiling(std::int64_t value, std::int64_t divisor)
{
    return -Floor(-value, divisor);
}

Box FirstMonitor()
{
    GdkScreen* const screen = gdk_screen_get_default();
    GdkRectangle area{};
    gdk_screen_get_monitor_geometry(screen, gdk_screen_get_primary_monitor(screen), &area);
    return {area.x, area.y, area.x + area.width, area.y + area.height};
}

/// Without the size of the panel nothing can be told of how large it may become.
Scale NewScale()
{
    if (wanted == Scaling::Natural || panelSize.cx < 1 || panelSize.cy < 1)
        return Scale();
    return Scale(wanted, panelSize, FirstMonitor());
}

} // namespace

Scale::Scale(Scaling scaling, SIZE panel, const Box& display) : scaling_(scaling), display_(display)
{
    if (natural())
        return;
    const std::int64_t width = std::int64_t{display.right} - display.left;
    const std::int64_t height = std::int64_t{display.bottom} - display.top;
    const bool wide = width * panel.cy > height * panel.cx; // the height is what there is less of
    numerator_ = std::max<std::int64_t>(1, wide ? height : width);
    denominator_ = wide ? panel.cy : panel.cx;
    if (scaling == Scaling::Steps) {
        numerator_ = std::max<std::int64_t>(1, numerator_ / denominator_);
        denominator_ = 1;
    }
    // A panel that is larger than the display shows its beginning.
    const auto begin = [](std::int64_t room, int taken) { return std::max(0, Saturate((room - taken) / 2)); };
    origin_ = {Shift(display.left, begin(width, length(panel.cx))),
               Shift(display.top, begin(height, length(panel.cy)))};
}

int Scale::steps() const
{
    return std::max(1, static_cast<int>(numerator_ / denominator_));
}

int Scale::length(int panel) const
{
    return Saturate(Ceiling(2 * (panel * numerator_) - denominator_, 2 * denominator_));
}

POINT Scale::toDisplay(POINT panel) const
{
    return {Shift(origin_.x, length(panel.x)), Shift(origin_.y, length(panel.y))};
}

POINT Scale::toPanel(POINT display) const
{
    return inWindow({Shift(display.x, -origin_.x), Shift(display.y, -origin_.y)});
}

POINT Scale::inWindow(POINT display) const
{
    const auto owner = [&](std::int64_t at) {
        return Saturate(Floor((2 * at + 1) * denominator_, 2 * numerator_));
    };
    return {owner(display.x), owner(display.y)};
}

Box Scale::areaOf(const Box& panel) const
{
    if (whole())
        return {length(panel.left), length(panel.top), length(panel.right), length(panel.bottom)};
    // Pixels are blended with those beside them, before and after they are sized.
    const auto begin = [&](int at) { return Shift(length(Shift(at, -1)), -2); };
    const auto end = [&](int at) { return Shift(length(Shift(at, 1)), 1); };
    return {begin(panel.left), begin(panel.top), end(panel.right), end(panel.bottom)};
}

const Scale& DisplayScale()
{
    return current;
}

void ScaleInit(SIZE panel)
{
    panelSize = panel;
    wanted = ScalingOf(ProfileReadAsc(ProfName, "TESSARY", "SCALE")).value_or(Scaling::Natural);
    current = NewScale();
}

void ScaleExit()
{
    wanted = Scaling::Natural;
    current = Scale();
}

bool ScaleAnew()
{
    const Scale before = current;
    current = NewScale();
    const POINT one = before.toDisplay({0, 0});
    const POINT other = current.toDisplay({0, 0});
    return !(before.display() == current.display()) || before.factor() != current.factor() ||
           one.x != other.x || one.y != other.y;
}

} // namespace tessary
