// Image files of the project.
#pragma once

#include "draw/ToolkitPtr.h"

#include <string>

namespace tessary
{

/// Loads a plain file in one of the formats of panels, of at most PICTURE_SCREENS times as many pixels as the
/// larger of the display and the panel has; null otherwise. How many it has is known before it is decoded.
PixbufPtr FileImage(const std::string& path);

/// The same for a file that is drawn again and again: what the last few calls have loaded is kept in memory,
/// and is used as long as the file on the disk is still that one.
PixbufPtr KeptImage(const std::string& path);

/// Whether the name of a picture stays in the folder of the project's pictures, also by way of links. A file
/// that is not there stays there.
bool StaysInFolder(const std::string& folder, const std::string& name);

/// Tells the log, once for each, of a name that does not.
void ReportOutside(const char* name);

/// Tells the log once about each bitmap that can not be loaded, not at every draw.
void ReportMissing(const char* name);

} // namespace tessary
