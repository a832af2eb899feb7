// Between which limits a value may lie, and by how much it steps: what an item says of its own cell, else
// what the limit table says.
#pragma once

#include "pattern/PtrnData.h"

#include <string>

namespace tessary
{

struct ValueLimits {
    bool given = false; ///< else every value is allowed
    double minimum = 0;
    double maximum = 0;
    double step = 0; ///< between two values that are allowed; 0: any
    int below = 0;   ///< message for a value below the minimum; 0 none
    int above = 0;

    /// The nearer limit of a value outside; any other value as it is.
    double hold(double value) const;
};

/// The limits of an item's cell.
ValueLimits LimitsOf(const PTRNDATA& item);

/// Checks a value that an operator wants to store. One that is refused shows the message and the permitted
/// range on the error line.
bool AcceptByLimits(const PTRNDATA& item, double value);

} // namespace tessary
