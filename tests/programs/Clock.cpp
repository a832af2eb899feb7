// An application whose clock can be set, as that of a machine: the file "clock" in its working directory has
// the time, in seconds, and the clock goes on from there; or, with "held" behind it, stands still. In every
// tick it writes the clock's cells into the log.
#include "tessary.h"

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

namespace
{

std::time_t Machine()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec;
}

std::time_t Now()
{
    static std::time_t setting = 0;
    static std::time_t ahead = 0; // of the machine's clock
    std::time_t now = 0;
    std::string how;
    std::ifstream("clock") >> now >> how;
    if (how == "held")
        return now;
    if (now != setting) {
        setting = now;
        ahead = now - Machine();
    }
    return Machine() + ahead;
}

} // namespace

/// Takes the place of the C library's in this program.
extern "C" std::time_t time(std::time_t* out) noexcept
{
    const std::time_t now = Now();
    if (out)
        *out = now;
    return now;
}

CPtrnDisp* GetPtrnWnd(const char*)
{
    return new CPtrnDisp;
}

int UserInit()
{
    return 1;
}

void UserExit() {}

void UserTimr()
{
    std::string text = "clock";
    for (int no = 1; no <= 7; no++)
        text += ' ' + std::to_string(Get_iData(no, nullptr, 0));
    LogfileWrite("TEST", text.c_str(), nullptr, 0);
}
