// "ptn new": the project that it makes builds, checks, renders and links with a program of its own.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using testing::HasSubstr;
using testing::Not;

class New : public testing::Test
{
  protected:
    Sources sources;
};

TEST_F(New, makes_a_project_without_code_unless_a_program_is_asked_for)
{
    unsetenv("DISPLAY");
    const PtnResult made = sources.run("new plant");
    EXPECT_EQ(made.status, 0) << made.err;
    EXPECT_THAT(made.out, HasSubstr("To run it:                ptn run plant\n"));
    for (const auto& entry : std::filesystem::recursive_directory_iterator("plant"))
        EXPECT_TRUE(entry.is_directory() || entry.path().extension() == ".yaml" ||
                    entry.path().extension() == ".state")
            << entry.path();
    EXPECT_EQ(sources.run("check plant").out, "plant: 3 screens, nothing found.\n");
    EXPECT_EQ(sources.run("build plant out/ProjPath").err, "");
    EXPECT_EQ(sources.run("render plant Main --state plant/example.state -o main.png").err, "");
}

TEST_F(New, makes_a_project_that_builds_and_in_which_nothing_is_found)
{
    const PtnResult made = sources.run("new --program plant");
    EXPECT_EQ(made.status, 0) << made.err;
    EXPECT_EQ(sources.run("build plant out/ProjPath").err, "");
    for (const char* file : {"Main.ptn", "States.ptn", "Stop.ptn", "PtrnCode", "PtrnColr", "PtrnMark"})
        EXPECT_NE(sources.built(file), "") << file;
    EXPECT_TRUE(std::filesystem::exists(sources.root() + "/out/plant.ini"));
    EXPECT_EQ(sources.run("check plant").out, "plant: 3 screens, nothing found.\n");
    EXPECT_EQ(sources.run("check --registry plant/program out/ProjPath").err, "");
}

TEST_F(New, has_values_to_render_its_screen_with)
{
    unsetenv("DISPLAY");
    ASSERT_EQ(sources.run("new --program plant").status, 0);
    const PtnResult result = sources.run("render plant Main --state plant/example.state -o main.png");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "main.png\n");
}

TEST_F(New, makes_a_project_that_can_be_built_elsewhere)
{
    ASSERT_EQ(sources.run("new --program plant").status, 0);
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator("plant")) {
        if (!entry.is_regular_file())
            continue;
        const std::string text = readFile(entry.path().string());
        ++files;
        for (const std::string& place : {sources.root(), Program::buildFolder(), Program::sourceFolder()})
            EXPECT_THAT(text, Not(HasSubstr(place))) << entry.path();
    }
    EXPECT_GE(files, 8);
}

TEST_F(New, tells_the_place_of_tessary_where_that_is_not_installed)
{
    EXPECT_THAT(sources.run("new --program plant").out,
                HasSubstr("cmake -S plant -B plant/build -DTessary_DIR=" + Program::buildFolder() + " && "));
}

TEST_F(New, refuses_a_folder_with_something_in_it_and_names_that_are_no_program)
{
    EXPECT_EQ(sources.run("new src").err, "src: this folder is not empty. Name a new one.\n");
    EXPECT_EQ(sources.run("new '1 a'").err,
              "1 a: a program can not be called so. Begin with a letter, and use "
              "letters, digits, '_' and '-' only.\n");
    EXPECT_FALSE(std::filesystem::exists(sources.root() + "/1 a"));
}

} // namespace
