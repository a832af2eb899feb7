// An application without screens that tells when its hooks are called.
#include "tessary.h"

#include <cstdio>

namespace
{

void tell(const char* call)
{
    std::puts(call);
    std::fflush(stdout);
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
    return ProfileReadInt(ProfName, "TEST", "INIT");
}

void UserExit()
{
    tell("exit");
}

void UserTimr()
{
    tell("tick");
}
