// The manual: the commands of its tutorial run as printed, its examples build.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <utility>
#include <vector>

namespace
{

using testing::HasSubstr;
using testing::SizeIs;

/// A run of lines that are set off from the text.
struct Block {
    bool yaml = false; ///< between ```yaml and ```; else indented
    std::string text;
    std::string file; ///< that a line "<!-- into FILE -->" above names
    std::string line; ///< of that file, below which it goes; empty: it is the whole file
};

// The blocks of a chapter's part below "## title"; of the whole file without a title.
std::vector<Block> Blocks(const std::string& file, const std::string& title)
{
    std::istringstream lines(readFile(Program::sourceFolder() + "/" + file));
    std::vector<Block> blocks;
    bool inside = title.empty();
    bool fenced = false;
    bool open = false;
    static const std::regex INTO("<!-- into ([^ ]+)(?: below \"(.*)\")? -->");
    Block named{true, "", "", ""};
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, 3, "## ") == 0 && !title.empty())
            inside = line == "## " + title;
        if (std::smatch into; std::regex_match(line, into, INTO))
            named = {true, "", into[1], into[2]};
        const bool indented = !fenced && line.compare(0, 4, "    ") == 0;
        if (inside && line.compare(0, 3, "```") == 0) {
            fenced = !fenced && line == "```yaml";
            open = fenced;
            if (fenced)
                blocks.push_back(std::exchange(named, {true, "", "", ""}));
        } else if (inside && (fenced || indented)) {
            if (!open)
                blocks.push_back({false, "", "", ""});
            open = true;
            blocks.back().text += line.substr(fenced ? 0 : 4) + "\n";
        } else {
            open = false;
        }
    }
    return blocks;
}

/// Does with a block what the page says: a new file, or lines of one.
void Put(const Block& block)
{
    ASSERT_NE(block.file, "") << block.text;
    if (block.line.empty()) {
        writeFile(block.file, block.text);
        return;
    }
    std::string all = readFile(block.file);
    const std::size_t at = all.find("\n" + block.line);
    ASSERT_NE(at, std::string::npos) << block.line;
    writeFile(block.file, all.insert(all.find('\n', at + 1) + 1, block.text));
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
    int changes = 0;
    for (const Block& block : Blocks("docs/writing-screens.md", "Tutorial")) {
        if (block.yaml) {
            Put(block);
            if (++changes == 1) {
                const std::string found = sources.run("check plant").err;
                EXPECT_THAT(found, HasSubstr("no code 'LEVEL'"));
                EXPECT_THAT(found, HasSubstr("the screen 'Tank' can not be reached"));
            }
        } else {
            std::istringstream lines(block.text);
            for (std::string line; std::getline(lines, line);)
                run(line);
        }
    }
    EXPECT_EQ(changes, 3);
    buildScreens();
    expectRuns("render plant Tank");
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
