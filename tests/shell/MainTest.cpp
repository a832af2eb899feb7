// What main() asks of an application, and when.
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/Variable.h"
#include "tests/support/XDriver.h"

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>
#include <optional>
#include <sstream>
#include <X11/keysym.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

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

    /// The calls of hooks so far, without what the framework tells under the program's name.
    std::vector<std::string> told()
    {
        std::vector<std::string> calls;
        std::istringstream output(program->output());
        for (std::string call; std::getline(output, call);)
            if (call.rfind("panel: ", 0) != 0)
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

    void send(int signal) { EXPECT_EQ(kill(program->pid(), signal), 0); }

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

TEST_F(Main, ends_within_a_second_of_ticks_at_a_signal)
{
    project.set("TEST", "INIT", "1");
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        project.clearLog();
        run();
        waitTicks(2);
        const auto before = ticks();
        send(signal);
        EXPECT_EQ(waitEnd(), 0) << program->output();
        EXPECT_LE(ticks() - before, 10) << signal;
        EXPECT_EQ(told().back(), "exit");
        EXPECT_EQ(project.messages().back(), "システム停止");
    }
}

TEST_F(Main, is_not_disturbed_by_more_signals_while_it_ends)
{
    project.set("TEST", "INIT", "1").set("TEST", "WAIT", "go on");
    run();
    waitTicks(1);
    send(SIGTERM);
    user.waitFor([&] { return told().back() == "exit"; }, "the exit hook");
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        send(signal);
    EXPECT_FALSE(program->status());
    writeFile("go on", "");
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_THAT(toldBesideTicks(), ElementsAre("init", "window", "exit"));
    EXPECT_EQ(project.messages().back(), "システム停止");
}

TEST_F(Main, at_a_signal_leaves_the_box_of_its_start_and_shows_no_window)
{
    project.set("TEST", "INIT", "1").set("TEST", "ASKINIT", "1");
    run();
    user.waitForWindow("ASKINIT");
    send(SIGTERM);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_THAT(toldBesideTicks(), ElementsAre("init", "exit"));
}

TEST_F(Main, ends_at_a_signal_while_a_tick_waits_for_an_answer)
{
    project.set("TEST", "INIT", "1").set("TEST", "ASKTICK", "1");
    run();
    user.waitForWindow("ASKTICK");
    send(SIGTERM);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_THAT(toldBesideTicks(), ElementsAre("init", "window", "exit"));
    EXPECT_EQ(project.messages().back(), "システム停止");
}

TEST_F(Main, after_a_signal_does_not_wait_for_an_answer)
{
    project.set("TEST", "INIT", "1").set("TEST", "ASKEXIT", "1");
    run();
    waitTicks(1);
    send(SIGTERM);
    EXPECT_EQ(waitEnd(), 0) << program->output();
}

TEST_F(Main, tells_on_standard_error_what_stops_its_start)
{
    project.set("TEST", "INIT", "0");
    run();
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_THAT(program->output(), HasSubstr("panel: The application has refused the start"));
}

TEST_F(Main, answers_options_without_a_display)
{
    const Variable display("DISPLAY", nullptr);
    program.emplace("hooks_program", "/opt/plant", std::vector<std::string>{"--help"});
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_THAT(program->output(), StartsWith("Usage: plant [--help] [--version]"));
    program.emplace("hooks_program", "/opt/plant", std::vector<std::string>{"--version"});
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_THAT(program->output(), MatchesRegex("plant \\(Tessary\\) [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(Main, ends_with_status_1_and_a_way_out_where_the_display_is_missing)
{
    for (const char* name : {static_cast<const char*>(nullptr), "", ":4711"}) {
        const Variable display("DISPLAY", name);
        run();
        EXPECT_EQ(waitEnd(), 1);
        EXPECT_THAT(program->output(), StartsWith("panel: The"));
        EXPECT_THAT(program->output(), HasSubstr("DISPLAY"));
        EXPECT_THAT(told(), Not(Contains("exit")));
    }
}
