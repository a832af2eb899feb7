// The cells while the common data is loaded anew: by their names, whatever their numbers are.
#include "comndata/KeptCells.h"

#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "tests/comndata/CommonData.h"

using namespace tessary;

namespace
{

class KeptCellsTest : public CommonData
{
  protected:
    /// Loads the common data again with another code table.
    void loadAgain(const std::string& rows)
    {
        const KeptCells kept;
        project.write("PtrnCode", rows);
        ASSERT_EQ(ComnDataInit(), 1);
        kept.giveBack();
    }

    static void set(int no, WORD word, double number, const char* text)
    {
        Set_wData(no, word, nullptr, 0);
        Set_dData(no, number, nullptr, 0);
        Set_sData(no, text, nullptr, 0);
    }

    static void expectCell(int no, WORD word, double number, const char* text)
    {
        EXPECT_EQ(Get_wData(no, nullptr, 0), word) << no;
        EXPECT_EQ(Get_dData(no, nullptr, 0), number) << no;
        EXPECT_STREQ(Get_sData(no, nullptr, 0), text) << no;
    }
};

TEST_F(KeptCellsTest, have_everything_that_was_in_them)
{
    project.code("A", 5).code("温度", 3);
    start();
    set(1, 0x8001, 0, "");
    set(5, 0, 16777217.25, "");
    set(8, 2, -1, "図形");
    loadAgain(codeRow("A", 5, 1) + codeRow("温度", 3, 6));
    expectCell(1, 0x8001, 0, "");
    expectCell(2, 0, 0, "");
    expectCell(5, 0, 16777217.25, "");
    expectCell(8, 2, -1, "図形");
}

TEST_F(KeptCellsTest, follow_their_code_to_its_new_place)
{
    project.code("A", 2).code("B", 3);
    start();
    set(2, 1, 10, "a");
    set(3, 2, 20, "b");
    set(5, 3, 30, "c");
    loadAgain(codeRow("NEW", 4, 1) + codeRow("B", 2, 5) + codeRow("A", 9, 7));
    expectCell(8, 1, 10, "a");
    expectCell(5, 2, 20, "b");
    for (const int no : {1, 2, 3, 4, 6, 7, 9, 15})
        expectCell(no, 0, 0, "");
}

TEST_F(KeptCellsTest, of_a_code_with_two_rows_are_those_that_the_name_means)
{
    project.code("A", 2).code("A", 3);
    start();
    set(1, 1, 10, "a");
    set(3, 2, 20, "b");
    loadAgain(codeRow("NEW", 1, 1) + codeRow("A", 3, 2));
    expectCell(2, 1, 10, "a");
    expectCell(4, 0, 0, "");
}

TEST_F(KeptCellsTest, are_none_of_a_row_that_lies_outside_of_the_store)
{
    project.code("A", 2).code("FAR", 3, 2000000000);
    start();
    set(1, 1, 10, "a");
    loadAgain(codeRow("FAR", 3, 2147483646) + codeRow("A", 2, 2));
    expectCell(2, 1, 10, "a");
}

TEST_F(KeptCellsTest, are_lost_with_their_table)
{
    project.code("A", 2);
    start();
    set(1, 1, 10, "a");
    loadAgain("");
    EXPECT_EQ(PtrnDataNo, 0);
}

TEST_F(KeptCellsTest, leave_no_trace_in_the_log)
{
    project.code("A", 2).flag(1);
    start();
    set(1, 1, 10, "a");
    project.clearLog();
    loadAgain(codeRow("A", 2, 1));
    EXPECT_THAT(logged("COMNMEM"), testing::IsEmpty());
    expectCell(1, 1, 10, "a");
}

} // namespace
