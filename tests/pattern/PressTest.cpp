// What a left press does with the item under the pointer.
#include "tests/pattern/PressFixture.h"

using namespace tessary;

namespace
{

class FramePress : public Press, public testing::WithParamInterface<PtrnType>
{
};

class LabelPress : public Press, public testing::WithParamInterface<PtrnType>
{
};

class ControlPress : public Press, public testing::WithParamInterface<PtrnType>
{
};

Pattern one(int type, const char* code = "A")
{
    return Pattern("p").item(type, 10, 10, 60, 30).action(1).code(code);
}

} // namespace

// --- shapes that frame a field -------------------------------------------------------------------------

TEST_P(FramePress, opens_the_field_of_the_same_data_number)
{
    load(one(GetParam()).item(PTRN_NUMR, 0, 0, 1, 1).code("A").parm(FIELD_KEYENTRY, 1).action(7));
    item(1).wData = 0;

    EXPECT_EQ(press(), ENTRY);
    EXPECT_EQ(val(pressed.Recd), 1);
    EXPECT_EQ(val(pressed.ID_Type), 7);
}

TEST_P(FramePress, opens_a_variable_text_before_a_numeric_field)
{
    load(one(GetParam())
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("A")
             .parm(FIELD_KEYENTRY, 1)
             .item(PTRN_CHAR, 0, 0, 1, 1)
             .code("A")
             .parm(FIELD_KEYENTRY, 1));

    EXPECT_EQ(press(), ENTRY);
    EXPECT_EQ(val(pressed.Recd), 2);
}

TEST_P(FramePress, does_its_own_action_when_the_field_takes_no_entry)
{
    load(one(GetParam())
             .item(PTRN_CHAR, 0, 0, 1, 1)
             .code("A")
             .parm(FIELD_KEYENTRY, 2)
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("A")
             .parm(FIELD_KEYENTRY, 1));

    EXPECT_EQ(press(), ACTION) << "the numeric field does not count when there is a variable text";
    EXPECT_EQ(val(pressed.Recd), 0);
}

TEST_P(FramePress, does_its_own_action_when_the_field_is_not_usable)
{
    load(one(GetParam()).item(PTRN_NUMR, 0, 0, 1, 1).code("A").parm(FIELD_KEYENTRY, 1));

    for (const int state : {STATE_DISABLE, STATE_HIDDEN}) {
        item(1).wData = static_cast<WORD>(state);
        EXPECT_EQ(press(), ACTION);
        EXPECT_EQ(val(pressed.Recd), 0);
    }
    item(1).wData = STATE_FLICKER | STATE_FROZEN | STATE_COLOR;
    EXPECT_EQ(press(), ENTRY);
}

TEST_P(FramePress, does_its_own_action_without_a_field)
{
    load(one(GetParam())
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("A", 1)
             .parm(FIELD_KEYENTRY, 1)
             .item(PTRN_CHCK, 0, 0, 1, 1)
             .code("A"));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(val(pressed.Recd), 0);
    EXPECT_EQ(value(1), 0.0F) << "a shape is no label of a check box";
}

TEST_P(FramePress, finds_an_unbound_field_when_it_is_unbound_itself)
{
    load(one(GetParam(), "").item(PTRN_CHAR, 0, 0, 1, 1).parm(FIELD_KEYENTRY, 1));

    EXPECT_EQ(press(), ENTRY);
    EXPECT_EQ(val(pressed.Recd), 1);
}

INSTANTIATE_TEST_SUITE_P(Shapes, FramePress, testing::Values(PTRN_GBOX, PTRN_RECT, PTRN_CRCL));

// --- fields and labels ---------------------------------------------------------------------------------

TEST_F(Press, on_a_field_opens_it)
{
    for (const int type : {PTRN_CHAR, PTRN_NUMR}) {
        load(one(type).parm(FIELD_KEYENTRY, 1));
        EXPECT_EQ(press(), ENTRY) << type;
        EXPECT_EQ(val(pressed.Recd), 0);
    }
}

TEST_F(Press, on_a_field_that_takes_no_entry_or_is_not_usable_does_its_action)
{
    for (const int type : {PTRN_CHAR, PTRN_NUMR}) {
        load(one(type).parm(FIELD_KEYENTRY, 2));
        EXPECT_EQ(press(), ACTION);
        load(one(type).parm(FIELD_KEYENTRY, 1));
        item().wData = STATE_DISABLE;
        EXPECT_EQ(press(), ACTION);
    }
}

TEST_F(Press, on_a_field_opens_it_although_a_control_has_its_number)
{
    load(one(PTRN_NUMR).parm(FIELD_KEYENTRY, 1).item(PTRN_CHCK, 0, 0, 1, 1).code("A"));

    EXPECT_EQ(press(), ENTRY);
    EXPECT_EQ(value(1), 0.0F);
}

TEST_F(Press, on_a_fixed_text_never_opens_it)
{
    load(one(PTRN_FCHR).parm(FIELD_KEYENTRY, 1));

    EXPECT_EQ(press(), ACTION);
}

TEST_P(LabelPress, toggles_the_check_box_and_reports_the_box)
{
    load(one(GetParam()).item(PTRN_CHCK, 0, 0, 1, 1).code("A").action(5));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(val(pressed.Recd), 1);
    EXPECT_EQ(val(pressed.ID_Type), 5);
    EXPECT_EQ(value(1), 1.0F);
    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 0.0F);
}

TEST_P(LabelPress, selects_the_radio_button)
{
    load(one(GetParam()).item(PTRN_RDIO, 0, 0, 1, 1).code("A").parm(RDIO_VALUE, 7));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(val(pressed.Recd), 1);
    EXPECT_EQ(value(1), 7.0F);
}

TEST_P(LabelPress, prefers_push_button_to_radio_button_to_check_box)
{
    load(one(GetParam())
             .item(PTRN_CHCK, 0, 0, 1, 1)
             .code("A")
             .item(PTRN_RDIO, 0, 0, 1, 1)
             .code("A")
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .code("A")
             .item(PTRN_FCHR, 50, 50, 60, 60)
             .code("A", 1)
             .item(PTRN_CHCK, 0, 0, 1, 1)
             .code("A", 1)
             .item(PTRN_RDIO, 0, 0, 1, 1)
             .code("A", 1));

    EXPECT_EQ(press(0), ACTION);
    EXPECT_EQ(val(pressed.Recd), 3);
    EXPECT_EQ(value(1), 0.0F);
    EXPECT_EQ(press(4), ACTION);
    EXPECT_EQ(val(pressed.Recd), 6);
    EXPECT_EQ(value(2), 1.0F);
}

TEST_P(LabelPress, of_a_locked_control_does_nothing)
{
    for (const int type : {PTRN_BUTN, PTRN_RDIO, PTRN_CHCK}) {
        load(one(GetParam()).item(type, 0, 0, 1, 1).code("A").parm(RDIO_VALUE, 7));
        item(1).wData = 1;
        EXPECT_EQ(press(), NOTHING) << type;
        EXPECT_EQ(val(pressed.Recd), 1) << type;
        EXPECT_EQ(value(1), 0.0F) << type;
    }
}

TEST_P(LabelPress, of_a_control_that_is_not_usable_does_its_own_action)
{
    load(one(GetParam()).item(PTRN_CHCK, 0, 0, 1, 1).code("A"));
    for (const int state : {STATE_DISABLE | 1, STATE_HIDDEN}) {
        item(1).wData = static_cast<WORD>(state);
        EXPECT_EQ(press(), ACTION);
        EXPECT_EQ(val(pressed.Recd), 0);
        EXPECT_EQ(value(1), 0.0F);
    }
}

TEST_P(LabelPress, that_is_disabled_itself_still_works_its_control)
{
    load(one(GetParam()).item(PTRN_CHCK, 0, 0, 1, 1).code("A"));
    item(0).wData = STATE_DISABLE;

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(val(pressed.Recd), 1);
    EXPECT_EQ(value(1), 1.0F);
}

TEST_P(LabelPress, without_a_control_does_its_own_action)
{
    load(one(GetParam()).item(PTRN_CHCK, 0, 0, 1, 1).code("A", 1));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(val(pressed.Recd), 0);
    EXPECT_EQ(value(2), 0.0F);
}

TEST_P(LabelPress, finds_an_unbound_control_when_it_is_unbound_itself)
{
    load(one(GetParam(), "").item(PTRN_RDIO, 0, 0, 1, 1).parm(RDIO_VALUE, 3));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(val(pressed.Recd), 1);
    EXPECT_EQ(value(0), 3.0F);
}

INSTANTIATE_TEST_SUITE_P(Texts, LabelPress, testing::Values(PTRN_FCHR, PTRN_CHAR, PTRN_NUMR));

// --- controls ------------------------------------------------------------------------------------------

TEST_F(Press, on_a_push_button_does_its_action_and_writes_nothing)
{
    load(one(PTRN_BUTN));
    set(1, 5.0F);

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 5.0F);
}

TEST_F(Press, on_a_radio_button_writes_its_value_selected_or_not)
{
    load(one(PTRN_RDIO).parm(RDIO_VALUE, 3));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 3.0F);
    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 3.0F);
}

TEST_F(Press, on_a_check_box_toggles_by_the_integer_of_the_cell)
{
    load(one(PTRN_CHCK));

    set(1, 0.9F);
    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 1.0F) << "0.9 is 0";
    set(1, -5.0F);
    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 0.0F);
}

TEST_P(ControlPress, does_nothing_when_locked)
{
    load(one(GetParam()).parm(RDIO_VALUE, 3));
    item().wData = 3;

    EXPECT_EQ(press(), NOTHING);
    EXPECT_EQ(value(1), 0.0F);
}

TEST_P(ControlPress, works_in_an_even_colour)
{
    load(one(GetParam()).parm(RDIO_VALUE, 3));
    item().wData = 2;

    EXPECT_EQ(press(), ACTION);
}

TEST_P(ControlPress, does_its_action_when_disabled_locked_or_not_but_changes_nothing)
{
    load(one(GetParam()).parm(RDIO_VALUE, 3));
    for (const int state : {STATE_DISABLE, STATE_DISABLE | 1, STATE_HIDDEN}) {
        item().wData = static_cast<WORD>(state);
        EXPECT_EQ(press(), ACTION);
        EXPECT_EQ(value(1), 0.0F);
    }
}

INSTANTIATE_TEST_SUITE_P(Controls, ControlPress, testing::Values(PTRN_BUTN, PTRN_RDIO, PTRN_CHCK));

TEST_F(Press, on_anything_else_does_its_action)
{
    for (const int type : {PTRN_LINE, PTRN_BARG, PTRN_BMAP, PTRN_MARK}) {
        load(one(type).item(PTRN_CHCK, 0, 0, 1, 1).code("A"));
        EXPECT_EQ(press(), ACTION) << type;
        EXPECT_EQ(val(pressed.Recd), 0) << type;
        EXPECT_EQ(value(1), 0.0F) << type;
    }
    PTRNDATA unknown{};
    unknown.Type = 99;
    EXPECT_EQ(data().LButtonDown(POINT{0, 0}, &unknown), ACTION);
}

TEST_F(Press, uses_the_state_of_the_copy_not_the_cell)
{
    load(one(PTRN_CHCK));
    setState(1, STATE_DISABLE);
    item().wData = 0;

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(value(1), 1.0F);
}

TEST_F(Press, leaves_the_log_alone_for_an_unknown_code)
{
    load(one(PTRN_CHCK, "unknown").item(PTRN_SBAR, 0, 50, 200, 70).code("unknown"));

    EXPECT_EQ(press(), ACTION);
    EXPECT_EQ(pressAt(1, 190, 60), ACTION) << "a cell that can not be read is 0, the step changes it";
    EXPECT_TRUE(project.log().empty());
}
