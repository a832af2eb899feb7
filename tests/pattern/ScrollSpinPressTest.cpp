// What a left press does with a scroll bar or a spin button.
#include "comndata/LimtData.h"
#include "tests/pattern/PressFixture.h"

#include <cstring>

using namespace tessary;

// --- scroll bars ---------------------------------------------------------------------------------------

namespace
{

/// Vertical, 0..20 x 0..200: parts at y 10, 28, 38..., see the layout tests. 10 of 100 visible.
class BarPress : public Press
{
  protected:
    BarPress()
    {
        load(Pattern("p")
                 .item(PTRN_SBAR, 0, 0, 20, 200)
                 .code("A")
                 .parm(SBAR_VERTICAL, 1)
                 .parm(SBAR_WIDTH, 0)
                 .parm(SBAR_PAGES, 1)
                 .parm(SBAR_LINE_STEP, 2)
                 .parm(SBAR_PAGE_STEP, 20)
                 .parm(SBAR_TROUGH_STEP, 7));
        set(1, 45.0F);
    }
    int pressY(int y) { return pressAt(0, 10, y); }
};

} // namespace

TEST_F(BarPress, steps_by_part_and_starts_to_repeat)
{
    const struct {
        int y;
        int part;
        float value;
    } parts[] = {{10, 1, 25}, {190, 2, 65}, {28, 3, 43}, {172, 4, 47}, {60, 6, 38}, {140, 7, 52}};
    for (const auto& part : parts) {
        set(1, 45.0F);
        data().LButtonUp();
        data().RepeatTimr = 3;
        EXPECT_EQ(pressY(part.y), ACTION) << part.part;
        EXPECT_EQ(value(1), part.value) << part.part;
        EXPECT_EQ(data().RepeatFlag, REPEAT_WAITING);
        EXPECT_EQ(data().RepeatTimr, 0);
        EXPECT_EQ(data().RepeatMode, part.part);
        EXPECT_EQ(std::memcmp(&data().RepeatPtrn, &pressed, sizeof pressed), 0);
    }
}

TEST_F(BarPress, on_the_thumb_starts_a_drag_and_nothing_else)
{
    EXPECT_EQ(pressY(100), DRAG);
    EXPECT_EQ(value(1), 45.0F);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
    EXPECT_EQ(data().SCoffset.cy, 6);
}

TEST_F(BarPress, beside_all_parts_does_nothing)
{
    EXPECT_EQ(pressAt(0, 2, 100), NOTHING);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
}

TEST_F(BarPress, at_the_end_of_the_range_does_nothing)
{
    set(1, 0.0F);
    EXPECT_EQ(pressY(28), NOTHING);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
    set(1, 90.0F);
    EXPECT_EQ(pressY(172), NOTHING);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
}

TEST_F(BarPress, stops_at_the_ends_of_the_range)
{
    set(1, 5.0F);
    EXPECT_EQ(pressY(10), ACTION);
    EXPECT_EQ(value(1), 0.0F);
    set(1, 85.0F);
    EXPECT_EQ(pressY(190), ACTION);
    EXPECT_EQ(value(1), 90.0F);
}

TEST_F(BarPress, brings_a_value_outside_the_range_back_into_it_from_any_part)
{
    set(1, 500.0F);
    EXPECT_EQ(pressAt(0, 0, 0), ACTION) << "no part at all";
    EXPECT_EQ(value(1), 90.0F);
}

TEST_F(BarPress, works_when_the_bar_is_disabled)
{
    item().wData = STATE_DISABLE;
    EXPECT_EQ(pressY(28), ACTION);
    EXPECT_EQ(value(1), 43.0F);
}

TEST_F(BarPress, does_nothing_while_everything_is_visible)
{
    for (const int visible : {100, 150}) {
        item().Parm[SBAR_VISIBLE] = visible;
        for (const int y : {10, 28, 60, 100, 190})
            EXPECT_EQ(pressY(y), NOTHING);
        EXPECT_EQ(value(1), 45.0F);
    }
}

TEST_F(BarPress, records_the_roles_of_the_bar)
{
    load(Pattern("p")
             .item(PTRN_SBAR, 0, 0, 200, 20)
             .item(PTRN_SBAR, 0, 100, 200, 120)
             .parm(SBAR_ROLE1, 1)
             .item(PTRN_SBAR, 0, 200, 200, 220)
             .parm(SBAR_KEYS, 1)
             .item(PTRN_SBAR, 0, 300, 20, 500)
             .parm(SBAR_KEYS, -1)
             .parm(SBAR_VERTICAL, 1));
    press(0);
    EXPECT_EQ(data().ScrollPtrn1, -1);
    press(1);
    EXPECT_EQ(data().ScrollPtrn1, 1);
    EXPECT_EQ(data().ScrollPtrn2, -1);
    EXPECT_EQ(data().ScrollPtrn3, -1);
    press(2);
    EXPECT_EQ(data().ScrollPtrn2, 2);
    press(3);
    EXPECT_EQ(data().ScrollPtrn1, 1);
    EXPECT_EQ(data().ScrollPtrn2, 2);
    EXPECT_EQ(data().ScrollPtrn3, 3);
}

// --- spin buttons --------------------------------------------------------------------------------------

namespace
{

class SpinPress : public Press
{
  protected:
    void spin(int minimum, int maximum)
    {
        load(Pattern("p")
                 .item(PTRN_SPIN, 0, 0, 20, 40)
                 .code("A")
                 .parm(SPIN_MINIMUM, minimum)
                 .parm(SPIN_MAXIMUM, maximum));
    }
    int up() { return pressAt(0, 10, 5); }
    int down() { return pressAt(0, 10, 35); }
};

} // namespace

TEST_F(SpinPress, steps_up_and_down_by_one_and_starts_to_repeat)
{
    spin(-5, 5);
    set(1, 2.5F);

    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), 3.5F);
    EXPECT_EQ(data().RepeatFlag, REPEAT_WAITING);
    EXPECT_EQ(data().RepeatTimr, 0);
    EXPECT_EQ(data().RepeatMode, 1);
    EXPECT_EQ(val(data().RepeatPtrn.DataNo), 1);
    EXPECT_EQ(down(), ACTION);
    EXPECT_EQ(value(1), 2.5F);
    EXPECT_EQ(data().RepeatMode, 2);
}

TEST_F(SpinPress, steps_down_when_neither_half_is_hit)
{
    spin(-5, 5);

    EXPECT_EQ(pressAt(0, 100, 100), ACTION);
    EXPECT_EQ(value(1), -1.0F);
    EXPECT_EQ(data().RepeatMode, 0);
}

TEST_F(SpinPress, stays_within_its_limits)
{
    spin(-5, 5);
    set(1, 4.5F);
    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), 5.0F);
    EXPECT_EQ(up(), NOTHING);
    set(1, 100.0F);
    EXPECT_EQ(down(), ACTION);
    EXPECT_EQ(value(1), 5.0F);
    set(1, -100.0F);
    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), -5.0F);
    data().LButtonUp();
    EXPECT_EQ(down(), NOTHING);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE) << "a press that changes nothing does not repeat";
}

TEST_F(SpinPress, ends_at_the_maximum_when_the_limits_are_the_wrong_way_round)
{
    spin(10, -10);

    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), -10.0F);
}

TEST_F(SpinPress, works_when_disabled_and_in_a_locked_colour)
{
    spin(-5, 5);
    item().wData = STATE_DISABLE | 1;

    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), 1.0F);
}

TEST_F(SpinPress, without_limits_takes_those_of_the_limit_table)
{
    LIMTDATA row{};
    row.DataNo1 = 1;
    row.DataNo2 = 1;
    row.MIN_Data = -1.0F;
    row.MAX_Data = 1.5F;
    LimtData[0] = &row;
    spin(0, 0);

    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), 1.0F);
    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), 1.5F);
    EXPECT_EQ(up(), NOTHING);
    LimtData[0] = nullptr;
}

TEST_F(SpinPress, without_any_limits_goes_to_zero)
{
    // The limit table answers with 0 and 0, which count as they stand.
    spin(0, 0);
    set(1, 7.0F);

    EXPECT_EQ(up(), ACTION);
    EXPECT_EQ(value(1), 0.0F);
    EXPECT_EQ(up(), NOTHING);
}

TEST_F(SpinPress, cannot_step_where_a_float_has_no_room_for_one)
{
    spin(0, 2000000000);
    set(1, 16777216.0F);

    EXPECT_EQ(up(), NOTHING);
}
