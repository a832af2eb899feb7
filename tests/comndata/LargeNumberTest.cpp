// The number of a cell with all the digits of a double, beside the float that it has always been.
#include "comndata/ComnData.h"
#include "tests/comndata/CommonData.h"

#include <cmath>
#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Number 8, named B+2, is logged.
class LargeNumber : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("A", 5).code("B", 3).flag(8);
        start();
    }

    static double get(int no) { return Get_dData(no, nullptr, 0); }
    static void put(int no, double value) { Set_dData(no, value, nullptr, 0); }
    static float asFloat(int no) { return Get_fData(no, nullptr, 0); }
    static int asInt(int no) { return Get_iData(no, nullptr, 0); }
};

} // namespace

TEST_F(LargeNumber, keeps_all_digits_of_a_double)
{
    for (const double value : {16777217.0, 0.1, -123456789012.25, 1e300, -0.0}) {
        put(1, value);
        EXPECT_EQ(get(1), value);
        EXPECT_EQ(std::signbit(get(1)), std::signbit(value));
    }
    put(1, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(get(1)));
}

TEST_F(LargeNumber, reads_as_the_nearest_float_by_the_older_functions)
{
    put(1, 16777217.0);
    EXPECT_EQ(asFloat(1), 16777216.0F);
    EXPECT_EQ(asInt(1), 16777216);
    put(1, 0.1);
    EXPECT_EQ(asFloat(1), 0.1F);
    put(1, 1e300);
    EXPECT_EQ(asFloat(1), std::numeric_limits<float>::infinity());
    EXPECT_EQ(asInt(1), std::numeric_limits<int>::max());
    put(1, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(asFloat(1)));
}

TEST_F(LargeNumber, is_what_the_older_functions_write)
{
    Set_fData(1, 0.1F, nullptr, 0);
    EXPECT_EQ(get(1), static_cast<double>(0.1F));
    Set_iData(1, 16777217, nullptr, 0);
    EXPECT_EQ(get(1), 16777217.0) << "an integer keeps its digits";
    EXPECT_EQ(asFloat(1), 16777216.0F);
    Clear_iData(1, 1, 2147483647, nullptr, 0);
    EXPECT_EQ(get(2), 2147483647.0);
    Clear_fData(2, 1, 1.5F, nullptr, 0);
    EXPECT_EQ(get(3), 1.5);
}

TEST_F(LargeNumber, is_filled_and_emptied_with_the_cell)
{
    put(1, 1e12);
    Clear_AllData(1, 1, nullptr, 0);
    EXPECT_EQ(get(1), 0.0);
    Clear_AllData(1, 2, WORD{0}, 16777217, "", nullptr, 0);
    EXPECT_EQ(get(2), 16777217.0);
    EXPECT_EQ(asInt(2), 16777216);
    Clear_AllData(1, 2, WORD{0}, 0.1F, "", nullptr, 0);
    EXPECT_EQ(get(2), static_cast<double>(0.1F));
    put(1, 1e12);
    start();
    EXPECT_EQ(get(1), 0.0) << "a new store is empty";
}

TEST_F(LargeNumber, outside_the_store_is_zero_and_not_written)
{
    for (const int no : {-1, 1000000}) {
        put(no, 1.0);
        EXPECT_EQ(get(no), 0.0);
    }
    EXPECT_THAT(logged("COMNMEM"), IsEmpty());
    Get_dData(-1, "t.cpp", 1);
    Set_dData(-1, 1.0, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("Data No Error [-1]", "Data No Error [-1]"));
}

TEST_F(LargeNumber, is_logged_with_its_digits)
{
    Set_dData(8, 16777217.126, "t.cpp", 1);
    Get_dData(8, "t.cpp", 1);
    put(8, 1.0);
    get(8);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("WRITE  [B+2] 16777217.13", "READ   [B+2] 16777217.13"));
}

TEST_F(LargeNumber, is_kept_for_cells_that_the_program_supplies)
{
    ComnDataExit();
    COMNDATA given[3] = {};
    given[1].fData = 2.5F;
    ComnData = given;
    PtrnDataNo = 3;
    EXPECT_EQ(get(1), 2.5);
    put(2, 16777217.0);
    EXPECT_EQ(get(2), 16777217.0);
    EXPECT_EQ(get(1), 2.5);
    ComnDataExit();
}
