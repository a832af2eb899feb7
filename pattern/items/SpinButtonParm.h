// Where the parameters of a spin button lie in PTRNDATA::Parm.
#pragma once

enum SpinParm {
    SPIN_MINIMUM = 16,
    SPIN_MAXIMUM = 17,
};
