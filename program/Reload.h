// The project is built anew while the program shows it.
#pragma once

namespace tessary
{

/// From now on SIGUSR1 asks for what has changed of the project since it was loaded. To be called once,
/// before the project is loaded.
void WatchReload();

/// To be called when the project has been loaded: changes are told from what is there now.
void NoteProject();

/// To be called in every tick: obeys the signal. Screens that have changed are shown as they are now; when
/// something that all screens share has changed, all of them are. The cells keep what they have.
/// @param before, after  called around a load of what all screens share, the cells among it
void ReloadTimr(void (*before)(), void (*after)());

} // namespace tessary
