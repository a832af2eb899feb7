// "class:" of a screen: which ready-made class it is shown with where the program has none of its own.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include "pattern/ItemParm.h"
#include "pattern/PtrnFile.h"
#include "pattern/ScreenClass.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;

namespace
{

using testing::HasSubstr;
using testing::Not;

class Class : public testing::Test
{
  protected:
    Class() { sources.base(); }

    std::string builtWith(const std::string& line)
    {
        sources.screen("name: a\n" + line);
        EXPECT_EQ(sources.build().err, "") << line;
        return sources.built("a.ptn");
    }

    /// Where a pattern file has the number of its class.
    static constexpr std::size_t PLACE = offsetof(HEDRFILE, Parm1) + HEDR_CLASS * sizeof(std::int32_t);

    Sources sources;
};

TEST_F(Class, stands_in_the_header_and_changes_nothing_else)
{
    const std::string plain = builtWith("");
    std::string maintenance = builtWith("class: maintenance\n");
    EXPECT_EQ(maintenance.at(PLACE), SCREEN_MAINTENANCE);
    maintenance.at(PLACE) = SCREEN_PLAIN;
    EXPECT_EQ(maintenance, plain);
    EXPECT_EQ(builtWith("class: plain\n"), plain);
}

TEST_F(Class, is_given_back_by_a_dump)
{
    builtWith("class: maintenance\n");
    EXPECT_THAT(sources.run("dump out/ProjPath/a.ptn").out, HasSubstr("\nclass: maintenance\n"));
    EXPECT_EQ(sources.run("dump out/ProjPath -o again").status, 0);
    EXPECT_THAT(readFile("again/screens/a.yaml"), Not(HasSubstr("exact")));
    builtWith("class: plain\n");
    EXPECT_THAT(sources.run("dump out/ProjPath/a.ptn").out, Not(HasSubstr("class")));
}

TEST_F(Class, of_a_number_that_means_nothing_is_dumped_as_that_number)
{
    builtWith("window: { parm: { 29: 77 } }\n");
    const std::string text = sources.run("dump out/ProjPath/a.ptn").out;
    EXPECT_THAT(text, HasSubstr("parm: { 29: 77 }"));
    EXPECT_THAT(text, Not(HasSubstr("class")));
}

TEST_F(Class, must_be_one_that_there_is)
{
    sources.screen("name: a\nclass: maintenence\n");
    EXPECT_EQ(sources.build().err,
              "src/screens/a.yaml:2: no class 'maintenence'. Did you mean 'maintenance'? "
              "The ready-made classes are: plain, maintenance.\n"
              "1 error; out/ProjPath is unchanged.\n");
    sources.screen("name: a\nclass: [plain]\n");
    EXPECT_THAT(sources.build().err, HasSubstr("src/screens/a.yaml:2: 'class' must be a text."));
}

TEST_F(Class, is_explained_with_the_window)
{
    const std::string help = sources.run("help attributes window").out;
    for (const ScreenClass& one : ScreenClasses())
        EXPECT_THAT(help, HasSubstr(std::string("\n  ") + one.name + " "));
}

} // namespace
