// A thread that works beside the tick: it can be woken, and never keeps the program from ending.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace tessary
{

class Background
{
  public:
    Background();
    ~Background();
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;

    /// Begins the thread, which takes no signals.
    /// @param body  owns what it touches, this object too: it may outlive everybody else
    void start(std::function<void()> body);

    /// Makes wakeUp() readable. Never waits.
    void wake();
    /// Tells the thread to end, and wakes it.
    void stop();
    bool stopping() const { return stopping_.load(); }

    /// Waits for the thread's end until that time. One that still hangs in the system then is left to itself.
    void end(std::chrono::steady_clock::time_point deadline);

    /// Throws, in the caller's thread, what the thread has ended by: nobody else would hear of it.
    void rethrow();

    /// Descriptor to poll for wake().
    int wakeUp() const { return wakeUp_; }
    /// What was woken is awake: takes wake() back.
    void takeWake() const;

  private:
    int wakeUp_;
    std::atomic<bool> stopping_{false};
    std::thread thread_;
    std::mutex mutex_; ///< of `ended_` and `thrown_`
    std::condition_variable ending_;
    bool ended_ = false;
    std::exception_ptr thrown_;
    std::atomic<bool> hasThrown_{false}; ///< so that a look costs nothing
};

} // namespace tessary
