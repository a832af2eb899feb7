// A made-up plant: values that move without a device.
#pragma once

#include "links/Link.h"
#include "links/Values.h"
#include "links/Waves.h"

namespace tessary
{

class Simulate : public Link
{
  public:
    Simulate(const LinkConnection& connection, Looks& looks, Looks::Who who);
    void tick(double now) override;

  private:
    /// The cells that a point looks at.
    struct Inputs {
        int of = -1;
        std::vector<std::pair<int, double>> by;
    };

    LinkValue valueOf(std::size_t index, double seconds, double elapsed);
    double numberOf(std::size_t index, double seconds, double elapsed);

    std::vector<Inputs> inputs_;     ///< by point
    std::vector<WalkingWave> waves_; ///< by cell
    double begin_ = -1.0;            ///< time of the first tick
    double last_ = 0.0;              ///< seconds since then when the values changed last
};

} // namespace tessary
