// Start-up, shut-down and the tick of 100 ms.
#pragma once

/// Set to 3 by TessaryInit; the framework does not read it.
extern int Platform;

/// Starts the framework: finds the profile beside the program, takes its edition, opens the log, loads the
/// common data and the drawing resources. What is missing is told on standard error too.
/// @param path  the program's own path (argv[0]); the profile has its folder and base name, extension "ini"
/// @return 1 on success; 0 after a message box has told what is missing, or when the data can not be loaded
int TessaryInit(char* path);

/// Takes the windows off the screen, releases the drawing resources and the common data and closes the log.
/// Everything is then as it was before TessaryInit, which may be called again; three things are left for
/// those who still look at them: window objects, SystemStop, and LogName. Safe after a start-up that failed.
void TessaryExit();

/// The framework's own part of a tick: clock snapshot, clock cells 1..7, the log's timer every tenth tick.
void TessaryTimr();

/// The tick: application hook, clock, windows, stop countdown. @return always 1, so that it is called again
int Timer_Event(void* data);

/// An entry point for applications; mode 0 reads the profile key "SHUTDOWN" and nothing else happens.
void ShutDown(int mode);
