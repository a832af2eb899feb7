#include "links/Waves.h"

#include <algorithm>
#include <cmath>

namespace tessary
{

namespace
{

constexpr double PI = 3.14159265358979323846;
constexpr double LONG_PERIOD = 10.0;
constexpr double SHORT_PERIOD = 1.0;
constexpr double WALK = 0.05; ///< of the range: longest step

double Steps(const LinkPoint& point, double seconds)
{
    if (point.steps.empty())
        return point.from;
    if (point.times.empty()) {
        const double count = static_cast<double>(point.steps.size());
        return point.steps[static_cast<std::size_t>(std::fmod(seconds / WavePeriod(point), count))];
    }
    // The last one lasts a period.
    const double at = std::fmod(seconds, point.times.back() + WavePeriod(point));
    const auto after = std::upper_bound(point.times.begin(), point.times.end(), at);
    return after == point.times.begin()
               ? point.steps.front()
               : point.steps[static_cast<std::size_t>(after - point.times.begin()) - 1];
}

double Counter(const LinkPoint& point, double seconds)
{
    const double values = std::floor(std::abs(point.to - point.from)) + 1.0;
    const double passed = std::fmod(std::floor(seconds / WavePeriod(point)), values);
    return point.from + (point.to < point.from ? -passed : passed);
}

} // namespace

double WavePeriod(const LinkPoint& point)
{
    if (point.period)
        return point.period / 1000.0;
    switch (point.wave) {
    case WAVE_SINE:
    case WAVE_RAMP:
    case WAVE_TRIANGLE:
    case WAVE_SQUARE:
        return LONG_PERIOD;
    default:
        return SHORT_PERIOD;
    }
}

double WaveAt(const LinkPoint& point, double seconds)
{
    const double phase = std::fmod(seconds / WavePeriod(point), 1.0);
    const double range = point.to - point.from;
    switch (point.wave) {
    case WAVE_SINE:
        return point.from + range * (1.0 - std::cos(2.0 * PI * phase)) / 2.0;
    case WAVE_RAMP:
        return point.from + range * phase;
    case WAVE_TRIANGLE:
        return point.from + range * (phase < 0.5 ? 2.0 * phase : 2.0 - 2.0 * phase);
    case WAVE_SQUARE:
        return phase < 0.5 ? point.from : point.to;
    case WAVE_STEPS:
        return Steps(point, seconds);
    case WAVE_COUNTER:
        return Counter(point, seconds);
    default:
        return point.from;
    }
}

WalkingWave::WalkingWave(const LinkPoint& point, unsigned seed)
    : random_(seed + 1), value_(point.wave == WAVE_WALK ? (point.from + point.to) / 2.0 : point.start)
{
}

double WalkingWave::step(const LinkPoint& point, double seconds)
{
    for (; seconds >= next_; next_ = std::max(next_ + WavePeriod(point), seconds - WavePeriod(point))) {
        if (point.wave == WAVE_RANDOM) {
            value_ = between(point.from, point.to);
        } else {
            const double longest = std::abs(point.to - point.from) * WALK;
            value_ = std::clamp(value_ + between(-longest, longest), std::min(point.from, point.to),
                                std::max(point.from, point.to));
        }
    }
    return value_;
}

double WalkingWave::follow(const LinkPoint& point, double target, double elapsed)
{
    if (!std::isfinite(target))
        return value_;
    const double most = point.rate > 0.0 ? point.rate * elapsed : std::abs(target - value_);
    value_ += std::clamp(target - value_, -most, most);
    return value_;
}

double WalkingWave::flow(const LinkPoint& point, double change, double elapsed)
{
    if (std::isfinite(change))
        value_ = std::clamp(value_ + change * elapsed, std::min(point.from, point.to),
                            std::max(point.from, point.to));
    return value_;
}

double WalkingWave::noise(const LinkPoint& point)
{
    return point.noise > 0.0 ? between(-point.noise, point.noise) : 0.0;
}

double WalkingWave::between(double low, double high)
{
    return low == high ? low : std::uniform_real_distribution<double>(low, high)(random_);
}

} // namespace tessary
