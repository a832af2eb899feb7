// A pattern as the source of a screen.
#pragma once

#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/source/ProjectSource.h"

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace ptn
{

/// What the values of a type are without a word in the sources: those of the schema, or of a style.
using Defaults = std::map<std::string, std::array<std::int32_t, CONT_PARM>>;

/// Finds out what most items of a type and most windows have in common.
/// @param text  receives the section "styles" that says so; empty when there is nothing in common
Defaults CommonStyles(const std::vector<Pattern>& patterns, const Vocabulary& names, std::string& text);

/// The source of a screen. Building it gives the same bytes; what attributes can not say stands in "exact".
/// @param patterns  names of all patterns of the project
std::string ScreenText(const Pattern& pattern, const ProjectSource& project, const Defaults& defaults,
                       const std::set<std::string>& patterns);

} // namespace ptn
