// What the application supplies: its screen classes and three hooks. The framework calls these functions;
// the application defines them.
#pragma once

class CPtrnDisp;

/// Makes the window object of a pattern.
/// @param name  pattern name in EUC-JP, compared byte for byte
/// @return a new object, not yet opened, owned by the caller; null for a name that is not known
CPtrnDisp* GetPtrnWnd(const char* name);

/// Called once after the framework has started. @return 1 to go on; anything else ends the program
int UserInit();

/// Called once after the main loop has ended, before the framework shuts down.
void UserExit();

/// Called first in every tick of 100 ms.
void UserTimr();
