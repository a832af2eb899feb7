// What a connection's thread and the tick hand to each other. Neither ever waits for the other, and what lies
// between them is bounded: of values the newest for each cell, of everything else a fixed number.
#pragma once

#include "links/Cause.h"
#include "links/Values.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tessary
{

/// A queue of fixed length from one thread to one other.
template <class T> class Ring
{
  public:
    explicit Ring(std::size_t length) : entries_(length) {}

    /// @return false when it is full; `entry` is as it was then
    bool push(T& entry)
    {
        const std::size_t end = end_.load(std::memory_order_relaxed);
        if (end - begin_.load(std::memory_order_acquire) == entries_.size())
            return false;
        entries_[end % entries_.size()] = std::move(entry);
        end_.store(end + 1, std::memory_order_release);
        return true;
    }

    /// @return false when it is empty
    bool pop(T& entry)
    {
        const std::size_t begin = begin_.load(std::memory_order_relaxed);
        if (begin == end_.load(std::memory_order_acquire))
            return false;
        entry = std::move(entries_[begin % entries_.size()]);
        begin_.store(begin + 1, std::memory_order_release);
        return true;
    }

  private:
    std::vector<T> entries_;
    std::atomic<std::size_t> begin_{0};
    std::atomic<std::size_t> end_{0};
};

/// A value of the plant, and the number of the last order that was carried out before it was asked for.
struct Reading {
    LinkValue value;
    std::uint64_t after = 0;
};

/// The newest reading of each cell.
class Readings
{
  public:
    explicit Readings(std::size_t cells);
    ~Readings();
    Readings(const Readings&) = delete;
    Readings& operator=(const Readings&) = delete;

    /// From the connection's thread.
    void put(std::size_t cell, Reading reading);

    /// On the tick: calls `use(cell, reading)` for every cell with a new reading.
    template <class Use> void take(Use use)
    {
        for (std::size_t word = 0; word < fresh_.size(); ++word) {
            if (fresh_[word].load(std::memory_order_relaxed) == 0)
                continue;
            std::uint64_t bits = fresh_[word].exchange(0, std::memory_order_acquire);
            for (; bits; bits &= bits - 1) {
                const std::size_t cell = word * 64 + static_cast<std::size_t>(__builtin_ctzll(bits));
                const std::unique_ptr<Reading> reading(newest_[cell].exchange(nullptr));
                if (reading)
                    use(cell, *reading);
            }
        }
    }

  private:
    std::vector<std::atomic<Reading*>> newest_;
    std::vector<std::atomic<std::uint64_t>> fresh_; ///< a bit for each cell
};

/// A value that is to be written.
struct Order {
    std::uint64_t number = 0; ///< counted from 1
    std::size_t cell = 0;
    LinkValue value;
};

/// What has become of an order.
struct Outcome {
    std::uint64_t number = 0;
    std::size_t cell = 0;
    LinkValue value;
    Cause cause = Cause::None;
};

/// Something that has happened, in order.
struct Note {
    enum class Kind { Connected, Lost, PointRefused, PointBack };
    Kind kind = Kind::Connected;
    std::size_t point = 0;
    Cause cause = Cause::None;
    std::string detail; ///< ASCII
};

/// Everything between one connection and the tick.
struct Exchange {
    static constexpr std::size_t ORDERS_MAX = 256;
    static constexpr std::size_t NOTES_MAX = 1024;

    explicit Exchange(std::size_t cells)
        : readings(cells), orders(ORDERS_MAX), outcomes(ORDERS_MAX), notes(NOTES_MAX)
    {
    }

    Readings readings;  ///< to the tick
    Ring<Order> orders; ///< to the connection
    Ring<Outcome>
        outcomes;     ///< to the tick; never full, because no more orders than it holds are on their way
    Ring<Note> notes; ///< to the tick
    std::atomic<std::uint64_t> updates{0}; ///< values that have come in
};

} // namespace tessary
