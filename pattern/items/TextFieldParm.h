// Where the parameters of a text or field lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

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
    FIELD_NAVIGATION = 27, ///< 1 Up, 2 Down, 4 Left, 8 Right end the input
};

} // namespace tessary
