// JSON that comes from outside.
#pragma once

#include <string_view>

namespace tessary
{

/// Whether lists and objects of a text are nowhere deeper in each other than `most`. To be asked before it is
/// parsed: a short text can be so deep that what is made of it fills the memory.
bool JsonDepthWithin(std::string_view text, int most);

} // namespace tessary
