// The character set of the process: all text of the system is EUC-JP, whatever the environment says.
#pragma once

namespace tessary
{

/// Makes the process read and draw text as EUC-JP. The locale of the environment stays when its code set is
/// EUC-JP; otherwise the character classification becomes that of ja_JP.eucJP. Numbers in texts always
/// use ".".
/// To be called once, after gtk_set_locale() and before gtk_init(), which is told to leave the locale
/// alone. Font sets take the character set that is set when they are loaded.
/// @return false when ja_JP.eucJP is not installed: standard error says so, and LocaleProblem() keeps it for
/// the log. The program can go on; Japanese text is not shown then.
bool UseEucLocale();

/// What the last UseEucLocale() could not do, in words for the log (at most 200 bytes); null when nothing.
const char* LocaleProblem();

} // namespace tessary
