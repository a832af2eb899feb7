// Where the parameters of a push button lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a push button.
enum ButtonParm {
    BUTN_LIGHT = 4,
    BUTN_DARK = 5,
    BUTN_FACE = 6,
    BUTN_CAPTION = 7,        ///< caption colour
    BUTN_CAPTION_LOCKED = 8, ///< caption colour while bit 0 of the state is set
    BUTN_POST_ON = 13,
    BUTN_POST = 14, ///< caption offset from the left edge
    BUTN_FONT = 15,
    BUTN_WIDTH = 16,
    BUTN_DEFAULT = 17, ///< Return presses it
    BUTN_CANCEL = 18,  ///< Escape presses it
    BUTN_KEY = 27,     ///< function key 1..12
};

} // namespace tessary
