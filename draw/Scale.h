// The panel on a display of another size. Patterns, windows, their places and everything that screen classes
// see are in pixels of the panel, of which it has "DISPSIZE"; the toolkit's windows and events are in those
// of the display. Where the two meet, coordinates pass through here.
#pragma once

#include "base/Box.h"
#include "base/Types.h"
#include "config/Scaling.h"

namespace tessary
{

/// A way from the pixels of a panel to those of a display. A pixel of the panel owns those of the display
/// whose middle lies within it.
class Scale
{
  public:
    /// Both are the same, and no conversion does anything.
    Scale() = default;
    /// @param panel    its size, at least one pixel each way
    /// @param display  the part of the display that it may take, in which it is centred
    Scale(Scaling scaling, SIZE panel, const Box& display);

    /// Whether the panel lies on the display as it is.
    bool natural() const { return scaling_ == Scaling::Natural; }
    /// Whether a pixel of the panel has the size of one of the display, wherever it lies.
    bool sized() const { return numerator_ == denominator_; }
    /// Pixels of the display for one of the panel.
    double factor() const { return static_cast<double>(numerator_) / static_cast<double>(denominator_); }
    /// The same in whole numbers, at least 1: for what is only enlarged and only by whole steps.
    int steps() const;
    /// Whether each pixel becomes a square of whole steps.
    bool whole() const { return numerator_ % denominator_ == 0; }
    /// The part of the display that the panel may take; empty for the natural scale.
    const Box& display() const { return display_; }

    /// An extent or a coordinate within a window, on the display.
    int length(int panel) const;
    SIZE size(SIZE panel) const { return {length(panel.cx), length(panel.cy)}; }
    /// The place of the panel's pixel on the display, and back.
    POINT toDisplay(POINT panel) const;
    POINT toPanel(POINT display) const;
    /// The panel's pixel of a window that lies at a place in it.
    POINT inWindow(POINT display) const;
    /// What of a window on the display depends on an area of it.
    Box areaOf(const Box& panel) const;

  private:
    Scaling scaling_ = Scaling::Natural;
    std::int64_t numerator_ = 1;
    std::int64_t denominator_ = 1;
    Box display_;
    POINT origin_{}; ///< of the panel on the display
};

/// That of the running project: natural until ScaleInit, and after ScaleExit.
const Scale& DisplayScale();

/// Takes the scale from profile key "SCALE" and the display, of which it is the monitor that comes first.
/// @param panel  its size; without one there is no scale
void ScaleInit(SIZE panel);
/// Makes the scale natural again.
void ScaleExit();
/// Takes it anew for a display that has changed. @return whether it is another one
bool ScaleAnew();

} // namespace tessary
