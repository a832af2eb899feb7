// Items that change, are hidden or blink in a display of several layers: what lies below comes back and what
// lies above stays, from the edition on that has layers; before, an item is drawn over what is there.
#include "tests/pattern/ItemCanvas.h"
#include "tests/support/UseEdition.h"

#include "config/Edition.h"
#include "pattern/ItemTable.h"
#include "pattern/Layers.h"

#include <filesystem>
#include <gmock/gmock.h>

using namespace tessary;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int NONE = -1;
constexpr int BODY = HEDR_BODY_COLOR;

/// Items 0, 1, 2 ... of a pattern are bound to cells 1, 2, 3 ...
class Layered : public ItemCanvas
{
  protected:
    void open(const Pattern& pattern)
    {
        load(pattern);
        clear();
        data().DispTitle(canvas.draw());
        data().DispPtrnData(canvas.draw());
        modelBody();
    }

    void modelBody() { model->DrawRect(0, 0, WIDTH, HEIGHT, 0, 0, BODY, BODY); }

    void tick()
    {
        data().FlikPtrnData(canvas.draw());
        data().UpdtPtrnData(canvas.draw());
    }
    void tickWithState(int no, int word)
    {
        setState(no, word);
        tick();
    }

    static Pattern plain() { return Pattern("p").size(WIDTH, HEIGHT); }

    /// A box in state colours 40 to 43 below a text.
    static Pattern boxBelowText()
    {
        Pattern pattern = plain();
        pattern.item(PTRN_RECT, 10, 10, 100, 60).code("A", 0);
        pattern.parm(SHAPE_FILLED, 1).parm(SHAPE_WIDTH, 0).parm4(SHAPE_FILL4, 40, 41, 42, 43);
        pattern.item(PTRN_FCHR, 20, 20, 60, 36).text("Tank").code("A", 1);
        return pattern;
    }

    void modelBox(int color) { model->DrawRect(10, 10, 100, 60, 0, 0, color, color); }
    void modelText(const char* text, int color = 4) { model->DrawText(20, 20, 0, color, NONE, text); }
};

} // namespace

TEST_F(Layered, live_text_without_background_no_longer_prints_over_itself)
{
    const auto show = [&] {
        setText(1, "HHHH");
        open(plain().item(PTRN_CHAR, 20, 20, 60, 36).code("A"));
        setText(1, "OO");
        tick();
    };
    show();
    modelText("HHHH");
    modelText("OO");
    EXPECT_TRUE(asModelled()) << "edition 1";

    const UseEdition edition;
    show();
    modelText("OO");
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, a_box_in_state_colour_no_longer_wipes_the_texts_above)
{
    const auto show = [&] {
        setState(1, 0);
        open(boxBelowText());
        tickWithState(1, 2);
    };
    show();
    modelBox(42);
    EXPECT_TRUE(asModelled()) << "edition 1";

    const UseEdition edition;
    show();
    modelBox(42);
    modelText("Tank");
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, a_hidden_item_leaves_what_lies_below)
{
    const auto show = [&] {
        setState(2, 0);
        open(boxBelowText());
        tickWithState(2, STATE_HIDDEN);
    };
    show();
    modelBox(40);
    model->DrawText(20, 20, 0, 29, 29, "Tank");
    EXPECT_TRUE(asModelled()) << "edition 1";

    const UseEdition edition;
    show();
    modelBox(40);
    EXPECT_TRUE(asModelled());
    tickWithState(2, 1);
    modelText("Tank", 5);
    EXPECT_TRUE(asModelled()) << "it comes back";
}

TEST_F(Layered, an_item_that_is_hidden_from_the_start_does_not_show_its_clear_colour)
{
    setState(2, STATE_HIDDEN);
    open(boxBelowText());
    modelBox(40);
    model->DrawText(20, 20, 0, 29, 29, "Tank");
    EXPECT_TRUE(asModelled()) << "edition 1";

    const UseEdition edition;
    open(boxBelowText());
    modelBox(40);
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, a_disabled_text_without_background_disappears)
{
    const auto show = [&] {
        setState(2, 0);
        open(boxBelowText());
        tickWithState(2, STATE_DISABLE);
    };
    show();
    modelBox(40);
    modelText("Tank");
    EXPECT_TRUE(asModelled()) << "edition 1";

    const UseEdition edition;
    show();
    modelBox(40);
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, a_disabled_text_with_background_is_blanked_as_a_whole)
{
    const UseEdition edition;
    setText(1, "gy");
    open(plain().item(PTRN_CHAR, 20, 20, 60, 36).parm(TEXT_BACKED, 1).code("A"));
    tickWithState(1, STATE_DISABLE);
    model->DrawRect(20, 20, 20 + 5 * 8, 36, 0, 0, 8, 8);
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, what_a_button_had_outside_goes_with_it)
{
    const UseEdition edition;
    open(plain().item(PTRN_BUTN, 40, 20, 60, 40).text("Emergency").code("A"));
    tickWithState(1, STATE_HIDDEN);
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, the_thumb_of_a_value_beyond_the_bar_leaves_nothing_behind)
{
    const UseEdition edition;
    open(plain().item(PTRN_SBAR, 10, 10, 70, 24).code("A"));
    set(1, 200.0F);
    tick();
    EXPECT_EQ(canvas.picture().at(92, 16), color(SBAR_THUMB)) << "past its end";
    set(1, 0.0F);
    tick();
    EXPECT_EQ(canvas.picture().at(92, 16), color(BODY));
}

TEST_F(Layered, only_the_area_of_the_changed_item_is_drawn)
{
    const UseEdition edition;
    open(boxBelowText()
             .item(PTRN_RECT, 50, 50, 110, 80)
             .code("A", 2)
             .parm(SHAPE_WIDTH, 0)
             .parm(SHAPE_FILLED, 1));
    canvas.clear();
    tickWithState(3, 1);
    Picture expected = canvas.blank().fill(50, 50, 110, 80, color(SHAPE_FILL4 + 1));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(Layered, the_title_bar_and_its_clock_lie_below_the_items)
{
    const UseEdition edition;
    const int date[] = {2026, 11, 22, 0, 9, 30, 15};
    for (int i = 0; i < 7; ++i)
        Set_iData(DTNO_SYSCALN + i, date[i], nullptr, 0);
    const Pattern pattern = plain()
                                .title("Plant")
                                .header(HEDR_TITLE_HEIGHT, 30)
                                .header(HEDR_CLOCK, 1)
                                .header(HEDR_HARDCOPY, 1)
                                .item(PTRN_RECT, 0, 0, 110, 40)
                                .parm(SHAPE_FILLED, 1)
                                .code("A");
    setState(1, STATE_HIDDEN);
    open(pattern);
    const Picture bare = canvas.picture();
    EXPECT_GT(bare.count(color(HEDR_TITLE_COLOR)), 0);
    setState(1, 0);
    tick();
    EXPECT_EQ(canvas.picture().at(50, 15), color(SHAPE_FILL4));
    tickWithState(1, STATE_HIDDEN);
    EXPECT_TRUE(same(canvas.picture(), bare));
}

TEST_F(Layered, the_clock_goes_on_below_the_items)
{
    const auto lapOfTime = [&] {
        Set_iData(DTNO_SYSCALN + 6, 15, nullptr, 0);
        open(plain()
                 .header(HEDR_TITLE_HEIGHT, 30)
                 .header(HEDR_CLOCK, 3)
                 .item(PTRN_RECT, 0, 0, WIDTH, 30)
                 .parm(SHAPE_FILLED, 1)
                 .code("A", 10));
        const Picture before = canvas.picture();
        Set_iData(DTNO_SYSCALN + 6, 16, nullptr, 0);
        data().DispCalender(canvas.draw());
        return same(canvas.picture(), before);
    };
    EXPECT_FALSE(lapOfTime()) << "edition 1";
    const UseEdition edition;
    EXPECT_TRUE(lapOfTime()) << "all of it lies below";
}

TEST_F(Layered, the_window_draws_what_lies_above_and_below_within_the_area)
{
    const UseEdition edition;
    open(boxBelowText());
    data().DrawAbove = [](CDraw* draw) { draw->DrawRect(0, 0, 30, 30, 0, 0, 60, 60); };
    data().DrawBelow = [](CDraw* draw) { draw->DrawRect(0, 0, WIDTH, HEIGHT, 0, 0, 61, 61); };
    canvas.clear();
    tickWithState(2, 1);
    const Picture picture = canvas.picture();
    EXPECT_EQ(picture.at(25, 25), color(60));
    EXPECT_EQ(picture.at(5, 5), Canvas::GROUND) << "outside the text";
    EXPECT_EQ(picture.count(color(61)), 0) << "the body covers it";

    open(plain().bitmap("missing").item(PTRN_RECT, 10, 10, 40, 40).code("A", 4));
    data().DrawBelow = [](CDraw* draw) { draw->DrawRect(0, 0, WIDTH, HEIGHT, 0, 0, 61, 61); };
    tickWithState(5, STATE_HIDDEN);
    EXPECT_EQ(canvas.picture().at(20, 20), color(61));
}

TEST_F(Layered, a_frozen_item_is_not_drawn_by_its_own_changes_but_with_its_neighbours)
{
    const UseEdition edition;
    setText(2, "old");
    open(plain()
             .item(PTRN_RECT, 10, 10, 100, 60)
             .parm(SHAPE_FILLED, 1)
             .code("A", 0)
             .item(PTRN_CHAR, 20, 20, 60, 36)
             .code("A", 1));
    setText(2, "new");
    const Picture before = canvas.picture();
    tickWithState(2, STATE_FROZEN);
    EXPECT_TRUE(same(canvas.picture(), before));
    tickWithState(1, 1);
    model->DrawRect(10, 10, 100, 60, 1, 0, 5, 9);
    modelText("new");
    EXPECT_TRUE(asModelled());
}

TEST_F(Layered, the_bar_that_is_dragged_keeps_its_layout_while_another_is_drawn)
{
    const UseEdition edition;
    open(plain().item(PTRN_SBAR, 10, 10, 110, 24).code("A", 0).item(PTRN_SBAR, 10, 40, 60, 54).code("A", 1));
    PTRNDATA bar = item(0);
    data().SetScrollBar(&bar);
    const RECT trough = data().SCrect6;
    set(2, 20.0F);
    tick();
    EXPECT_EQ(data().SCrect6.width, trough.width);
    EXPECT_EQ(data().SCrect6.top, trough.top);
}

TEST_F(Layered, a_changed_type_or_pass_changes_the_order)
{
    const UseEdition edition;
    open(boxBelowText());
    PTRNDATA box = item(0);
    box.Parm[PARM_PASS] = 1;
    data().WritePtrnData(&box);
    tickWithState(2, 1);
    modelBox(40);
    EXPECT_TRUE(asModelled()) << "the box lies above the text now";
}

TEST_F(Layered, an_update_without_a_display_draws_what_has_changed)
{
    const UseEdition edition;
    load(boxBelowText());
    canvas.clear();
    tick();
    modelBox(40);
    modelText("Tank");
    Picture expected = model.picture();
    EXPECT_EQ(canvas.picture().at(50, 50), expected.at(50, 50));
    EXPECT_EQ(canvas.picture().count(color(4)), expected.count(color(4)));
}

TEST_F(Layered, a_number_that_is_none_is_drawn_once_and_not_at_every_tick)
{
    const auto drawsAgain = [&] {
        set(1, std::numeric_limits<float>::quiet_NaN());
        open(plain().item(PTRN_BARG, 10, 10, 60, 40).code("A"));
        tick();
        canvas.clear();
        tick();
        return !same(canvas.picture(), canvas.blank());
    };
    EXPECT_TRUE(drawsAgain()) << "edition 1";
    const UseEdition edition;
    EXPECT_FALSE(drawsAgain());
}

namespace
{

/// Every type blinks by its state, the text types and marks by their parameter too.
class BlinkingTypes : public Layered, public testing::WithParamInterface<int>
{
  protected:
    static Pattern twoOf(int type)
    {
        Pattern pattern = plain();
        pattern.item(PTRN_GBOX, 5, 5, 110, 70).parm4(GBOX_FACE4, 60, 60, 60, 60);
        pattern.item(type, 10, 10, 70, 40).text(type == PTRN_BMAP ? "dot.ppm" : "Tank").code("A");
        return pattern;
    }
    void SetUp() override
    {
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        project.write("Bitmap/dot.ppm", "P6\n1 1\n255\n\x11\x22\x33");
    }
};

std::string typeName(const testing::TestParamInfo<int>& info)
{
    return "type" + std::to_string(info.param);
}

} // namespace

TEST_P(BlinkingTypes, are_away_for_three_ticks_and_shown_for_seven)
{
    const UseEdition edition;
    setState(1, STATE_HIDDEN | STATE_FLICKER);
    setText(1, "abc");
    open(twoOf(GetParam()));
    const Picture away = canvas.picture();
    setState(1, STATE_FLICKER);
    open(twoOf(GetParam()));
    const Picture shown = canvas.picture();
    ASSERT_FALSE(same(shown, away));
    for (int count = 1; count <= 40; ++count) {
        tick();
        const bool blanked = count % 10 < 3 && count >= 10;
        ASSERT_TRUE(same(canvas.picture(), blanked ? away : shown)) << count;
    }
}

TEST_P(BlinkingTypes, blink_only_where_they_are_texts_or_marks_before_that_edition)
{
    const int type = GetParam();
    const bool old = type == PTRN_FCHR || type == PTRN_CHAR || type == PTRN_NUMR || type == PTRN_MARK;
    setState(1, STATE_FLICKER);
    setText(1, "abc");
    open(twoOf(type));
    const Picture shown = canvas.picture();
    bool changed = false;
    for (int count = 0; count < 20; ++count) {
        tick();
        changed = changed || !same(canvas.picture(), shown);
    }
    EXPECT_EQ(changed, old);
}

TEST_P(BlinkingTypes, that_are_disabled_do_not_blink)
{
    const UseEdition edition;
    setState(1, STATE_DISABLE | STATE_FLICKER);
    setText(1, "abc");
    open(twoOf(GetParam()));
    const Picture shown = canvas.picture();
    for (int count = 0; count < 20; ++count) {
        tick();
        ASSERT_TRUE(same(canvas.picture(), shown)) << count;
    }
}

INSTANTIATE_TEST_SUITE_P(All, BlinkingTypes, testing::Range(1, CONT_PTRN + 1), typeName);

TEST_F(Layered, what_blinks_by_its_parameter_needs_no_state)
{
    const UseEdition edition;
    for (const ItemClass& type : ItemClasses()) {
        if (type.blinkParm < 0)
            continue;
        setText(1, "abc");
        open(plain().item(type.type, 10, 10, 60, 40).text("Tank").code("A").parm(type.blinkParm, 1));
        const Picture shown = canvas.picture();
        for (int count = 0; count < 10; ++count)
            tick();
        EXPECT_FALSE(same(canvas.picture(), shown)) << type.name;
        EXPECT_TRUE(asModelled()) << type.name << " shows the body alone";
    }
}

TEST_F(Layered, an_item_that_is_away_stays_away_while_its_neighbour_changes)
{
    const UseEdition edition;
    setState(2, STATE_FLICKER);
    open(boxBelowText());
    for (int count = 0; count < 10; ++count)
        tick();
    tickWithState(1, 2);
    modelBox(42);
    EXPECT_TRUE(asModelled());
    tick();
    tick();
    modelText("Tank");
    EXPECT_TRUE(asModelled());
}

// --- the index --------------------------------------------------------------------------------------------

namespace
{

class LayerIndex : public testing::Test
{
  protected:
    LayerIndex() : layers(4, {1280, 1024}) { layers.setOrder({2, 0, 3, 1}); }

    Layers layers;
};

} // namespace

TEST_F(LayerIndex, finds_those_who_meet_an_area_in_the_order_of_drawing)
{
    layers.setArea(0, {100, 100, 200, 120});
    layers.setArea(1, {150, 90, 160, 200});
    layers.setArea(2, {0, 0, 1280, 1024});
    EXPECT_THAT(layers.meeting({155, 110, 156, 111}), ElementsAre(2, 0, 1));
    EXPECT_THAT(layers.meeting({100, 100, 101, 101}), ElementsAre(2, 0));
    EXPECT_THAT(layers.meeting({99, 99, 100, 100}), ElementsAre(2));
    EXPECT_THAT(layers.meeting({155, 200, 156, 201}), ElementsAre(2)) << "the bottom row is left out";
    EXPECT_THAT(layers.meeting({5, 5, 5, 6}), IsEmpty());
}

TEST_F(LayerIndex, follows_an_item_that_moves_and_one_that_goes)
{
    layers.setArea(0, {10, 10, 20, 20});
    layers.setArea(0, {900, 900, 950, 950});
    EXPECT_THAT(layers.meeting({10, 10, 20, 20}), IsEmpty());
    EXPECT_THAT(layers.meeting({940, 940, 941, 941}), ElementsAre(0));
    layers.setArea(0, {});
    EXPECT_THAT(layers.meeting({0, 0, 1280, 1024}), IsEmpty());
    layers.setArea(0, {10, 10, 20, 20});
    EXPECT_THAT(layers.meeting({10, 10, 11, 11}), ElementsAre(0));
}

TEST_F(LayerIndex, leaves_out_items_without_a_place_in_the_order)
{
    layers.setArea(0, {10, 10, 20, 20});
    layers.setArea(1, {10, 10, 20, 20});
    layers.setOrder({1});
    EXPECT_THAT(layers.meeting({10, 10, 20, 20}), ElementsAre(1));
}

TEST(CoveredBoxes, are_left_out_with_empty_ones)
{
    const Box large{0, 0, 100, 100};
    const Box other{90, 90, 120, 120};
    EXPECT_THAT(WithoutCovered({{5, 5, 10, 10}, {}, large, other, large, {110, 110, 112, 112}}),
                ElementsAre(large, other));
    EXPECT_THAT(WithoutCovered({}), IsEmpty());
}
