// A program whose screens need no code of their own.
#include <tessary/tessary.h>

#include <cstring>

CPtrnDisp* GetPtrnWnd(const char* name)
{
    for (const char* known : {"Main", "Pumps", "Stop"})
        if (std::strcmp(known, name) == 0)
            return new CPtrnDisp;
    return nullptr;
}

int UserInit()
{
    return 1; // go on
}

void UserExit() {}

void UserTimr() {}
