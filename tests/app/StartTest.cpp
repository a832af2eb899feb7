// What stops the start of the real program, and what it tells about that.
#include "tests/app/Panel.h"

#include <csignal>
#include <gmock/gmock.h>

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

TEST_F(PanelStart, is_made_in_every_edition_that_it_knows)
{
    Pattern(MENU).size(300, 200).save(project);
    for (const char* edition : {"-1", "0", "1", "2", ""}) {
        project.set("TESSARY", "EDITION", edition);
        project.clearLog();
        run();
        user.waitForDrawn(MENU);
        EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
        EXPECT_EQ(waitEnd(), 0) << program->output();
    }
}
