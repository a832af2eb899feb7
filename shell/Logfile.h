// The operational log: short lines, buffered in memory and appended to one text file a day.
#pragma once

/// Records one line. The time is that of the last tick's clock snapshot.
/// @param mesg1  category such as "SYSTEM"; at most 22 bytes are kept
/// @param mesg2  message; at most 202 bytes are kept
/// @param file   caller's source file, or null for none
/// @param line   caller's source line
void LogfileWrite(const char* mesg1, const char* mesg2, const char* file, int line);
