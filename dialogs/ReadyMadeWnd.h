// Windows for patterns that the program has no screen class of its own for.
#pragma once

class CPtrnDisp;

namespace tessary
{

/// Makes the window object that a pattern's header picks among the ready-made screen classes
/// (pattern/ScreenClass.h); a plain one where it names none that there is.
/// @param name  pattern name in EUC-JP
/// @return a new object, not yet opened, owned by the caller; null when the project has no such pattern
CPtrnDisp* NewReadyMadeWnd(const char* name);

} // namespace tessary
