// What the program answers on its command line, and the toolkit's start.
#pragma once

namespace tessary
{

/// What follows the program's name in the help of a program with a profile of its own.
extern const char* const PANEL_HELP;

/// Answers --help and --version on standard output, without a display.
/// @param help  what follows "Usage: " and the program's name
/// @return whether one of them was asked for, so that the program has nothing more to do
bool AnswerOption(int argc, char** argv, const char* help = PANEL_HELP);

/// Starts the toolkit, which takes its own arguments out of the list.
/// @return false when the display can not be opened, which standard error tells
bool StartToolkit(int* argc, char*** argv);

} // namespace tessary
