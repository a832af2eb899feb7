// The sources that all screens share, read by the table of sections.
#pragma once

#include "tools/ptn/source/ProjectSource.h"

namespace ptn
{

/// Reads the folder: its *.yaml files, whose sections may be spread over the files as one likes, and the
/// files in "bitmaps".
ProjectSource ReadProject(const std::filesystem::path& folder, Diagnostics& diagnostics);

} // namespace ptn
