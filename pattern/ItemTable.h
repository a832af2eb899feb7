// One row per item type: everything that display, hit test and pointer handling know about a type.
#pragma once

#include "pattern/PtrnData.h"

struct ItemOps {
    int Type = 0;
    // Draws the item; one of the two is set, the second is told the update flag.
    void (CPtrnData::*Disp)(CDraw*, PTRNDATA*) = nullptr;
    void (CPtrnData::*DispUpdt)(CDraw*, PTRNDATA*, int updt) = nullptr;
    void (CPtrnData::*Cler)(CDraw*, PTRNDATA*) = nullptr;            ///< erases it
    void (CPtrnData::*Flik)(CDraw*, PTRNDATA*, int phase) = nullptr; ///< blinks it; null: does not blink
    int (CPtrnData::*Test)(POINT, PTRNDATA*) = nullptr;              ///< 1 when the point hits it
    /// What a left press does, with LButtonDown's result; null: only report the action.
    int (*Press)(CPtrnData&, POINT, PTRNDATA*) = nullptr;
    // Of a control that repeats while it is held: the part under the point, and one step of that part
    // (1 when the cell has changed).
    int (CPtrnData::*Part)(POINT, PTRNDATA*) = nullptr;
    int (*Step)(const PTRNDATA*, int part) = nullptr;
};

/// One row per type, in the order of TypeTabl.
extern const ItemOps ItemTable[CONT_PTRN];

/// Index of a type in TypeTabl, -1 for a number that is no type.
int ItemRank(int type);

/// Row of a type, null for a number that is no type.
const ItemOps* FindItemOps(int type);
