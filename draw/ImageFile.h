// Image files of the project.
#pragma once

#include "draw/ToolkitPtr.h"

#include <string>

namespace tessary
{

/// Loads a plain file of a sane size; null otherwise.
PixbufPtr FileImage(const std::string& path);

/// The same for a file that is drawn again and again: what the last few calls have loaded is kept in memory,
/// and is used as long as the file on the disk is still that one.
PixbufPtr KeptImage(const std::string& path);

/// Tells the log once about each bitmap that can not be loaded, not at every draw.
void ReportMissing(const char* name);

} // namespace tessary
