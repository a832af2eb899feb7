// An X display that answers late and takes little at a time, as one beyond a poor line: everything between a
// server and its clients goes through here.
#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

class SlowDisplay
{
  public:
    /// @param server  name of the display that is behind it, such as ":7"
    /// @param late    what each block waits, in either direction
    /// @param block   the most bytes that go through at a time
    SlowDisplay(const std::string& server, std::chrono::milliseconds late, std::size_t block);
    ~SlowDisplay();
    SlowDisplay(const SlowDisplay&) = delete;
    SlowDisplay& operator=(const SlowDisplay&) = delete;

    /// Empty when there is no free one.
    const std::string& name() const { return name_; }

  private:
    void serve();

    std::string server_;
    std::chrono::milliseconds late_;
    std::size_t block_;
    std::string name_;
    int listener_ = -1;
    std::atomic<bool> ended_{false};
    std::thread thread_;
};
