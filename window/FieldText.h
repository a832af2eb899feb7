// The text that a field's item holds is the one drawn last, which a tick brings up to date. A screen class
// that changes cells and starts key input in the same breath calls this from its PtrnKeyStart.
#pragma once

#include "pattern/PtrnData.h"

namespace tessary
{

/// Gives a variable text the text of its cell, cut to the field. Other items are left alone.
void RefreshFieldText(PTRNDATA* item);

} // namespace tessary
