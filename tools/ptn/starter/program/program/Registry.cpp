// Which window class shows which screen, and what the program does on its own.
#include "cells.h" // made by the build: the cells and screens of project.yaml and screens/

#include <tessary/tessary.h>
#include <tessary/tessary_plant.h>

#include <cstring>

using namespace @NAMESPACE@;

namespace
{

constexpr const char* SCREENS[] = {screen::Main, screen::States, screen::Stop};

} // namespace

// A screen that needs code of its own gets a class derived from CPtrnDisp here.
CPtrnDisp* GetPtrnWnd(const char* name)
{
    for (const char* known : SCREENS)
        if (std::strcmp(known, name) == 0)
            return new CPtrnDisp;
    return nullptr;
}

int UserInit()
{
    Set_iData(SETPOINT, 60, nullptr, 0);
    return tessary::LinksInit(nullptr); // cells that live in a plant: the section 'links', see "ptn help links"
}

void UserExit()
{
    tessary::LinksExit();
}

// Every 100 ms: the speed follows its setpoint, the pumps change state now and then.
void UserTimr()
{
    tessary::LinksTimr();
    const int speed = Get_iData(SPEED, nullptr, 0);
    const int setpoint = Get_iData(SETPOINT, nullptr, 0);
    if (speed != setpoint)
        Set_iData(SPEED, speed + (speed < setpoint ? 1 : -1), nullptr, 0);
    static int ticks = 0;
    if (++ticks % 20 == 0)
        Set_wData(PUMP + ticks / 20 % count::PUMP, static_cast<WORD>(ticks / 80 % 4), nullptr, 0);
}
