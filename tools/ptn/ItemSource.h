// Items of a screen: from one entry of "items" to records of the pattern file.
#pragma once

#include "tools/ptn/Pattern.h"
#include "tools/ptn/ProjectSource.h"

#include <vector>

/// What reading an item needs to know.
struct ItemContext {
    const ProjectSource& project;
    const Styles& styles; ///< the screen's own, over those of the project
    Diagnostics& diagnostics;
};

/// Reads one item; with "repeat" it becomes several.
/// @param number  place in the list, from 1, for messages
std::vector<PatternItem> ReadItem(const Source& source, int number, const ItemContext& context);
