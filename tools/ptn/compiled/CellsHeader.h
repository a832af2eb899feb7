// "cells.h": the codes and screens of a project as constants for its program.
#pragma once

#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/source/ProjectSource.h"

#include <string>
#include <vector>

namespace ptn
{

/// What the first line of every such file begins with.
extern const char* const CELLS_HEADER_MARK;

/// The file: a namespace that is called after the program, in it the first cell of each code, below `count`
/// how many cells it has, and below `screen` the names of the screens. UTF-8; the compiler turns the texts
/// into those of the running system.
std::string CellsHeader(const ProjectSource& project, const std::vector<Pattern>& patterns);

} // namespace ptn
