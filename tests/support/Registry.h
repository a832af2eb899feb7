// The registry and hooks that test executables link in place of an application's.
#pragma once

#include <functional>
#include <string>

class CPtrnDisp;

/// Replaceable by a test; reset by TestApplication::reset(). By default no pattern is known,
/// UserInit returns 1 and the other hooks do nothing.
struct TestApplication {
    static std::function<CPtrnDisp*(const std::string& name)> window;
    static std::function<int()> init;
    static std::function<void()> exit;
    static std::function<void()> tick;
    static void reset();
};
