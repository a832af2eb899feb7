// Moved; for sources that include it by its former path.
#pragma once

#include "log/LogText.h"
