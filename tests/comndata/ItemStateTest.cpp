#include "comndata/ItemState.h"

#include "comndata/ComnData.h"
#include "tests/comndata/CommonData.h"

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Number 5, named A+4, is logged; number 4 is not.
class ItemState : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("A", 10).flag(5);
        start();
    }

    static WORD word() { return Get_wData(5, nullptr, 0); }
};

} // namespace

TEST_F(ItemState, colour_sets_the_two_lowest_bits_and_keeps_the_others)
{
    Set_wData(5, 0xFFFD, nullptr, 0);
    Set_Color(5, 6, nullptr, 0);
    EXPECT_EQ(word(), 0xFFFE);
    Set_wData(5, 0, nullptr, 0);
    for (int colour = 0; colour < 4; colour++) {
        Set_Color(5, colour, nullptr, 0);
        EXPECT_EQ(word(), colour);
    }
    Set_Color(5, -1, nullptr, 0);
    EXPECT_EQ(word(), 3);
    Set_Color(5, std::numeric_limits<int>::min(), nullptr, 0);
    EXPECT_EQ(word(), 0);
}

TEST_F(ItemState, colour_is_logged_as_given_and_without_the_access)
{
    Set_Color(5, 6, "screen.cpp", 12);
    Set_Color(5, -1, "screen.cpp", 12);
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].mesg1, "PTRNDISP");
    EXPECT_EQ(lines[0].mesg2, "表示色設定  [A+4 / 6]");
    EXPECT_EQ(lines[0].file, "screen.cpp");
    EXPECT_EQ(lines[0].line, 12);
    EXPECT_EQ(lines[1].mesg2, "表示色設定  [A+4 / -1]");
}

TEST_F(ItemState, flicker_is_set_by_1_and_cleared_by_any_other_value)
{
    Set_wData(5, 0xDFFF, nullptr, 0);
    Set_Flikr(5, 1, nullptr, 0);
    EXPECT_EQ(word(), 0xFFFF);
    Set_Flikr(5, 0, nullptr, 0);
    EXPECT_EQ(word(), 0xDFFF);
    Set_Flikr(5, 1, nullptr, 0);
    Set_Flikr(5, 2, nullptr, 0);
    EXPECT_EQ(word(), 0xDFFF);
    Set_wData(5, 0, nullptr, 0);
    Set_Flikr(5, 1, nullptr, 0);
    EXPECT_EQ(word(), 0x2000);
}

TEST_F(ItemState, flicker_is_logged_both_ways_without_the_access)
{
    Set_Flikr(5, 1, "screen.cpp", 12);
    Set_Flikr(5, -1, "screen.cpp", 13);
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].mesg1, "PTRNDISP");
    EXPECT_EQ(lines[0].mesg2, "点滅表示設定  [A+4]");
    EXPECT_EQ(lines[0].line, 12);
    EXPECT_EQ(lines[1].mesg1, "PTRNDISP");
    EXPECT_EQ(lines[1].mesg2, "通常表示設定  [A+4]");
    EXPECT_EQ(lines[1].line, 13);
}

TEST_F(ItemState, hiding_works_on_the_highest_bit)
{
    Set_Disable(5, 1, 1, nullptr, 0);
    EXPECT_EQ(word(), 0x8000);
    Set_wData(5, 0xFFFF, nullptr, 0);
    Set_Disable(5, 0, 1, nullptr, 0);
    EXPECT_EQ(word(), 0x7FFF);
    Set_Disable(5, 1, 1, nullptr, 0);
    EXPECT_EQ(word(), 0xFFFF);
    Set_Disable(5, 2, 1, nullptr, 0);
    EXPECT_EQ(word(), 0x7FFF);
}

TEST_F(ItemState, disabling_works_on_the_second_highest_bit_in_every_other_mode)
{
    for (const int mode : {0, 2, -1}) {
        Set_wData(5, 0, nullptr, 0);
        Set_Disable(5, 1, mode, nullptr, 0);
        EXPECT_EQ(word(), 0x4000);
        Set_wData(5, 0xFFFF, nullptr, 0);
        Set_Disable(5, 0, mode, nullptr, 0);
        EXPECT_EQ(word(), 0xBFFF);
    }
}

TEST_F(ItemState, hiding_and_disabling_are_logged_with_the_same_texts)
{
    Set_Disable(5, 1, 1, "s.cpp", 1);
    Set_Disable(5, 0, 1, "s.cpp", 1);
    Set_Disable(5, 1, 2, "s.cpp", 1);
    Set_Disable(5, 0, 2, "s.cpp", 1);
    EXPECT_THAT(logged("PTRNDISP"),
                ElementsAre("非表示設定  [A+4]", "表示設定  [A+4]", "非表示設定  [A+4]", "表示設定  [A+4]"));
    EXPECT_THAT(logged("COMNMEM"), IsEmpty());
}

TEST_F(ItemState, is_set_silently_without_a_file_or_without_a_name)
{
    for (const int no : {4, 5}) {
        const char* file = no == 4 ? "s.cpp" : nullptr;
        Set_Color(no, 1, file, 1);
        Set_Flikr(no, 1, file, 1);
        Set_Disable(no, 1, 1, file, 1);
        Set_Disable(no, 1, 0, file, 1);
        EXPECT_EQ(Get_wData(no, nullptr, 0), 0xE001);
    }
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(ItemState, changes_and_logs_nothing_outside_the_store)
{
    for (const int no : {-1, 11, std::numeric_limits<int>::max()}) {
        Set_Color(no, 1, "s.cpp", 1);
        Set_Flikr(no, 1, "s.cpp", 1);
        Set_Disable(no, 1, 1, "s.cpp", 1);
    }
    for (int no = 0; no < PtrnDataNo; no++)
        EXPECT_EQ(Get_wData(no, nullptr, 0), 0);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(ItemState, leaves_number_and_text_alone)
{
    Set_fData(5, 2.5F, nullptr, 0);
    Set_sData(5, "text", nullptr, 0);
    Set_Color(5, 3, nullptr, 0);
    Set_Flikr(5, 1, nullptr, 0);
    Set_Disable(5, 1, 1, nullptr, 0);
    EXPECT_EQ(Get_fData(5, nullptr, 0), 2.5F);
    EXPECT_STREQ(Get_sData(5, nullptr, 0), "text");
}
