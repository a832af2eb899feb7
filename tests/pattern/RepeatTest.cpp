// Auto-repeat of a control that is held.
#include "tests/pattern/LoadedPattern.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

using namespace tessary;

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class Repeat : public LoadedPattern
{
  protected:
    /// A vertical bar with page buttons, parts as in the layout tests, and a spin button beside it.
    Repeat()
    {
        load(Pattern("p")
                 .item(PTRN_SBAR, 0, 0, 20, 200)
                 .code("A", 0)
                 .parm(SBAR_VERTICAL, 1)
                 .parm(SBAR_WIDTH, 0)
                 .parm(SBAR_PAGES, 1)
                 .parm(SBAR_LINE_STEP, 2)
                 .parm(SBAR_PAGE_STEP, 20)
                 .parm(SBAR_TROUGH_STEP, 7)
                 .item(PTRN_SPIN, 100, 0, 120, 40)
                 .code("A", 1));
        set(1, 45.0F);
    }

    int press(int x, int y)
    {
        PTRNDATA pressed = item(x < 50 ? 0 : 1);
        return data().LButtonDown(POINT{x, y}, &pressed);
    }
    /// The ticks, counted from 1, at which something changed.
    std::vector<int> ticks(int count)
    {
        std::vector<int> stepped;
        for (int tick = 1; tick <= count; ++tick)
            if (data().ReptPtrnData(&stepping))
                stepped.push_back(tick);
        return stepped;
    }

    PTRNDATA stepping{};
};

} // namespace

TEST_F(Repeat, waits_five_ticks_and_then_steps_every_second_one)
{
    ASSERT_EQ(press(10, 172), 1);
    ASSERT_EQ(value(1), 47.0F);

    EXPECT_THAT(ticks(12), ElementsAre(7, 9, 11));
    EXPECT_EQ(value(1), 53.0F);
    EXPECT_EQ(data().RepeatFlag, REPEAT_STEPPING);
}

TEST_F(Repeat, hands_out_the_item_that_was_pressed)
{
    press(10, 172);
    item(0).Parm[SBAR_LINE_STEP] = 50; // a change of the item meanwhile does not count

    ASSERT_THAT(ticks(7), ElementsAre(7));
    EXPECT_EQ(std::memcmp(&stepping, &data().RepeatPtrn, sizeof stepping), 0);
    EXPECT_EQ(value(1), 49.0F);
}

TEST_F(Repeat, leaves_the_result_alone_while_nothing_changes)
{
    stepping.Recd = 99;
    press(10, 172);
    ticks(6);

    EXPECT_EQ(val(stepping.Recd), 99);
}

TEST_F(Repeat, is_idle_without_a_press)
{
    EXPECT_THAT(ticks(20), IsEmpty());
    EXPECT_EQ(data().RepeatTimr, 0);
}

TEST_F(Repeat, steps_as_far_as_the_part_that_is_held)
{
    const struct {
        int part;
        float value;
    } steps[] = {{1, 25}, {2, 65}, {3, 43}, {4, 47}, {6, 38}, {7, 52}};
    for (const auto& step : steps) {
        set(1, 45.0F);
        press(10, 172);
        set(1, 45.0F);
        data().RepeatMode = step.part;
        EXPECT_THAT(ticks(7), ElementsAre(7)) << step.part;
        EXPECT_EQ(value(1), step.value) << step.part;
    }
    for (const int part : {0, 5, 8, -1, std::numeric_limits<int>::max()}) {
        press(10, 172);
        set(1, 45.0F);
        data().RepeatMode = part;
        EXPECT_THAT(ticks(20), IsEmpty()) << part;
        EXPECT_EQ(value(1), 45.0F) << part;
    }
}

TEST_F(Repeat, stops_changing_at_the_end_of_the_range_but_does_not_end)
{
    set(1, 85.0F);
    press(10, 172);
    ASSERT_EQ(value(1), 87.0F);

    EXPECT_THAT(ticks(29), ElementsAre(7, 9));
    EXPECT_EQ(value(1), 90.0F);
    EXPECT_EQ(data().RepeatFlag, REPEAT_STEPPING);

    set(1, 50.0F); // the application moved it
    EXPECT_THAT(ticks(2), ElementsAre(2));
    EXPECT_EQ(value(1), 52.0F);
}

TEST_F(Repeat, ends_with_the_release)
{
    press(10, 172);
    ticks(8);
    data().LButtonUp();

    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
    EXPECT_THAT(ticks(20), IsEmpty());
}

TEST_F(Repeat, begins_anew_with_the_next_press)
{
    press(10, 172);
    ticks(8);
    data().LButtonUp();
    press(10, 28);

    EXPECT_THAT(ticks(10), ElementsAre(7, 9));
}

TEST_F(Repeat, goes_on_while_the_pointer_stays_on_the_part)
{
    press(10, 172);
    data().MouseMove(POINT{5, 165});
    EXPECT_EQ(data().RepeatFlag, REPEAT_WAITING);
    ticks(8);
    data().MouseMove(POINT{15, 180});
    EXPECT_EQ(data().RepeatFlag, REPEAT_STEPPING);
}

TEST_F(Repeat, ends_when_the_pointer_leaves_the_part_and_does_not_come_back_with_it)
{
    for (const POINT& outside : {POINT{10, 190}, POINT{10, 100}, POINT{10, 400}, POINT{30, 172}}) {
        press(10, 172);
        ticks(8);
        data().MouseMove(outside);
        EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE) << outside.x << "," << outside.y;
        data().MouseMove(POINT{10, 172});
        EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
    }
}

TEST_F(Repeat, of_the_trough_ends_when_the_thumb_has_come_to_the_pointer)
{
    // Thumb at 94..106; the pointer holds the trough at 120, and the thumb grows towards it.
    press(10, 120);
    ticks(11);
    data().MouseMove(POINT{10, 120});

    // 45 + 4 steps of 7 = 73: thumb at 37 + 114 x 73 / 90 = 129.
    ASSERT_EQ(value(1), 73.0F);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
}

TEST_F(Repeat, does_not_start_by_moving)
{
    data().MouseMove(POINT{10, 172});

    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
}

TEST_F(Repeat, of_a_spin_button_steps_by_one)
{
    set(2, 10.25F);
    press(110, 5);
    EXPECT_THAT(ticks(9), ElementsAre(7, 9));
    EXPECT_EQ(value(2), 13.25F);
    data().LButtonUp();
    press(110, 35);
    EXPECT_THAT(ticks(9), ElementsAre(7, 9));
    EXPECT_EQ(value(2), 10.25F);
}

TEST_F(Repeat, of_a_spin_button_ends_when_the_pointer_leaves_its_half)
{
    press(110, 5);
    data().MouseMove(POINT{110, 20});
    EXPECT_EQ(data().RepeatFlag, REPEAT_WAITING);
    data().MouseMove(POINT{110, 21});
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
    press(110, 5);
    data().MouseMove(POINT{121, 5});
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
}

TEST_F(Repeat, of_no_part_ends_outside_the_control)
{
    // A press beside both halves steps down, so that no part is what is held.
    set(2, 10.0F);
    press(300, 5);
    ASSERT_EQ(data().RepeatFlag, REPEAT_WAITING);
    ASSERT_EQ(data().RepeatMode, 0);

    data().MouseMove(POINT{300, 5});
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);

    // The margin beside the thumb is no part of the bar, but inside it.
    set(1, 500.0F);
    press(0, 100);
    ASSERT_EQ(data().RepeatMode, 0);
    data().MouseMove(POINT{0, 101});
    EXPECT_EQ(data().RepeatFlag, REPEAT_WAITING);
}

TEST_F(Repeat, of_a_spin_button_stops_at_its_limits)
{
    set(2, 97.5F);
    press(110, 5);
    EXPECT_THAT(ticks(30), ElementsAre(7, 9));
    EXPECT_EQ(value(2), 100.0F);
}

TEST_F(Repeat, of_a_spin_button_without_limits_steps_to_zero)
{
    // The press looks into the limit table, the repeat does not.
    data().RepeatFlag = REPEAT_STEPPING;
    data().RepeatMode = 1;
    data().RepeatPtrn = item(1);
    data().RepeatPtrn.Parm[SPIN_MINIMUM] = 0;
    data().RepeatPtrn.Parm[SPIN_MAXIMUM] = 0;
    set(2, 7.0F);

    EXPECT_THAT(ticks(10), ElementsAre(2));
    EXPECT_EQ(value(2), 0.0F);
}

TEST_F(Repeat, of_a_value_that_is_no_number_changes_at_every_step)
{
    set(2, 10.0F);
    press(110, 5);
    set(2, std::nanf(""));

    EXPECT_THAT(ticks(9), ElementsAre(7, 9));
}

TEST_F(Repeat, of_anything_else_steps_nothing_and_goes_on)
{
    data().RepeatFlag = REPEAT_STEPPING;
    data().RepeatPtrn.Type = PTRN_BUTN;

    EXPECT_THAT(ticks(10), IsEmpty());
    data().MouseMove(POINT{500, 500});
    EXPECT_EQ(data().RepeatFlag, REPEAT_STEPPING);
}
