#include "links/Background.h"

#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace tessary
{

namespace
{

/// Signals are the main thread's.
void BlockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

} // namespace

Background::Background() : wakeUp_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

Background::~Background()
{
    close(wakeUp_);
}

void Background::start(std::function<void()> body)
{
    thread_ = std::thread([this, body = std::move(body)] {
        BlockSignals();
        std::exception_ptr thrown;
        try {
            body();
        } catch (...) {
            thrown = std::current_exception();
        }
        const std::lock_guard<std::mutex> lock(mutex_);
        thrown_ = thrown;
        hasThrown_ = thrown != nullptr;
        ended_ = true;
        ending_.notify_all();
    });
}

void Background::wake()
{
    const std::uint64_t one = 1;
    // It can only fail where the counter is full, and then it wakes all the same.
    [[maybe_unused]] const ssize_t written = write(wakeUp_, &one, sizeof one);
}

void Background::stop()
{
    stopping_ = true;
    wake();
}

void Background::end(std::chrono::steady_clock::time_point deadline)
{
    if (!thread_.joinable())
        return;
    std::unique_lock<std::mutex> lock(mutex_);
    const bool ended = ending_.wait_until(lock, deadline, [this] { return ended_; });
    lock.unlock();
    if (ended)
        thread_.join();
    else
        thread_.detach();
}

void Background::rethrow()
{
    if (!hasThrown_.exchange(false))
        return;
    const std::lock_guard<std::mutex> lock(mutex_);
    std::rethrow_exception(std::exchange(thrown_, nullptr));
}

void Background::takeWake() const
{
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t got = read(wakeUp_, &count, sizeof count);
}

} // namespace tessary
