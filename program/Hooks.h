// What the program without code knows beside its project.
#pragma once

#include <string>

namespace tessary
{

/// The pattern to begin with in place of the one that the profile names, in EUC-JP; empty without one.
extern std::string StartScreen;

} // namespace tessary
