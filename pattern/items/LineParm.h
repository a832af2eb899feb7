// Where the parameters of a line lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a line.
enum LineParm {
    LINE_COLOR4 = 4,
    LINE_FOMT = 13,
    LINE_TYPE = 14,
    LINE_WIDTH = 15,
};

} // namespace tessary
