// How an entry ends by the corrected rules: presses elsewhere and keys store it, a refused value stays.
#include "tests/support/UseEdition.h"
#include "tests/window/KeyEdit.h"

#include "pattern/RealParm.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

/// The fields with a button that sends a message at 200,20, one that stops the panel at 200,50, a scroll bar
/// at 100,150 and a spin button at 200,80. The number takes 10 to 50.
class PressDuringEntry : public KeyEdit
{
  protected:
    void SetUp() override
    {
        KeyEdit::SetUp();
        writeFile("ProjPath/MesgData.prf", "[MESGDATA]\nMESG1=,0,limits\n");
        writeFile("ProjPath/LimtData.prf", "[LIMTDATA]\nLIMT1=D,14,14,-2,0.5,0,0\n");
        Pattern pattern = fields("p", NAV_UP | NAV_DOWN);
        pattern.item(PTRN_BUTN, 200, 20, 250, 40).code("D", 10).action(ACTION_MESSAGE_SELF);
        pattern.item(PTRN_BUTN, 200, 50, 250, 70).code("D", 11).action(ACTION_STOP);
        pattern.item(PTRN_SPIN, 200, 80, 216, 112).code("D", 12);
        pattern.item(PTRN_SBAR, 100, 170, 250, 190).code("D", 13);
        know(fields("child").header(HEDR_LEFT, 500).header(HEDR_MODELESS, 1));
        open(pattern);
        PTRNDATA& item = AppliWnd->PtrnData->PtrnData[0];
        item.Parm[FIELD_MINIMUM] = ParmOfReal(10);
        item.Parm[FIELD_MAXIMUM] = ParmOfReal(50);
        item.Parm[FIELD_MESSAGE] = 1;
        Set_dData(NUMBER, 19, nullptr, 0);
        tick();
    }

    void typeInto(int no, const std::string& keys)
    {
        edit(no);
        type(keys);
    }
    void pressButton(unsigned button = 1) { click(AppliWnd, 210, 30, button); }

    static std::string errorLine() { return Get_sData(DTNO_SYSEROR, nullptr, 0); }
    static bool errorShown() { return Get_wData(DTNO_SYSEROR, nullptr, 0) == 1; }
};

class CorrectedPress : public PressDuringEntry
{
    UseEdition edition_;
};

} // namespace

TEST_F(PressDuringEntry, discards_it_in_the_first_edition)
{
    typeInto(NUMBER, "5");
    pressButton();
    EXPECT_FALSE(editing());
    EXPECT_EQ(number(NUMBER), 19);
    EXPECT_THAT(callsOf({"keyfunc", "mesg"}), ElementsAre("mesg 110"));
}

TEST_F(CorrectedPress, stores_the_entry_as_return_does_and_then_works)
{
    typeInto(NUMBER, "25");
    pressButton();
    EXPECT_FALSE(editing());
    EXPECT_EQ(number(NUMBER), 25);
    EXPECT_THAT(callsOf({"keyfunc", "mesg"}), ElementsAre("keyfunc 65293 0 100", "mesg 110"));
}

TEST_F(CorrectedPress, of_the_right_button_or_the_wheel_stores_too)
{
    typeInto(NUMBER, "25");
    pressButton(3);
    EXPECT_EQ(number(NUMBER), 25);
    EXPECT_THAT(callsOf({"keyfunc", "rbtn"}), ElementsAre("keyfunc 65293 0 100", "rbtn 110"));
    typeInto(NUMBER, "26");
    click(AppliWnd, 150, 180, 5);
    EXPECT_EQ(number(NUMBER), 26);
    EXPECT_EQ(number(NUMBER + 13), 1) << "the scroll bar has turned";
}

TEST_F(CorrectedPress, on_nothing_stores_too)
{
    typeInto(TEXT, "ab");
    click(AppliWnd, 280, 150);
    EXPECT_EQ(string(TEXT), "ab");
}

TEST_F(CorrectedPress, into_another_field_stores_and_opens_that_one)
{
    typeInto(NUMBER, "25");
    click(AppliWnd, LEFT + 5, top(TEXT) + 5);
    EXPECT_EQ(number(NUMBER), 25);
    EXPECT_TRUE(editing());
    EXPECT_EQ(edited(), TEXT);
}

TEST_F(CorrectedPress, in_another_window_stores_too)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "child");
    typeInto(NUMBER, "25");
    click(child, 280, 150);
    EXPECT_EQ(number(NUMBER), 25);
    EXPECT_FALSE(editing());
}

TEST_F(CorrectedPress, does_nothing_else_when_the_value_is_refused)
{
    typeInto(NUMBER, "99");
    for (const unsigned button : {1U, 3U}) {
        pressButton(button);
        EXPECT_TRUE(editing());
        EXPECT_TRUE(errorShown());
        EXPECT_THAT(errorLine(), HasSubstr("limits"));
        EXPECT_THAT(errorLine(), HasSubstr("10 ... 50"));
        EXPECT_THAT(callsOf({"keyfunc", "mesg", "rbtn"}), IsEmpty());
    }
    click(AppliWnd, 150, 180, 5);
    EXPECT_EQ(number(NUMBER + 13), 0);
    click(AppliWnd, LEFT + 5, top(TEXT) + 5);
    EXPECT_EQ(edited(), NUMBER);
    EXPECT_EQ(number(NUMBER), 19);
}

TEST_F(CorrectedPress, on_the_stop_button_works_also_when_the_value_is_refused)
{
    typeInto(NUMBER, "99");
    click(AppliWnd, 210, 60);
    EXPECT_EQ(SystemStop, 1);
    EXPECT_EQ(number(NUMBER), 19);
}

TEST_F(CorrectedPress, escape_alone_discards)
{
    typeInto(NUMBER, "25");
    key(XK_Escape);
    EXPECT_EQ(number(NUMBER), 19);
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre("keyfunc 65307 0 100"));
}

TEST_F(CorrectedPress, a_window_that_is_replaced_discards)
{
    typeInto(NUMBER, "25");
    openTop("child");
    EXPECT_EQ(number(NUMBER), 19);
    EXPECT_FALSE(frozen(NUMBER));
}

TEST_F(CorrectedPress, a_refused_value_stays_in_edit_at_return)
{
    for (const char* keys : {"9", "51", "-20"}) {
        typeInto(NUMBER, keys);
        key(XK_Return);
        EXPECT_TRUE(editing());
        EXPECT_EQ(text(), keys);
        EXPECT_TRUE(errorShown());
        key(XK_Escape);
    }
    typeInto(NUMBER, "50");
    key(XK_Return);
    EXPECT_EQ(number(NUMBER), 50);
    EXPECT_FALSE(errorShown());
}

TEST_F(CorrectedPress, a_value_between_two_steps_is_refused)
{
    AppliWnd->PtrnData->PtrnData[0].Parm[FIELD_STEP] = ParmOfReal(2.5F);
    AppliWnd->PtrnData->PtrnData[0].Parm[FIELD_DECIMALS] = 1;
    typeInto(NUMBER, "13");
    key(XK_Return);
    EXPECT_TRUE(editing());
    EXPECT_THAT(errorLine(), HasSubstr("2.5"));
    key(XK_Escape);
    typeInto(NUMBER, "12.5");
    key(XK_Return);
    EXPECT_EQ(number(NUMBER), 12.5F);
}

// --- moving from field to field --------------------------------------------------------------------

TEST_F(PressDuringEntry, the_tabulator_ends_the_entry_in_the_first_edition)
{
    edit(TEXT);
    key(XK_Tab);
    EXPECT_FALSE(editing());
}

TEST_F(CorrectedPress, the_tabulator_stores_and_goes_round_the_fields)
{
    typeInto(NUMBER, "25");
    for (const int next : {DECIMAL, HEX, TEXT, NUMBER}) {
        key(XK_Tab);
        ASSERT_TRUE(editing());
        EXPECT_EQ(edited(), next);
    }
    EXPECT_EQ(number(NUMBER), 25);
    for (const int next : {TEXT, HEX, DECIMAL, NUMBER}) {
        key(XK_Tab, {XK_Shift_L});
        ASSERT_TRUE(editing());
        EXPECT_EQ(edited(), next);
    }
    EXPECT_THAT(callsOf({"keyfunc"}).front(), "keyfunc 65289 0 100");
    EXPECT_THAT(callsOf({"keyfunc"}).back(), "keyfunc 65289 1 101");
}

TEST_F(CorrectedPress, the_tabulator_leaves_out_fields_that_can_not_be_edited)
{
    Set_wData(DECIMAL, STATE_DISABLE, nullptr, 0);
    Set_wData(HEX, STATE_HIDDEN, nullptr, 0);
    tick();
    edit(NUMBER);
    key(XK_Tab);
    EXPECT_EQ(edited(), TEXT);
    key(XK_Tab);
    EXPECT_EQ(edited(), NUMBER);
    AppliWnd->PtrnData->PtrnData[3].Parm[FIELD_KEYENTRY] = 0;
    key(XK_Tab);
    EXPECT_EQ(edited(), NUMBER) << "the only one";
}

TEST_F(CorrectedPress, a_refused_value_stays_at_the_tabulator)
{
    typeInto(NUMBER, "99");
    key(XK_Tab);
    EXPECT_EQ(edited(), NUMBER);
    EXPECT_EQ(text(), "99");
}

TEST_F(CorrectedPress, up_and_down_with_their_flags_store_and_go)
{
    typeInto(DECIMAL, "1.5");
    key(XK_Down);
    EXPECT_EQ(edited(), HEX);
    EXPECT_EQ(number(DECIMAL), 1.5F);
    key(XK_Up);
    key(XK_Up);
    EXPECT_EQ(edited(), NUMBER);
    key(XK_Up);
    EXPECT_EQ(edited(), TEXT) << "round";
}

TEST_F(CorrectedPress, up_and_down_without_flags_do_nothing)
{
    AppliWnd->PtrnData->PtrnData[1].Parm[FIELD_NAVIGATION] = 0;
    typeInto(DECIMAL, "1.5");
    key(XK_Down);
    key(XK_Up);
    EXPECT_TRUE(editing());
    EXPECT_EQ(edited(), DECIMAL);
    EXPECT_EQ(text(), "1.5");
}

// --- spin buttons ----------------------------------------------------------------------------------

TEST_F(CorrectedPress, the_wheel_turns_the_spin_button_under_the_pointer)
{
    constexpr int SPIN = NUMBER + 12;
    AppliWnd->PtrnData->PtrnData[6].Parm[SPIN_STEP] = ParmOfReal(0.5F);
    click(AppliWnd, 205, 90, 4);
    EXPECT_EQ(number(SPIN), 0.5F) << "up increases";
    click(AppliWnd, 205, 90, 5);
    click(AppliWnd, 205, 90, 5);
    EXPECT_EQ(number(SPIN), 0) << "not below the minimum";
    Set_dData(SPIN, 150, nullptr, 0);
    click(AppliWnd, 205, 90, 5);
    EXPECT_EQ(number(SPIN), 100) << "to the nearer limit";
    for (const int state : {STATE_DISABLE, STATE_HIDDEN, STATE_LOCKED}) {
        Set_wData(SPIN, static_cast<WORD>(state), nullptr, 0);
        click(AppliWnd, 205, 90, 5);
        EXPECT_EQ(number(SPIN), 100) << state;
    }
}

TEST_F(CorrectedPress, spin_buttons_without_limits_of_their_own_have_those_of_the_table)
{
    PTRNDATA& spin = AppliWnd->PtrnData->PtrnData[6];
    spin.Parm[SPIN_MAXIMUM] = 0;
    for (int i = 0; i < 3; i++)
        click(AppliWnd, 205, 90, 5);
    EXPECT_EQ(number(spin.DataNo), -3) << "there is no row";
    spin.DataNo = NUMBER + 14;
    for (int i = 0; i < 3; i++)
        click(AppliWnd, 205, 90, 5);
    EXPECT_EQ(number(spin.DataNo), -2);
    for (int i = 0; i < 4; i++)
        click(AppliWnd, 205, 85);
    EXPECT_EQ(number(spin.DataNo), 0.5F) << "pressed as well";
}

TEST_F(CorrectedPress, a_spin_button_that_is_held_obeys_its_limits_and_its_state)
{
    constexpr int SPIN = NUMBER + 12;
    AppliWnd->PtrnData->PtrnData[6].Parm[SPIN_MAXIMUM] = 3;
    press(AppliWnd, 205, 85);
    tick(100);
    EXPECT_EQ(number(SPIN), 3);
    release();
    press(AppliWnd, 205, 105);
    EXPECT_EQ(number(SPIN), 2);
    Set_wData(SPIN, STATE_DISABLE, nullptr, 0);
    tick(100);
    EXPECT_EQ(number(SPIN), 2);
    release();
}

TEST_F(CorrectedPress, a_spin_button_at_its_limit_tells_its_message)
{
    AppliWnd->PtrnData->PtrnData[6].Parm[SPIN_MESSAGE] = 1;
    click(AppliWnd, 205, 90, 5);
    EXPECT_TRUE(errorShown());
    EXPECT_THAT(errorLine(), HasSubstr("limits  0 ... 100"));
}

TEST_F(CorrectedPress, a_window_that_closes_discards)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "child");
    edit(TEXT, child);
    type("ab");
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_EQ(string(TEXT), "");
    EXPECT_FALSE(frozen(TEXT));
}

TEST_F(PressDuringEntry, the_wheel_turns_a_spin_button_the_other_way_in_the_first_edition)
{
    constexpr int SPIN = NUMBER + 12;
    click(AppliWnd, 205, 85); // the wheel writes to the control that was pressed last
    EXPECT_EQ(number(SPIN), 1);
    click(AppliWnd, 205, 85, 4);
    EXPECT_EQ(number(SPIN), 0);
}
