// What the measurements of links share: a panel's links without a display, and processes beside it.
#pragma once

#include "bench/BenchFiles.h"
#include "comndata/ComnData.h"
#include "config/Settings.h"
#include "links/ModelFile.h"
#include "tessary_plant.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using Clock = std::chrono::steady_clock;

/// Microseconds on the clock that all processes share.
inline double Microseconds()
{
    return std::chrono::duration<double, std::micro>(Clock::now().time_since_epoch()).count();
}

/// Runs a function in a process of its own, which ends with this one at the latest.
class Child
{
  public:
    explicit Child(const std::function<void()>& run) : pid_(fork())
    {
        if (pid_ != 0)
            return;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        run();
        std::fflush(nullptr);
        _exit(0);
    }
    ~Child() { end(); }
    Child(Child&& other) noexcept : pid_(std::exchange(other.pid_, -1)) {}
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void end()
    {
        if (pid_ <= 0)
            return;
        kill(pid_, SIGKILL);
        wait();
    }
    void wait()
    {
        if (pid_ > 0)
            waitpid(pid_, nullptr, 0);
        pid_ = -1;
    }

  private:
    pid_t pid_;
};

/// The cells and links of a panel, and its ticks.
class LinkedPanel
{
  public:
    /// Links with those points begin; cell i is ITEM+i.
    LinkedPanel(int cells, const tessary::LinkConnection& connection) : files_(cells)
    {
        std::snprintf(ProjPath, sizeof ProjPath, "%s", files_.folder().c_str());
        std::snprintf(ProfName, sizeof ProfName, "%s/panel.ini", files_.folder().c_str());
        ComnDataInit();
        const std::string bytes = tessary::LinkBytes({connection});
        std::ofstream(files_.folder() + "/PtrnLink") << bytes;
        if (tessary::LinksInit(nullptr) != 1)
            std::exit(1);
        next_ = Clock::now();
    }
    ~LinkedPanel()
    {
        tessary::LinksExit();
        ComnDataExit();
    }
    LinkedPanel(const LinkedPanel&) = delete;
    LinkedPanel& operator=(const LinkedPanel&) = delete;

    /// Waits for the time of the next tick, every 100 ms, and makes it.
    void tick()
    {
        next_ += std::chrono::milliseconds(100);
        std::this_thread::sleep_until(next_);
        const auto begin = Clock::now();
        tessary::LinksTimr();
        const double took = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
        times_.push_back(took);
    }
    void ticks(double seconds)
    {
        for (int i = 0; i < seconds * 10; ++i)
            tick();
    }
    bool waitConnected()
    {
        for (int i = 0; i < 200; ++i) {
            tick();
            if (tessary::LinksStatus()[0].state == tessary::LinkState::Connected)
                return true;
        }
        return false;
    }
    static double cell(int item) { return Get_dData(BenchFiles::FIRST_CELL + item, nullptr, 0); }
    static std::uint64_t updates() { return tessary::LinksStatus()[0].updates; }

    /// What LinksTimr took since the last call, in ms.
    void printTimes(const char* what)
    {
        std::sort(times_.begin(), times_.end());
        const auto late =
            std::count_if(times_.begin(), times_.end(), [](double took) { return took > 10.0; });
        std::printf("%-34s %5zu ticks: LinksTimr median %.3f ms, longest %.3f ms; late because of it: %td\n",
                    what, times_.size(), times_[times_.size() / 2], times_.back(), late);
        times_.clear();
    }

  private:
    BenchFiles files_;
    Clock::time_point next_;
    std::vector<double> times_;
};

/// Resident memory of this process, in kB.
inline long Memory()
{
    std::ifstream status("/proc/self/statm");
    long whole = 0;
    long resident = 0;
    status >> whole >> resident;
    return resident * sysconf(_SC_PAGESIZE) / 1024;
}
