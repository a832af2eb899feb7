// Where the parameters of a spin button lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

/// Parameters of a spin button.
enum SpinParm {
    SPIN_MINIMUM = 16,
    SPIN_MAXIMUM = 17,
    SPIN_STEP = 18,    ///< a float's bits; 0: 1
    SPIN_MESSAGE = 19, ///< message for a value outside; 0 none
};

} // namespace tessary
