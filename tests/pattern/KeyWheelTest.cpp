// The wheel, the scroll keys and the function keys.
#include "tests/pattern/LoadedPattern.h"

#include <limits>

using namespace tessary;

namespace
{

enum Key {
    LEFT = 65361,
    UP = 65362,
    RIGHT = 65363,
    DOWN = 65364,
    PAGE_UP = 65365,
    PAGE_DOWN = 65366,
    F1 = 65470,
    F12 = 65481
};

constexpr int INT_HIGH = std::numeric_limits<int>::max();
constexpr int INT_LOW = std::numeric_limits<int>::min();

class Wheel : public LoadedPattern
{
};

class ScrollKey : public LoadedPattern
{
  protected:
    void bar(bool upright, int arrows, int pages)
    {
        load(Pattern("p")
                 .item(PTRN_SBAR, 0, 0, 20, 200)
                 .code("A")
                 .parm(SBAR_VERTICAL, upright)
                 .parm(SBAR_ARROWS, arrows)
                 .parm(SBAR_PAGES, pages)
                 .parm(SBAR_LINE_STEP, 2)
                 .parm(SBAR_PAGE_STEP, 20));
        set(1, 45.0F);
    }
    /// The value after a key, or -1 when the bar did not take it.
    float after(int key)
    {
        set(1, 45.0F);
        const int taken = data().ConvScrollKey(key, &item());
        EXPECT_EQ(taken, value(1) != 45.0F);
        return taken ? value(1) : -1.0F;
    }
    int choose(int key) { return data().SetScrollKey(key, &chosen); }

    PTRNDATA chosen{};
};

class ButtonKey : public LoadedPattern
{
  protected:
    int choose(int key) { return data().SetButtonKey(key, &chosen); }

    PTRNDATA chosen{};
};

} // namespace

TEST_F(Wheel, moves_a_bar_by_its_line_step)
{
    load(Pattern("p").item(PTRN_SBAR, 0, 0, 9, 9).code("A").parm(SBAR_LINE_STEP, 3));
    set(1, 45.0F);

    EXPECT_EQ(data().WheelToScroll(1, &item()), 1);
    EXPECT_EQ(value(1), 48.0F);
    EXPECT_EQ(data().WheelToScroll(0, &item()), 1);
    EXPECT_EQ(value(1), 45.0F);
    EXPECT_EQ(data().WheelToScroll(-1, &item()), 1) << "any direction but 0";
    EXPECT_EQ(value(1), 48.0F);
    EXPECT_EQ(data().RepeatFlag, REPEAT_IDLE);
}

TEST_F(Wheel, stops_a_bar_at_the_ends)
{
    load(Pattern("p").item(PTRN_SBAR, 0, 0, 9, 9).code("A").parm(SBAR_LINE_STEP, 3));
    set(1, 1.0F);
    EXPECT_EQ(data().WheelToScroll(0, &item()), 1);
    EXPECT_EQ(value(1), 0.0F);
    EXPECT_EQ(data().WheelToScroll(0, &item()), 0);
    set(1, 89.0F);
    EXPECT_EQ(data().WheelToScroll(1, &item()), 1);
    EXPECT_EQ(value(1), 90.0F);
    EXPECT_EQ(data().WheelToScroll(1, &item()), 0);
}

TEST_F(Wheel, leaves_a_bar_alone_that_is_hidden_or_has_nothing_to_scroll)
{
    load(Pattern("p").item(PTRN_SBAR, 0, 0, 9, 9).code("A"));
    set(1, 45.0F);
    item().wData = STATE_HIDDEN;
    EXPECT_EQ(data().WheelToScroll(1, &item()), 0);
    item().wData = STATE_DISABLE;
    EXPECT_EQ(data().WheelToScroll(1, &item()), 1) << "disabled";
    for (const int visible : {100, 101}) {
        item().Parm[SBAR_VISIBLE] = visible;
        EXPECT_EQ(data().WheelToScroll(1, &item()), 0);
    }
    EXPECT_EQ(value(1), 46.0F);
}

TEST_F(Wheel, writes_the_value_of_a_spin_button_to_the_control_pressed_last)
{
    load(Pattern("p").item(PTRN_SPIN, 0, 0, 20, 40).code("A", 0).item(PTRN_SPIN, 0, 50, 20, 90).code("A", 1));
    set(1, 10.0F);
    set(2, 50.0F);
    PTRNDATA pressed = item(1);
    ASSERT_EQ(data().LButtonDown(POINT{10, 55}, &pressed), 1);
    ASSERT_EQ(value(2), 51.0F);

    EXPECT_EQ(data().WheelToSpin(1, &item(0)), 1);

    EXPECT_EQ(value(1), 10.0F) << "the button under the pointer";
    EXPECT_EQ(value(2), 11.0F) << "the one pressed last";
}

TEST_F(Wheel, writes_the_value_of_a_spin_button_to_cell_0_before_any_press)
{
    load(Pattern("p").item(PTRN_SPIN, 0, 0, 20, 40).code("A"));
    set(1, 10.0F);

    EXPECT_EQ(data().WheelToSpin(0, &item()), 1);
    EXPECT_EQ(value(1), 10.0F);
    EXPECT_EQ(value(0), 9.0F);
}

TEST_F(Wheel, turns_a_spin_button_up_for_direction_1_only)
{
    load(Pattern("p").item(PTRN_SPIN, 0, 0, 20, 40).code("A"));
    set(1, 10.0F);

    EXPECT_EQ(data().WheelToSpin(1, &item()), 1);
    EXPECT_EQ(value(0), 11.0F);
    EXPECT_EQ(data().WheelToSpin(2, &item()), 1);
    EXPECT_EQ(value(0), 9.0F);
}

TEST_F(Wheel, holds_a_spin_button_to_its_own_limits_both_0_too)
{
    load(Pattern("p").item(PTRN_SPIN, 0, 0, 20, 40).code("A").parm(SPIN_MINIMUM, 0).parm(SPIN_MAXIMUM, 0));
    set(0, 5.0F);

    EXPECT_EQ(data().WheelToSpin(1, &item()), 0) << "0 can not leave 0";
    set(1, 7.0F);
    EXPECT_EQ(data().WheelToSpin(1, &item()), 1);
    EXPECT_EQ(value(0), 0.0F);
}

TEST_F(Wheel, leaves_a_hidden_spin_button_alone)
{
    load(Pattern("p").item(PTRN_SPIN, 0, 0, 20, 40).code("A"));
    item().wData = STATE_HIDDEN;
    EXPECT_EQ(data().WheelToSpin(1, &item()), 0);
    item().wData = STATE_DISABLE;
    EXPECT_EQ(data().WheelToSpin(1, &item()), 1);
}

TEST_F(ScrollKey, moves_a_vertical_bar_up_and_down)
{
    bar(true, 1, 1);

    EXPECT_EQ(after(UP), 43.0F);
    EXPECT_EQ(after(DOWN), 47.0F);
    EXPECT_EQ(after(PAGE_UP), 25.0F);
    EXPECT_EQ(after(PAGE_DOWN), 65.0F);
    EXPECT_EQ(after(LEFT), -1.0F);
    EXPECT_EQ(after(RIGHT), -1.0F);
    EXPECT_EQ(after(F1), -1.0F);
    EXPECT_EQ(after(0), -1.0F);
}

TEST_F(ScrollKey, moves_a_horizontal_bar_left_and_right)
{
    bar(false, 1, 1);

    EXPECT_EQ(after(LEFT), 43.0F);
    EXPECT_EQ(after(RIGHT), 47.0F);
    for (const int key : {UP, DOWN, PAGE_UP, PAGE_DOWN})
        EXPECT_EQ(after(key), -1.0F) << key;
}

TEST_F(ScrollKey, acts_like_the_buttons_that_the_bar_has)
{
    bar(true, 0, 1);
    EXPECT_EQ(after(UP), -1.0F);
    EXPECT_EQ(after(DOWN), -1.0F);
    EXPECT_EQ(after(PAGE_DOWN), 65.0F);
    bar(true, 1, 0);
    EXPECT_EQ(after(UP), 43.0F);
    EXPECT_EQ(after(PAGE_UP), -1.0F);
    EXPECT_EQ(after(PAGE_DOWN), -1.0F);
    bar(false, 0, 1);
    EXPECT_EQ(after(LEFT), -1.0F);
    EXPECT_EQ(after(RIGHT), -1.0F);
}

TEST_F(ScrollKey, stops_at_the_ends)
{
    bar(true, 1, 1);
    set(1, 89.0F);
    EXPECT_EQ(data().ConvScrollKey(DOWN, &item()), 1);
    EXPECT_EQ(value(1), 90.0F);
    EXPECT_EQ(data().ConvScrollKey(DOWN, &item()), 0);
    set(1, 3.0F);
    EXPECT_EQ(data().ConvScrollKey(PAGE_UP, &item()), 1);
    EXPECT_EQ(value(1), 0.0F);
    EXPECT_EQ(data().ConvScrollKey(UP, &item()), 0);
}

TEST_F(ScrollKey, holds_to_the_last_position_after_the_first)
{
    // More visible than there is: the upper end is below 0 and wins.
    bar(true, 1, 1);
    item().Parm[SBAR_VISIBLE] = 103;

    EXPECT_EQ(data().ConvScrollKey(DOWN, &item()), 1);
    EXPECT_EQ(value(1), -3.0F);
}

TEST_F(ScrollKey, survives_any_steps)
{
    bar(true, 1, 1);
    for (const int step : {INT_LOW, INT_HIGH})
        for (const float start : {-3e38F, 3e38F})
            for (const int key : {UP, DOWN}) {
                item().Parm[SBAR_LINE_STEP] = step;
                set(1, start);
                EXPECT_EQ(data().ConvScrollKey(key, &item()), 1);
                EXPECT_TRUE(value(1) >= 0.0F && value(1) <= 90.0F);
            }
}

TEST_F(ScrollKey, goes_to_the_first_bar_that_takes_the_keys_and_moves)
{
    load(Pattern("p")
             .item(PTRN_SBAR, 0, 0, 20, 200)
             .code("A", 0)
             .parm(SBAR_VERTICAL, 1)
             .item(PTRN_SBAR, 0, 0, 20, 200)
             .code("A", 1)
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_KEYS, 1)
             .item(PTRN_SBAR, 0, 0, 20, 200)
             .code("A", 2)
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_KEYS, 1)
             .item(PTRN_SBAR, 0, 0, 200, 20)
             .code("A", 3)
             .parm(SBAR_KEYS, 1));

    EXPECT_EQ(choose(DOWN), 1);
    EXPECT_EQ(val(chosen.Recd), 1);
    EXPECT_EQ(data().ScrollPtrn3, 1);
    EXPECT_EQ(data().ScrollPtrn2, -1);
    EXPECT_EQ(value(1), 0.0F) << "does not take the keys";
    EXPECT_EQ(value(2), 1.0F);
    EXPECT_EQ(value(3), 0.0F);

    EXPECT_EQ(choose(RIGHT), 1);
    EXPECT_EQ(val(chosen.Recd), 3);
    EXPECT_EQ(data().ScrollPtrn2, 3);
    EXPECT_EQ(value(4), 1.0F);
}

TEST_F(ScrollKey, goes_to_the_recorded_bars_before_all_others)
{
    Pattern pattern("p");
    for (int i = 0; i < 3; ++i)
        pattern.item(PTRN_SBAR, 0, 0, 20, 200).code("A", i).parm(SBAR_VERTICAL, 1).parm(SBAR_KEYS, 1);
    load(pattern);
    data().ScrollPtrn3 = 2;
    EXPECT_EQ(choose(DOWN), 1);
    EXPECT_EQ(val(chosen.Recd), 2);
    EXPECT_EQ(value(3), 1.0F);

    data().ScrollPtrn2 = 1;
    EXPECT_EQ(choose(DOWN), 1);
    EXPECT_EQ(val(chosen.Recd), 1) << "ScrollPtrn2 is asked first, whatever its direction";

    item(2).wData = STATE_HIDDEN;
    data().ScrollPtrn2 = -1;
    EXPECT_EQ(choose(DOWN), 1);
    EXPECT_EQ(val(chosen.Recd), 2) << "a recorded bar is not asked whether it is hidden";
}

TEST_F(ScrollKey, goes_on_from_a_recorded_bar_that_can_not_move)
{
    load(Pattern("p")
             .item(PTRN_SBAR, 0, 0, 20, 200)
             .code("A", 0)
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_KEYS, 1)
             .item(PTRN_SBAR, 0, 0, 20, 200)
             .code("A", 1)
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_KEYS, 1));
    data().ScrollPtrn3 = 0;
    set(1, 90.0F);

    EXPECT_EQ(choose(DOWN), 1);
    EXPECT_EQ(val(chosen.Recd), 1);
    EXPECT_EQ(data().ScrollPtrn3, 1);
}

TEST_F(ScrollKey, passes_over_hidden_bars_and_other_items)
{
    load(Pattern("p")
             .item(PTRN_RECT, 0, 0, 20, 200)
             .code("A")
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_ARROWS, 1)
             .parm(SBAR_TOTAL, 100)
             .parm(SBAR_LINE_STEP, 1)
             .parm(SBAR_KEYS, 1)
             .item(PTRN_SBAR, 0, 0, 20, 200)
             .code("A", 1)
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_KEYS, 1));
    item(1).wData = STATE_HIDDEN;

    EXPECT_EQ(choose(DOWN), 0);
    EXPECT_EQ(data().ScrollPtrn3, -1);
    item(1).wData = STATE_DISABLE;
    EXPECT_EQ(choose(DOWN), 1);
}

TEST_F(ScrollKey, ignores_records_that_are_not_there)
{
    bar(true, 1, 1);
    data().ScrollPtrn2 = 1;
    data().ScrollPtrn3 = INT_HIGH;
    EXPECT_EQ(choose(DOWN), 0);
    data().ScrollPtrn3 = INT_LOW;
    EXPECT_EQ(choose(DOWN), 0);
}

TEST_F(ButtonKey, chooses_the_first_button_of_its_number_that_is_not_hidden)
{
    load(Pattern("p")
             .item(PTRN_CHCK, 0, 0, 1, 1)
             .parm(BUTN_KEY, 3)
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .parm(BUTN_KEY, 1)
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .parm(BUTN_KEY, 3)
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .parm(BUTN_KEY, 3)
             .action(9));
    EXPECT_EQ(choose(F1 + 2), 1);
    EXPECT_EQ(val(chosen.Recd), 2);

    item(2).wData = STATE_HIDDEN;
    EXPECT_EQ(choose(F1 + 2), 1);
    EXPECT_EQ(val(chosen.Recd), 3);
    EXPECT_EQ(val(chosen.ID_Type), 9);

    item(3).wData = STATE_HIDDEN;
    EXPECT_EQ(choose(F1 + 2), 0);
}

TEST_F(ButtonKey, asks_neither_for_the_lock_nor_for_the_disabled_bit)
{
    load(Pattern("p").item(PTRN_BUTN, 0, 0, 1, 1).parm(BUTN_KEY, 12));
    item().wData = STATE_DISABLE | 1;

    EXPECT_EQ(choose(F12), 1);
}

TEST_F(ButtonKey, knows_the_twelve_function_keys_only)
{
    load(Pattern("p")
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .parm(BUTN_KEY, 13)
             .item(PTRN_BUTN, 0, 0, 1, 1)
             .parm(BUTN_KEY, UP - F1 + 1));

    for (const int key : {F1 - 1, F12 + 1, static_cast<int>(UP), 0, -1, INT_HIGH, INT_LOW})
        EXPECT_EQ(choose(key), 0) << key;
    for (int key = F1; key <= F12; ++key)
        EXPECT_EQ(choose(key), 0) << key << ": no button has it";
}
