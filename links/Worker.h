// The thread of a connection: connects, serves, and after a loss tries again for ever.
#pragma once

#include "links/Background.h"
#include "links/Exchange.h"
#include "links/Model.h"

#include <chrono>
#include <deque>
#include <memory>
#include <random>
#include <string>

namespace tessary
{

/// How long to wait until the next attempt: from 1 s, doubled each time, to 30 s, and up to a quarter less,
/// so that many panels do not come back at once.
class BackOff
{
  public:
    explicit BackOff(unsigned seed) : random_(seed) {}
    std::chrono::milliseconds next();
    void reset() { attempts_ = 0; }

  private:
    std::minstd_rand random_;
    int attempts_ = 0;
};

class Worker : public std::enable_shared_from_this<Worker>
{
  public:
    Worker(const LinkConnection& connection, std::shared_ptr<Exchange> exchange);
    virtual ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void start();
    /// Tells it that there are orders. Never waits.
    void wake() { thread_.wake(); }
    void stop();
    /// Throws what the thread has ended by, if it was an exception.
    void rethrow() { thread_.rethrow(); }
    /// Waits for its end until that time. A thread that still hangs in the system then is left to itself; it
    /// touches nothing but what it owns.
    void end(std::chrono::steady_clock::time_point deadline) { thread_.end(deadline); }

  protected:
    using Clock = std::chrono::steady_clock;

    /// Why a connection has ended.
    struct Failure {
        Cause cause = Cause::None;
        std::string detail; ///< ASCII
    };

    /// Connects and serves until that fails or stopping() is true. Calls connected() once the other side has
    /// answered.
    virtual Failure run() = 0;
    /// Ends a wait within run(), from another thread.
    virtual void interrupt() {}

    bool stopping() const { return thread_.stopping(); }
    void connected();
    void tell(Note note);
    void finish(const Order& order, Cause cause);
    void publish(std::size_t cell, LinkValue value, std::uint64_t after);

    /// Waits for input on a descriptor (or -1), for wake(), or for the time.
    /// @param events  of poll(); @return those that have come for the descriptor
    short wait(int descriptor, short events, Clock::time_point until);

    const LinkConnection& connection() const { return connection_; }
    Exchange& exchange() { return *exchange_; }

  private:
    void loop();
    void waitAfter(const Failure& failure);
    void refuseOrders(Cause cause);

    LinkConnection connection_;
    std::shared_ptr<Exchange> exchange_;
    bool connected_ = false;
    Clock::time_point since_; ///< connected
    Failure last_;
    BackOff backOff_;
    std::deque<Note> notes_; ///< that the ring had no place for
    Background thread_;
};

} // namespace tessary
