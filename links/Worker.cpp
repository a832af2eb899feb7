#include "links/Worker.h"

#include <algorithm>
#include <functional>
#include <poll.h>
#include <unistd.h>

namespace tessary
{

namespace
{

using std::chrono::milliseconds;

constexpr milliseconds FIRST_WAIT(1000);
constexpr milliseconds LONGEST_WAIT(30000);
/// A connection that held as long was a good one.
constexpr std::chrono::seconds GOOD(10);

} // namespace

milliseconds BackOff::next()
{
    const milliseconds whole = std::min(LONGEST_WAIT, FIRST_WAIT * (1 << std::min(attempts_, 5)));
    ++attempts_;
    std::uniform_int_distribution<int> less(0, static_cast<int>(whole.count() / 4));
    return whole - milliseconds(less(random_));
}

Worker::Worker(const LinkConnection& connection, std::shared_ptr<Exchange> exchange)
    : connection_(connection), exchange_(std::move(exchange)),
      backOff_(static_cast<unsigned>(std::hash<std::string>()(connection.name) ^
                                     static_cast<std::size_t>(getpid()) ^
                                     static_cast<std::size_t>(Clock::now().time_since_epoch().count())))
{
}

Worker::~Worker() = default;

void Worker::start()
{
    // The thread owns its object too, so that it may outlive the connection.
    thread_.start([self = shared_from_this()] { self->loop(); });
}

void Worker::stop()
{
    thread_.stop();
    interrupt();
}

void Worker::loop()
{
    while (!stopping()) {
        const Failure failure = run();
        if (!stopping())
            waitAfter(failure);
    }
}

void Worker::connected()
{
    if (connected_)
        return;
    connected_ = true;
    last_ = {};
    since_ = Clock::now();
    tell({Note::Kind::Connected, 0, Cause::None, ""});
}

void Worker::waitAfter(const Failure& failure)
{
    if (connected_ && Clock::now() - since_ >= GOOD)
        backOff_.reset();
    const bool same = !connected_ && failure.cause == last_.cause && failure.detail == last_.detail;
    connected_ = false;
    last_ = failure;
    if (!same)
        tell({Note::Kind::Lost, 0, failure.cause, failure.detail});
    const Clock::time_point until = Clock::now() + backOff_.next();
    while (!stopping() && Clock::now() < until) {
        refuseOrders(Cause::NotConnected);
        wait(-1, 0, until);
    }
}

void Worker::refuseOrders(Cause cause)
{
    for (Order order; exchange_->orders.pop(order);)
        finish(order, cause);
}

void Worker::tell(Note note)
{
    notes_.push_back(std::move(note));
    while (!notes_.empty() && exchange_->notes.push(notes_.front()))
        notes_.pop_front();
}

void Worker::finish(const Order& order, Cause cause)
{
    Outcome outcome{order.number, order.cell, order.value, cause};
    exchange_->outcomes.push(outcome);
}

void Worker::publish(std::size_t cell, LinkValue value, std::uint64_t after)
{
    exchange_->updates.fetch_add(1, std::memory_order_relaxed);
    exchange_->readings.put(cell, {std::move(value), after});
}

short Worker::wait(int descriptor, short events, Clock::time_point until)
{
    while (!notes_.empty() && exchange_->notes.push(notes_.front()))
        notes_.pop_front();
    const auto left = std::chrono::ceil<milliseconds>(until - Clock::now());
    pollfd polled[2] = {{thread_.wakeUp(), POLLIN, 0}, {descriptor, events, 0}};
    const int timeout =
        static_cast<int>(std::clamp<long long>(left.count(), 0, notes_.empty() ? 60000 : 100));
    poll(polled, 2, timeout);
    if (polled[0].revents)
        thread_.takeWake();
    return polled[1].revents;
}

} // namespace tessary
