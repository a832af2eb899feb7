// What the windows ask of the dialogs above them, as they ask the application for its screens in Registry.h.
#pragma once

class CPtrnDisp;

namespace tessary
{

/// A new window object for the maintenance screen, not yet opened, owned by the caller. dialogs/ defines it.
CPtrnDisp* NewMaintenanceWnd();

} // namespace tessary
