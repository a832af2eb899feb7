// main() of every test executable.
#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!std::setlocale(LC_CTYPE, "ja_JP.eucJP")) {
        std::fprintf(stderr, "The locale ja_JP.eucJP is missing; ./test.sh makes it.\n");
        return 1;
    }
    return RUN_ALL_TESTS();
}
