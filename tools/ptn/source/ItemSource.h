// One item of a screen: from its entry in the sources to a record of the pattern file.
#pragma once

#include "tools/ptn/model/Groups.h"
#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/source/ProjectSource.h"

#include <cstddef>
#include <optional>

namespace ptn
{

/// What screens have become that are read one after another, with groups and copies written out.
struct Amount {
    std::size_t entries = 0;
    std::size_t items = 0;
    bool full = false; ///< there is no room for more in a project, which was reported
};

/// What reading items needs to know.
struct ItemContext {
    const ProjectSource& project;
    const Styles& styles; ///< the screen's own, over those of the project
    const Groups& groups; ///< the screen's own, over those of the project
    Amount& amount;       ///< of the project
    Diagnostics& diagnostics;
};

/// The entries of an item; those of "text: { ... }" as of "{ type: text, ... }", any others as they are.
std::vector<Entry> SpelledOut(const std::vector<Entry>& entries, const Subject& label,
                              Diagnostics& diagnostics);

/// Reads an item that has a type. "repeat" is left to the caller.
/// @param label  how messages call it, such as "item 3"; the type is added to it
/// @return none, with errors reported, when the item can not be made
std::optional<PatternItem> ReadItem(const Source& source, const std::vector<Entry>& entries, Subject& label,
                                    const ItemContext& context);

} // namespace ptn
