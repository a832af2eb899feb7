#include "links/Model.h"

namespace tessary
{

RegisterArea LinkPoint::area() const
{
    if (coil >= 0)
        return AREA_COIL;
    if (discrete >= 0)
        return AREA_DISCRETE;
    return holding >= 0 ? AREA_HOLDING : AREA_INPUT;
}

int LinkPoint::address() const
{
    const int addresses[] = {coil, discrete, holding, input};
    return addresses[area()];
}

} // namespace tessary
