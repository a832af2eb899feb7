#include "pattern/Limits.h"

#include "comndata/LimtData.h"
#include "comndata/MesgData.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace tessary
{

namespace
{

/// Steps are counted from the minimum, without limits from 0. What a decimal fraction loses as a double does
/// not count.
bool IsOnStep(const ValueLimits& limits, double value)
{
    if (limits.step <= 0)
        return true;
    const double steps = (value - (limits.given ? limits.minimum : 0)) / limits.step;
    return std::abs(steps - std::round(steps)) <= 1e-6 * std::max(1.0, std::abs(steps));
}

/// As the item shows its numbers.
std::string Shown(const PTRNDATA& item, double value)
{
    char text[64];
    const bool hexadecimal = item.Type == PTRN_NUMR && item.Parm[FIELD_HEX];
    if (hexadecimal && std::abs(value) < 9e15)
        std::snprintf(text, sizeof text, "%llX", static_cast<long long>(value));
    else
        std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

std::string Permitted(const PTRNDATA& item, const ValueLimits& limits)
{
    std::string text;
    if (limits.given)
        text = Shown(item, limits.minimum) + " ... " + Shown(item, limits.maximum);
    if (limits.step > 0)
        text += (text.empty() ? "+/- " : "  +/- ") + Shown(item, limits.step);
    return text;
}

} // namespace

double ValueLimits::hold(double value) const
{
    return given ? std::max(minimum, std::min(value, maximum)) : value;
}

ValueLimits LimitsOf(const PTRNDATA& item)
{
    const ItemClass* type = FindItemClass(item.Type);
    ValueLimits limits;
    if (type && type->limits)
        type->limits(item, &limits);
    if (limits.minimum != 0 || limits.maximum != 0) {
        limits.given = true;
        return limits;
    }
    if (const LIMTDATA* row = FindLimitRow(item.DataNo)) {
        limits.given = true;
        limits.minimum = static_cast<double>(row->MIN_Data);
        limits.maximum = static_cast<double>(row->MAX_Data);
        limits.below = limits.below ? limits.below : row->ErrorNo1;
        limits.above = limits.above ? limits.above : row->ErrorNo2;
    }
    return limits;
}

bool AcceptByLimits(const PTRNDATA& item, double value)
{
    const ValueLimits limits = LimitsOf(item);
    const bool low = limits.given && value < limits.minimum;
    const bool high = limits.given && value > limits.maximum;
    if (!low && !high && IsOnStep(limits, value))
        return true;
    std::string text;
    if (const int message = low ? limits.below : limits.above)
        text = std::string(Get_MesgData(message, nullptr, 0)) + "  ";
    DispErrorMesg((text + Permitted(item, limits)).c_str());
    return false;
}

} // namespace tessary
