// The item types: by number, by name, and in the order of drawing.
#pragma once

#include "pattern/ItemClass.h"

#include <vector>

namespace tessary
{

/// All of them, in the order of their numbers 1 to CONT_PTRN.
const std::vector<std::reference_wrapper<const ItemClass>>& ItemClasses();

/// Index of a type in TypeTabl, -1 for a number that is no type.
int ItemRank(int type);

/// Null for a number that is no type, or a name that no type has.
const ItemClass* FindItemClass(int type);
const ItemClass* FindItemClass(const char* name);

} // namespace tessary
