// One screen: from its source file to a pattern.
#pragma once

#include "tools/ptn/Pattern.h"
#include "tools/ptn/ProjectSource.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

/// Reads a screen's file.
/// @return none, with errors reported, when the file can not be read or the screen has no usable name
std::optional<Pattern> ReadScreen(const std::string& file, const ProjectSource& project,
                                  Diagnostics& diagnostics);

/// The same for a file that has been read already.
std::optional<Pattern> ReadScreen(const Source& source, const ProjectSource& project,
                                  Diagnostics& diagnostics);

/// Reports patterns of the same name, and actions that open a pattern which is not there.
/// @return the names in EUC-JP
std::set<std::string> CheckPatterns(const std::vector<Pattern>& patterns, Diagnostics& diagnostics);
