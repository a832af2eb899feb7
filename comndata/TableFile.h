// Where the message table and the limit table lie.
#pragma once

#include "config/FileCntl.h"

namespace tessary
{

/// Longest table that is loaded, in bytes: about twice what 500 keys of the longest kind need. Every key
/// costs one read of the whole file, so that a longer one would hold up the start.
constexpr int SIZE_TABLEFILE = 256 * 1024;

/// Path of a table: ProjPath/<name>.prf below the working directory, "ProjPath" being that very name and
/// not the project directory.
/// @param path   receives the path; SIZE_PATH + 1 bytes
/// @param mesg1  category of the log line about a file that is too long
/// @return false when the file is longer than SIZE_TABLEFILE, which is logged
bool TablePath(char (&path)[SIZE_PATH + 1], const char* name, const char* mesg1);

} // namespace tessary
