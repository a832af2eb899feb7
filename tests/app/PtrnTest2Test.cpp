// Texts and buttons: colours and blinking from radio buttons and check boxes, popup and child windows.
#include "tests/app/SampleScreen.h"

#include <gmock/gmock.h>

using namespace tessary;

namespace
{

const char* const MENU = "ポップアップメニュー";
const char* const CHILDREN[] = {"子ウィンドウ (1)", "子ウィンドウ (2)", "子ウィンドウ (3)"};

constexpr int BUTTON_X = 300;
constexpr int BUTTON_Y = 100;
constexpr int MENU_WIDTH = 120;
constexpr int MENU_HEIGHT = 90;

class Buttons : public SampleScreen
{
  protected:
    void SetUp() override
    {
        Pattern screen("テスト  （文字列・ボタン）");
        screen.size(640, 400);
        // Radio buttons 1 to 3 of each group, check boxes, and the buttons.
        for (int group = 0; group < 3; group++)
            for (int value = 1; value <= 3; value++)
                screen.item(PTRN_RDIO, 20 + 40 * value, 20 + 30 * group, 36 + 40 * value, 36 + 30 * group)
                    .parm(RDIO_VALUE, value)
                    .code(CODE, offset(106 + group))
                    .action(ACTION_MESSAGE_SELF);
        for (const int no : {114, 115, 116, 1551, 1552, 1553})
            screen.item(PTRN_CHCK, checkX(no), 120, checkX(no) + 16, 136)
                .code(CODE, offset(no))
                .action(ACTION_MESSAGE_SELF);
        screen.item(PTRN_BUTN, BUTTON_X, BUTTON_Y, BUTTON_X + 80, BUTTON_Y + 40)
            .code(CODE, offset(104))
            .action(ACTION_MESSAGE_SELF);
        for (int no = 482; no <= 484; no++)
            screen.item(PTRN_BUTN, BUTTON_X, 200 + 50 * (no - 482), BUTTON_X + 80, 240 + 50 * (no - 482))
                .code(CODE, offset(no))
                .action(ACTION_MESSAGE_SELF);
        screen.save(project);
        Pattern(MENU).size(MENU_WIDTH, MENU_HEIGHT).header(HEDR_MODELESS, 1).save(project);
        for (const char* name : CHILDREN)
            Pattern(name)
                .size(200, 100)
                .header(HEDR_KIND, 2)
                .header(HEDR_LEFT, 40)
                .header(HEDR_TOP, 280)
                .header(HEDR_MODELESS, 1)
                .save(project);
        start();
    }
    void openButtons() { ASSERT_TRUE(openTop("テスト  （文字列・ボタン）")); }

    static int checkX(int no) { return no < 1551 ? 20 + 30 * (no - 114) : 140 + 30 * (no - 1551); }
    void clickRadio(int group, int value) { clickAt(28 + 40 * value, 28 + 30 * group); }
    void clickCheck(int no) { clickAt(checkX(no) + 8, 128); }
};

} // namespace

TEST_F(Buttons, open_with_the_first_radio_buttons_and_the_first_colours)
{
    for (int no = 100; no <= 110; no++) {
        setNumber(no, 7);
        setWord(no, 0x2003);
    }
    setNumber(1547, 7);
    openButtons();
    for (const int no : {106, 107, 108})
        EXPECT_EQ(number(no), 1) << no;
    EXPECT_EQ(number(1547), 0);
    for (const int no : {101, 102, 103})
        EXPECT_EQ(word(no), 0x2000) << "only the colour selection of " << no;
    for (const int no : {100, 104, 105, 109, 110}) {
        EXPECT_EQ(number(no), 7) << no;
        EXPECT_EQ(word(no), 0x2003) << no;
    }
}

TEST_F(Buttons, radio_buttons_set_the_colour_of_their_text)
{
    openButtons();
    for (int value = 1; value <= 3; value++) {
        clickRadio(1, value);
        EXPECT_EQ(colorOf(102), value);
    }
    EXPECT_EQ(colorOf(101), 1) << "every message takes over all three values";
    EXPECT_EQ(colorOf(103), 1);
    clickRadio(0, 2);
    clickRadio(2, 3);
    EXPECT_EQ(colorOf(101), 2);
    EXPECT_EQ(colorOf(102), 3);
    EXPECT_EQ(colorOf(103), 3);
}

TEST_F(Buttons, each_of_the_messages_105_to_108_sets_all_three_colours)
{
    openButtons();
    for (int message = 105; message <= 108; message++) {
        for (int i = 0; i < 3; i++) {
            setWord(101 + i, 0x2000);
            setNumber(106 + i, i + 1);
        }
        AppliWnd->PtrnMesgFunc(message);
        EXPECT_EQ(word(101), 0x2001) << message;
        EXPECT_EQ(word(102), 0x2002) << message;
        EXPECT_EQ(word(103), 0x2003) << message;
    }
}

TEST_F(Buttons, check_boxes_set_colours)
{
    openButtons();
    for (const auto& [check, cell] : {std::pair(114, 436), std::pair(115, 435), std::pair(116, 1549)}) {
        clickCheck(check);
        EXPECT_EQ(word(cell), 1) << cell;
        for (const int other : {435, 436, 1549}) {
            if (other != cell) {
                EXPECT_EQ(word(other), 0) << cell;
            }
        }
        clickCheck(check);
        EXPECT_EQ(word(cell), 0) << cell;
    }
}

TEST_F(Buttons, check_boxes_switch_blinking)
{
    openButtons();
    for (const auto& [check, cell] : {std::pair(1551, 436), std::pair(1552, 435), std::pair(1553, 1549)}) {
        clickCheck(check);
        EXPECT_EQ(word(cell), 0x2000) << cell;
        for (const int other : {435, 436, 1549}) {
            if (other != cell) {
                EXPECT_EQ(word(other), 0) << cell;
            }
        }
        clickCheck(check);
        EXPECT_EQ(word(cell), 0) << cell;
    }
}

TEST_F(Buttons, any_value_but_0_switches_blinking_on)
{
    openButtons();
    setNumber(1551, -3);
    AppliWnd->PtrnMesgFunc(1551);
    EXPECT_TRUE(blinks(436));
}

TEST_F(Buttons, the_popup_menu_opens_beside_its_button)
{
    openButtons();
    clickAt(BUTTON_X + 40, BUTTON_Y + 20);
    const CPtrnDisp* popup = child(MENU);
    EXPECT_EQ(popup->WindRect.left, BUTTON_X + 80);
    EXPECT_EQ(popup->WindRect.top, BUTTON_Y);
    EXPECT_EQ(popup->PtrnType, KIND_CHILD1);
}

TEST_F(Buttons, the_popup_menu_opens_beside_the_button_as_it_is_seen)
{
    openButtons();
    // A part of the pattern shown at another place of the screen.
    AppliWnd->PtrnSetOffset(0, 50, 30, nullptr, 0);
    AppliWnd->WindRect = SetRect(200, 100, 840, 500);
    AppliWnd->PtrnMesgFunc(104);
    const CPtrnDisp* popup = child(MENU);
    EXPECT_EQ(popup->WindRect.left, BUTTON_X + 80 + 200 - 50);
    EXPECT_EQ(popup->WindRect.top, BUTTON_Y + 100 - 30);
}

TEST_F(Buttons, the_popup_menu_opens_at_the_corner_when_there_is_no_button)
{
    Pattern("テスト  （文字列・ボタン）").size(640, 400).save(project);
    openButtons();
    AppliWnd->PtrnMesgFunc(104);
    const CPtrnDisp* popup = child(MENU);
    EXPECT_EQ(popup->WindRect.left, 0);
    EXPECT_EQ(popup->WindRect.top, 0);
}

TEST_F(Buttons, open_the_three_child_windows_one_in_place_of_the_other)
{
    openButtons();
    for (int i = 0; i < 3; i++) {
        clickAt(BUTTON_X + 40, 220 + 50 * i);
        child(CHILDREN[i]);
        EXPECT_EQ(AppliWnd->ChildWnd2, nullptr);
    }
}

TEST_F(Buttons, any_message_closes_the_child_window_first)
{
    openButtons();
    for (const int message : {105, 108, 114, 1553, 0, 1234}) {
        AppliWnd->PtrnMesgFunc(482);
        ASSERT_TRUE(AppliWnd->ChildWnd1);
        AppliWnd->PtrnMesgFunc(message);
        EXPECT_EQ(AppliWnd->ChildWnd1, nullptr) << message;
    }
}

TEST_F(Buttons, other_messages_change_no_cell)
{
    openButtons();
    for (const int message : {-1, 0, 103, 109, 113, 117, 481, 485, 1550, 1554, 1571, 2000})
        AppliWnd->PtrnMesgFunc(message);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    for (int no = 0; no <= 1571; no++)
        EXPECT_EQ(word(no), 0) << no;
}

TEST_F(Buttons, leave_no_line_in_the_log)
{
    openButtons();
    project.clearLog();
    for (int message = 100; message <= 120; message++)
        AppliWnd->PtrnMesgFunc(message);
    EXPECT_THAT(project.messages(), testing::IsEmpty());
}
