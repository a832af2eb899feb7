// What the last DrawCntlInit found wrong with the font sets.
#pragma once

#include <string>

namespace tessary
{

/// Font sets that are missing or incomplete, with what to do about them, as sentences in English; empty when
/// all is well. The log has the same in more detail.
std::string FontProblem();

} // namespace tessary
