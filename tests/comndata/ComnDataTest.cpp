#include "comndata/ComnData.h"

#include "base/EucText.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "config/Settings.h"
#include "tests/comndata/CommonData.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Cells : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("A", 30);
        start();
    }
};

std::string times(int count, const std::string& text)
{
    std::string result;
    while (count-- > 0)
        result += text;
    return result;
}

} // namespace

// --- the record and its reserved numbers -------------------------------------------------------------

TEST(Cell, holds_word_number_and_text_in_this_order)
{
    EXPECT_TRUE((std::is_same_v<decltype(COMNDATA::wData), WORD>));
    EXPECT_TRUE((std::is_same_v<decltype(COMNDATA::fData), float>));
    EXPECT_TRUE((std::is_same_v<decltype(COMNDATA::sData), char*>));
    EXPECT_LT(offsetof(COMNDATA, wData), offsetof(COMNDATA, fData));
    EXPECT_LT(offsetof(COMNDATA, fData), offsetof(COMNDATA, sData));
}

TEST(ReservedNumbers, are_fixed)
{
    EXPECT_EQ(DTNO_SYSCALN, 1);
    EXPECT_EQ(DTNO_SYSEROR, 11);
    EXPECT_EQ(DTNO_MENTE, 20);
    EXPECT_EQ(DTNO_SYSTEM, 100);
}

// --- life ----------------------------------------------------------------------------------------------

TEST_F(Cells, start_with_zeros_and_no_text)
{
    ASSERT_EQ(PtrnDataNo, 31);
    for (int no = 0; no < PtrnDataNo; no++) {
        EXPECT_EQ(ComnData[no].wData, 0);
        EXPECT_EQ(+ComnData[no].fData, 0.0F);
        EXPECT_EQ(+ComnData[no].sData, nullptr);
    }
}

TEST_F(Cells, are_made_anew_when_the_store_is_initialised_again)
{
    Set_wData(5, 1, nullptr, 0);
    Set_fData(5, 1.0F, nullptr, 0);
    Set_sData(5, "text", nullptr, 0);
    EXPECT_EQ(ComnDataInit(), 1);
    EXPECT_EQ(PtrnDataNo, 31);
    EXPECT_EQ(Get_wData(5, nullptr, 0), 0);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 0.0F);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "");
}

TEST_F(Cells, and_every_table_are_gone_after_exit)
{
    project.write("a.ptn", "").write("MesgData.prf", "[MESGDATA]\nMESG1=,,text\n");
    ComnDataInit();
    ASSERT_NE(MesgData[0], nullptr);
    ASSERT_EQ(PtrnCount, 1);
    Set_sData(5, "text", nullptr, 0);

    ComnDataExit();
    EXPECT_EQ(ComnData, nullptr);
    EXPECT_EQ(PtrnDataNo, 0);
    EXPECT_EQ(PtrnCode, nullptr);
    EXPECT_EQ(PtrnRecd, 0);
    EXPECT_EQ(PtrnFlag, nullptr);
    EXPECT_EQ(PtrnName, nullptr);
    EXPECT_EQ(PtrnCount, 0);
    EXPECT_EQ(MesgData[0], nullptr);
    EXPECT_EQ(CheckComnData(5, nullptr, 0), 0);
    ComnDataExit();
}

TEST_F(CommonData, without_a_code_table_takes_the_cells_it_is_given)
{
    project.start();
    COMNDATA given[3] = {};
    ComnData = given;
    PtrnDataNo = 3;
    Set_iData(2, 7, __FILE__, __LINE__);
    Set_sData(2, "text", __FILE__, __LINE__);
    EXPECT_EQ(Get_iData(2, nullptr, 0), 7);
    EXPECT_STREQ(Get_sData(2, nullptr, 0), "text");
    EXPECT_THAT(project.messages(), IsEmpty()) << "without flags no number has a name";
    ComnDataExit();
    EXPECT_EQ(ComnData, nullptr);
}

TEST_F(CommonData, without_a_code_table_has_no_cells_and_reads_nothing)
{
    project.start();
    EXPECT_EQ(ComnDataInit(), 1);
    EXPECT_EQ(ComnData, nullptr);
    EXPECT_EQ(PtrnDataNo, 0);
    Set_wData(0, 1, nullptr, 0);
    Set_iData(0, 1, nullptr, 0);
    Set_sData(0, "text", nullptr, 0);
    OR_wData(0, 1, nullptr, 0);
    Clear_AllData(0, 10, nullptr, 0);
    EXPECT_EQ(Get_wData(0, nullptr, 0), 0);
    EXPECT_EQ(Get_iData(0, nullptr, 0), 0);
    EXPECT_EQ(Get_fData(0, nullptr, 0), 0.0F);
    EXPECT_STREQ(Get_sData(0, nullptr, 0), "");
}

TEST_F(CommonData, loads_messages_then_limits_then_the_code_table)
{
    project.code("A", 5);
    project.write("MesgData.prf", "[MESGDATA]\nMESG1=A,1,text\n");
    project.write("LimtData.prf", "[LIMTDATA]\nLIMT1=A,1,1,0,0,0,0\n");
    project.start();
    // The codes can not be resolved yet, and the missing flag file is noticed last.
    EXPECT_THAT(project.messages(),
                ElementsAre("MesgData Error [1 / A / 1]", "LimtData Error [1 / A / 1]",
                            "LimtData Error [1 / A / 1]", "ファイルのオープンに失敗 [PtrnFlag]",
                            "ファイルの読込みに失敗 [PtrnFlag]", "ファイルのオープンに失敗 [PtrnFlag]"));
}

// --- checking numbers ----------------------------------------------------------------------------------

TEST_F(Cells, are_numbered_from_0_to_one_below_their_count)
{
    EXPECT_EQ(CheckComnData(0, nullptr, 0), 1);
    EXPECT_EQ(CheckComnData(30, nullptr, 0), 1);
    EXPECT_EQ(CheckComnData(-1, nullptr, 0), 0);
    EXPECT_EQ(CheckComnData(31, nullptr, 0), 0);
    EXPECT_EQ(CheckComnData(std::numeric_limits<int>::min(), nullptr, 0), 0);
    EXPECT_EQ(CheckComnData(std::numeric_limits<int>::max(), nullptr, 0), 0);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Cells, log_a_wrong_number_with_the_callers_place)
{
    EXPECT_EQ(CheckComnData(-7, "panel.cpp", 42), 0);
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].mesg1, "COMNMEM");
    EXPECT_EQ(lines[0].mesg2, "Data No Error [-7]");
    EXPECT_EQ(lines[0].file, "panel.cpp");
    EXPECT_EQ(lines[0].line, 42);
}

TEST_F(Cells, outside_the_store_read_as_nothing_and_are_logged_when_a_file_is_given)
{
    EXPECT_EQ(Get_wData(PtrnDataNo, "t.cpp", 1), 0);
    EXPECT_EQ(Get_iData(32, "t.cpp", 1), 0);
    EXPECT_EQ(Get_fData(33, "t.cpp", 1), 0.0F);
    EXPECT_STREQ(Get_sData(34, "t.cpp", 1), "");
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("Data No Error [31]", "Data No Error [32]",
                                               "Data No Error [33]", "Data No Error [34]"));
}

TEST_F(Cells, outside_the_store_are_not_written_and_are_logged_when_a_file_is_given)
{
    Set_wData(31, 1, "t.cpp", 1);
    Set_iData(32, 1, "t.cpp", 1);
    Set_fData(33, 1.0F, "t.cpp", 1);
    Set_sData(34, "x", "t.cpp", 1);
    OR_wData(35, 1, "t.cpp", 1);
    AND_wData(36, 1, "t.cpp", 1);
    EOR_wData(-1, 1, "t.cpp", 1);
    EXPECT_THAT(logged("COMNMEM"),
                ElementsAre("Data No Error [31]", "Data No Error [32]", "Data No Error [33]",
                            "Data No Error [34]", "Data No Error [35]", "Data No Error [36]",
                            "Data No Error [-1]"));
}

TEST_F(Cells, outside_the_store_are_silent_without_a_file)
{
    Get_wData(31, nullptr, 9);
    Get_iData(31, nullptr, 9);
    Get_fData(31, nullptr, 9);
    Get_sData(31, nullptr, 9);
    Set_wData(31, 1, nullptr, 9);
    Set_iData(31, 1, nullptr, 9);
    Set_fData(31, 1.0F, nullptr, 9);
    Set_sData(31, "x", nullptr, 9);
    OR_wData(31, 1, nullptr, 9);
    AND_wData(31, 1, nullptr, 9);
    EOR_wData(31, 1, nullptr, 9);
    EXPECT_THAT(project.log(), IsEmpty());
}

// --- word, number, text --------------------------------------------------------------------------------

TEST_F(Cells, keep_word_number_and_text_apart)
{
    Set_wData(5, 0xFFFF, nullptr, 0);
    Set_fData(5, 2.5F, nullptr, 0);
    Set_sData(5, "text", nullptr, 0);
    EXPECT_EQ(Get_wData(5, nullptr, 0), 0xFFFF);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 2.5F);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "text");
    Set_wData(5, 0, nullptr, 0);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 2.5F);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "text");
}

TEST_F(Cells, of_number_0_and_the_last_number_are_ordinary)
{
    for (const int no : {0, 30}) {
        Set_wData(no, 3, nullptr, 0);
        Set_iData(no, 4, nullptr, 0);
        Set_sData(no, "t", nullptr, 0);
        EXPECT_EQ(Get_wData(no, nullptr, 0), 3);
        EXPECT_EQ(Get_iData(no, nullptr, 0), 4);
        EXPECT_STREQ(Get_sData(no, nullptr, 0), "t");
    }
}

TEST_F(Cells, share_the_number_between_integer_and_float_access)
{
    Set_iData(5, 7, nullptr, 0);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 7.0F);
}

TEST_F(Cells, give_an_integer_truncated_towards_zero)
{
    Set_fData(5, 2.9F, nullptr, 0);
    EXPECT_EQ(Get_iData(5, nullptr, 0), 2);
    Set_fData(5, -2.9F, nullptr, 0);
    EXPECT_EQ(Get_iData(5, nullptr, 0), -2);
}

TEST_F(Cells, lose_the_last_digits_of_integers_beyond_2_to_the_24)
{
    Set_iData(5, 16777216, nullptr, 0);
    EXPECT_EQ(Get_iData(5, nullptr, 0), 16777216);
    Set_iData(5, 16777217, nullptr, 0);
    EXPECT_EQ(Get_iData(5, nullptr, 0), 16777216);
}

TEST_F(Cells, give_the_nearest_int_of_a_number_that_no_int_can_hold)
{
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    const auto asInt = [](float value) {
        Set_fData(5, value, nullptr, 0);
        return Get_iData(5, nullptr, 0);
    };
    EXPECT_EQ(asInt(2147483520.0F), 2147483520);
    EXPECT_EQ(asInt(2147483648.0F), highest);
    EXPECT_EQ(asInt(1e30F), highest);
    EXPECT_EQ(asInt(INFINITY), highest);
    EXPECT_EQ(asInt(-2147483648.0F), lowest);
    EXPECT_EQ(asInt(-1e30F), lowest);
    EXPECT_EQ(asInt(-INFINITY), lowest);
    EXPECT_EQ(asInt(NAN), 0);

    Set_iData(5, highest, nullptr, 0);
    EXPECT_EQ(Get_iData(5, nullptr, 0), highest);
    Set_iData(5, lowest, nullptr, 0);
    EXPECT_EQ(Get_iData(5, nullptr, 0), lowest);
}

TEST_F(Cells, keep_a_float_exactly)
{
    Set_fData(5, 0.1F, nullptr, 0);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 0.1F);
    Set_fData(5, NAN, nullptr, 0);
    EXPECT_TRUE(std::isnan(Get_fData(5, nullptr, 0)));
}

TEST_F(Cells, own_a_copy_of_the_text)
{
    char text[] = "first";
    Set_sData(5, text, nullptr, 0);
    text[0] = 'F';
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "first");
    EXPECT_STREQ(ComnData[5].sData, "first");
    Set_sData(5, "second, longer", nullptr, 0);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "second, longer");
}

TEST_F(Cells, are_without_text_after_an_empty_or_null_text)
{
    for (const char* text : {"", static_cast<const char*>(nullptr)}) {
        Set_sData(5, "text", nullptr, 0);
        Set_sData(5, text, nullptr, 0);
        EXPECT_EQ(+ComnData[5].sData, nullptr);
        EXPECT_STREQ(Get_sData(5, nullptr, 0), "");
    }
}

TEST_F(Cells, take_their_own_text_and_the_reading_buffer)
{
    Set_sData(5, "own", nullptr, 0);
    Set_sData(5, ComnData[5].sData, nullptr, 0);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "own");
    Set_sData(5, ComnData[5].sData + 1, nullptr, 0);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "wn");
    Set_sData(6, Get_sData(5, nullptr, 0), nullptr, 0);
    EXPECT_STREQ(Get_sData(6, nullptr, 0), "wn");
}

TEST_F(Cells, are_read_through_one_buffer)
{
    Set_sData(5, "five", nullptr, 0);
    Set_sData(6, "six", nullptr, 0);
    const char* five = Get_sData(5, nullptr, 0);
    const char* six = Get_sData(6, nullptr, 0);
    EXPECT_EQ(five, six);
    EXPECT_STREQ(five, "six");
    EXPECT_EQ(Get_sData(99, nullptr, 0), six);
    EXPECT_STREQ(six, "");
}

TEST_F(Cells, keep_256_bytes_of_a_text_and_read_255)
{
    for (const int length : {255, 256, 257, 5000}) {
        Set_sData(5, times(length, "x").c_str(), nullptr, 0);
        EXPECT_EQ(std::strlen(ComnData[5].sData), static_cast<std::size_t>(std::min(length, 256)));
        EXPECT_EQ(Get_sData(5, nullptr, 0), times(255, "x"));
    }
}

TEST_F(Cells, do_not_split_a_two_byte_character_when_a_text_is_cut)
{
    // 128 characters fill the cell exactly; the reading buffer has no place for the last one.
    Set_sData(5, times(200, "あ").c_str(), nullptr, 0);
    EXPECT_EQ(+ComnData[5].sData, times(128, "あ"));
    EXPECT_EQ(Get_sData(5, nullptr, 0), times(127, "あ"));

    Set_sData(5, ("x" + times(200, "あ")).c_str(), nullptr, 0);
    EXPECT_EQ(+ComnData[5].sData, "x" + times(127, "あ"));
    EXPECT_EQ(Get_sData(5, nullptr, 0), "x" + times(127, "あ"));
}

// --- bits ----------------------------------------------------------------------------------------------

TEST_F(Cells, combine_their_word_with_a_mask)
{
    Set_wData(5, 0x0FF0, nullptr, 0);
    OR_wData(5, 0xF00F, nullptr, 0);
    EXPECT_EQ(Get_wData(5, nullptr, 0), 0xFFFF);
    AND_wData(5, 0x8421, nullptr, 0);
    EXPECT_EQ(Get_wData(5, nullptr, 0), 0x8421);
    EOR_wData(5, 0xC001, nullptr, 0);
    EXPECT_EQ(Get_wData(5, nullptr, 0), 0x4420);
    EXPECT_EQ(Get_wData(4, nullptr, 0), 0);
    EXPECT_EQ(Get_wData(6, nullptr, 0), 0);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 0.0F);
}

TEST_F(Cells, are_accessible_between_lock_and_unlock)
{
    LockComnData();
    LockComnData();
    Set_wData(5, 7, nullptr, 0);
    EXPECT_EQ(Get_wData(5, nullptr, 0), 7);
    UnlockComnData();
    UnlockComnData();
    UnlockComnData();
    EXPECT_EQ(Get_wData(5, nullptr, 0), 7);
}
