#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "tests/comndata/CommonData.h"

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Number 8, named B+2, is logged; its neighbours are not.
class AccessLog : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("A", 5).code("B", 3).flag(8);
        start();
    }
};

} // namespace

TEST_F(AccessLog, shows_reads_with_three_blanks_and_writes_with_two)
{
    Set_wData(8, 0x00AB, "t.cpp", 1);
    Get_wData(8, "t.cpp", 1);
    Set_iData(8, -12, "t.cpp", 1);
    Get_iData(8, "t.cpp", 1);
    Set_fData(8, 3.14159F, "t.cpp", 1);
    Get_fData(8, "t.cpp", 1);
    Set_sData(8, "文字列 text", "t.cpp", 1);
    Get_sData(8, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"),
                ElementsAre("WRITE  [B+2] 0x00AB", "READ   [B+2] 0x00AB", "WRITE  [B+2] -12",
                            "READ   [B+2] -12", "WRITE  [B+2] 3.14", "READ   [B+2] 3.14",
                            "WRITE  [B+2] 文字列 text", "READ   [B+2] 文字列 text"));
}

TEST_F(AccessLog, carries_the_callers_place)
{
    Get_wData(8, "/home/panel/Screen.cpp", 321);
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].mesg1, "COMNMEM");
    EXPECT_EQ(lines[0].file, "Screen.cpp");
    EXPECT_EQ(lines[0].line, 321);
}

TEST_F(AccessLog, is_silent_without_a_file)
{
    Set_wData(8, 1, nullptr, 1);
    Get_wData(8, nullptr, 1);
    Set_iData(8, 1, nullptr, 1);
    Get_iData(8, nullptr, 1);
    Set_fData(8, 1.0F, nullptr, 1);
    Get_fData(8, nullptr, 1);
    Set_sData(8, "x", nullptr, 1);
    Get_sData(8, nullptr, 1);
    OR_wData(8, 1, nullptr, 1);
    AND_wData(8, 1, nullptr, 1);
    EOR_wData(8, 1, nullptr, 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(AccessLog, is_silent_about_a_number_whose_flag_is_off)
{
    Set_wData(7, 1, "t.cpp", 1);
    Get_wData(7, "t.cpp", 1);
    Set_iData(7, 1, "t.cpp", 1);
    Get_iData(7, "t.cpp", 1);
    Set_sData(7, "x", "t.cpp", 1);
    Get_sData(7, "t.cpp", 1);
    OR_wData(7, 1, "t.cpp", 1);
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(Get_wData(7, nullptr, 0), 1);
}

TEST_F(AccessLog, looks_at_bit_0_of_the_flag_alone)
{
    PtrnFlag[8] = 0xFE;
    Get_wData(8, "t.cpp", 1);
    EXPECT_THAT(project.log(), IsEmpty());
    PtrnFlag[8] = 0x03;
    Get_wData(8, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("READ   [B+2] 0x0000"));
}

TEST_F(AccessLog, is_silent_about_a_number_that_no_code_holds)
{
    PtrnFlag[0] = 1;
    Set_wData(0, 1, "t.cpp", 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(AccessLog, shows_the_new_word_of_a_bit_operation_as_a_write)
{
    Set_wData(8, 0x0FF0, nullptr, 0);
    OR_wData(8, 0x000F, "t.cpp", 1);
    AND_wData(8, 0x00FF, "t.cpp", 1);
    EOR_wData(8, 0x8001, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"),
                ElementsAre("WRITE  [B+2] 0x0FFF", "WRITE  [B+2] 0x00FF", "WRITE  [B+2] 0x80FE"));
}

TEST_F(AccessLog, shows_an_emptied_text_as_empty)
{
    Set_sData(8, "text", nullptr, 0);
    Set_sData(8, nullptr, "t.cpp", 1);
    Set_sData(8, "", "t.cpp", 1);
    Get_sData(8, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("WRITE  [B+2] ", "WRITE  [B+2] ", "READ   [B+2] "));
}

TEST_F(AccessLog, shows_an_integer_as_written_and_as_read)
{
    Set_iData(8, 16777217, "t.cpp", 1);
    Get_iData(8, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("WRITE  [B+2] 16777217", "READ   [B+2] 16777216"));
}

TEST_F(AccessLog, takes_a_text_as_it_stands)
{
    Set_sData(8, "%s%n%d", "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("WRITE  [B+2] %s%n%d"));
}

TEST_F(AccessLog, is_bounded_for_the_longest_values)
{
    Set_fData(8, std::numeric_limits<float>::max(), "t.cpp", 1);
    Set_sData(8, std::string(300, 'x').c_str(), "t.cpp", 1);
    // 2^128 - 2^104 is the largest float; the log keeps 202 bytes of a message.
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("WRITE  [B+2] 340282346638528859811704183484516925440.00",
                                               "WRITE  [B+2] " + std::string(202 - 13, 'x')));
}

TEST_F(AccessLog, can_be_written_by_the_application_for_each_type)
{
    SetLogfile(8, 0, static_cast<WORD>(0xBEEF), "t.cpp", 1);
    SetLogfile(8, 1, static_cast<WORD>(1), "t.cpp", 1);
    SetLogfile(8, 0, 5, "t.cpp", 1);
    SetLogfile(8, 1, 5, "t.cpp", 1);
    SetLogfile(8, 0, 0.5F, "t.cpp", 1);
    SetLogfile(8, 1, 0.5F, "t.cpp", 1);
    SetLogfile(8, 0, "x", "t.cpp", 1);
    SetLogfile(8, 1, "x", "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"),
                ElementsAre("READ   [B+2] 0xBEEF", "WRITE  [B+2] 0x0001", "READ   [B+2] 5", "WRITE  [B+2] 5",
                            "READ   [B+2] 0.50", "WRITE  [B+2] 0.50", "READ   [B+2] x", "WRITE  [B+2] x"));
    project.clearLog();

    SetLogfile(7, 1, 5, "t.cpp", 1);
    SetLogfile(8, 1, 5, nullptr, 1);
    SetLogfile(-1, 1, 5, "t.cpp", 1);
    SetLogfile(9, 1, 5, "t.cpp", 1);
    EXPECT_THAT(project.log(), IsEmpty());
}
