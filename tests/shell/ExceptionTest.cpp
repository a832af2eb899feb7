// An exception out of a hook of the application ends the real program in order.
#include "tests/support/PatternBuilder.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/XDriver.h"

#include <csignal>
#include <gmock/gmock.h>
#include <optional>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace
{

/// The parameter is the hook.
class ThrowingHook : public testing::TestWithParam<const char*>
{
  protected:
    static constexpr const char* SCREEN = "screen";

    void SetUp() override
    {
        project.code("DATA", 200);
        project.set("PTRN", "PTRNSTART", SCREEN).set("TEST", "THROWS", GetParam());
        Pattern(SCREEN)
            .size(300, 200)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .code("DATA", 150)
            .action(1)
            .save(project);
    }

    bool is(const char* hook) const { return std::string(GetParam()) == hook; }

    /// Starts, does what has the hook called, and waits for the end.
    int run()
    {
        program.emplace("throwing_program", project.root() + "/panel");
        if (is("message") || is("mouse")) {
            user.waitForWindow(SCREEN);
            user.clickAt(50, 25);
        } else if (is("screen-exit") || is("exit")) {
            user.waitForWindow(SCREEN);
            user.waitFor([&] { return !project.messages().empty(); }, "the start");
            EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
        }
        user.waitFor([&] { return program->status().has_value(); }, "the end of the program");
        return program->status().value_or(-1);
    }

    void expectOrderlyEnd(const std::string& text)
    {
        EXPECT_THAT(project.messages(), Contains("例外が発生した。  [" + text + "]"));
        EXPECT_EQ(project.messages().back(), "システム停止");
        EXPECT_THAT(program->output(), HasSubstr("An exception has ended the program: '" + text + "'."));
        EXPECT_THAT(program->output(), Not(HasSubstr("terminate")));
    }

    XDriver user;
    Project project;
    std::optional<Program> program;
};

std::string hookName(const testing::TestParamInfo<const char*>& info)
{
    std::string name = info.param;
    for (char& letter : name)
        if (letter == '-')
            letter = '_';
    return name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Hooks, ThrowingHook,
                         testing::Values("init", "registry", "screen-init", "display", "timer", "tick",
                                         "mouse", "message", "screen-exit", "exit"),
                         hookName);

TEST_P(ThrowingHook, ends_the_program_with_a_status_and_its_text_in_the_log)
{
    EXPECT_EQ(run(), 1) << program->output();
    expectOrderlyEnd("thrown by " + std::string(GetParam()));
}

TEST_P(ThrowingHook, may_have_run_out_of_memory_or_throw_what_is_no_exception)
{
    project.set("TEST", "WHAT", "memory");
    EXPECT_EQ(run(), 1) << program->output();
    expectOrderlyEnd("std::bad_alloc");
    project.clearLog();
    project.set("TEST", "WHAT", "number");
    EXPECT_EQ(run(), 1) << program->output();
    expectOrderlyEnd("unknown");
}
