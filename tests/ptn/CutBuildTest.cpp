// "ptn build" whose calls of the system are cut one after the other.
#include "tests/ptn/Sources.h"
#include "tests/support/CutCalls.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

constexpr int SCREENS = 6;
constexpr int CUTS = 30; ///< of the many calls of a build

class CutBuild : public testing::TestWithParam<Cut>
{
  protected:
    void SetUp() override
    {
        if (!CanCutCalls())
            GTEST_SKIP() << "this machine does not let a process watch another one's calls";
        sources.base();
    }

    void write(int number)
    {
        for (int screen = 0; screen < SCREENS; ++screen)
            sources.write("screens/s" + std::to_string(screen) + ".yaml", "name: s" + std::to_string(screen) +
                                                                              "\ntitle: number " +
                                                                              std::to_string(number) + "!\n");
    }

    int countOf(int number) const
    {
        int count = 0;
        for (int screen = 0; screen < SCREENS; ++screen)
            count += readFile(sources.output() + "/s" + std::to_string(screen) + ".ptn")
                                 .find("number " + std::to_string(number) + "!") != std::string::npos
                         ? 1
                         : 0;
        return count;
    }

    /// Builds in a process that is watched.
    CutResult build(int call, Cut cut) const
    {
        const std::string ptn = Program::buildFolder() + "/ptn";
        const std::string from = sources.root() + "/src";
        return CutCall(
            call, cut,
            [&] {
                setenv("ASAN_OPTIONS", "detect_leaks=0", 1); // who is watched can not watch itself
                execl(ptn.c_str(), "ptn", "build", "-q", from.c_str(), sources.output().c_str(),
                      static_cast<char*>(nullptr));
                return 127;
            },
            fs::path(sources.output()).parent_path());
    }

    /// How many calls a build makes that changes everything.
    int countCalls()
    {
        int lowest = 1;
        int highest = 4096;
        while (lowest < highest) { // the first number that is not reached
            write(-lowest);
            const int middle = (lowest + highest) / 2;
            if (build(middle, Cut::Die).reached)
                lowest = middle + 1;
            else
                highest = middle;
            sources.build();
        }
        return lowest - 1;
    }

    Sources sources;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Calls, CutBuild, testing::Values(Cut::Die, Cut::NoRoom, Cut::Broken));

TEST_P(CutBuild, leaves_the_old_project_or_the_new_one_or_says_that_it_is_unfinished)
{
    write(0);
    ASSERT_EQ(sources.build().status, 0);
    static const int calls = countCalls(); // the same for every way of cutting
    ASSERT_GT(calls, 20);
    write(0);
    ASSERT_EQ(sources.build().status, 0);
    int unfinished = 0;
    for (int cut = 1; cut <= CUTS; ++cut) {
        write(cut);
        const int number = std::max(1, calls * cut / CUTS);
        const CutResult result = build(number, GetParam());
        const std::string where =
            "call " + std::to_string(number) + " of " + std::to_string(calls) + ", " + result.call;
        const bool marked = fs::exists(sources.output() + "/.ptn-unfinished");
        unfinished += marked;
        const int fresh = countOf(cut);
        const int old = countOf(cut - 1);
        EXPECT_TRUE(marked || fresh == SCREENS || old == SCREENS)
            << where << ": " << old << " old, " << fresh << " new";
        if (WIFEXITED(result.status) && WEXITSTATUS(result.status) == 0) {
            EXPECT_EQ(fresh, SCREENS) << where << ": it says that it has built";
        }
        ASSERT_EQ(sources.build().status, 0) << where;
        EXPECT_EQ(countOf(cut), SCREENS) << where;
    }
    RecordProperty("unfinished", unfinished);
}
