// The maintenance screen: what an operator changes with it.
#include "tests/dialogs/Maintenance.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Maintenance, changes_a_log_flag_and_rewrites_the_file_at_once)
{
    addCodes(1);
    open();
    const std::string before(130, '\0');
    ASSERT_EQ(project.read("PtrnFlag"), before);
    project.clearLog();

    clickLine(FLAG_X, 2);
    std::string flags = before;
    flags[102] = 1;
    EXPECT_EQ(project.read("PtrnFlag"), flags);
    EXPECT_EQ(PtrnFlag[102], 1);
    EXPECT_THAT(project.messages(), IsEmpty());

    Set_iData(102, 3, "caller.cpp", 1);
    EXPECT_THAT(project.messages(), ElementsAre("WRITE  [CODE01+2] 3")) << "accesses are logged from now on";

    tick();
    EXPECT_EQ(number(42), 1);
    clickLine(FLAG_X, 2);
    EXPECT_EQ(project.read("PtrnFlag"), before);
}

TEST_F(Maintenance, takes_the_low_byte_of_the_flag_cell)
{
    addCodes(2);
    open();
    screen().SlctDispData(2);
    screen().SetDispData2(3);
    for (const auto& [entered, flag] : {std::pair(257.9F, 1), std::pair(-1.0F, 255), std::pair(2.99F, 2)}) {
        Set_fData(44, entered, nullptr, 0);
        screen().PtrnMesgFunc(44);
        EXPECT_EQ(PtrnFlag[first(2) + 7], flag);
    }
}

TEST_F(Maintenance, leaves_the_flags_of_the_next_code_alone)
{
    project.code("SHORT", 4);
    addCodes(1);
    project.flag(104); // the first data number of the next code
    open();
    ASSERT_EQ(PtrnFlag[104], 1);
    // A disabled check box keeps its value, but its message is sent.
    tick();
    clickLine(FLAG_X, 4);
    EXPECT_EQ(PtrnFlag[104], 1);
    EXPECT_EQ(project.read("PtrnFlag")[104], 1);
}

TEST_F(Maintenance, writes_an_entered_word)
{
    addCodes(1);
    open();
    tick();
    enter(WORD_X, 4, 2, "2.7");
    EXPECT_EQ(word(104), 2);
    EXPECT_EQ(value(104), 0.0F) << "only the word";
    tick();
    EXPECT_EQ(number(54), 2);
}

TEST_F(Maintenance, writes_an_entered_number)
{
    addCodes(1);
    open();
    tick();
    enter(VALUE_X, 9, 3, "12.5");
    EXPECT_EQ(value(109), 12.5F);
    EXPECT_EQ(word(109), 0);
    tick();
    EXPECT_EQ(value(69), 12.5F);
}

TEST_F(Maintenance, writes_an_entered_text)
{
    addCodes(1);
    open();
    tick();
    screen().SetDispData2(10);
    enter(TEXT_X, 1, 0, "abc");
    EXPECT_EQ(text(111), "abc");
    tick();
    EXPECT_EQ(text(71), "abc");
}

TEST_F(Maintenance, edits_the_text_of_the_cell_even_before_it_is_drawn)
{
    addCodes(1);
    open();
    Set_sData(111, "abc", nullptr, 0);
    screen().SetDispData2(10); // and no tick between this and the click
    enter(TEXT_X, 1, 0, "x");
    EXPECT_EQ(text(111), "xabc");
}

TEST_F(Maintenance, records_an_edit_of_a_logged_number)
{
    addCodes(1);
    project.flag(104);
    open();
    tick();
    project.clearLog();
    enter(WORD_X, 4, 2, "9");
    EXPECT_THAT(project.messages(), Contains("WRITE  [CODE01+4] 0x0009"));
}

TEST_F(Maintenance, shows_what_is_typed_while_the_value_changes)
{
    addCodes(1);
    open();
    tick();
    clickLine(VALUE_X, 4);
    type("5");
    tick(); // the cursor appears
    const auto field = [] { return bufferPicture(SystmWnd, VALUE_X, TOP + 4 * SPACING, 80, 16); };
    const Picture typed = field();
    Set_fData(104, 77.5F, nullptr, 0);
    tick(2);
    EXPECT_TRUE(same(field(), typed));
    EXPECT_EQ(value(64), 77.5F) << "the list goes on below it";
    key(XK_Escape);
    tick();
    EXPECT_FALSE(same(field(), typed));
    EXPECT_EQ(word(64), 0);
}

TEST_F(Maintenance, writes_nothing_at_any_other_key)
{
    addCodes(1);
    open();
    tick();
    for (const unsigned long symbol : {XK_Escape, XK_Tab}) {
        clickLine(VALUE_X, 0);
        type("5");
        key(symbol);
        EXPECT_EQ(screen().KeyInputMode, 0);
        EXPECT_EQ(value(100), 0.0F);
    }
}

TEST_F(Maintenance, writes_nothing_for_the_other_columns)
{
    addCodes(1);
    open();
    for (const int cell : {0, 20, 30, 40, 49, 80, 81, 100}) {
        PTRNDATA item{};
        item.DataNo = cell;
        Set_iData(cell, 7, nullptr, 0);
        Set_sData(cell, "x", nullptr, 0);
        const COMNDATA before = ComnData[first(1) + cell % 10];
        screen().PtrnKeyFunc(XK_Return, 0, &item);
        EXPECT_EQ(word(first(1) + cell % 10), before.wData) << cell;
        EXPECT_EQ(value(first(1) + cell % 10), +before.fData) << cell;
        EXPECT_EQ(+ComnData[first(1) + cell % 10].sData, +before.sData) << cell;
    }
}

TEST_F(Maintenance, refuses_entry_in_a_line_without_data_number)
{
    project.code("SHORT", 4);
    addCodes(1);
    open();
    tick();
    clickLine(WORD_X, 4);
    EXPECT_EQ(screen().KeyInputMode, 0);

    PTRNDATA item{};
    item.DataNo = 54;
    Set_iData(54, 7, nullptr, 0);
    screen().PtrnKeyFunc(XK_Return, 0, &item);
    EXPECT_EQ(word(104), 0) << "the first number of the next code";
}

TEST_F(Maintenance, ignores_other_messages)
{
    addCodes(25);
    open();
    const std::string flags = project.read("PtrnFlag");
    for (const int message : {-1, 0, 19, 30, 39, 50, 79, 82, 100})
        screen().PtrnMesgFunc(message);
    EXPECT_EQ(SlctCode, 1);
    EXPECT_EQ(LineNo1, 0);
    EXPECT_EQ(LineNo2, 0);
    EXPECT_EQ(project.read("PtrnFlag"), flags);
}

TEST_F(Maintenance, edits_nothing_when_the_table_has_row_0_alone)
{
    open();
    const std::string flags = project.read("PtrnFlag");
    Clear_AllData(40, 40, 0, 1, "x", nullptr, 0);
    for (int message = 20; message <= 81; message++)
        screen().PtrnMesgFunc(message);
    PTRNDATA item{};
    for (item.DataNo = 50; item.DataNo < 80; item.DataNo++)
        screen().PtrnKeyFunc(XK_Return, 0, &item);
    EXPECT_EQ(project.read("PtrnFlag"), flags);
    for (int no = 0; no < 20; no++)
        EXPECT_EQ(word(no), 0) << no;
}
