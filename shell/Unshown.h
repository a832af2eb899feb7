// Screens that can not be shown: their file is missing or can not be read while the program runs.
#pragma once

namespace tessary
{

/// To be called in every tick. A system or child window that shows nothing would keep the operator from
/// everything below it: it is closed, and a message box says so and offers to end the program. When it is the
/// application window, the screen that the program begins with takes its place; where that can not be shown
/// either, the box is the end of the program, with status 1.
void CloseUnshown();

} // namespace tessary
