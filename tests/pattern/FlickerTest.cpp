// The blinking of items.
#include "draw/Resource.h"
#include "tests/pattern/LoadedPattern.h"
#include "tests/support/Canvas.h"

#include <string>
#include <utility>
#include <vector>

using namespace tessary;

namespace
{

class Flicker : public LoadedPattern
{
  protected:
    Flicker() : canvas(100, 40)
    {
        usePalette();
        useFont(0, 16);
        MarkDataSet();
        MarkDataInit();
    }

    void tick()
    {
        canvas.clear();
        data().FlikPtrnData(canvas.draw());
    }
    void ticks(int count)
    {
        for (int i = 0; i < count; ++i)
            tick();
    }
    std::string drawn() { return canvas.picture().bounds(Canvas::GROUND); }
    /// 'S' for ticks that show the text, 'B' for ticks that blank it, '.' for ticks that draw nothing.
    std::string phases(int count)
    {
        std::string text;
        for (int i = 0; i < count; ++i) {
            tick();
            const Picture picture = canvas.picture();
            text += picture.count(color(TEXT_COLOR4)) ? 'S' : picture.count(color(TEXT_BACK4)) ? 'B' : '.';
        }
        return text;
    }

    Canvas canvas;
};

Pattern blinking(int type)
{
    return Pattern("p").item(type, 0, 0, 40, 16).text("text").code("A").parm(TEXT_FLICKER, 1);
}

} // namespace

TEST_F(Flicker, shows_for_seven_ticks_and_blanks_for_three_beginning_blanked)
{
    load(blinking(PTRN_FCHR));
    item().wData = 0;

    EXPECT_EQ(phases(25), "..S......B..S......B..S..");
}

TEST_F(Flicker, runs_whether_anything_blinks_or_not)
{
    load(Pattern("p"));
    EXPECT_EQ(data().FlikerFlag, 0);
    ticks(2);
    EXPECT_EQ(data().FlikerFlag, 0);
    EXPECT_EQ(data().FlikerTimr, 2);
    tick();
    EXPECT_EQ(data().FlikerFlag, 1);
    EXPECT_EQ(data().FlikerTimr, 0);
    ticks(6);
    EXPECT_EQ(data().FlikerFlag, 1);
    EXPECT_EQ(data().FlikerTimr, 6);
    tick();
    EXPECT_EQ(data().FlikerFlag, 0);
    EXPECT_EQ(data().FlikerTimr, 0);
}

TEST_F(Flicker, is_set_by_the_pattern_or_at_run_time)
{
    for (const auto& [parameter, state] : {std::pair(1, 0), std::pair(-3, 0), std::pair(0, STATE_FLICKER)}) {
        load(blinking(PTRN_FCHR).parm(TEXT_FLICKER, parameter));
        item().wData = static_cast<WORD>(state);
        EXPECT_EQ(phases(3), "..S") << parameter << " " << state;
    }
    load(blinking(PTRN_FCHR).parm(TEXT_FLICKER, 0));
    item().wData = STATE_FROZEN | STATE_NEVER;
    EXPECT_EQ(phases(3), "...");
}

TEST_F(Flicker, leaves_disabled_and_hidden_items_alone)
{
    for (const int state :
         {STATE_DISABLE, STATE_HIDDEN, STATE_DISABLE | STATE_FLICKER, STATE_HIDDEN | STATE_FLICKER}) {
        load(blinking(PTRN_FCHR));
        item().wData = static_cast<WORD>(state);
        EXPECT_EQ(phases(20), std::string(20, '.')) << state;
    }
}

TEST_F(Flicker, goes_by_the_state_of_the_last_display_not_by_the_cell)
{
    load(blinking(PTRN_FCHR).parm(TEXT_FLICKER, 0));
    item().wData = STATE_FLICKER;
    setState(1, STATE_HIDDEN);

    EXPECT_EQ(phases(3), "..S");
}

TEST_F(Flicker, concerns_texts_and_marks_only)
{
    for (int type = 1; type <= CONT_PTRN; ++type) {
        load(blinking(type).parm(SHAPE_FILLED, 1).parm(FIELD_WIDTH, 4));
        setText(1, "text");
        data().DispPtrnData(canvas.draw());
        item().wData = STATE_FLICKER;
        ticks(3);
        const bool blinks = type == PTRN_FCHR || type == PTRN_CHAR || type == PTRN_NUMR || type == PTRN_MARK;
        EXPECT_EQ(drawn() != "", blinks) << type;
    }
}

TEST_F(Flicker, reaches_items_of_every_pass_in_file_order)
{
    // A display draws the box of the second over the first; blinking goes by the file alone.
    load(Pattern("p")
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .parm(TEXT_FLICKER, 1)
             .text("aaaa")
             .item(PTRN_FCHR, 0, 0, 1, 1)
             .parm(TEXT_FLICKER, 1)
             .text("bbbb")
             .parm4(TEXT_BACK4, 30, 30, 30, 30)
             .top(2));
    ticks(3);

    EXPECT_EQ(canvas.picture().count(color(TEXT_BACK4)), 0);
    EXPECT_GT(canvas.picture().count(color(30)), 0);
}

TEST_F(Flicker, changes_nothing_of_the_item)
{
    load(blinking(PTRN_FCHR));
    set(1, 5.0F);
    ticks(3);

    EXPECT_EQ(val(item().wData), STATE_NEVER);
    EXPECT_EQ(val(item().fData), 0.0F);
}
