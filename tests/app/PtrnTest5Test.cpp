// Mouse: buttons, modifier keys, the pointer's shape and the popup menu.
#include "tests/app/SampleScreen.h"

#include <gmock/gmock.h>

using namespace tessary;

namespace
{

const char* const MENU = "ポップアップメニュー";
const char* const CHILDREN[] = {"子ウィンドウ (1)", "子ウィンドウ (2)", "子ウィンドウ (3)"};

class MouseScreen : public SampleScreen
{
  protected:
    void SetUp() override
    {
        Pattern screen("テスト  （マウス操作）");
        screen.size(640, 400);
        for (int no = 468; no <= 471; no++)
            screen.item(PTRN_RECT, areaX(no), 20, areaX(no) + 80, 60)
                .parm(SHAPE_FILLED, 1)
                .code(CODE, offset(no));
        for (int no = 472; no <= 481; no++)
            screen.item(PTRN_MARK, lampX(no), 100, lampX(no) + 32, 132)
                .code(CODE, offset(no))
                .action(ACTION_MESSAGE_SELF);
        for (int no = 482; no <= 484; no++)
            screen.item(PTRN_BUTN, buttonX(no), 160, buttonX(no) + 80, 200)
                .code(CODE, offset(no))
                .action(ACTION_MESSAGE_SELF);
        screen.save(project);
        Pattern(MENU).size(120, 90).header(HEDR_MODELESS, 1).save(project);
        for (const char* name : CHILDREN)
            Pattern(name)
                .size(100, 50)
                .header(HEDR_KIND, 2)
                .header(HEDR_LEFT, 400)
                .header(HEDR_TOP, 300)
                .header(HEDR_MODELESS, 1)
                .save(project);
        start();
    }
    void openMouse() { ASSERT_TRUE(openTop("テスト  （マウス操作）")); }

    static int areaX(int no) { return 20 + 100 * (no - 468); }
    static int lampX(int no) { return 20 + 40 * (no - 472); }
    static int buttonX(int no) { return 20 + 100 * (no - 482); }
    static constexpr int EMPTY_X = 50;
    static constexpr int EMPTY_Y = 350;

    void moveToArea(int no) { moveTo(AppliWnd, areaX(no) + 40, 40); }
    void clickLamp(int no, unsigned button) { clickAt(lampX(no) + 16, 116, button); }
    /// Colour selections of the four areas.
    static std::vector<int> areas() { return {colorOf(468), colorOf(469), colorOf(470), colorOf(471)}; }
    /// The areas' colour selections when only `lit` is shown as hit.
    static std::vector<int> only(int lit)
    {
        std::vector<int> colors(4, 0);
        colors[static_cast<std::size_t>(lit - 468)] = 1;
        return colors;
    }
    static std::vector<int> none() { return std::vector<int>(4, 0); }

    /// What the hook answers for a point in the middle of an area.
    int mouse(int area, int button, int state)
    {
        return AppliWnd->PtrnMouseFunc({areaX(area) + 40, 40}, button, state);
    }
};

} // namespace

TEST_F(MouseScreen, opens_with_all_lamps_off)
{
    for (int no = 471; no <= 482; no++) {
        setWord(no, 1);
        setNumber(no, 5);
    }
    openMouse();
    for (int no = 472; no <= 481; no++) {
        EXPECT_EQ(word(no), 0) << no;
        EXPECT_EQ(number(no), 0) << no;
    }
    EXPECT_EQ(word(471), 1);
}

TEST_F(MouseScreen, left_clicks_switch_the_left_lamps)
{
    openMouse();
    for (int no = 472; no <= 481; no++) {
        clickLamp(no, 1);
        EXPECT_EQ(word(no), no <= 476 ? 1 : 0) << no;
    }
    clickLamp(474, 1);
    EXPECT_EQ(word(474), 0);
    EXPECT_EQ(word(473), 1);
}

TEST_F(MouseScreen, right_clicks_switch_the_right_lamps)
{
    openMouse();
    for (int no = 472; no <= 481; no++) {
        clickLamp(no, 3);
        EXPECT_EQ(word(no), no >= 477 ? 1 : 0) << no;
    }
    clickLamp(481, 3);
    EXPECT_EQ(word(481), 0);
    EXPECT_EQ(word(480), 1);
}

TEST_F(MouseScreen, the_pointer_is_a_cross_over_items_and_an_arrow_elsewhere)
{
    openMouse();
    moveTo(AppliWnd, EMPTY_X, EMPTY_Y);
    EXPECT_EQ(AppliWnd->CursorType, 0);
    moveTo(AppliWnd, lampX(472) + 5, 110);
    EXPECT_EQ(AppliWnd->CursorType, 1);
    moveTo(AppliWnd, EMPTY_X, EMPTY_Y);
    EXPECT_EQ(AppliWnd->CursorType, 0);
    moveToArea(470);
    EXPECT_EQ(AppliWnd->CursorType, 1);
}

TEST_F(MouseScreen, the_first_area_lights_up_below_the_pointer)
{
    openMouse();
    moveTo(AppliWnd, EMPTY_X, EMPTY_Y);
    EXPECT_EQ(areas(), none());
    moveToArea(468);
    EXPECT_EQ(areas(), only(468));
    moveToArea(469);
    EXPECT_EQ(areas(), none()) << "the second one wants Shift";
    moveToArea(468);
    moveTo(AppliWnd, EMPTY_X, EMPTY_Y);
    EXPECT_EQ(areas(), none()) << "the pointer has left";
}

TEST_F(MouseScreen, the_second_area_lights_up_with_shift)
{
    openMouse();
    moveToArea(468);
    user.pressKey(XK_Shift_L);
    moveToArea(469);
    EXPECT_EQ(areas(), only(469));
    user.releaseKey(XK_Shift_L);
    moveTo(AppliWnd, areaX(469) + 41, 40);
    EXPECT_EQ(areas(), none());
}

TEST_F(MouseScreen, the_third_area_lights_up_at_a_left_press_with_shift)
{
    openMouse();
    moveToArea(470);
    user.pressKey(XK_Shift_L);
    user.press(1);
    user.settle();
    EXPECT_EQ(areas(), only(470));
    user.release(1);
    user.releaseKey(XK_Shift_L);
    moveTo(AppliWnd, areaX(470) + 41, 40);
    EXPECT_EQ(areas(), none());
}

TEST_F(MouseScreen, the_fourth_area_lights_up_at_a_right_press_with_control)
{
    openMouse();
    moveToArea(471);
    user.pressKey(XK_Control_L);
    user.press(3);
    user.settle();
    EXPECT_EQ(areas(), only(471));
    user.release(3);
    user.releaseKey(XK_Control_L);
}

TEST_F(MouseScreen, each_area_wants_its_own_button_and_modifier)
{
    openMouse();
    struct Gesture {
        int button;
        int state;
    };
    const Gesture own[] = {{0, 0}, {0, 1}, {1, 1}, {2, 2}};
    for (int area = 468; area <= 471; area++)
        for (int button = 0; button <= 2; button++)
            for (const int state : {0, 1, 2, 4}) {
                const Gesture& wanted = own[area - 468];
                const bool lit = button == wanted.button && state == wanted.state;
                EXPECT_EQ(mouse(area, button, state), 1);
                EXPECT_EQ(areas(), lit ? only(area) : none())
                    << "area " << area << ", button " << button << ", state " << state;
            }
}

TEST_F(MouseScreen, events_outside_the_areas_go_on_to_the_items)
{
    openMouse();
    EXPECT_EQ(AppliWnd->PtrnMouseFunc({EMPTY_X, EMPTY_Y}, 0, 0), 0);
    EXPECT_EQ(AppliWnd->PtrnMouseFunc({lampX(472) + 16, 116}, 1, 0), 0);
}

TEST_F(MouseScreen, hidden_areas_do_not_answer)
{
    openMouse();
    setWord(468, STATE_HIDDEN);
    tick();
    EXPECT_EQ(mouse(468, 0, 0), 0);
    EXPECT_EQ(colorOf(468), 0);
}

TEST_F(MouseScreen, a_right_press_beside_the_items_opens_the_popup_menu_at_the_pointer)
{
    openMouse();
    clickAt(EMPTY_X, EMPTY_Y, 3);
    const CPtrnDisp* popup = child(MENU);
    EXPECT_EQ(popup->WindRect.left, EMPTY_X);
    EXPECT_EQ(popup->WindRect.top, EMPTY_Y);
}

TEST_F(MouseScreen, the_popup_menu_opens_only_for_a_right_press_alone_beside_the_items)
{
    openMouse();
    clickAt(EMPTY_X, EMPTY_Y, 1);
    clickAt(EMPTY_X, EMPTY_Y, 2);
    clickLamp(472, 3);
    clickAt(areaX(468) + 40, 40, 3);
    for (const int state : {1, 2, 4})
        AppliWnd->PtrnMouseFunc({EMPTY_X, EMPTY_Y}, 2, state);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
}

TEST_F(MouseScreen, clicks_on_items_close_the_popup_menu)
{
    openMouse();
    for (const unsigned button : {1u, 3u}) {
        clickAt(EMPTY_X, EMPTY_Y, 3);
        child(MENU);
        clickLamp(472, button);
        EXPECT_EQ(AppliWnd->ChildWnd1, nullptr) << "button " << button;
    }
}

TEST_F(MouseScreen, buttons_open_the_child_windows)
{
    openMouse();
    for (int i = 0; i < 3; i++) {
        clickAt(buttonX(482 + i) + 40, 180);
        child(CHILDREN[i]);
    }
    AppliWnd->PtrnRbtnFunc(482);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr) << "a right click only closes";
}

TEST_F(MouseScreen, other_messages_change_nothing)
{
    openMouse();
    for (const int no : {-1, 0, 467, 468, 471, 485, 1571, 5000}) {
        AppliWnd->PtrnMesgFunc(no);
        AppliWnd->PtrnRbtnFunc(no);
        EXPECT_EQ(word(no), 0) << no;
    }
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    AppliWnd->PtrnMesgFunc(477);
    AppliWnd->PtrnRbtnFunc(472);
    EXPECT_EQ(word(477), 0);
    EXPECT_EQ(word(472), 0);
}

// --- other code tables -----------------------------------------------------------------------------------

namespace
{

class MouseCodes : public Screen
{
};

} // namespace

TEST_F(MouseCodes, clear_the_lamps_of_each_button_as_far_as_their_code_s_count_exceeds_their_number)
{
    project.code("LEFT", 476).code("RIGHT", 1095); // the left lamps end the first code
    Pattern("テスト  （マウス操作）").save(project);
    start();
    for (int no = 471; no <= 482; no++)
        Set_wData(no, 1, nullptr, 0);
    openTop("テスト  （マウス操作）");
    for (int no = 471; no <= 482; no++)
        EXPECT_EQ(Get_wData(no, nullptr, 0), no == 471 || no == 476 ? 1 : 0) << no;
}
