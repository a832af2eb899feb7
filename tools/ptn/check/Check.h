// "ptn check": what a screen author gets wrong although it can be built.
#pragma once

#include "tools/ptn/common/Diagnostics.h"
#include "tools/ptn/compiled/Compiled.h"

#include <filesystem>
#include <optional>
#include <string>

namespace ptn
{

/// Checks a folder of sources or a compiled project.
/// @param registry  C++ source, or folder of sources, of the program that knows the patterns; empty when the
///                  project's own section "registry" is to tell
/// @param remarks   receives what is no mistake: what the screens use although a later edition corrects it
/// @return number of patterns that were looked at
int Check(const std::filesystem::path& folder, const std::string& registry, Diagnostics& diagnostics,
          Diagnostics& remarks);

// --- the parts of it -------------------------------------------------------------------------------------

/// How messages call an item: "button at 16,64", in compiled patterns with its number.
Subject ItemName(const PatternItem& item, std::size_t index);

/// Each item for itself: values, texts, cell, bitmap, font.
void CheckItems(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics);
/// Only what would end the panel when it draws the pattern.
void CheckDrawable(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics);
/// Its title bar and its place on the display.
void CheckWindow(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics);
/// What an operator reaches in a screen: keys that two items share, and controls that lie over each other.
void CheckControls(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics);
/// Items of a screen beside each other: places, frames, radio groups, what lies below what.
void CheckLayout(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics);
/// Screens beside each other: what opens what, and what the program knows.
/// @param whole  the place of what is nowhere in particular
void CheckScreens(const std::vector<Pattern>& patterns, const ProjectSource& project, const Place& whole,
                  Diagnostics& diagnostics);

/// What opens and can not be left again.
void CheckWaysBack(const std::vector<Pattern>& patterns, const ProjectSource& project,
                   Diagnostics& diagnostics);

/// What all screens share: cells, messages, limits.
void CheckTables(const ProjectSource& project, Diagnostics& diagnostics);
/// The keys of the profile that the framework reads.
void CheckProfile(const ProjectSource& project, Diagnostics& diagnostics);
/// Whether the panel can show the bitmaps.
/// @param folder  that they lie in
void CheckPictures(const ProjectSource& project, const std::filesystem::path& folder,
                   Diagnostics& diagnostics);

/// Whether an X server has the fonts; nothing is said without one that has its usual fonts.
/// @param whole  the place of what is nowhere in particular
void CheckFonts(const ProjectSource& project, const Place& whole, Diagnostics& diagnostics);

/// Width and height of the display, key DISPSIZE; none when the profile does not tell.
std::optional<SIZE> DisplaySize(const ProjectSource& project);

/// What screens use of the project's edition although a later one corrects it: for each screen and row of the
/// table of editions that is marked so, the first place.
void CheckEditions(const std::vector<Pattern>& patterns, const ProjectSource& project, Diagnostics& remarks);

} // namespace ptn
