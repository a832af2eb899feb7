// Where the parameters of a mark lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a mark.
enum MarkParm {
    MARK_COLOR4 = 4,
    MARK_BACK4 = 8,
    MARK_BACKED = 12,
    MARK_FLICKER = 13,
    MARK_NUMBER4 = 15,
    MARK_LAST = 19, ///< the mark drawn last; written at run time
};

} // namespace tessary
