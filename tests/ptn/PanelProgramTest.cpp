// tessary-panel: it finds a project by its profile or folder, and shows every screen without any code.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/Variable.h"
#include "tests/support/XDriver.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

std::string ScreenCalled(const std::string& name, const std::string& color, const std::string& more = "")
{
    return "name: " + name + "\nwindow: { size: [200, 100], body-color: " + color + " }\n" + more;
}

/// A project with the screens "a", which leads to "b", and "b", built into out/.
class PanelProgram : public testing::Test
{
  protected:
    PanelProgram()
    {
        sources.base();
        sources.screen(ScreenCalled("a", "hot",
                                    "items: [{ type: button, rect: [0, 0, 90, 90], text: b, "
                                    "action: open-application, pattern: b }]\n"));
        sources.write("screens/b.yaml", ScreenCalled("b", "white"));
        sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: a },"
                                      " LOG: { LOGFILE: '@DIR@/log', LOGSIZE: 1 } }\n");
        EXPECT_EQ(sources.build().err, "");
        fs::create_directory("out/log");
    }

    void run(const std::vector<std::string>& arguments)
    {
        program.emplace("tessary-panel", "tessary-panel", arguments);
    }

    int waitEnd()
    {
        user.waitFor([&] { return program->status().has_value(); }, "the end of the program");
        return program->status().value_or(-1);
    }

    void expectEnd(int status, const std::string& told)
    {
        EXPECT_EQ(waitEnd(), status);
        EXPECT_EQ(program->output(), told);
    }

    XDriver user;
    Sources sources;
    std::optional<Program> program;
};

TEST_F(PanelProgram, shows_the_screens_of_the_project_and_ends_by_a_signal_in_good_order)
{
    run({"out"});
    const ScreenWindow window = user.waitForWindow("a");
    user.waitFor([&] { return user.pixel(window.x + 150, window.y + 50) == 0xFF8000; }, "the screen");
    user.clickAt(window.x + 40, window.y + 40);
    user.waitForWindow("b");
    kill(program->pid(), SIGTERM);
    expectEnd(0, "");
    EXPECT_FALSE(fs::is_empty("out/log"));
}

TEST_F(PanelProgram, takes_the_profile_its_folder_the_project_directory_or_the_working_directory)
{
    for (const char* argument : {"out/panel.ini", "out", "out/", "out/ProjPath", "out/ProjPath/"}) {
        run({argument});
        user.waitForWindow("a");
        EXPECT_EQ(program->output(), "") << argument;
    }
    fs::current_path("out");
    run({});
    user.waitForWindow("a");
    fs::current_path("ProjPath");
    run({"."});
    user.waitForWindow("a");
    EXPECT_EQ(program->output(), "");
}

TEST_F(PanelProgram, reads_its_tables_beside_the_profile_wherever_it_is_started)
{
    run({"out"});
    user.waitForWindow("a");
    EXPECT_EQ(fs::read_symlink("/proc/" + std::to_string(program->pid()) + "/cwd"), sources.root() + "/out");
}

TEST_F(PanelProgram, begins_with_the_screen_that_is_asked_for)
{
    sources.write("screens/c.yaml", ScreenCalled(u8"図形", "white"));
    ASSERT_EQ(sources.build().err, "");
    run({"--screen", "b", "out"});
    user.waitForWindow("b");
    run({"out", std::string("--screen=") + u8"図形"});
    user.waitForWindow("図形");
}

TEST_F(PanelProgram, tells_what_is_wrong_with_its_arguments)
{
    const auto expect = [&](const std::vector<std::string>& arguments, int status, const std::string& told) {
        run(arguments);
        expectEnd(status, "tessary-panel: " + told + "\n");
    };
    expect({"nowhere"}, 1, "'nowhere' does not exist. Name a profile or a folder that is there.");
    expect(
        {"src/project.yaml"}, 1,
        "'src/project.yaml' is no profile, whose name ends with \".ini\". Name one, or the folder of one.");
    const std::string src = sources.root() + "/src";
    expect(
        {"src"}, 1,
        "There is no profile in '" + src +
            "', and none beside it that names it. Name a profile (*.ini), the folder that it lies in, or its "
            "project directory; \"ptn run\" builds a project from its sources and shows it.");
    writeFile("out/other.ini", "");
    expect({"out"}, 1,
           "There is more than one profile in '" + sources.root() +
               "/out': other.ini, panel.ini. Name one of them.");
    expect({"--nonsense"}, 2, "Unknown option '--nonsense'. --help tells those that there are.");
    expect({"--screen"}, 2, "--screen needs the name of a screen.");
    expect({"out", "src"}, 2, "Name one profile or folder, not 'out' and 'src'.");
}

TEST_F(PanelProgram, refuses_to_begin_without_a_screen)
{
    run({"--screen", "nowhere", "out"});
    const ScreenWindow box = user.waitForWindow("起動不可");
    EXPECT_THAT(program->output(),
                StartsWith("tessary-panel: The project has no screen 'nowhere' to begin with. "));
    user.requestClose(box.id);
    EXPECT_EQ(waitEnd(), 1);
    EXPECT_EQ(program->output().find('\n'), program->output().size() - 1) << "one line";
}

TEST_F(PanelProgram, answers_without_a_display)
{
    const Variable none("DISPLAY", nullptr);
    run({"--help"});
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_THAT(program->output(), StartsWith("Usage: tessary-panel [--screen NAME] "));
    run({"--version"});
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_THAT(program->output(), StartsWith("tessary-panel (Tessary) "));
    run({"out"});
    EXPECT_EQ(waitEnd(), 1);
    EXPECT_THAT(program->output(), HasSubstr("There is no display. Set DISPLAY"));
}

} // namespace
