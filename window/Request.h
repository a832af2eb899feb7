// What any window or screen class may ask of the whole system.
//
// `file` and `line` are the caller's place: with a null `file` success is not logged, failure always is.
#pragma once

#include "window/Slots.h"

extern int SystemStop; ///< set to 1 by ReqSystemStop, for applications to look at, also after TessaryExit
extern int WaitTimer;  ///< ticks until the system stops; 0 when no stop is pending

/// Shows a pattern as the application window. The new window is opened before the old one is taken down.
/// A name the registry does not know is logged and changes nothing.
void PtrnDispTopWnd(const char* name, const char* file, int line);

/// Shows a pattern as the system window in place of the present one; an empty name only closes that.
void PtrnDispSysWnd(const char* name, const char* file, int line);

/// Shows the framework's own patterns "バージョン情報" and "メンテナンス" as the system window.
/// Without the pattern file the present system window is closed and nothing is opened.
void PtrnDispVersnWnd();
void PtrnDispMenteWnd(); ///< the maintenance screen

/// Starts the stop countdown ("WAITTIMER" seconds, at least one) and shows the pattern "PTRNSTOP".
/// A second request starts the countdown anew.
void ReqSystemStop(const char* file, int line);

/// Offers a key to the application window tree and then to the system window tree.
/// @param key    GDK key value, keypad already translated
/// @param flags  1 Shift, else 2 Control, else 4 Alt, else 0
void ReqKeyEntry(unsigned int key, unsigned int flags);

/// Cancels key input in progress in every window.
void ReqKeyReset();

/// Logs the request; nothing is printed.
void ReqHardCopy(const char* file, int line);
