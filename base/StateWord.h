// What a cell's word says of the items that are bound to it: the predicates over its STATE_... bits.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"

namespace tessary
{

/// Colour selection 0..3.
constexpr int ColorSelection(WORD word)
{
    return word & STATE_COLOR;
}

/// A button, radio button or check box that can not be operated. The bit is one of the colour selection's.
constexpr bool IsLocked(WORD word)
{
    return (word & STATE_LOCKED) != 0;
}

/// The item has not been displayed since its pattern was loaded; only cached words say so.
constexpr bool IsNeverShown(WORD word)
{
    return (word & STATE_NEVER) != 0;
}

/// Neither redrawn by the tick nor hit; a field in edit.
constexpr bool IsFrozen(WORD word)
{
    return (word & STATE_FROZEN) != 0;
}

/// Blinks.
constexpr bool IsFlickering(WORD word)
{
    return (word & STATE_FLICKER) != 0;
}

/// Drawn blanked; a click changes nothing.
constexpr bool IsDisabled(WORD word)
{
    return (word & STATE_DISABLE) != 0;
}

/// Erased, not hit.
constexpr bool IsHidden(WORD word)
{
    return (word & STATE_HIDDEN) != 0;
}

/// Neither disabled nor hidden.
constexpr bool IsUsable(WORD word)
{
    return !IsDisabled(word) && !IsHidden(word);
}

/// Usable, and not locked.
constexpr bool IsOperable(WORD word)
{
    return IsUsable(word) && !IsLocked(word);
}

} // namespace tessary
