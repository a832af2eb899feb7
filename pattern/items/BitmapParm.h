// Where the parameters of a bitmap lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a bitmap.
enum BitmapParm {
    BMAP_KEY_COLOR = 4,
    BMAP_KEYED = 5,
};

} // namespace tessary
