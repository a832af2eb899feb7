// Numbers with decimals in the parameters of an item, which are whole numbers in the record.
#pragma once

#include <cstdint>
#include <cstring>

namespace tessary
{

/// The number whose bits as a float a parameter holds.
inline float RealParm(std::int32_t parm)
{
    float value;
    static_assert(sizeof value == sizeof parm);
    std::memcpy(&value, &parm, sizeof value);
    return value;
}

/// The parameter that holds a number.
inline std::int32_t ParmOfReal(float value)
{
    std::int32_t parm;
    std::memcpy(&parm, &value, sizeof parm);
    return parm;
}

} // namespace tessary
