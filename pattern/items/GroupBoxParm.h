// Where the parameters of a group box lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a group box.
enum GroupBoxParm {
    GBOX_FACE4 = 4,
    GBOX_TOP4 = 8,
    GBOX_BOTTOM4 = 12,
    GBOX_LEFT4 = 16,
    GBOX_RIGHT4 = 20,
    GBOX_TOP_WIDTH = 24,
    GBOX_BOTTOM_WIDTH = 25,
    GBOX_LEFT_WIDTH = 26,
    GBOX_RIGHT_WIDTH = 27,
};

} // namespace tessary
