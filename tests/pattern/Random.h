// Numbers for property tests. A seed gives the same numbers on every machine.
#pragma once

#include "tests/support/Wishes.h"

#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <random>

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
