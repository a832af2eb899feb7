// Where the parameters of a radio button or check box lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a radio button or check box.
enum CheckParm {
    CHECK_COLOR = 4,
    CHECK_COLOR_LOCKED = 5,
    CHECK_BACK = 6,
    CHECK_BACK_LOCKED = 7,
    CHECK_BACKED = 12,
    CHECK_FONT = 15,
    RDIO_VALUE = 27,
};

} // namespace tessary
