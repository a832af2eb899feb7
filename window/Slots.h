// The two windows that stand for themselves; every other one is a child of a window.
#pragma once

class CPtrnDisp;

extern CPtrnDisp* AppliWnd; ///< the application window; null until the start pattern is shown
extern CPtrnDisp* SystmWnd; ///< the window over it; null when none
extern int SystemWnd;       ///< 1 while a system window is open
