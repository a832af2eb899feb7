// The line of a project that scales its panel to the display.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::Not;

namespace
{

class ScaleLine : public testing::Test
{
  protected:
    ScaleLine() { profile("DISPSIZE: [640, 480]"); }

    void profile(const std::string& keys)
    {
        sources.write("profile.yaml", "profile:\n  TESSARY: { " + keys + " }\n");
    }

    void scale(const std::string& word) { sources.write("scale.yaml", "scale: " + word + "\n"); }

    std::string built()
    {
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 0) << result.err;
        return readFile(sources.profile());
    }

    std::string checked() { return sources.run("check src").err; }

    Sources sources;
};

} // namespace

TEST_F(ScaleLine, is_a_key_of_the_profile)
{
    const std::string before = built();
    EXPECT_THAT(before, Not(HasSubstr("SCALE")));
    for (const std::string word : {"steps", "fit"}) {
        scale(word);
        const std::string after = built();
        const std::string line = "SCALE=" + word + "\n";
        const std::size_t at = after.find(line);
        ASSERT_NE(at, std::string::npos) << after;
        EXPECT_EQ(after.substr(0, at) + after.substr(at + line.size()), before) << "nothing else changes";
        EXPECT_THAT(checked(), Not(HasSubstr("scale")));
    }
}

TEST_F(ScaleLine, may_stand_in_the_profile_itself)
{
    profile("DISPSIZE: [640, 480], SCALE: fit");
    EXPECT_THAT(built(), HasSubstr("\nSCALE=fit\n"));
}

TEST_F(ScaleLine, stands_behind_the_edition)
{
    scale("fit");
    sources.write("edition.yaml", "edition: 2\n");
    EXPECT_THAT(built(), HasSubstr("\nEDITION=2\nSCALE=fit\n"));
}

TEST_F(ScaleLine, with_a_word_that_there_is_not_is_refused)
{
    const std::string rest =
        " Write 'steps' to enlarge the panel by whole numbers, or 'fit' to fill its display; "
        "without the line it keeps its size.\n";
    for (const auto& [word, meant] : std::vector<std::pair<std::string, std::string>>{
             {"fits", " Did you mean 'fit'?"}, {"step", " Did you mean 'steps'?"}, {"2", ""}, {"yes", ""}}) {
        scale(word);
        const std::string message = "src/scale.yaml:1: there is no scale '" + word + "'." + meant + rest;
        EXPECT_THAT(checked(), HasSubstr(message));
        EXPECT_EQ(sources.build().err, message + "1 error; out/ProjPath is unchanged.\n");
    }
    sources.write("scale.yaml", "");
    profile("DISPSIZE: [640, 480],\n    SCALE: full");
    EXPECT_THAT(checked(), HasSubstr("src/profile.yaml:3: there is no scale 'full'."));
}

TEST_F(ScaleLine, is_said_once)
{
    profile("DISPSIZE: [640, 480], SCALE: fit");
    scale("steps");
    EXPECT_THAT(checked(), HasSubstr("src/profile.yaml:2: profile key 'SCALE' is what 'scale' is in "
                                     "src/scale.yaml:1. Remove this one.\n"));
}

TEST_F(ScaleLine, needs_the_size_of_the_panel)
{
    profile("WAITTIMER: 2");
    scale("fit");
    EXPECT_THAT(checked(),
                HasSubstr("src/scale.yaml:1: the panel is scaled to its display, but the profile does "
                          "not tell its own size. Set 'DISPSIZE: [WIDTH, HEIGHT]'"));
}

TEST_F(ScaleLine, tells_that_the_panel_is_what_windows_are_held_in)
{
    sources.write("screens/large.yaml", "name: Large\nwindow: { size: [700, 400] }\nitems: []\n");
    EXPECT_THAT(checked(), HasSubstr("is larger than the display, DISPSIZE, of 640 x 480."));
    scale("fit");
    EXPECT_THAT(checked(), HasSubstr("is larger than the panel that is scaled, DISPSIZE, of 640 x 480."));
}

TEST_F(ScaleLine, of_a_compiled_project_becomes_a_line_of_its_sources)
{
    scale("fit");
    const std::string before = built();
    ASSERT_EQ(sources.run("dump out/ProjPath -o again").status, 0);
    const std::string project = readFile(sources.root() + "/again/project.yaml");
    EXPECT_THAT(project, HasSubstr("\nscale: fit\n"));
    EXPECT_THAT(project, Not(HasSubstr("SCALE")));
    ASSERT_EQ(sources.run("build again out/ProjPath").status, 0);
    EXPECT_EQ(readFile(sources.profile()), before);
}

TEST_F(ScaleLine, that_there_is_not_is_found_in_a_compiled_project)
{
    scale("fit");
    std::string text = built();
    text.replace(text.find("SCALE=fit"), 9, "SCALE=all");
    writeFile(sources.profile(), text);
    EXPECT_THAT(sources.run("check out/ProjPath").err, HasSubstr(": there is no scale 'all'. "));
}
