// The end of the windows.
#pragma once

namespace tessary
{

/// Takes every window off the screen, without exit hooks and saved positions, empties the two slots, cancels
/// a stop that is pending and lets go of the input method. The window objects stay: who holds on to one may
/// still look at it.
void WindowExit();

} // namespace tessary
