// The value behind a scroll bar: an integer from 0 to the entries that do not fit.
#pragma once

#include "pattern/PtrnData.h"

namespace tessary
{

/// Parts of a scroll bar, TestScrollBar.
enum ScrollPart {
    SCROLL_NONE = 0,
    SCROLL_PAGE1 = 1,
    SCROLL_PAGE2 = 2,
    SCROLL_ARROW1 = 3,
    SCROLL_ARROW2 = 4,
    SCROLL_THUMB = 5,
    SCROLL_TROUGH1 = 6, ///< before the thumb
    SCROLL_TROUGH2 = 7, ///< behind it
};

/// False while everything is visible: then the bar is neither drawn nor operated.
bool CanScroll(const PTRNDATA& item);

/// Sets the bar's cell to a value, held between 0 and the last position (which wins where that is negative).
/// @return 1 when the cell's value changed
int ScrollTo(const PTRNDATA* item, std::int64_t value);

/// Moves the bar's cell from where it stands, as ScrollTo.
int ScrollBy(const PTRNDATA* item, std::int64_t distance);

/// Moves it by the step that belongs to a part.
int StepScrollBar(const PTRNDATA* item, int part);

} // namespace tessary
