// Windows for patterns that the program has no class for: the header picks one.
#include "dialogs/ReadyMadeWnd.h"

#include "dialogs/PtrnMente.h"
#include "pattern/ScreenClass.h"
#include "tests/support/PatternBuilder.h"

#include <gtest/gtest.h>
#include <memory>
#include <typeinfo>

using namespace tessary;

namespace
{

class ReadyMadeWnd : public testing::Test
{
  protected:
    void SetUp() override { project.start(); }

    /// The class of the window that is made for a pattern; that of nothing when none is made.
    const std::type_info& classOf(const char* name)
    {
        wnd.reset(NewReadyMadeWnd(name));
        const CPtrnDisp* const made = wnd.get();
        return made ? typeid(*made) : typeid(void);
    }

    void save(const char* name, int number) { Pattern(name).header(HEDR_CLASS, number).save(project); }

    Project project;
    std::unique_ptr<CPtrnDisp> wnd;
};

TEST_F(ReadyMadeWnd, is_of_the_class_that_the_header_names)
{
    save("図形", SCREEN_PLAIN);
    save("cells", SCREEN_MAINTENANCE);
    EXPECT_EQ(classOf("図形"), typeid(CPtrnDisp));
    EXPECT_EQ(classOf("cells"), typeid(CPtrnMente));
    EXPECT_EQ(wnd->Widget, nullptr) << "not open";
}

TEST_F(ReadyMadeWnd, is_plain_where_the_header_names_no_class_that_there_is)
{
    save("damaged", -77);
    EXPECT_EQ(classOf("damaged"), typeid(CPtrnDisp));
    project.write("short.ptn", "abc");
    EXPECT_EQ(classOf("short"), typeid(CPtrnDisp)) << "shown as what it is";
}

TEST_F(ReadyMadeWnd, is_not_made_without_a_pattern)
{
    for (const char* name : {"nowhere", "", static_cast<const char*>(nullptr)})
        EXPECT_EQ(classOf(name), typeid(void));
}

TEST_F(ReadyMadeWnd, is_there_for_every_class_that_authors_may_name)
{
    for (const ScreenClass& one : ScreenClasses()) {
        save("a", one.number);
        EXPECT_EQ(classOf("a") == typeid(CPtrnDisp), one.number == SCREEN_PLAIN) << one.name;
        EXPECT_EQ(FindScreenClass(one.name), FindScreenClass(one.number));
    }
    EXPECT_EQ(FindScreenClass("Plain"), nullptr);
    EXPECT_EQ(FindScreenClass(-1), nullptr);
}

} // namespace
