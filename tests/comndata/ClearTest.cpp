#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "tests/comndata/CommonData.h"

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int HIGHEST = std::numeric_limits<int>::max();
constexpr int LOWEST = std::numeric_limits<int>::min();

/// Cells 0 to 30, all numbers logged, each filled with values of its own.
class Clearing : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("A", 30);
        for (int no = 0; no <= 30; no++)
            project.flag(no);
        start();
        fill();
    }

    static void fill()
    {
        for (int no = 0; no < PtrnDataNo; no++) {
            Set_wData(no, static_cast<WORD>(100 + no), nullptr, 0);
            Set_iData(no, 200 + no, nullptr, 0);
            Set_sData(no, std::to_string(300 + no).c_str(), nullptr, 0);
        }
    }

    static bool untouched(int no)
    {
        return Get_wData(no, nullptr, 0) == 100 + no && Get_iData(no, nullptr, 0) == 200 + no &&
               Get_sData(no, nullptr, 0) == std::to_string(300 + no);
    }

    static bool empty(int no)
    {
        return Get_wData(no, nullptr, 0) == 0 && Get_fData(no, nullptr, 0) == 0.0F && !ComnData[no].sData;
    }

    /// Numbers of the cells that are empty now; every other cell must be untouched.
    static std::vector<int> emptied()
    {
        std::vector<int> numbers;
        for (int no = 0; no < PtrnDataNo; no++)
            if (empty(no))
                numbers.push_back(no);
            else
                EXPECT_TRUE(untouched(no)) << no;
        return numbers;
    }
};

std::vector<int> numbers(int first, int last)
{
    std::vector<int> result;
    for (int no = first; no <= last; no++)
        result.push_back(no);
    return result;
}

} // namespace

// --- one value -------------------------------------------------------------------------------------------

TEST_F(Clearing, with_one_value_sets_only_the_cell_after_the_given_one)
{
    Clear_wData(10, 3, 5, nullptr, 0);
    Clear_iData(10, 3, 6, nullptr, 0);
    Clear_sData(10, 3, "seven", nullptr, 0);
    EXPECT_EQ(Get_wData(11, nullptr, 0), 5);
    EXPECT_EQ(Get_iData(11, nullptr, 0), 6);
    EXPECT_STREQ(Get_sData(11, nullptr, 0), "seven");
    Clear_fData(10, 3, 1.5F, nullptr, 0);
    EXPECT_EQ(Get_fData(11, nullptr, 0), 1.5F);
    for (int no = 0; no < PtrnDataNo; no++)
        EXPECT_EQ(untouched(no), no != 11) << no;
}

TEST_F(Clearing, with_one_value_and_a_count_below_1_does_nothing)
{
    for (const int count : {0, -1, LOWEST}) {
        Clear_wData(10, count, 5, nullptr, 0);
        Clear_iData(10, count, 5, nullptr, 0);
        Clear_fData(10, count, 5.0F, nullptr, 0);
        Clear_sData(10, count, "five", nullptr, 0);
    }
    EXPECT_THAT(emptied(), IsEmpty());
}

TEST_F(Clearing, with_one_value_takes_no_longer_for_a_huge_count)
{
    Clear_wData(10, HIGHEST, 5, nullptr, 0);
    Clear_iData(10, HIGHEST, 5, nullptr, 0);
    Clear_fData(10, HIGHEST, 5.0F, nullptr, 0);
    Clear_sData(10, HIGHEST, "five", nullptr, 0);
    EXPECT_EQ(Get_wData(11, nullptr, 0), 5);
    EXPECT_EQ(Get_fData(11, nullptr, 0), 5.0F);
    EXPECT_STREQ(Get_sData(11, nullptr, 0), "five");
    EXPECT_TRUE(untouched(10));
    EXPECT_TRUE(untouched(12));
}

TEST_F(Clearing, with_one_value_reaches_cell_0_and_the_last_cell_and_ignores_numbers_outside)
{
    for (const int no : {-1, 29, -2, 30, LOWEST, HIGHEST})
        Clear_wData(no, 1, 0, nullptr, 0);
    for (int no = 0; no < PtrnDataNo; no++)
        EXPECT_EQ(Get_wData(no, nullptr, 0), no == 0 || no == 30 ? 0 : 100 + no) << no;
}

TEST_F(Clearing, with_one_value_logs_nothing_even_with_a_file)
{
    Clear_wData(10, 3, 5, "t.cpp", 1);
    Clear_iData(10, 3, 5, "t.cpp", 1);
    Clear_fData(10, 3, 5.0F, "t.cpp", 1);
    Clear_sData(10, 3, "five", "t.cpp", 1);
    Clear_wData(100, 3, 5, "t.cpp", 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

// --- a range ---------------------------------------------------------------------------------------------

TEST_F(Clearing, a_range_empties_exactly_its_cells)
{
    Clear_AllData(10, 3, nullptr, 0);
    EXPECT_THAT(emptied(), ElementsAre(10, 11, 12));
}

TEST_F(Clearing, a_range_with_a_count_below_1_does_nothing)
{
    Clear_AllData(10, 0, nullptr, 0);
    Clear_AllData(10, -5, nullptr, 0);
    Clear_AllData(10, LOWEST, nullptr, 0);
    Clear_AllData(LOWEST, LOWEST, nullptr, 0);
    EXPECT_THAT(emptied(), IsEmpty());
}

TEST_F(Clearing, a_range_skips_the_numbers_outside_the_store)
{
    Clear_AllData(-3, 5, nullptr, 0);
    Clear_AllData(29, 100, nullptr, 0);
    EXPECT_THAT(emptied(), ElementsAre(0, 1, 29, 30));
}

TEST_F(Clearing, a_huge_range_ends_with_the_store)
{
    Clear_AllData(5, HIGHEST, nullptr, 0);
    EXPECT_EQ(emptied(), numbers(5, 30));
    fill();
    Clear_AllData(HIGHEST, HIGHEST, nullptr, 0);
    EXPECT_THAT(emptied(), IsEmpty());
    Clear_AllData(LOWEST, HIGHEST, nullptr, 0);
    EXPECT_THAT(emptied(), IsEmpty());
}

TEST_F(Clearing, a_range_logs_nothing_even_with_a_file)
{
    Clear_AllData(-3, 500, "t.cpp", 1);
    Clear_AllData(-3, 500, WORD{1}, 2, "x", "t.cpp", 1);
    Clear_AllData(-3, 500, WORD{1}, 2.0F, "x", "t.cpp", 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Clearing, a_range_with_values_sets_word_integer_and_text)
{
    Clear_AllData(10, 2, WORD{7}, 16777217, "text", nullptr, 0);
    for (const int no : {10, 11}) {
        EXPECT_EQ(Get_wData(no, nullptr, 0), 7);
        EXPECT_EQ(Get_fData(no, nullptr, 0), 16777216.0F);
        EXPECT_STREQ(Get_sData(no, nullptr, 0), "text");
    }
    EXPECT_TRUE(untouched(9));
    EXPECT_TRUE(untouched(12));
}

TEST_F(Clearing, a_range_with_values_sets_word_float_and_text)
{
    Clear_AllData(10, 2, WORD{7}, 2.5F, "", nullptr, 0);
    for (const int no : {10, 11}) {
        EXPECT_EQ(Get_wData(no, nullptr, 0), 7);
        EXPECT_EQ(Get_fData(no, nullptr, 0), 2.5F);
        EXPECT_EQ(+ComnData[no].sData, nullptr);
    }
    EXPECT_TRUE(untouched(9));
    EXPECT_TRUE(untouched(12));
}

TEST_F(Clearing, a_range_takes_the_text_of_one_of_its_cells)
{
    Clear_AllData(10, 3, WORD{0}, 0, ComnData[10].sData, nullptr, 0);
    for (const int no : {10, 11, 12})
        EXPECT_STREQ(Get_sData(no, nullptr, 0), "310");
}

// --- to the end of a code ----------------------------------------------------------------------------------

TEST_F(Clearing, from_a_number_counts_from_the_codes_count_and_not_from_its_end)
{
    // The code has 30 numbers, so 30 - 20 cells from number 20 on are cleared: not number 30.
    Clear_AllData(20, nullptr, 0);
    EXPECT_EQ(emptied(), numbers(20, 29));
}

TEST_F(CommonData, is_not_cleared_from_a_number_in_a_code_whose_first_number_exceeds_its_count)
{
    project.code("A", 5).code("B", 3);
    start();
    Set_wData(7, 1, nullptr, 0);
    Clear_AllData(7, nullptr, 0);
    EXPECT_EQ(Get_wData(7, nullptr, 0), 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(CommonData, is_cleared_beyond_a_code_that_begins_before_its_count_says)
{
    // Number -3 lies in the code, whose count less -3 is 13: numbers -3 to 9.
    project.write("PtrnCode", codeRow("A", 10, -5) + codeRow("B", 10, 5));
    start();
    for (int no = 0; no < PtrnDataNo; no++)
        Set_wData(no, 1, nullptr, 0);
    Clear_AllData(-3, nullptr, 0);
    for (int no = 0; no < PtrnDataNo; no++)
        EXPECT_EQ(Get_wData(no, nullptr, 0), no <= 9 ? 0 : 1) << no;
}

TEST_F(CommonData, is_cleared_as_far_as_the_first_code_that_holds_the_number_says)
{
    project.write("PtrnCode", codeRow("A", 4, 1) + codeRow("B", 9, 1));
    start();
    for (int no = 0; no < PtrnDataNo; no++)
        Set_wData(no, 1, nullptr, 0);
    Clear_AllData(2, nullptr, 0);
    EXPECT_EQ(Get_wData(1, nullptr, 0), 1);
    EXPECT_EQ(Get_wData(2, nullptr, 0), 0);
    EXPECT_EQ(Get_wData(3, nullptr, 0), 0);
    EXPECT_EQ(Get_wData(4, nullptr, 0), 1);
}

TEST_F(CommonData, is_cleared_without_overflow_from_the_lowest_number)
{
    project.write("PtrnCode", codeRow("A", 10, LOWEST));
    start();
    for (int no = 0; no < PtrnDataNo; no++)
        Set_wData(no, 1, nullptr, 0);
    Clear_AllData(LOWEST, nullptr, 0);
    for (int no = 0; no < PtrnDataNo; no++)
        EXPECT_EQ(Get_wData(no, nullptr, 0), no <= 9 ? 0 : 1) << no;
}

TEST_F(Clearing, from_a_number_that_no_code_holds_is_logged_even_without_a_file)
{
    Clear_AllData(0, nullptr, 0);
    Clear_AllData(31, "t.cpp", 9);
    Clear_AllData(-1, nullptr, 0);
    EXPECT_THAT(emptied(), IsEmpty());
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].mesg1, "COMNMEM");
    EXPECT_EQ(lines[0].mesg2, "Clear_AllData Error [ / 0]");
    EXPECT_EQ(lines[0].file, "");
    EXPECT_EQ(lines[1].mesg2, "Clear_AllData Error [ / 31]");
    EXPECT_EQ(lines[1].file, "t.cpp");
    EXPECT_EQ(lines[1].line, 9);
    EXPECT_EQ(lines[2].mesg2, "Clear_AllData Error [ / -1]");
}

TEST_F(CommonData, without_a_code_table_logs_clearing_from_a_number)
{
    start();
    Clear_AllData(5, nullptr, 0);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("Clear_AllData Error [ / 5]"));
}
