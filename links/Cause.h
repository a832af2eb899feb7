// Why something did not go as it should, in words for operators.
#pragma once

#include <string>

namespace tessary
{

enum class Cause {
    None,
    Connecting,   ///< nothing has been heard yet
    NoAnswer,     ///< within the time that an answer may take
    Unreachable,  ///< no such host, nobody listens there, or no such line
    Closed,       ///< by the other side
    Garbage,      ///< an answer that makes no sense
    Refused,      ///< by the device
    Denied,       ///< user or password
    NotTrusted,   ///< certificate
    BadFile,      ///< password or certificate that can not be used
    NotConnected, ///< so that nothing could be written
    NotRead,      ///< so that nothing may be written yet
    TooLarge,     ///< the device can not hold it
    NotANumber    ///< what has come, or what should have gone
};

/// The words, in the character set of the panel: Japanese where that is the project's first language and the
/// one that is set, else English.
/// @param language  as Language (config/Settings.h)
const char* CauseText(Cause cause, int language);

/// What the error line says about a value that was not written.
const char* NotWrittenText(int language);

} // namespace tessary
