// The waves of a made-up plant.
#pragma once

#include "links/Model.h"

#include <random>

namespace tessary
{

/// How long a wave is, or how often it changes, in seconds.
double WavePeriod(const LinkPoint& point);

/// The value of a wave that time alone decides: sine, ramp, triangle, square, steps, counter, constant.
/// @param seconds  since the start, not negative
double WaveAt(const LinkPoint& point, double seconds);

/// A wave that goes on from where it was.
class WalkingWave
{
  public:
    WalkingWave(const LinkPoint& point, unsigned seed);

    /// random and walk: one value after each period.
    double step(const LinkPoint& point, double seconds);
    /// follow: goes towards a value, at most `rate` in each second.
    double follow(const LinkPoint& point, double target, double elapsed);
    /// flow: changes by so much in each second, between `from` and `to`.
    double flow(const LinkPoint& point, double change, double elapsed);
    /// Between -`noise` and `noise`.
    double noise(const LinkPoint& point);

  private:
    double between(double low, double high);

    std::minstd_rand random_;
    double value_;
    double next_ = 0.0; ///< time of the next step
};

} // namespace tessary
