// main() of every test executable.
#include "tests/support/Sanitizer.h"

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

// Asked by the sanitizers' run-time libraries; without them nobody calls these.
extern "C" const char* __lsan_default_suppressions()
{
    return LEAK_SUPPRESSIONS;
}

extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

extern "C" const char* __asan_default_options()
{
    return "detect_stack_use_after_return=1";
}

extern "C" const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!std::setlocale(LC_CTYPE, "ja_JP.eucJP")) {
        std::fprintf(stderr, "The locale ja_JP.eucJP is missing; ./test.sh makes it.\n");
        return 1;
    }
    return RUN_ALL_TESTS();
}
