#include "tests/support/Registry.h"

#include "window/Registry.h"

std::function<CPtrnDisp*(const std::string&)> TestApplication::window;
std::function<int()> TestApplication::init;
std::function<void()> TestApplication::exit;
std::function<void()> TestApplication::tick;

void TestApplication::reset()
{
    window = nullptr;
    init = nullptr;
    exit = nullptr;
    tick = nullptr;
}

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return TestApplication::window ? TestApplication::window(name) : nullptr;
}

int UserInit()
{
    return TestApplication::init ? TestApplication::init() : 1;
}

void UserExit()
{
    if (TestApplication::exit)
        TestApplication::exit();
}

void UserTimr()
{
    if (TestApplication::tick)
        TestApplication::tick();
}
