// A program from its start to its end: what main() of an application does, in the order in which it is done.
#pragma once

#include <string>

namespace tessary
{

/// Takes over the signals that end the program, sets the character set, and starts the toolkit, which takes
/// its own arguments out of the list. To be called once, first of all that touches windows.
/// @return false when the display can not be opened, which standard error tells
bool PrepareProgram(int* argc, char*** argv);

/// Runs the panel until it ends, and the whole program with it.
/// @param path    of the program: the profile has its folder and base name (TessaryInit)
/// @param screen  pattern to begin with, in EUC-JP; empty for the one that the profile names
[[noreturn]] void RunProgram(char* path, const std::string& screen = "");

} // namespace tessary
