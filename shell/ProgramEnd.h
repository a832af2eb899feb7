// The end of the program: by the stop countdown or by a signal.
#pragma once

namespace tessary
{

/// Exits the windows, the system window first, and ends every main loop that runs: a message box has one of
/// its own.
void EndProgram();

/// From now on SIGTERM, SIGINT and SIGHUP end the program as the end of the stop countdown does, without its
/// stop pattern and its delay; an entry in progress is discarded. Main loops that begin after that, as of a
/// message box, end at once. A second signal changes nothing. To be called once, before the toolkit starts.
/// Signals that come before a main loop runs are obeyed by the first one. A limit to the size of files does
/// not end the program: writing fails.
void WatchSignals();

/// From now on an exception that no handler of the program has caught ends it like EndProgram(), with status
/// 1; log and standard error tell its text.
void EndAtException();

/// Whether EndProgram() has been called.
bool Ended();

/// Whether a signal has ended the program, and no exception on the way.
bool EndedBySignal();

} // namespace tessary
