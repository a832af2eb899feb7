// The operational log: short lines, buffered in memory and appended to one text file a day,
// "<log directory>/YYYYMMDD.log". Used from the main loop's thread only.
#pragma once

#include "base/Constants.h"

/// One buffered line. The texts fill their fields and then have no terminator.
#pragma pack(push, 1)
struct LOGBUFFER {
    int time[3];                   ///< hour, minute, second
    char mesg1[SIZE_LOGMESG1 + 2]; ///< category
    char mesg2[SIZE_LOGMESG2 + 2]; ///< message
    char file[SIZE_LOGFILE + 2];   ///< caller's source file, terminated; empty for none
    int line;                      ///< caller's source line
};
#pragma pack(pop)
static_assert(sizeof(LOGBUFFER) == 258);

namespace tessary
{

/// Lines that the buffer holds at most, whatever the profile asks for (2.5 MB).
constexpr int LOGSIZE_MAX = 10000;

} // namespace tessary

extern char LogPath[255];  ///< log directory; empty while logging is off
extern char LogName[255];  ///< full path of today's file; after LogfileExit still that of the last one
extern LOGBUFFER* LogBuff; ///< LogSize lines; null while logging is off
extern int LogSize;        ///< lines that the buffer holds
extern int LogCont;        ///< lines in the buffer
extern int LogTimr;        ///< the buffer is written when the second of the day is a multiple of this
extern int LogDay;         ///< day of month of the current file; 0 until the first LogfileTimr

/// Starts logging with the keys of section "LOG" of the profile file ProfName: "LOGFILE" is the
/// directory (empty: logging stays off), "LOGTIMR" and "LOGSIZE" default to 10 seconds and 100 lines;
/// a larger "LOGSIZE" than LOGSIZE_MAX is cut to it. A log that is already open is closed first.
void LogfileInit();

/// Writes what is buffered and frees the buffer. Afterwards logging is off until the next LogfileInit;
/// LogName still tells where the last lines went.
void LogfileExit();

/// Appends the buffered lines to LogName and empties the buffer. The lines are lost when the file
/// can not be opened: the log never reports its own failures.
void LogfileSave();

/// To be called about once a second with a fresh LocalTime. Saves when the second of the day is a
/// multiple of LogTimr; on another day than the last call's, saves to the old file, changes to the
/// file of the new day and deletes the "*.LOG" files that are older than "LOGSAVE" days.
void LogfileTimr();

/// Records one line. The time is that of the last tick's clock snapshot. Does nothing while logging is off.
/// @param mesg1  category such as "SYSTEM"; at most 22 bytes are kept; null counts as empty
/// @param mesg2  message; at most 202 bytes are kept; null counts as empty
/// @param file   caller's source file, or null for none; the directory is dropped, 12 bytes of the
///               name and 3 of the extension are kept
/// @param line   caller's source line
void LogfileWrite(const char* mesg1, const char* mesg2, const char* file, int line);
