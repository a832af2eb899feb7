// "ptn help attributes": the reference of items and windows.
#pragma once

#include <ostream>
#include <string>

namespace ptn
{

/// Prints the attributes of an item type or of "window"; without a name all types, actions and how to go on.
/// @return false when there is no such type
bool PrintAttributes(const std::string& type, std::ostream& out);

} // namespace ptn
