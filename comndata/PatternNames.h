// The names of the project's patterns, PtrnName.
#pragma once

#include "comndata/CodeData.h"

namespace tessary
{

/// Lists the pattern files of the project directory.
void LoadPatternNames();

void ExitPatternNames();

} // namespace tessary
