// The limit table from the edition on in which its limits bind.
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "tests/comndata/CommonData.h"
#include "tests/support/UseEdition.h"

#include <gmock/gmock.h>

namespace
{

class LimitBinding : public CommonData
{
  protected:
    void load(const std::string& lines)
    {
        project.code("A", 9).code("B", 5);
        project.write("LimtData.prf", "[LIMTDATA]\n" + lines);
        start(); // loads the limits before the codes
    }

    static std::pair<float, float> limits(int no)
    {
        float low = -99;
        float high = -99;
        if (Get_LimtData(no, &low, &high, nullptr, 0) == 0)
            return {0.0F, 0.0F};
        return {low, high};
    }

    UseEdition edition;
};

} // namespace

TEST_F(LimitBinding, begins_at_the_start_signed_and_with_decimals)
{
    load("LIMT1=A,2,0,-12.5,99.75,1,2\n");
    for (int no = 1; no <= 3; no++)
        EXPECT_EQ(limits(no), std::make_pair(-12.5F, 99.75F)) << no;
    EXPECT_EQ(limits(4), std::make_pair(0.0F, 0.0F));
}

TEST_F(LimitBinding, takes_the_offsets_in_either_order)
{
    load("LIMT1=A,0,2,1,2,0,0\n");
    EXPECT_EQ(limits(1), std::make_pair(1.0F, 2.0F));
    EXPECT_EQ(limits(3), std::make_pair(1.0F, 2.0F));
}

TEST_F(LimitBinding, follows_every_load_of_the_codes_and_of_the_limits)
{
    load("LIMT1=B,0,0,1,2,0,0\n");
    EXPECT_EQ(limits(10), std::make_pair(1.0F, 2.0F));
    ComnDataExit();
    Project other;
    other.code("C", 3).code("B", 5);
    other.write("LimtData.prf", "[LIMTDATA]\nLIMT1=B,0,0,3,4,0,0\n");
    other.start();
    EXPECT_EQ(limits(10), std::make_pair(0.0F, 0.0F));
    EXPECT_EQ(limits(4), std::make_pair(3.0F, 4.0F));
    other.write("LimtData.prf", "[LIMTDATA]\nLIMT1=C,0,0,5,6,0,0\n");
    LoadLimtData();
    EXPECT_EQ(limits(1), std::make_pair(5.0F, 6.0F));
}

TEST_F(LimitBinding, reads_what_is_no_number_as_nothing)
{
    load("LIMT1=A,0,0,low,inf,0,0\nLIMT2=B,0,0,1e3x,nan,0,0\n");
    EXPECT_EQ(limits(1), std::make_pair(0.0F, 0.0F));
    EXPECT_EQ(limits(10), std::make_pair(1000.0F, 0.0F));
}

TEST_F(LimitBinding, logs_a_code_that_is_not_known_once)
{
    load("LIMT1=X,0,0,1,2,0,0\n");
    limits(1);
    limits(1);
    const std::vector<std::string> lines = project.messages();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "LimtData Error [1 / X / 0]"), 2) << "each offset";
}
