// Moved; for sources that include it by its former path.
#pragma once

#include "window/Request.h"
