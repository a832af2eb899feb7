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

// A test executable of an application links that application's registry and hooks, which go before these.

__attribute__((weak)) CPtrnDisp* GetPtrnWnd(const char* name)
{
    return TestApplication::window ? TestApplication::window(name) : nullptr;
}

__attribute__((weak)) int UserInit()
{
    return TestApplication::init ? TestApplication::init() : 1;
}

__attribute__((weak)) void UserExit()
{
    if (TestApplication::exit)
        TestApplication::exit();
}

__attribute__((weak)) void UserTimr()
{
    if (TestApplication::tick)
        TestApplication::tick();
}
