// What main() asks of an application, and when.
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/XDriver.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <optional>
#include <sstream>
#include <X11/keysym.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Main : public testing::Test
{
  protected:
    /// The program's name makes the project's profile its own.
    void run() { program.emplace("hooks_program", project.root() + "/panel"); }

    int waitEnd()
    {
        user.waitFor([&] { return program->status().has_value(); }, "the end of the program");
        return program->status().value_or(-1);
    }

    /// The calls of hooks so far.
    std::vector<std::string> told()
    {
        std::vector<std::string> calls;
        std::istringstream output(program->output());
        for (std::string call; std::getline(output, call);)
            calls.push_back(call);
        return calls;
    }

    std::ptrdiff_t ticks()
    {
        const auto calls = told();
        return std::count(calls.begin(), calls.end(), "tick");
    }

    std::vector<std::string> toldBesideTicks()
    {
        auto calls = told();
        calls.erase(std::remove(calls.begin(), calls.end(), "tick"), calls.end());
        return calls;
    }

    void waitTicks(int count)
    {
        user.waitFor([&] { return ticks() >= count; }, "ticks");
    }

    XDriver user;
    Project project;
    std::optional<Program> program;
};

} // namespace

TEST_F(Main, asks_for_the_start_pattern_when_the_application_goes_on)
{
    project.set("TEST", "INIT", "1").set("PTRN", "PTRNSTART", "start");
    run();
    waitTicks(3);
    EXPECT_THAT(toldBesideTicks(), ElementsAre("init", "window"));
    EXPECT_EQ(project.messages().front(), "システム起動");
    EXPECT_EQ(project.messages().back(), "最上位ウィンドウ表示に失敗  [start]");
}

TEST_F(Main, ends_properly_when_the_application_does_not_want_to_go_on)
{
    project.set("PTRN", "PTRNSTART", "start");
    for (const char* answer : {"0", "2"}) {
        project.set("TEST", "INIT", answer);
        project.clearLog();
        run();
        EXPECT_EQ(waitEnd(), 0) << program->output();
        EXPECT_THAT(toldBesideTicks(), ElementsAre("init", "exit"));
        EXPECT_EQ(project.messages().front(), "システム起動");
        EXPECT_EQ(project.messages().back(), "システム停止");
    }
}

TEST_F(Main, ticks_while_it_tells_what_is_missing_and_calls_the_exit_hook_alone)
{
    project.unset("TESSARY", "PROJECT");
    run();
    user.waitForWindow("起動不可");
    const auto before = ticks();
    waitTicks(static_cast<int>(before) + 3);
    EXPECT_THAT(toldBesideTicks(), IsEmpty());
    user.requestClose(user.waitForWindow("起動不可").id);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_THAT(toldBesideTicks(), ElementsAre("exit"));
    EXPECT_THAT(project.log(), IsEmpty());
}
