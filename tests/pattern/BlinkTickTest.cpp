// Blinking together with the rest of a tick, in the order of a window's tick: first the blinking, then the
// update. 'S' is a tick that ends with the text shown, 'b' one that ends with it blanked.
#include "comndata/ItemState.h"
#include "tests/pattern/ItemCanvas.h"

#include <string>

using namespace tessary;

namespace
{

class Blinking : public ItemCanvas
{
  protected:
    void open(const Pattern& pattern)
    {
        load(pattern);
        canvas.clear();
        data().DispPtrnData(canvas.draw());
    }

    void tick()
    {
        data().FlikPtrnData(canvas.draw());
        data().UpdtPtrnData(canvas.draw());
    }

    char shown() const
    {
        for (int c = 0; c < 4; ++c)
            if (canvas.picture().count(color(TEXT_COLOR4 + c)))
                return 'S';
        return 'b';
    }

    std::string ticks(int count)
    {
        std::string phases;
        for (int i = 0; i < count; ++i) {
            tick();
            phases += shown();
        }
        return phases;
    }
};

Pattern text(int type = PTRN_FCHR)
{
    return Pattern("p").item(type, 10, 20, 90, 70).text("text").code("A").parm(TEXT_BACKED, 1);
}

Pattern blinking(int type = PTRN_FCHR)
{
    return text(type).parm(TEXT_FLICKER, 1);
}

} // namespace

TEST_F(Blinking, goes_on_for_ever_seven_ticks_shown_and_three_blanked)
{
    open(blinking());
    ASSERT_EQ(ticks(9), "SSSSSSSSS");
    for (int cycle = 0; cycle < 30; ++cycle)
        ASSERT_EQ(ticks(10), "bbbSSSSSSS") << cycle;
}

TEST_F(Blinking, keeps_its_cycle_for_a_million_ticks)
{
    load(Pattern("p"));
    int shownTicks = 0;
    int longest = 0;
    for (int count = 0; count < 1000000; ++count) {
        data().FlikPtrnData(nullptr); // without an item nothing is drawn on
        shownTicks += data().FlikerFlag;
        longest = std::max<int>(longest, data().FlikerTimr);
    }
    EXPECT_EQ(shownTicks, 700000);
    EXPECT_EQ(longest, 6);
}

TEST_F(Blinking, starts_with_the_next_change_of_phase_after_it_was_turned_on)
{
    open(text());
    ASSERT_EQ(ticks(9), "SSSSSSSSS");
    Set_Flikr(1, 1, nullptr, 0);
    // The phase changes at the tenth tick, before the update has seen the bit; the next blank phase is due
    // ten ticks later.
    EXPECT_EQ(ticks(14), "SSSSSSSSSSbbbS");
}

TEST_F(Blinking, ends_at_once_and_shown_when_it_is_turned_off)
{
    Set_Flikr(1, 1, nullptr, 0);
    open(text());
    ASSERT_EQ(ticks(10), "SSSSSSSSSb");
    Set_Flikr(1, 0, nullptr, 0);
    EXPECT_EQ(ticks(20), std::string(20, 'S'));
}

TEST_F(Blinking, shows_a_changed_item_at_once_even_while_it_is_blanked)
{
    open(blinking());
    ASSERT_EQ(ticks(10), "SSSSSSSSSb");
    set(1, 5.0F);
    EXPECT_EQ(ticks(10), "SSSSSSSSSb") << "until the next blank phase, at its usual tick";
}

TEST_F(Blinking, shows_an_item_that_is_displayed_while_it_is_blanked)
{
    open(blinking());
    ASSERT_EQ(ticks(10), "SSSSSSSSSb");
    data().DispPtrnData(canvas.draw());
    EXPECT_EQ(shown(), 'S');
    EXPECT_EQ(ticks(10), "SSSSSSSSSb");
}

TEST_F(Blinking, changes_colour_with_the_item)
{
    open(blinking());
    Set_Color(1, 2, nullptr, 0);
    ASSERT_EQ(ticks(9), "SSSSSSSSS");
    EXPECT_GT(canvas.picture().count(color(TEXT_COLOR4 + 2)), 0);
    tick();
    EXPECT_EQ(canvas.picture().count(color(TEXT_COLOR4 + 2)), 0);
    EXPECT_GT(canvas.picture().count(color(TEXT_BACK4 + 2)), 0);
    EXPECT_EQ(canvas.picture().count(color(TEXT_BACK4)), 0);
}

TEST_F(Blinking, pauses_while_the_item_is_disabled_or_hidden)
{
    for (const int mode : {0, 1}) {
        open(blinking());
        ASSERT_EQ(ticks(9), "SSSSSSSSS");
        Set_Disable(1, 1, mode, nullptr, 0);
        ASSERT_EQ(ticks(4), "bbbb") << "the last tick of the cycle still blinks, the update then blanks";
        const Picture blanked = canvas.picture();
        ticks(10);
        EXPECT_TRUE(same(canvas.picture(), blanked)) << mode;
        Set_Disable(1, 0, mode, nullptr, 0);
        EXPECT_EQ(ticks(10), "SSSSSSbbbS") << "again at the ticks of the same cycle";
    }
}

TEST_F(Blinking, goes_on_while_the_item_is_frozen)
{
    open(blinking());
    setState(1, STATE_FROZEN);
    EXPECT_EQ(ticks(19), "SSSSSSSSSbbbSSSSSSS");
}

TEST_F(Blinking, repeats_the_text_shown_last_until_the_update_shows_the_new_one)
{
    setText(1, "old");
    open(blinking(PTRN_CHAR));
    ticks(2);
    setText(1, "new");
    // The change of phase draws the old text, the update then the whole field with the new one.
    tick();
    model->DrawRect(10, 20, 10 + 5 * 8, 36, 0, 0, 8, 8);
    model->DrawText(10, 20, 0, 4, 8, "new");
    EXPECT_TRUE(asModelled());
    ticks(6);
    EXPECT_TRUE(asModelled());
    tick();
    model->DrawText(10, 20, 0, 8, 8, "new");
    EXPECT_TRUE(asModelled());
}

TEST_F(Blinking, repeats_the_text_of_the_last_update_after_a_later_display)
{
    // A later display does not store what it drew; without a code no update does either.
    setText(0, "old");
    open(Pattern("p").item(PTRN_CHAR, 10, 20, 90, 70).parm(TEXT_BACKED, 1).parm(TEXT_FLICKER, 1));
    setText(0, "new");
    data().DispPtrnData(canvas.draw());
    ticks(3);
    model->DrawRect(10, 20, 10 + 5 * 8, 36, 0, 0, 8, 8);
    model->DrawText(10, 20, 0, 4, 8, "old");
    EXPECT_TRUE(asModelled());
}

TEST_F(Blinking, begins_anew_with_every_window)
{
    open(blinking());
    ticks(5);
    open(blinking());
    EXPECT_EQ(ticks(13), "SSSSSSSSSbbbS");
}

TEST_F(Blinking, of_a_mark_needs_no_background)
{
    open(Pattern("p").item(PTRN_MARK, 10, 20, 90, 70).code("A").parm(MARK_FLICKER, 1));
    ASSERT_EQ(ticks(10), "SSSSSSSSSb");
    model->DrawMark(10, 20, 90, 70, 29, -1, 350);
    EXPECT_TRUE(asModelled());
    EXPECT_EQ(ticks(3), "bbS");
    model->DrawMark(10, 20, 90, 70, 4, -1, 350);
    EXPECT_TRUE(asModelled());
}
