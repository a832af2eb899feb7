// Where the parameters of a scroll bar lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a scroll bar.
enum ScrollBarParm {
    SBAR_LIGHT = 4,
    SBAR_DARK = 5,
    SBAR_FRAME = 6,
    SBAR_THUMB = 7,
    SBAR_ARROWS = 8,
    SBAR_PAGES = 9,
    SBAR_VERTICAL = 13,
    SBAR_WIDTH = 15,
    SBAR_VISIBLE = 16,
    SBAR_TOTAL = 17,
    SBAR_LINE_STEP = 18,
    SBAR_PAGE_STEP = 19,
    SBAR_TROUGH_STEP = 20,
    SBAR_ROLE1 = 26,
    SBAR_KEYS = 27,
};

} // namespace tessary
