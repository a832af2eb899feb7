// The edition of a project: from "project.yaml" to the profile and back.
#include "config/Edition.h"
#include "config/Profile.h"
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace
{

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string OneLine(const std::string& text)
{
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;)
        line += (line.empty() ? "" : " ") + word;
    return line;
}

class Edition : public testing::Test
{
  protected:
    Edition() { sources.checkedBase().screen("name: a\nwindow: { size: [320, 240] }\n"); }

    void profile(const std::string& keys)
    {
        sources.write("profile.yaml",
                      "profile:\n  PTRN: { PTRNSTART: a, PTRNSTOP: a }\n  TESSARY: { WAITTIMER: 2" + keys +
                          " }\n");
    }
    void edition(const std::string& text) { sources.write("edition.yaml", "edition: " + text + "\n"); }

    std::string built()
    {
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 0) << result.err;
        return readFile(sources.profile());
    }
    int read() const { return ProfileReadInt(sources.profile().c_str(), "TESSARY", "EDITION"); }

    /// Neither "build" nor "check" take the sources.
    void expectRefused(const std::string& message)
    {
        EXPECT_EQ(sources.build().err, message + "1 error; out/ProjPath is unchanged.\n");
        EXPECT_EQ(sources.run("check src").err, message);
    }

    Sources sources;
};

TEST_F(Edition, is_not_in_the_profile_of_a_project_that_names_none)
{
    profile("");
    EXPECT_THAT(built(), Not(HasSubstr("EDITION")));
}

TEST_F(Edition, is_a_key_of_the_profile)
{
    profile("");
    const std::string before = built();
    edition("2");
    const std::string after = built();
    EXPECT_EQ(read(), 2);
    const std::size_t at = after.find("EDITION=2\n");
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(after.substr(0, at) + after.substr(at + 10), before) << "nothing else changes";
}

TEST_F(Edition, may_stand_in_the_profile_itself)
{
    profile(", EDITION: 2");
    built();
    EXPECT_EQ(read(), 2);
}

TEST_F(Edition, of_a_profile_that_is_there_is_kept_in_step)
{
    profile("");
    edition("2");
    built();
    edition("1");
    built();
    EXPECT_EQ(read(), 1);
    sources.write("edition.yaml", "");
    EXPECT_THAT(built(), Not(HasSubstr("EDITION")));
}

TEST_F(Edition, that_there_is_not_is_refused)
{
    profile("");
    const std::string next = std::to_string(tessary::LATEST_EDITION + 1);
    for (const std::string text : {next.c_str(), "0", "-1", "two", "2.0", "02", "[2]", "''"}) {
        SCOPED_TRACE(text);
        edition(text);
        const std::string shown = text == "[2]" || text == "''" ? "" : text;
        expectRefused("src/edition.yaml:1: there is no edition '" + shown + "'. Write a number from 1 to " +
                      std::to_string(tessary::LATEST_EDITION) +
                      "; 'ptn help editions' tells what they are.\n");
    }
}

TEST_F(Edition, that_there_is_not_is_refused_in_the_profile_too)
{
    profile(", EDITION: 0x2");
    expectRefused("src/profile.yaml:3: there is no edition '0x2'. Write a number from 1 to " +
                  std::to_string(tessary::LATEST_EDITION) + "; 'ptn help editions' tells what they are.\n");
}

TEST_F(Edition, is_said_once)
{
    profile(", EDITION: 2");
    edition("2");
    expectRefused("src/profile.yaml:3: profile key 'EDITION' is what 'edition' is in src/edition.yaml:1. "
                  "Remove this one.\n");
}

TEST_F(Edition, of_a_compiled_project_becomes_a_line_of_its_sources)
{
    profile("");
    edition("2");
    const std::string before = built();
    ASSERT_EQ(sources.run("dump out/ProjPath -o again").status, 0);
    const std::string project = readFile(sources.root() + "/again/project.yaml");
    EXPECT_THAT(project, HasSubstr("\nedition: 2\n"));
    EXPECT_THAT(project, Not(HasSubstr("EDITION")));
    ASSERT_EQ(sources.run("build again out/ProjPath").status, 0);
    EXPECT_EQ(readFile(sources.profile()), before);

    sources.write("edition.yaml", "");
    built();
    ASSERT_EQ(sources.run("dump out/ProjPath -o first").status, 0);
    EXPECT_THAT(readFile(sources.root() + "/first/project.yaml"), Not(HasSubstr("edition")));
}

TEST_F(Edition, that_there_is_not_is_found_in_a_compiled_project)
{
    profile("");
    edition("2");
    std::string text = built();
    text.replace(text.find("EDITION=2"), 9, "EDITION=9");
    writeFile(sources.profile(), text);
    EXPECT_THAT(sources.run("check out/ProjPath").err,
                testing::AllOf(StartsWith("out/panel.ini:"), HasSubstr(": there is no edition '9'. ")));
}

TEST_F(Edition, of_a_new_project_is_the_newest_one)
{
    ASSERT_EQ(sources.run("new plant").status, 0);
    ASSERT_EQ(sources.run("build plant out/ProjPath").status, 0);
    EXPECT_EQ(ProfileReadInt("out/plant.ini", "TESSARY", "EDITION"), tessary::LATEST_EDITION);
}

TEST_F(Edition, is_a_topic_of_the_help)
{
    EXPECT_THAT(sources.run("help --help").out, HasSubstr("editions"));
    const PtnResult help = sources.run("help editions");
    EXPECT_EQ(help.status, 0);
    const std::string text = OneLine(help.out);
    for (const tessary::EditionRow& row : tessary::EditionRows()) {
        const std::string mark = row.surprising ? " (*) " : " ";
        EXPECT_THAT(text, HasSubstr(std::string(row.name) + mark + row.text));
    }
    std::istringstream lines(help.out);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 100U) << line;
}

TEST_F(Edition, is_a_page_of_the_manual_with_every_row)
{
    const std::string page = readFile(Program::sourceFolder() + "/docs/editions.md");
    std::string table;
    for (const tessary::EditionRow& row : tessary::EditionRows())
        table += std::string("| `") + row.name + "` | " + std::to_string(row.edition) + " | " +
                 (row.surprising ? "yes" : "") + " | " + row.text + " |\n";
    EXPECT_THAT(page, testing::EndsWith("|---|---|---|---|\n" + table));
    for (const char* linking : {"/README.md", "/docs/writing-screens.md"})
        EXPECT_THAT(readFile(Program::sourceFolder() + linking), HasSubstr("editions.md)"));
}

TEST_F(Edition, decides_how_a_screen_is_rendered)
{
    profile("");
    sources.screen("name: a\nwindow: { size: [100, 40] }\nitems:\n"
                   "  - { type: numeric, at: [8, 8], width: 2, data: A, back: white }\n");
    sources.write("a.state", "cells: { A: 12345 }\n");
    for (const char* number : {"1", "2"}) {
        edition(number);
        ASSERT_EQ(sources.run("render src a --state src/a.state -o " + std::string(number) + ".png").status,
                  0);
    }
    EXPECT_NE(readFile(sources.root() + "/1.png"), readFile(sources.root() + "/2.png"));
}

} // namespace
