// Where the parameters of a spin button lie in PTRNDATA::Parm.
#pragma once

namespace tessary
{

enum SpinParm {
    SPIN_MINIMUM = 16,
    SPIN_MAXIMUM = 17,
};

} // namespace tessary
