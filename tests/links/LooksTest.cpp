// How cells look while what they show is lost, and afterwards.
#include "links/Looks.h"

#include "comndata/ComnData.h"
#include "tests/support/Project.h"

#include <gtest/gtest.h>

using namespace tessary;

namespace
{

class LostLooks : public testing::Test
{
  protected:
    LostLooks() { project.code("SYS", 99).code("A", 20).start(); }
    static int word() { return Get_wData(100, nullptr, 0); }
    static LostLook look(int color, int disabled = -1)
    {
        LostLook look;
        look.color = color;
        look.disabled = disabled;
        return look;
    }

    Project project;
    Looks looks;
};

} // namespace

TEST_F(LostLooks, come_back_as_they_were)
{
    Set_wData(100, 0x2001, nullptr, 0);
    looks.lose(100, look(3, 1), 0);
    EXPECT_EQ(word(), 0x6003);
    looks.regain(100, 0);
    EXPECT_EQ(word(), 0x2001);
    looks.regain(100, 0);
    EXPECT_EQ(word(), 0x2001);
}

TEST_F(LostLooks, of_several_are_those_of_the_first_until_none_is_left)
{
    Set_wData(100, 1, nullptr, 0);
    looks.lose(100, look(3), 0);
    looks.lose(100, look(2), 2);
    looks.lose(100, look(2), 2);
    EXPECT_EQ(word(), 3);
    looks.regain(100, 0);
    EXPECT_EQ(word(), 2);
    looks.regain(100, 2);
    EXPECT_EQ(word(), 1);
}

TEST_F(LostLooks, keep_for_afterwards_what_the_plant_sets_meanwhile)
{
    looks.lose(100, look(3), 0);
    looks.set(100, 0x2003, 0x2002);
    EXPECT_EQ(word(), 0x2003);
    looks.regain(100, 0);
    EXPECT_EQ(word(), 0x2002);
}

TEST_F(LostLooks, leave_what_the_program_sets_meanwhile)
{
    looks.lose(100, look(3), 0);
    Set_wData(100, 1, nullptr, 0);
    looks.regain(100, 0);
    EXPECT_EQ(word() & 2, 0);
}

TEST_F(LostLooks, that_say_nothing_change_nothing)
{
    Set_wData(100, 2, nullptr, 0);
    looks.lose(100, look(-1), 0);
    EXPECT_EQ(word(), 2);
    looks.regainAll();
    EXPECT_EQ(word(), 2);
}
