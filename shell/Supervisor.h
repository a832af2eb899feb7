// What a service manager hears of the program: that it has started, and at every tick that it lives.
#pragma once

namespace tessary
{

/// To be called in every tick. The first one says that the program is ready; later ones, twice in the time
/// that the service manager has set (WatchdogSec), that it is alive. Says nothing to nobody: without a
/// service manager it costs a comparison.
void TellSupervisor();

/// Says that the program is ending.
void TellSupervisorOfEnd();

} // namespace tessary
