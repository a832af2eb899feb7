// Formatted log lines.
#pragma once

namespace tessary
{

/// LogfileWrite with a printf-like message of at most 255 bytes (the log keeps 202).
/// @param mesg1  category, see LogfileWrite
/// @param file   caller's source file, or null for none
void LogText(const char* mesg1, const char* file, int line, const char* format, ...)
    __attribute__((format(printf, 4, 5)));

} // namespace tessary
