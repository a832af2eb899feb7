#include "links/Exchange.h"

namespace tessary
{

Readings::Readings(std::size_t cells) : newest_(cells), fresh_((cells + 63) / 64) {}

Readings::~Readings()
{
    for (std::atomic<Reading*>& reading : newest_)
        delete reading.load();
}

void Readings::put(std::size_t cell, Reading reading)
{
    delete newest_[cell].exchange(new Reading(std::move(reading)));
    fresh_[cell / 64].fetch_or(1ULL << cell % 64, std::memory_order_release);
}

} // namespace tessary
