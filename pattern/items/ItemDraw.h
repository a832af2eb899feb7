// What the drawing members of the item types share.
#pragma once

#include "pattern/ItemParm.h"
#include "pattern/PtrnData.h"

/// Colour selection 0..3: which of a group of four parameters counts.
inline int ColorSelection(const PTRNDATA* item)
{
    return item->wData & STATE_COLOR;
}

/// The selected one of the four parameters that begin at `group`.
inline int Selected(const PTRNDATA* item, int group)
{
    return item->Parm[group + ColorSelection(item)];
}

/// The selected background, or -1 (none) when the item is drawn without one.
inline int SelectedBackground(const PTRNDATA* item, int group, int switchedBy)
{
    return item->Parm[switchedBy] ? Selected(item, group) : -1;
}

inline bool IsDisabled(const PTRNDATA* item)
{
    return (item->wData & STATE_DISABLE) != 0;
}

/// Buttons, radio buttons and check boxes change colour by the lock bit alone.
inline bool IsLocked(const PTRNDATA* item)
{
    return (item->wData & STATE_LOCKED) != 0;
}
