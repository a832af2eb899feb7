// The manual: the commands of its tutorial run as printed, its examples build.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace
{

using testing::HasSubstr;
using testing::SizeIs;

/// A run of lines that are set off from the text.
struct Block {
    bool yaml = false; ///< between ```yaml and ```; else indented
    std::string text;
};

// The blocks of a chapter's part below "## title"; of the whole file without a title.
std::vector<Block> Blocks(const std::string& file, const std::string& title)
{
    std::istringstream lines(readFile(Program::sourceFolder() + "/" + file));
    std::vector<Block> blocks;
    bool inside = title.empty();
    bool fenced = false;
    bool open = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, 3, "## ") == 0 && !title.empty())
            inside = line == "## " + title;
        const bool indented = !fenced && line.compare(0, 4, "    ") == 0;
        if (inside && line.compare(0, 3, "```") == 0) {
            fenced = !fenced && line == "```yaml";
            open = fenced;
            if (fenced)
                blocks.push_back({true, ""});
        } else if (inside && (fenced || indented)) {
            if (!open)
                blocks.push_back({false, ""});
            open = true;
            blocks.back().text += line.substr(fenced ? 0 : 4) + "\n";
        } else {
            open = false;
        }
    }
    return blocks;
}

void Insert(const std::string& file, const std::string& after, const std::string& text)
{
    std::string all = readFile(file);
    const std::size_t at = all.find(after);
    ASSERT_NE(at, std::string::npos) << after;
    writeFile(file, all.insert(at + after.size(), text));
}

class Manual : public testing::Test
{
  protected:
    Manual() { unsetenv("DISPLAY"); }

    // A command as it is printed, as far as it goes without a display.
    void run(const std::string& command)
    {
        if (command.compare(0, 8, "ptn run ") == 0)
            buildScreens();
        else if (command.compare(0, 4, "ptn ") == 0 && command.compare(0, 10, "ptn watch ") != 0)
            expectRuns(command.substr(4));
    }

    // What "ptn run" does before it shows them.
    void buildScreens()
    {
        expectRuns("check plant");
        expectRuns("build --quiet plant plant/build/ProjPath");
    }

    void expectRuns(const std::string& arguments)
    {
        const PtnResult result = sources.run(arguments);
        EXPECT_EQ(result.status, 0) << arguments << "\n" << result.out << result.err;
        EXPECT_EQ(result.err, "");
    }

    Sources sources;
};

TEST_F(Manual, has_a_tutorial_whose_commands_run_as_printed)
{
    int screens = 0;
    for (const Block& block : Blocks("docs/writing-screens.md", "Tutorial")) {
        if (block.yaml && ++screens == 1) {
            writeFile("plant/screens/tank.yaml", block.text);
            const std::string found = sources.run("check plant").err;
            EXPECT_THAT(found, HasSubstr("no code 'LEVEL'"));
            EXPECT_THAT(found, HasSubstr("the screen 'Tank' can not be reached"));
        } else if (block.yaml) {
            Insert("plant/project.yaml", "  PUMP: 4 # 102-105\n", "  LEVEL: 1\n");
            Insert("plant/screens/main.yaml", "\nitems:\n", block.text);
            buildScreens();
            expectRuns("render plant Tank");
        } else {
            std::istringstream lines(block.text);
            for (std::string line; std::getline(lines, line);)
                run(line);
        }
    }
    EXPECT_EQ(screens, 2);
    for (const char* made : {"main.png", "plant/build/plant.ini", "plant/build/ProjPath/Tank.ptn",
                             "plant-again/screens/Tank.yaml"})
        EXPECT_NE(readFile(made), "") << made;
}

TEST_F(Manual, has_an_example_of_a_screen_and_of_values_that_can_be_rendered)
{
    const std::vector<Block> screen = Blocks("docs/writing-screens.md", "Screens");
    const std::vector<Block> values = Blocks("docs/writing-screens.md", "Values for pictures");
    ASSERT_THAT(screen, SizeIs(1));
    ASSERT_THAT(values, SizeIs(1));
    sources.screen(screen[0].text);
    sources.write("project.yaml",
                  "codes: { SPEED: 1, PUMP: 4 }\nfonts: { a: '-*-fixed-medium-r-normal--14-*' }\n");
    for (const char* bitmap : {"logo.png", "back.png"})
        sources.write(std::string("bitmaps/") + bitmap,
                      readFile(Program::sourceFolder() + "/docs/panel.png"));
    writeFile("values", values[0].text);
    expectRuns("render src Main --state values -o main.png");
}

TEST_F(Manual, begins_with_a_screen_that_builds)
{
    std::vector<Block> screens;
    for (const Block& block : Blocks("README.md", ""))
        if (block.yaml)
            screens.push_back(block);
    ASSERT_THAT(screens, SizeIs(1));
    sources.screen(screens[0].text).write("screens/b.yaml", "name: Main\n");
    sources.write("project.yaml", "codes: { SETPOINT: 1 }\nfonts: { a: '-*-fixed-medium-r-normal--14-*' }\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.err, "");
    EXPECT_NE(sources.built("pump.ptn"), "");
}

} // namespace
