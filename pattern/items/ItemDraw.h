// What the item types share: how they read their state and their parameters, and the eraser and hit test of
// those that fill their rectangle.
#pragma once

#include "pattern/ItemClass.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnData.h"

namespace tessary
{

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

inline bool IsHidden(const PTRNDATA& item)
{
    return (item.wData & STATE_HIDDEN) != 0;
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

/// Neither disabled nor hidden, by the cached state word.
constexpr bool IsUsable(const PTRNDATA& item)
{
    return item.wData < STATE_DISABLE;
}

/// Whether an item of any type is one that blinks, by its state or by a parameter of its type.
bool Blinks(const PTRNDATA& item);

/// Paints the item's rectangle with its clear colour.
void EraseRect(CDraw* draw, const PTRNDATA* item);

/// 1 when the point is in the item's rectangle.
int HitRect(POINT point, const PTRNDATA* item);

/// Part of the `check` of a type that follows its cell.
void CheckBound(const ItemDraft& draft, const ItemRemark& remark);

/// `opaque` of a type that always fills its rectangle.
inline bool AlwaysOpaque(const ItemDraft&)
{
    return true;
}

} // namespace tessary
