// "ptn run" on a real display: it checks, builds and shows a project without code, and with --watch what is
// saved.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/Variable.h"
#include "tests/support/XDriver.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;

constexpr std::uint32_t HOT = 0xFF8000;
constexpr std::uint32_t WHITE = 0xFFFFFF;

class Run : public testing::Test
{
  protected:
    Run()
    {
        sources.write("look.yaml", "styles: { window: { width: 200, height: 100 } }\n");
        sources.write("project.yaml", "codes: { CLOCK: 7, SYSTEM: 92, A: 5, B: 3 }\n"
                                      "colors: { black: '#000000', white: '#FFFFFF',"
                                      " hot: { no: 50, rgb: '#FF8000' } }\n"
                                      "fonts: { a: '-*-fixed-medium-r-normal--16-*' }\n"
                                      "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: a },"
                                      " LOG: { LOGFILE: '@DIR@/log', LOGSIZE: 1 } }\n");
        sources.screen(screenWith("hot"));
    }

    /// The screen "a": a check box and a body of a colour.
    static std::string screenWith(const std::string& color, const std::string& more = "")
    {
        return "name: a\nwindow: { body-color: " + color +
               " }\nitems:\n"
               "  - { type: check, at: [10, 10], font: a, text: x, data: A+1, back: white, color: black }\n" +
               more;
    }

    void run(const std::vector<std::string>& arguments)
    {
        std::vector<std::string> words = {"run", "src"};
        words.insert(words.end(), arguments.begin(), arguments.end());
        program.emplace("ptn", "ptn", words);
    }

    bool waitBody(std::uint32_t color)
    {
        return user.waitFor(
            [&] {
                const auto windows = user.windows();
                return !windows.empty() && user.pixel(windows[0].x + 150, windows[0].y + 80) == color;
            },
            "the colour of the screen");
    }

    void waitTold(const std::string& text)
    {
        user.waitFor([&] { return program->output().find(text) != std::string::npos; }, text);
    }

    int waitEnd()
    {
        user.waitFor([&] { return program->status().has_value(); }, "the end of the program");
        return program->status().value_or(-1);
    }

    /// What the check box looks like: another picture when it is checked.
    Picture box()
    {
        const ScreenWindow window = user.waitForWindow("a");
        return user.picture(window.x + 10, window.y + 10, 16, 16);
    }

    XDriver user;
    Sources sources;
    std::optional<Program> program;
};

class RunWatching : public Run
{
  protected:
    void SetUp() override
    {
        run({"--watch"});
        ASSERT_TRUE(waitBody(HOT)) << program->output();
    }
};

} // namespace

TEST_F(Run, builds_the_project_into_its_own_folder_and_shows_it)
{
    run({});
    waitBody(HOT);
    EXPECT_TRUE(fs::exists("src/build/ProjPath/a.ptn"));
    EXPECT_TRUE(fs::exists("src/build/panel.ini"));
    EXPECT_FALSE(fs::exists("src/build/cells.h")) << "nobody compiles it";
    kill(program->pid(), SIGTERM);
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_EQ(program->output(), "");
    EXPECT_FALSE(fs::is_empty("src/build/log"));
}

TEST_F(Run, shows_nothing_while_there_are_mistakes)
{
    sources.screen(screenWith("hot", "  - { type: text, at: [190, 10], font: a, text: Overflow }\n"));
    const std::string found = sources.run("check src").err;
    const PtnResult result = sources.run("run src");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(found, HasSubstr("src/screens/a.yaml:5: text at 190,10: "));
    EXPECT_EQ(result.err, found + "src: there are mistakes, so nothing is shown.\n");
    EXPECT_FALSE(fs::exists("src/build"));
}

TEST_F(Run, needs_a_display)
{
    const Variable none("DISPLAY", nullptr);
    for (const char* options : {"", " --watch"}) {
        const PtnResult result = sources.run(std::string("run src") + options);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err,
                  "ptn: there is no display to show the panel on. Set DISPLAY to the X server, such as "
                  "DISPLAY=:0, or look at the screens with 'ptn render'.\n");
    }
    const Variable wrong("DISPLAY", ":4711");
    EXPECT_EQ(sources.run("run src --watch").status, 1) << "as the panel says";
}

TEST_F(Run, begins_with_the_screen_that_is_asked_for)
{
    sources.write("screens/b.yaml", u8"name: 図形\nwindow: { body-color: white }\n"
                                    "items: [{ type: button, rect: [0, 0, 50, 50], font: a,"
                                    " action: open-application, pattern: a }]\n");
    sources.screen(screenWith("hot", u8"  - { type: button, rect: [50, 40, 90, 60], font: a,"
                                     u8" action: open-application, pattern: 図形 }\n"));
    run({"--screen", u8"図形"});
    user.waitForWindow("図形");
    waitBody(WHITE);
    EXPECT_EQ(
        sources.run(u8"run src --screen 図").err,
        u8"ptn: no screen is named '図'. Did you mean '図形'? --screen takes the 'name' of a screen.\n");
}

TEST_F(RunWatching, shows_what_is_saved_and_the_cells_keep_what_they_have)
{
    const Picture unchecked = box();
    const ScreenWindow window = user.waitForWindow("a");
    user.clickAt(window.x + 14, window.y + 18);
    user.waitFor([&] { return box().pixels != unchecked.pixels; }, "the check");
    const Picture checked = box();
    sources.screen(screenWith("white"));
    waitBody(WHITE);
    EXPECT_EQ(box().pixels, checked.pixels);
    waitTold("src: 1 file has changed and is shown now.\n");
    EXPECT_EQ(user.waitForWindow("a").id, window.id) << "the same window";
    EXPECT_EQ(user.windows().size(), 1U);

    // Another place in the code table, other colours.
    std::string project = readFile("src/project.yaml");
    project.replace(project.find("A: 5"), 4, "NEW: 2, A: 5");
    project.replace(project.find("#FF8000"), 7, "#0080FF");
    writeFile("src/project.yaml", project);
    sources.screen(screenWith("hot"));
    waitBody(0x0080FF);
    EXPECT_EQ(box().pixels, checked.pixels);
    EXPECT_EQ(user.waitForWindow("a").id, window.id);
    kill(program->pid(), SIGTERM);
    EXPECT_EQ(waitEnd(), 0) << program->output();
}

TEST_F(RunWatching, leaves_the_screen_while_there_are_mistakes_and_tells_them)
{
    sources.screen(screenWith("nocolor"));
    waitTold("src: the panel goes on with what it has.\n");
    EXPECT_THAT(program->output(), HasSubstr("src/screens/a.yaml:2: 'window': "));
    waitBody(HOT);
    sources.screen(screenWith("white"));
    waitBody(WHITE);
}

TEST_F(RunWatching, shows_screens_that_are_added)
{
    sources.write("screens/b.yaml", "name: b\nwindow: { body-color: white }\n");
    sources.screen(screenWith("hot", "  - { type: button, rect: [50, 40, 90, 60], font: a,"
                                     " action: open-application, pattern: b }\n"));
    waitTold("are shown now.\n");
    const ScreenWindow window = user.waitForWindow("a");
    user.waitFor(
        [&] {
            user.clickAt(window.x + 70, window.y + 50);
            const auto windows = user.windows();
            return !windows.empty() && windows.back().title == "b";
        },
        "the new screen");
}

TEST_F(RunWatching, passes_signals_on_and_ends_with_the_panel)
{
    kill(program->pid(), SIGTERM);
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_TRUE(user.windows().empty());
    EXPECT_EQ(program->output(), "");
}

TEST_F(RunWatching, leaves_no_panel_behind_whatever_ends_it)
{
    kill(program->pid(), SIGKILL);
    user.waitFor([&] { return user.windows().empty(); }, "the end of the panel");
}
