#include "comndata/LimtData.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "comndata/TableFile.h"
#include "config/Settings.h"
#include "tests/comndata/CommonData.h"

#include <cmath>
#include <cstring>
#include <filesystem>
#include <limits>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int HIGHEST = std::numeric_limits<int>::max();
constexpr int LOWEST = std::numeric_limits<int>::min();

std::uint32_t bits(float value)
{
    std::uint32_t result;
    std::memcpy(&result, &value, sizeof result);
    return result;
}

/// The limit that the hexadecimal text of a 16-bit number makes: the smallest float times the number.
float limit(int number)
{
    return static_cast<float>(number) * std::numeric_limits<float>::denorm_min();
}

/// Loads the limits after the code table, so that their codes are known.
class Limits : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("A", 9).code("B", 5).code("C", 15);
        project.write("MesgData.prf", "[MESGDATA]\nMESG1=,,低すぎる\nMESG2=,,高すぎる\n");
        start();
    }

    void load(const std::string& lines)
    {
        project.write("LimtData.prf", "[LIMTDATA]\n" + lines);
        LoadLimtData();
    }

    static std::string errorText() { return Get_sData(DTNO_SYSEROR, nullptr, 0); }

    /// Numbers from -5 to 40 that have limits.
    static std::vector<int> covered()
    {
        std::vector<int> numbers;
        for (int no = -5; no <= 40; no++) {
            float min = -1.0F;
            float max = -1.0F;
            if (Get_LimtData(no, &min, &max, nullptr, 0) == 1)
                numbers.push_back(no);
            else {
                EXPECT_EQ(min, 0.0F);
                EXPECT_EQ(max, 0.0F);
            }
        }
        return numbers;
    }
};

} // namespace

// --- loading -----------------------------------------------------------------------------------------------

TEST_F(Limits, are_the_numbered_keys_of_their_file)
{
    load("LIMT1=A,3,1,0010,0020,1,2\nLIMT500=B,0,4,1,2,3,4\nLIMT0=A,1,1,1,1,1,1\nLIMT501=A,1,1,1,1,1,1\n");
    ASSERT_NE(LimtData[0], nullptr);
    EXPECT_STREQ(LimtData[0]->ID_Code, "A");
    EXPECT_EQ(+LimtData[0]->ID_No1, 3);
    EXPECT_EQ(+LimtData[0]->ID_No2, 1);
    EXPECT_EQ(+LimtData[0]->DataNo1, 4);
    EXPECT_EQ(+LimtData[0]->DataNo2, 2);
    EXPECT_EQ(+LimtData[0]->ErrorNo1, 1);
    EXPECT_EQ(+LimtData[0]->ErrorNo2, 2);
    ASSERT_NE(LimtData[499], nullptr);
    EXPECT_EQ(+LimtData[499]->DataNo1, 10);
    EXPECT_EQ(+LimtData[499]->DataNo2, 14);
    for (int i = 1; i < 499; i++)
        EXPECT_EQ(LimtData[i], nullptr) << i;
}

TEST_F(Limits, are_floats_whose_low_16_bits_are_the_hexadecimal_field)
{
    load("LIMT1=A,3,1,0010,FFFF,0,0\nLIMT2=A,4,4,12345,abc,0,0\nLIMT3=A,5,5,,,0,0\n");
    EXPECT_EQ(bits(LimtData[0]->MIN_Data), 0x0010U);
    EXPECT_EQ(bits(LimtData[0]->MAX_Data), 0xFFFFU);
    EXPECT_EQ(+LimtData[0]->MAX_Data, limit(0xFFFF));
    EXPECT_EQ(bits(LimtData[1]->MIN_Data), 0x1234U);
    EXPECT_EQ(bits(LimtData[1]->MAX_Data), 0x0ABCU);
    EXPECT_EQ(bits(LimtData[2]->MIN_Data), 0U);
    EXPECT_EQ(bits(LimtData[2]->MAX_Data), 0U);
}

TEST_F(Limits, are_0_for_a_decimal_or_negative_field)
{
    load("LIMT1=A,3,1,1.5,-10,1,2\n");
    EXPECT_EQ(+LimtData[0]->MIN_Data, 0.0F);
    EXPECT_EQ(+LimtData[0]->MAX_Data, 0.0F);
}

TEST_F(Limits, are_defined_by_any_field_that_is_not_empty)
{
    load("LIMT1=,,,,,,\nLIMT2=,,,,,,9\nLIMT3=,,,G,,,\n");
    EXPECT_EQ(LimtData[0], nullptr);
    ASSERT_NE(LimtData[1], nullptr);
    EXPECT_EQ(+LimtData[1]->ErrorNo2, 9);
    EXPECT_EQ(LimtData[2], nullptr); // "G" is not hexadecimal, so no field is left
}

TEST_F(Limits, with_an_unknown_code_or_offset_are_logged_for_each_offset_and_cover_nothing)
{
    load("LIMT7=X,3,1,0,0,0,0\nLIMT8=A,99,1,0,0,0,0\nLIMT9=A,1,99,0,0,0,0\n");
    EXPECT_THAT(logged("LIMTDATA"),
                ElementsAre("LimtData Error [7 / X / 3]", "LimtData Error [7 / X / 1]",
                            "LimtData Error [8 / A / 99]", "LimtData Error [9 / A / 99]"));
    EXPECT_EQ(+LimtData[6]->DataNo1, -1);
    EXPECT_EQ(+LimtData[6]->DataNo2, -1);
    EXPECT_EQ(+LimtData[7]->DataNo1, -1);
    EXPECT_EQ(+LimtData[7]->DataNo2, 2);
    EXPECT_EQ(+LimtData[8]->DataNo1, 2);
    EXPECT_EQ(+LimtData[8]->DataNo2, -1);
}

TEST_F(Limits, whose_first_offset_is_unknown_cover_nothing)
{
    load("LIMT1=A,99,1,1,1,1,1\n");
    EXPECT_THAT(covered(), IsEmpty());
}

TEST_F(Limits, whose_second_offset_is_unknown_cover_everything_up_to_the_first)
{
    load("LIMT1=A,1,99,1,1,1,1\n");
    EXPECT_THAT(covered(), ElementsAre(1, 2));
}

TEST_F(Limits, with_an_empty_code_cover_only_number_0_which_has_no_limits)
{
    load("LIMT1=,5,7,1,2,1,2\n");
    EXPECT_EQ(+LimtData[0]->DataNo1, 0);
    EXPECT_EQ(+LimtData[0]->DataNo2, 0);
    EXPECT_THAT(covered(), IsEmpty());
    EXPECT_EQ(ChckLimtData(0, 1.0F, nullptr, 0), 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Limits, keep_20_bytes_of_a_code_without_splitting_a_character)
{
    load("LIMT1=1234567890123456789012345,1,1,0,0,0,0\nLIMT2=xああああああああああああ,1,1,0,0,0,0\n");
    EXPECT_STREQ(LimtData[0]->ID_Code, "12345678901234567890");
    EXPECT_STREQ(LimtData[1]->ID_Code, "xあああああああああ");
}

TEST_F(Limits, loaded_at_the_start_cover_nothing_because_the_code_table_comes_later)
{
    project.write("LimtData.prf", "[LIMTDATA]\nLIMT1=A,8,0,0010,0020,1,2\nLIMT2=,0,0,1,1,1,1\n");
    ComnDataInit();
    EXPECT_THAT(logged("LIMTDATA"), ElementsAre("LimtData Error [1 / A / 8]", "LimtData Error [1 / A / 0]"));
    EXPECT_EQ(+LimtData[0]->DataNo1, -1);
    EXPECT_EQ(+LimtData[0]->DataNo2, -1);
    EXPECT_THAT(covered(), IsEmpty());
    for (int no = -1; no <= PtrnDataNo; no++)
        EXPECT_EQ(ChckLimtData(no, 1e30F, nullptr, 0), 1) << no;
    EXPECT_EQ(errorText(), "");
}

TEST_F(Limits, lie_in_a_folder_of_a_fixed_name_and_not_in_the_project_folder)
{
    std::filesystem::create_directory(project.root() + "/elsewhere");
    writeFile(project.root() + "/elsewhere/LimtData.prf", "[LIMTDATA]\nLIMT2=,1,1,1,1,1,1\n");
    CopyText(ProjPath, (project.root() + "/elsewhere").c_str());
    load("LIMT1=,1,1,1,1,1,1\n");
    EXPECT_NE(LimtData[0], nullptr);
    EXPECT_EQ(LimtData[1], nullptr);
}

TEST_F(Limits, are_none_without_a_file_and_nothing_is_logged)
{
    LoadLimtData();
    EXPECT_TRUE(std::all_of(std::begin(LimtData), std::end(LimtData), [](auto* row) { return !row; }));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Limits, are_replaced_when_they_are_loaded_again)
{
    load("LIMT1=,1,1,1,1,1,1\nLIMT2=,1,1,1,1,1,1\n");
    load("LIMT2=,5,1,1,1,1,1\n");
    EXPECT_EQ(LimtData[0], nullptr);
    EXPECT_EQ(+LimtData[1]->ID_No1, 5);
    ExitLimtData();
    EXPECT_EQ(LimtData[1], nullptr);
    ExitLimtData();
}

TEST_F(Limits, in_a_file_that_is_too_long_are_not_loaded_and_that_is_logged)
{
    load("LIMT1=,1,1,1,1,1,1\n" + std::string(SIZE_TABLEFILE, '\n'));
    EXPECT_EQ(LimtData[0], nullptr);
    EXPECT_THAT(logged("LIMTDATA"),
                ElementsAre("ProjPath/LimtData.prf: 262174 bytes, at most 262144 are read"));
}

// --- the row of a number -----------------------------------------------------------------------------------

TEST_F(Limits, cover_the_numbers_from_the_second_offset_up_to_the_first)
{
    load("LIMT1=A,3,1,1,2,0,0\n");
    EXPECT_THAT(covered(), ElementsAre(2, 3, 4));
    load("LIMT1=A,2,2,1,2,0,0\n");
    EXPECT_THAT(covered(), ElementsAre(3));
}

TEST_F(Limits, with_their_offsets_in_ascending_order_cover_nothing)
{
    load("LIMT1=A,1,3,1,2,0,0\n");
    EXPECT_THAT(covered(), IsEmpty());
}

TEST_F(Limits, are_those_of_the_first_row_that_covers_the_number)
{
    load("LIMT2=A,4,0,10,20,0,0\nLIMT9=A,8,0,30,40,0,0\n");
    float min = -1.0F;
    float max = -1.0F;
    EXPECT_EQ(Get_LimtData(5, &min, &max, nullptr, 0), 1);
    EXPECT_EQ(bits(min), 0x10U);
    EXPECT_EQ(bits(max), 0x20U);
    EXPECT_EQ(Get_LimtData(6, &min, &max, nullptr, 0), 1);
    EXPECT_EQ(bits(min), 0x30U);
    EXPECT_EQ(bits(max), 0x40U);
    EXPECT_EQ(Get_LimtData(10, &min, &max, nullptr, 0), 0);
    EXPECT_EQ(min, 0.0F);
    EXPECT_EQ(max, 0.0F);
}

TEST_F(Limits, cover_no_number_outside_the_store)
{
    project.write("PtrnCode", codeRow("WIDE", 5, 1) + codeRow("FAR", 1, 1000));
    LoadCodeData();
    load("LIMT1=FAR,0,0,1,2,1,1\nLIMT2=WIDE,4,0,1,2,1,1\n");
    float min;
    float max;
    EXPECT_EQ(Get_LimtData(1000, &min, &max, nullptr, 0), 0);
    EXPECT_EQ(ChckLimtData(1000, 1.0F, nullptr, 0), 1);
    EXPECT_EQ(Get_LimtData(5, &min, &max, nullptr, 0), 1);
}

// --- checking a value --------------------------------------------------------------------------------------

TEST_F(Limits, refuse_a_value_below_and_above_with_their_messages)
{
    load("LIMT1=A,8,0,0010,0020,1,2\n");
    EXPECT_EQ(ChckLimtData(4, limit(0x0F), "t.cpp", 1), 0);
    EXPECT_EQ(errorText(), "低すぎる");
    EXPECT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0), 1);
    EXPECT_EQ(ChckLimtData(4, limit(0x21), "t.cpp", 1), 0);
    EXPECT_EQ(errorText(), "高すぎる");
    EXPECT_EQ(ChckLimtData(4, -5.0F, "t.cpp", 1), 0);
    EXPECT_EQ(errorText(), "低すぎる");
    EXPECT_EQ(ChckLimtData(4, 1.0F, "t.cpp", 1), 0);
    EXPECT_EQ(errorText(), "高すぎる");
    EXPECT_EQ(ChckLimtData(4, -INFINITY, "t.cpp", 1), 0);
    EXPECT_EQ(errorText(), "低すぎる");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Limits, accept_a_value_from_the_lower_to_the_upper_limit)
{
    load("LIMT1=A,8,0,0010,0020,1,2\n");
    for (const int number : {0x10, 0x11, 0x1F, 0x20})
        EXPECT_EQ(ChckLimtData(4, limit(number), "t.cpp", 1), 1) << number;
    EXPECT_EQ(errorText(), "");
    EXPECT_EQ(Get_wData(DTNO_SYSEROR, nullptr, 0), 0);
}

TEST_F(Limits, accept_nan)
{
    load("LIMT1=A,8,0,0010,0020,1,2\n");
    EXPECT_EQ(ChckLimtData(4, NAN, nullptr, 0), 1);
    EXPECT_EQ(errorText(), "");
}

TEST_F(Limits, without_a_message_accept_every_value)
{
    load("LIMT1=A,8,0,0010,0020,0,0\n");
    EXPECT_EQ(ChckLimtData(4, -1.0F, nullptr, 0), 1);
    EXPECT_EQ(ChckLimtData(4, 1.0F, nullptr, 0), 1);
    load("LIMT1=A,8,0,0010,0020,0,2\n");
    EXPECT_EQ(ChckLimtData(4, -1.0F, nullptr, 0), 1);
    EXPECT_EQ(errorText(), "");
    EXPECT_EQ(ChckLimtData(4, 1.0F, nullptr, 0), 0);
    EXPECT_EQ(errorText(), "高すぎる");
}

TEST_F(Limits, refuse_a_value_whose_message_is_not_defined_and_log_the_message)
{
    load("LIMT1=A,8,0,0010,0020,77,2\n");
    EXPECT_EQ(ChckLimtData(4, 0.0F, nullptr, 0), 0);
    EXPECT_EQ(errorText(), "");
    EXPECT_THAT(logged("MESGDATA"), ElementsAre("Message No Error [77]"));
}

TEST_F(Limits, whose_minimum_exceeds_the_maximum_report_the_minimum_first)
{
    load("LIMT1=A,8,0,0020,0010,1,2\n");
    EXPECT_EQ(ChckLimtData(4, limit(0x18), nullptr, 0), 0);
    EXPECT_EQ(errorText(), "低すぎる");
}

TEST_F(Limits, are_not_looked_for_where_no_row_covers_the_number)
{
    load("LIMT1=A,3,1,0010,0020,1,2\n");
    EXPECT_EQ(ChckLimtData(1, 1e30F, "t.cpp", 1), 1);
    EXPECT_EQ(ChckLimtData(5, 1e30F, "t.cpp", 1), 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

// --- numbers without limits --------------------------------------------------------------------------------

TEST_F(Limits, of_a_number_outside_the_store_are_accepted_silently)
{
    float min = 1.0F;
    float max = 1.0F;
    for (const int no : {-1, 0, 30, 31, LOWEST, HIGHEST}) {
        EXPECT_EQ(ChckLimtData(no, 1.0F, "t.cpp", 1), 1);
        EXPECT_EQ(Get_LimtData(no, &min, &max, "t.cpp", 1), 0);
        EXPECT_EQ(min, 0.0F);
        EXPECT_EQ(max, 0.0F);
    }
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Limits, of_number_0_are_logged_with_its_name_even_without_a_file)
{
    project.write("PtrnCode", codeRow("ZERO", 5, 0));
    LoadCodeData();
    load("LIMT1=ZERO,4,0,0010,0020,1,2\n");
    PtrnFlag[0] = 1;
    float min = 1.0F;
    float max = 1.0F;
    EXPECT_EQ(ChckLimtData(0, 1.0F, "t.cpp", 8), 1);
    EXPECT_EQ(Get_LimtData(0, &min, &max, nullptr, 0), 0);
    EXPECT_EQ(min, 0.0F);
    EXPECT_EQ(max, 0.0F);
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].mesg1, "LIMTDATA");
    EXPECT_EQ(lines[0].mesg2, "Data No Error [ZERO+0]");
    EXPECT_EQ(lines[0].file, "t.cpp");
    EXPECT_EQ(lines[0].line, 8);
    EXPECT_EQ(lines[1].mesg2, "Data No Error [ZERO+0]");
    EXPECT_EQ(lines[1].file, "");
}

TEST_F(CommonData, without_a_store_accepts_every_value)
{
    project.write("LimtData.prf", "[LIMTDATA]\nLIMT1=,1,1,1,1,1,1\n");
    start();
    float min = 1.0F;
    float max = 1.0F;
    EXPECT_EQ(ChckLimtData(1, 1.0F, "t.cpp", 1), 1);
    EXPECT_EQ(Get_LimtData(1, &min, &max, "t.cpp", 1), 0);
    EXPECT_THAT(project.log(), IsEmpty());
}
