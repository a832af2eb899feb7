// The maintenance screen: what its two lists show.
#include "tests/dialogs/Maintenance.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Maintenance, is_a_class_of_its_own_with_the_selection_on_row_1)
{
    addCodes(3);
    open();
    EXPECT_NE(dynamic_cast<CPtrnMente*>(SystmWnd), nullptr);
    EXPECT_EQ(SlctCode, 1);
    EXPECT_THAT(codes(), ElementsAre("CODE01", "CODE02", "CODE03", "", "", "", "", "", "", ""))
        << "row 0 is not listed";
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(Maintenance, shows_offset_flag_word_number_and_text_of_ten_data_numbers)
{
    addCodes(2);
    project.flag(101, 5);
    open();
    Set_wData(101, 0x1234, nullptr, 0);
    Set_fData(101, -2.5F, nullptr, 0);
    Set_sData(101, "運転中", nullptr, 0);
    tick();
    for (int i = 0; i < LINES; i++)
        EXPECT_EQ(number(30 + i), i);
    EXPECT_EQ(number(41), 5) << "the whole byte of the flag";
    EXPECT_EQ(number(51), 0x1234);
    EXPECT_EQ(value(61), -2.5F);
    EXPECT_EQ(text(71), "運転中");
    EXPECT_EQ(number(40), 0);
    EXPECT_EQ(usableLines(), LINES);
    for (const int x : {OFFSET_X, FLAG_X, WORD_X, TEXT_X})
        EXPECT_TRUE(hasInk(x, 1)) << x;
    EXPECT_EQ(number(80), 0);
    EXPECT_EQ(number(81), 0);
}

TEST_F(Maintenance, stays_live_at_every_tick)
{
    addCodes(1);
    open();
    for (const int step : {7, 8, 9}) {
        Set_iData(103, step, nullptr, 0);
        tick();
        EXPECT_EQ(number(63), step);
    }
    Set_sData(103, "abc", nullptr, 0);
    tick();
    EXPECT_EQ(text(73), "abc");
    Set_sData(103, "", nullptr, 0);
    tick();
    EXPECT_EQ(text(73), "");
}

TEST_F(Maintenance, wipes_what_others_have_left_in_its_cells)
{
    addCodes(2);
    open();
    Clear_AllData(20, 60, 0x2003, 99, "remains", nullptr, 0);
    screen().SetDispData1(0);
    tick();
    EXPECT_EQ(text(23), "");
    EXPECT_EQ(word(23), 0);
    EXPECT_EQ(word(20), 1);
    EXPECT_EQ(word(21), 0);
    EXPECT_EQ(word(55), 0);
    EXPECT_EQ(number(55), 0);
    EXPECT_EQ(text(75), "");
}

TEST_F(Maintenance, selects_the_code_of_the_clicked_line)
{
    addCodes(12);
    open();
    clickLine(CODE_X, 3);
    EXPECT_EQ(SlctCode, 4);
    EXPECT_THAT(selected(), ElementsAre(3));
    Set_iData(first(4) + 2, 42, nullptr, 0);
    tick();
    EXPECT_EQ(number(62), 42);
}

TEST_F(Maintenance, selects_relative_to_the_first_line_shown)
{
    addCodes(12);
    open();
    screen().SetDispData1(2);
    clickLine(CODE_X, 3);
    EXPECT_EQ(SlctCode, 6);
}

TEST_F(Maintenance, selects_row_9_with_line_3_when_five_rows_are_above)
{
    addCodes(9);
    open();
    LineNo1 = 5;
    screen().PtrnMesgFunc(23);
    EXPECT_EQ(SlctCode, 9);
}

TEST_F(Maintenance, changes_nothing_when_the_line_is_beyond_the_table)
{
    addCodes(8);
    open();
    LineNo1 = 5;
    screen().PtrnMesgFunc(23);
    EXPECT_EQ(SlctCode, 1);
    LineNo1 = 0;
    clickLine(CODE_X, 9);
    EXPECT_EQ(SlctCode, 1);
}

TEST_F(Maintenance, never_selects_row_0)
{
    addCodes(2);
    open();
    screen().SlctDispData(0);
    EXPECT_EQ(SlctCode, 1);
    screen().SlctDispData(-7);
    EXPECT_EQ(SlctCode, 1);
    LineNo1 = -1;
    screen().PtrnMesgFunc(20);
    EXPECT_EQ(SlctCode, 1);
}

TEST_F(Maintenance, pages_the_list_of_codes_with_its_scroll_bar)
{
    addCodes(25);
    open();
    clickInWindow(CODE_BAR_X + BAR_WIDTH / 2, BOTTOM - 8); // the lower arrow
    EXPECT_EQ(number(80), 1);
    EXPECT_EQ(LineNo1, 1);
    EXPECT_EQ(codes().front(), "CODE02");
    EXPECT_EQ(codes().back(), "CODE11");
    EXPECT_THAT(selected(), IsEmpty()) << "the selected code is out of sight";

    screen().PtrnMesgFunc(20);
    EXPECT_EQ(SlctCode, 2);
    clickInWindow(CODE_BAR_X + BAR_WIDTH / 2, TOP + 8);
    EXPECT_EQ(LineNo1, 0);
    EXPECT_THAT(selected(), ElementsAre(1));
}

TEST_F(Maintenance, can_be_paged_to_the_last_code)
{
    addCodes(25);
    open();
    Set_iData(80, 15, nullptr, 0);
    screen().PtrnMesgFunc(80);
    EXPECT_EQ(codes().back(), "CODE25");
    EXPECT_EQ(number(80), 15);
}

TEST_F(Maintenance, pages_the_list_of_data_numbers_with_its_scroll_bar)
{
    addCodes(2);
    open();
    clickInWindow(DATA_BAR_X + BAR_WIDTH / 2, BOTTOM - 8);
    EXPECT_EQ(LineNo2, 1);
    EXPECT_EQ(number(30), 1);
    EXPECT_EQ(number(39), 10);
    Set_iData(81, 20, nullptr, 0);
    screen().PtrnMesgFunc(81);
    EXPECT_EQ(number(39), 29);
    EXPECT_EQ(usableLines(), LINES);
    tick(3);
    EXPECT_EQ(number(39), 29) << "the tick keeps the place";
    EXPECT_EQ(number(81), 20);
}

TEST_F(Maintenance, disables_the_lines_beyond_the_code)
{
    project.code("SHORT", 4);
    addCodes(1);
    open();
    EXPECT_EQ(usableLines(), 4);
    EXPECT_EQ(number(33), 3);
    EXPECT_EQ(number(34), 0);
    EXPECT_TRUE(word(81) & STATE_HIDDEN) << "nothing to scroll";

    clickLine(CODE_X, 1);
    tick();
    EXPECT_EQ(usableLines(), LINES);
    EXPECT_FALSE(word(81) & STATE_HIDDEN);
}

TEST_F(Maintenance, leaves_no_remains_of_longer_texts_in_the_lines_it_disables)
{
    addCodes(1);
    project.code("SHORT", 2);
    open();
    for (int no = 100; no < 110; no++) {
        setCell(no, 0x0777, 12345.5F, "some long text");
        PtrnFlag[no] = 1;
    }
    tick();
    for (const int x : {OFFSET_X + 20, FLAG_X, WORD_X, VALUE_X + 30, TEXT_X})
        EXPECT_TRUE(hasInk(x, 9)) << x;
    clickLine(CODE_X, 1);
    tick();
    for (const int x : {OFFSET_X, FLAG_X, WORD_X, VALUE_X, VALUE_X + 30, TEXT_X, TEXT_X + 40, TEXT_X + 80})
        for (int line = 2; line < LINES; line++)
            EXPECT_FALSE(hasInk(x, line)) << x << ", line " << line;
    EXPECT_TRUE(hasInk(WORD_X, 1));
    EXPECT_EQ(pixel(SystmWnd, TEXT_X + 40, TOP + 5 * SPACING + 8), color(TEXT_BACK4));

    clickLine(CODE_X, 0);
    tick();
    for (const int x : {OFFSET_X + 20, FLAG_X, WORD_X, VALUE_X + 30, TEXT_X})
        EXPECT_TRUE(hasInk(x, 9)) << x << ": all are back";
}

TEST_F(Maintenance, shows_nothing_for_a_code_without_data_numbers)
{
    project.code("EMPTY", 0);
    addCodes(1);
    open();
    EXPECT_EQ(usableLines(), 0);
    screen().PtrnMesgFunc(40);
    tick();
    EXPECT_EQ(usableLines(), 0);
}

TEST_F(Maintenance, remembers_the_place_in_every_code)
{
    addCodes(3);
    open();
    screen().SetDispData2(5);
    screen().SlctDispData(2);
    EXPECT_EQ(PtrnCode[1].DispNo, 5);
    EXPECT_EQ(LineNo2, 0);
    screen().SetDispData2(7);
    screen().SlctDispData(1);
    EXPECT_EQ(LineNo2, 5);
    EXPECT_EQ(number(81), 5);
    screen().SlctDispData(2);
    EXPECT_EQ(LineNo2, 7);
}

TEST_F(Maintenance, starts_at_the_top_when_the_remembered_place_is_none_of_the_code)
{
    addCodes(2);
    open();
    for (const int place : {-1, 30, 2147483647}) {
        PtrnCode[2].DispNo = place;
        screen().SlctDispData(2);
        EXPECT_EQ(LineNo2, 0) << place;
        EXPECT_EQ(usableLines(), LINES);
        screen().SlctDispData(1);
    }
}

TEST_F(Maintenance, shows_the_same_code_and_lines_when_it_is_opened_again)
{
    addCodes(25);
    open();
    screen().SetDispData1(3);
    screen().SlctDispData(9);
    screen().SetDispData2(4);
    PtrnDispSysWnd("", nullptr, 0);
    EXPECT_EQ(SystmWnd, nullptr);
    Clear_AllData(20, 62, nullptr, 0);
    reopen();
    EXPECT_EQ(SlctCode, 9);
    EXPECT_EQ(codes().front(), "CODE04");
    EXPECT_THAT(selected(), ElementsAre(5));
    EXPECT_EQ(number(30), 4);
    EXPECT_EQ(number(80), 3);
    EXPECT_EQ(number(81), 4);
}

TEST_F(Maintenance, shows_empty_lists_when_the_table_has_row_0_alone)
{
    open();
    EXPECT_EQ(PtrnRecd, 1);
    EXPECT_THAT(codes(), testing::Each(""));
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(usableLines(), 0);
    EXPECT_TRUE(word(80) & STATE_HIDDEN);
    EXPECT_TRUE(word(81) & STATE_HIDDEN);
    tick(2);
    for (const int x : {CODE_X, OFFSET_X, FLAG_X, WORD_X, VALUE_X, TEXT_X})
        for (int line = 0; line < LINES; line++)
            EXPECT_FALSE(hasInk(x, line)) << x << ", line " << line;
}

TEST_F(Maintenance, opens_without_any_code_table)
{
    maintenance().save(project);
    unlink((project.folder() + "/PtrnCode").c_str());
    start();
    reopen();
    EXPECT_EQ(PtrnRecd, 0);
    for (int message = 20; message <= 81; message++)
        screen().PtrnMesgFunc(message);
    PTRNDATA item{};
    item.DataNo = 50;
    screen().PtrnKeyFunc(XK_Return, 0, &item);
    tick(2);
    EXPECT_EQ(SlctCode, 1);
}

TEST_F(Maintenance, survives_a_code_whose_numbers_lie_outside_the_store)
{
    project.code("FAR", 20, 2000000000)
        .code("BELOW", 20, -10)
        .code("EDGE", 12, 140)
        .code("LAST", 20, 2147483647 - 20);
    open();
    EXPECT_EQ(usableLines(), 0);
    screen().PtrnMesgFunc(40);
    for (int row = 1; row < PtrnRecd; row++) {
        screen().SlctDispData(row);
        for (const int place : {0, 19, 2147483647, -2147483647 - 1}) {
            screen().SetDispData2(place);
            screen().SetDispData1(place);
            for (int message = 20; message <= 49; message++)
                screen().PtrnMesgFunc(message);
            tick();
            screen().SlctDispData(row);
        }
    }
}

TEST_F(Maintenance, keeps_a_selection_only_while_the_table_has_it)
{
    addCodes(2);
    SlctCode = 17;
    LineNo1 = 15;
    LineNo2 = 3;
    open();
    EXPECT_EQ(SlctCode, 1);
    EXPECT_EQ(usableLines(), LINES);
}

TEST_F(Maintenance, shows_a_code_that_fills_its_field)
{
    addCodes(1);
    const std::string full(22, 'X');
    project.write("PtrnCode", project.read("PtrnCode") + full + int32(1) + int32(130) + int32(0));
    open();
    EXPECT_EQ(text(21), full);
}
