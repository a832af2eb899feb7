// "ptn render": the pictures, with values and languages, and what it refuses.
#include "pattern/ItemParm.h"
#include "tests/ptn/Sources.h"
#include "tests/support/PatternBuilder.h"
#include "tests/support/Picture.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;

class Render : public testing::Test
{
  protected:
    Render()
    {
        unsetenv("DISPLAY");
        sources.base();
        sources.screen(
            "name: a\nwindow: { size: [64, 48], body-color: white }\nitems:\n"
            "  - { type: rectangle, rect: [8, 8, 24, 24], width: 0, fill: [black, hot, white, white], "
            "data: A+1 }\n"
            "  - { type: bar-graph, rect: [30, 0, 40, 40], frame-width: 0, bar: hot, back: black, "
            "data: B }\n");
    }

    Picture render(const std::string& arguments)
    {
        const PtnResult result = sources.run("render src a -o a.png " + arguments);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out, "a.png\n");
        const auto picture = Picture::load(sources.root() + "/a.png");
        EXPECT_TRUE(picture);
        return picture ? *picture : Picture(1, 1, 0);
    }

    // Body, rectangle and bar as the rules of drawing have them.
    static Picture expected(std::uint32_t rectangle, int barTop)
    {
        Picture picture(64, 48, 0xFFFFFF);
        picture.fill(8, 8, 24, 24, rectangle);
        picture.fill(30, 0, 40, 40, 0x000000);
        picture.fill(30, barTop, 40, 40, 0xFF8000);
        return picture;
    }

    Sources sources;
};

TEST_F(Render, draws_the_screen_with_empty_cells)
{
    EXPECT_TRUE(same(render(""), expected(0x000000, 40)));
}

TEST_F(Render, draws_values_and_states_of_a_file)
{
    writeFile("state.yaml", "cells:\n  A+1: { color: 1 }\n  B: 50\n");
    EXPECT_TRUE(same(render("--state state.yaml"), expected(0xFF8000, 20)));
    writeFile("state.yaml", "cells:\n  A: [3, { color: 1 }, 4]\n  B: [50, 7]\n");
    EXPECT_TRUE(same(render("--state state.yaml"), expected(0xFF8000, 20)));
    writeFile("state.yaml", "cells:\n  A+1: { hidden: yes }\n  6: { value: 100 }\n");
    // A hidden item is painted over with its clear colour, number 0.
    EXPECT_TRUE(same(render("--state state.yaml"), expected(0x000000, 0)));
}

TEST_F(Render, draws_a_compiled_project_alike_and_leaves_it_as_it_is)
{
    ASSERT_EQ(sources.build().status, 0);
    ASSERT_EQ(sources.run("render out/ProjPath a -o b.png").status, 0);
    EXPECT_TRUE(same(*Picture::load(sources.root() + "/b.png"), expected(0x000000, 40)));
    EXPECT_FALSE(fs::exists(sources.output() + "/PtrnFlag"));
}

TEST_F(Render, writes_every_screen_and_a_sheet_of_all)
{
    sources.write("screens/b.yaml", "name: b\nwindow: { size: [80, 30] }\n");
    const PtnResult result = sources.run("render src --all -o shots");
    EXPECT_EQ(result.out, "shots/a.png\nshots/b.png\nshots/contact-sheet.png\n");
    const auto b = Picture::load(sources.root() + "/shots/b.png");
    ASSERT_TRUE(b);
    EXPECT_EQ(b->width(), 80);
    EXPECT_EQ(b->height(), 30);
    const auto sheet = Picture::load(sources.root() + "/shots/contact-sheet.png");
    ASSERT_TRUE(sheet);
    EXPECT_GT(sheet->count(0xFF8000) + sheet->count(0xFFFFFF), 0);
}

TEST_F(Render, draws_the_screen_that_the_panel_starts_with_unless_another_is_named)
{
    sources.write("screens/b.yaml", "name: b\nwindow: { size: [80, 30] }\n");
    EXPECT_EQ(sources.run("render src").err, "the profile names no screen to start with. Name the screen to "
                                             "draw.\n");
    sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: b } }\n");
    EXPECT_EQ(sources.run("render src").out, "b.png\n");
    EXPECT_EQ(Picture::load(sources.root() + "/b.png")->width(), 80);
    EXPECT_EQ(sources.run("render src -o shot.png").out, "shot.png\n");
    EXPECT_EQ(sources.run("render src b --all").err, "ptn: name a screen, or write --all.\n");
}

TEST_F(Render, shows_the_texts_of_the_language_that_is_asked_for)
{
    sources.screen("name: a\nwindow: { size: [64, 48], body-color: white }\nitems:\n"
                   "  - { type: text, at: [8, 8], text: [I, II, III], color: hot }\n");
    const int first = render("--language 0").count(0xFF8000);
    EXPECT_GT(first, 0);
    EXPECT_EQ(render("--language 1").count(0xFF8000), 2 * first);
    EXPECT_EQ(render("--language 2").count(0xFF8000), 3 * first);
}

TEST_F(Render, refuses_what_would_end_the_panel)
{
    ASSERT_EQ(sources.build().status, 0);
    writeFile(sources.output() + "/a.ptn",
              Pattern("a").item(PTRN_LINE, 1, 1, 9, 9).parm(LINE_COLOR4, 100).bytes());
    const PtnResult result = sources.run("render out/ProjPath a");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "out/ProjPath/a.ptn: item 1, line at 1,1: 'color' is 100, outside 0 to 99, which ends "
              "the panel when it is drawn. Correct it.\n");
}

TEST_F(Render, names_the_screens_when_there_is_no_such_one)
{
    const PtnResult result = sources.run("render src aa");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "no screen is named 'aa'. Did you mean 'a'? The screens are: 'a'.\n");
}

TEST_F(Render, says_what_is_wrong_with_a_state_file)
{
    writeFile("state.yaml", "clock: noon\ncells:\n  C: 1\n  A: { colour: 1 }\n  B+1: [1, 2, 3]\nvalues: 1\n");
    const PtnResult result = sources.run("render src a --state state.yaml");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "state.yaml:1: 'clock' must be a time such as 2025-03-02 09:05:07.\n"
              "state.yaml:3: 'cells': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another.\n"
              "state.yaml:4: cell 'A': unknown 'colour'. Did you mean 'color'? Write value, text, color, "
              "blink, disabled or hidden.\n"
              "state.yaml:5: cell 'B+1': 3 values go beyond its code. Write at most 2.\n"
              "state.yaml:6: unknown 'values'. A state has 'clock' and 'cells'.\n");
    sources.screen("name: a\nitems: [{ type: spinn }]\n");
    EXPECT_THAT(sources.run("render src a --state state.yaml").err, testing::Not(HasSubstr("state.yaml")))
        << "what the codes are is not known then";
}

TEST_F(Render, says_where_it_can_not_write)
{
    fs::create_directories(sources.root() + "/a.png");
    PtnResult result = sources.run("render src a");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, testing::EndsWith("Is a directory. Check the folder's rights and space.\n"));
    writeFile("file", "");
    result = sources.run("render src --all -o file/shots");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              sources.root() + "/file/shots: Not a directory. Check the folder's rights and space.\n");
}

TEST_F(Render, says_that_a_display_can_not_be_opened)
{
    setenv("DISPLAY", "nowhere:7", 1);
    EXPECT_EQ(sources.run("render src a").err,
              "the display can not be opened. Correct $DISPLAY, or leave it unset.\n");
    EXPECT_EQ(sources.run("watch src a").err,
              "there is no display to show the screen on. Set DISPLAY, or use 'ptn render'.\n");
    EXPECT_EQ(sources.run("watch src a").status, 1);
    unsetenv("DISPLAY");
}

TEST_F(Render, says_what_to_install_where_there_is_no_display)
{
    const std::string path = std::getenv("PATH");
    setenv("PATH", "/nowhere", 1);
    const PtnResult result = sources.run("render src a");
    setenv("PATH", path.c_str(), 1);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "$DISPLAY is not set and Xvfb does not start. Install the package xvfb, or set "
                          "DISPLAY.\n");
}

} // namespace
