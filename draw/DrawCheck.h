// The contract checks of the drawing primitives.
#pragma once

namespace tessary
{

/// Logs "file %s: line %d (%s): assertion failed: (%s)" at the error level of glib's log and ends the
/// process.
/// @param function  full signature of the primitive
/// @param condition text of the failed condition
[[noreturn]] void DrawCheckFailed(int line, const char* function, const char* condition);

} // namespace tessary

/// Ends the process unless `condition` holds. The message carries the condition as it is written, blanks
/// included, so keep these lines out of the formatter's reach.
#define DRAW_CHECK(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            tessary::DrawCheckFailed(__LINE__, __PRETTY_FUNCTION__, #condition);                             \
    } while (false)
