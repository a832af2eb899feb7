// The text of a number as later editions show it: whole, within its field, or not at all.
#pragma once

#include "pattern/PtrnData.h"

#include <string>

namespace tessary
{

/// Text of a numeric item's present value, as long as its field: right-aligned, or left-aligned in a field of
/// negative width. Filled with blanks or, without grouping, zeros. With grouping it has separators where they
/// fit. A number that does not fit fills the field with "#"; what is no number, or infinite, is a "?".
/// @param item  its FIELD_... parameters and data number are used; negative decimals mean six, and both are
///              held at 255
std::string NumberText(const PTRNDATA* item);

/// The same without filling and separators, as editing begins with it; empty where the field shows no number.
std::string PlainNumberText(const PTRNDATA* item);

} // namespace tessary
