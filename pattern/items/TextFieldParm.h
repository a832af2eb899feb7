// Where the parameters of a text or field lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a text or field.
enum TextParm {
    TEXT_COLOR4 = 4,
    TEXT_BACK4 = 8,
    TEXT_BACKED = 12,
    TEXT_FLICKER = 13,
    TEXT_FONT = 15,
    FIELD_WIDTH = 16, ///< bytes
    FIELD_DECIMALS = 17,
    FIELD_KEYENTRY = 18, ///< 1: a click opens keyboard entry
    FIELD_ZEROFILL = 19,
    FIELD_GROUPING = 20,
    FIELD_HEX = 21,
    FIELD_MINIMUM = 22, ///< of what may be entered, a float's bits; both 0: from the limit table
    FIELD_MAXIMUM = 23,
    FIELD_STEP = 24,       ///< of what may be entered, a float's bits; 0: any number
    FIELD_MESSAGE = 25,    ///< message for a value that is refused; 0 none
    FIELD_NAVIGATION = 27, ///< Navigation
};

/// The bits of FIELD_NAVIGATION: which keys end the input.
enum Navigation {
    NAV_UP = 1,
    NAV_DOWN = 2,
    NAV_LEFT = 4,  ///< Left at the start
    NAV_RIGHT = 8, ///< Right at the end
};

} // namespace tessary
