// Numbers for property tests. A seed gives the same numbers on every machine.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <random>
#include <string>
#include <vector>

class Random
{
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    /// Any value of 32 bits.
    unsigned bits() { return static_cast<unsigned>(engine_()); }
    /// 0 to count - 1.
    int below(int count) { return static_cast<int>(bits() % static_cast<unsigned>(count)); }
    /// first to last, both included.
    int between(int first, int last)
    {
        const auto count = static_cast<std::int64_t>(last) - first + 1;
        return static_cast<int>(first + static_cast<std::int64_t>(bits()) % count);
    }
    bool oneIn(int count) { return below(count) == 0; }

    template <typename Values> auto pick(const Values& values)
    {
        const auto count = std::distance(std::begin(values), std::end(values));
        return *std::next(std::begin(values), below(static_cast<int>(count)));
    }
    template <typename Value> Value pick(std::initializer_list<Value> values)
    {
        return *std::next(values.begin(), below(static_cast<int>(values.size())));
    }

  private:
    std::mt19937 engine_;
};

/// The seeds 1 to `count`; or only the one of the environment variable TESSARY_SEED, to repeat a failure
/// or to try others.
inline std::vector<unsigned> seeds(unsigned count)
{
    if (const char* given = std::getenv("TESSARY_SEED"))
        return {static_cast<unsigned>(std::strtoul(given, nullptr, 10))};
    std::vector<unsigned> all(count);
    for (unsigned i = 0; i < count; ++i)
        all[i] = i + 1;
    return all;
}

/// What a failure prints.
inline std::string seedText(unsigned seed)
{
    return "TESSARY_SEED=" + std::to_string(seed);
}
