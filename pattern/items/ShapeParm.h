// Where the parameters of a rectangle or circle lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a rectangle or circle.
enum ShapeParm {
    SHAPE_OUTLINE4 = 4,
    SHAPE_FILL4 = 8,
    SHAPE_FILLED = 12,
    SHAPE_FOMT = 13,
    SHAPE_WIDTH = 15,
};

} // namespace tessary
