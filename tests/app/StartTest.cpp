// What stops the start of the real program, and what it tells about that.
#include "tests/app/Panel.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace tessary;

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

class PanelStart : public Panel
{
  protected:
    /// Starts, closes the box that refuses the start and waits for the end.
    int refused()
    {
        run();
        user.requestClose(user.waitForWindow("起動不可").id);
        return waitEnd();
    }
};

} // namespace

TEST_F(PanelStart, tells_on_standard_error_that_its_profile_is_missing)
{
    unlink(project.profile().c_str());
    EXPECT_EQ(refused(), 0);
    EXPECT_THAT(program->output(),
                HasSubstr("panel: The profile '" + project.profile() + "' does not exist. Put"));
}

TEST_F(PanelStart, without_a_project_has_the_status_of_its_edition)
{
    project.unset("TESSARY", "PROJECT");
    for (const auto& [edition, status] : {std::pair("0", 0), std::pair("1", 0), std::pair("2", 1)}) {
        project.set("TESSARY", "EDITION", edition);
        EXPECT_EQ(refused(), status) << edition;
        EXPECT_THAT(program->output(), HasSubstr("panel: '" + project.profile() + "' names no project. Set"));
    }
}

TEST_F(PanelStart, is_refused_for_an_edition_that_it_does_not_know)
{
    for (const char* edition : {"3", "2147483647"}) {
        project.set("TESSARY", "EDITION", edition);
        EXPECT_EQ(refused(), 1) << edition;
        EXPECT_THAT(program->output(),
                    AllOf(HasSubstr("panel: '" + project.profile() + "' asks for edition " + edition + ","),
                          HasSubstr("no edition above 2. Install")));
        EXPECT_THAT(logged(), IsEmpty());
    }
}

TEST_F(PanelStart, is_refused_for_a_project_that_a_build_has_left_half_made)
{
    Pattern(MENU).size(300, 200).save(project);
    project.write(".ptn-unfinished", "");
    for (const char* edition : {"1", "2"}) {
        project.set("TESSARY", "EDITION", edition);
        EXPECT_EQ(refused(), 1) << edition;
        EXPECT_THAT(program->output(),
                    HasSubstr("panel: The project '" + project.folder() + "' is half old and half new: "));
        EXPECT_THAT(logged(), IsEmpty());
    }
}

TEST_F(PanelStart, is_refused_when_the_first_screen_can_not_be_shown)
{
    const std::string file = project.folder() + "/" + MENU + ".ptn";
    const auto make = [&](const std::string& kind) {
        std::filesystem::remove(file);
        if (kind == "empty")
            writeFile(file, "");
        else if (kind == "folder")
            std::filesystem::create_directory(file);
        else if (kind == "pipe")
            ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
        else if (kind == "endless")
            std::filesystem::create_symlink("/dev/zero", file);
    };
    for (const char* kind : {"missing", "empty", "folder", "pipe", "endless"}) {
        make(kind);
        EXPECT_EQ(refused(), 1) << kind;
        EXPECT_THAT(program->output(), HasSubstr("The first screen '")) << kind;
        EXPECT_EQ(logged().back(), "システム停止") << kind;
    }
}

TEST_F(PanelStart, is_refused_while_another_program_has_the_profile)
{
    Pattern(MENU).size(300, 200).save(project);
    project.set("TESSARY", "EDITION", "2");
    run();
    user.waitForWindow(MENU);
    Program second("panel", project.root() + "/panel");
    user.waitFor([&] { return second.status().has_value(); }, "the end of the second one");
    EXPECT_EQ(second.status(), 1);
    EXPECT_THAT(second.output(), HasSubstr("panel: A program with the profile '" + project.profile() +
                                           "' is running already."));
    EXPECT_EQ(kill(program->pid(), SIGKILL), 0); // nothing of it keeps the next one out
    waitEnd();
    run();
    user.waitForWindow(MENU);
    EXPECT_FALSE(program->status());
}

TEST_F(PanelStart, is_made_beside_another_program_of_the_first_edition)
{
    Pattern(MENU).size(300, 200).save(project);
    run();
    user.waitForDrawn(MENU);
    Program second("panel", project.root() + "/panel");
    user.waitFor([&] { return user.windows().size() == 2; }, "both windows");
    EXPECT_FALSE(second.status());
}

TEST_F(PanelStart, is_made_in_every_edition_that_it_knows)
{
    Pattern(MENU).size(300, 200).save(project);
    for (const char* edition : {"-1", "0", "1", "2", ""}) {
        project.set("TESSARY", "EDITION", edition);
        project.clearLog();
        run();
        user.waitForWindow(MENU); // from edition 2 on it is drawn once, perhaps already
        EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
        EXPECT_EQ(waitEnd(), 0) << program->output();
    }
}
