// Moved; for sources that include it by its former path.
#pragma once

#include "comndata/ClockCells.h"
#include "log/Clock.h"
