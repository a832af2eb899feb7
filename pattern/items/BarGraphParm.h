// Where the parameters of a bar graph lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a bar graph.
enum BarGraphParm {
    BARG_BAR4 = 4,
    BARG_BACK4 = 8,
    BARG_FRAME_COLOR = 12,
    BARG_HORIZONTAL = 13,
    BARG_NEEDLE_WIDTH = 14,
    BARG_FRAME_WIDTH = 15,
    BARG_MINIMUM = 16,
    BARG_MAXIMUM = 17,
};

} // namespace tessary
