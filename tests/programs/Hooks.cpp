// An application without screens that tells when its hooks are called.
#include "tessary.h"

#include <cstdio>
#include <string>
#include <unistd.h>
#include <utility>

namespace
{

void tell(const char* call)
{
    std::puts(call);
    std::fflush(stdout);
}

/// Shows a message box where the profile asks for one.
void ask(const char* key)
{
    if (ProfileReadInt(ProfName, "TEST", key))
        MessageBox(key, "", 1, 3);
}

} // namespace

CPtrnDisp* GetPtrnWnd(const char*)
{
    tell("window");
    return nullptr;
}

/// Answers what the profile says.
int UserInit()
{
    tell("init");
    ask("ASKINIT");
    return ProfileReadInt(ProfName, "TEST", "INIT");
}

/// Returns when the file that the profile names is there.
void UserExit()
{
    tell("exit");
    ask("ASKEXIT");
    const std::string file = ProfileReadAsc(ProfName, "TEST", "WAIT");
    while (!file.empty() && access(file.c_str(), F_OK) != 0)
        usleep(1000); // between two looks
}

/// Asks once; a box has ticks of its own.
void UserTimr()
{
    static bool asked = false;
    tell("tick");
    if (!std::exchange(asked, true))
        ask("ASKTICK");
}
