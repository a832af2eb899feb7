// What the application supplies: its screen classes and three hooks. The framework calls these functions;
// the application defines them.
#pragma once

class CPtrnDisp;

/// Makes the window object of a pattern.
/// @param name  pattern name in EUC-JP, compared byte for byte
/// @return a new object, not yet opened, owned by the caller; null for a name that is not known
CPtrnDisp* GetPtrnWnd(const char* name);

/// Called once after the framework has started, before the first window. @return 1 to go on; anything else
/// ends the program, with status 0
int UserInit();

/// Called once after the main loop has ended, before the framework shuts down; also after a start that
/// failed, without UserInit then.
void UserExit();

/// Called first in every tick of 100 ms. Ticks begin before UserInit: during a message box of the start it
/// may be called while nothing is loaded yet.
void UserTimr();
