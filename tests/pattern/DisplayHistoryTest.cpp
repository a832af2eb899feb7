// What items leave of their older pictures. A tick draws over what is there, so that a window which has been
// open for a while can look other than one that has just been opened. Each case follows from how its type is
// drawn and erased; those that look like accidents are the way this system is.
#include "tests/pattern/ItemCanvas.h"

#include <filesystem>

using namespace tessary;

namespace
{

constexpr int NONE = -1;

/// The item is bound to cell 1. The test draws on the model what should have been drawn since the first
/// display.
class OldPicture : public ItemCanvas
{
  protected:
    /// A window that has just been opened.
    void open(const Pattern& pattern)
    {
        load(pattern);
        clear();
        data().DispPtrnData(canvas.draw());
    }
    void tick() { data().UpdtPtrnData(canvas.draw()); }
    void tickWithState(int word)
    {
        setState(1, word);
        tick();
    }
    void tickWithValue(float number)
    {
        set(1, number);
        tick();
    }
    void tickWithText(const char* text)
    {
        setText(1, text);
        tick();
    }

    /// What another window of the same pattern would show, opened now.
    Picture asOpenedNow() const
    {
        Canvas other(WIDTH, HEIGHT);
        CPtrnData opened("p");
        opened.DispPtrnData(other.draw());
        return other.picture();
    }
    testing::AssertionResult keepsSomething() const { return !same(canvas.picture(), asOpenedNow()); }
    testing::AssertionResult keepsNothing() const { return same(canvas.picture(), asOpenedNow()); }
};

Pattern bound(int type)
{
    return Pattern("p").item(type, 10, 20, 90, 70).code("A");
}

} // namespace

TEST_F(OldPicture, of_a_shape_without_fill_is_filled_once_it_has_been_hidden)
{
    for (const int type : {PTRN_RECT, PTRN_CRCL}) {
        const auto shape = [&](int outline, int fill) {
            if (type == PTRN_RECT)
                model->DrawRect(10, 20, 90, 70, 1, 0, outline, fill);
            else
                model->DrawCrcl(10, 20, 90, 70, 1, 0, outline, fill);
        };
        setState(1, 0);
        open(bound(type));
        tickWithState(STATE_HIDDEN);
        EXPECT_TRUE(keepsNothing());
        tickWithState(0);

        shape(29, 29);
        shape(4, NONE);
        EXPECT_TRUE(asModelled()) << type;
        EXPECT_TRUE(keepsSomething()) << type;
    }
}

TEST_F(OldPicture, of_a_shape_shows_through_a_selection_that_fills_with_no_colour)
{
    open(bound(PTRN_RECT).parm(SHAPE_FILLED, 1).parm4(SHAPE_FILL4, 40, NONE, 42, 43));
    tickWithState(1);

    EXPECT_EQ(canvas.picture().at(50, 45), color(40));
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_framed_bar_graph_keeps_the_frames_last_column_and_row_when_it_is_hidden)
{
    // A frame covers both of its corners, the eraser's fill ends before the second.
    open(bound(PTRN_BARG).parm(BARG_FRAME_WIDTH, 3));
    tickWithState(STATE_HIDDEN);

    EXPECT_TRUE(same(canvas.picture(), canvas.blank()
                                           .row(10, 91, 70, color(12))
                                           .column(90, 20, 71, color(12))
                                           .fill(10, 20, 90, 70, color(29))));
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_an_odd_needle_at_the_bottom_stays_below_the_graph)
{
    // There it lies on the row of the second corner, which the background leaves out.
    for (const auto& [wide, keeps] : {std::pair(1, true), {2, false}, {3, true}, {4, false}}) {
        set(1, 0.0F);
        open(bound(PTRN_BARG).parm(BARG_NEEDLE_WIDTH, wide));
        tickWithValue(50.0F);
        EXPECT_EQ(canvas.picture().at(50, 70), keeps ? color(4) : Canvas::GROUND) << wide;
        EXPECT_EQ(static_cast<bool>(keepsSomething()), keeps) << wide;
    }
}

TEST_F(OldPicture, of_a_text_without_background_shows_below_the_new_one)
{
    setText(1, "HHHH");
    open(bound(PTRN_CHAR));
    tickWithText("OOOO");
    model->DrawText(10, 20, 0, 4, NONE, "HHHH");
    model->DrawText(10, 20, 0, 4, NONE, "OOOO");
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());

    set(1, 111.0F);
    open(bound(PTRN_NUMR));
    tickWithValue(222.0F);
    model->DrawText(10, 20, 0, 4, NONE, "  111");
    model->DrawText(10, 20, 0, 4, NONE, "  222");
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_text_without_background_stays_when_it_is_disabled)
{
    setText(1, "Tank");
    for (const int type : {PTRN_FCHR, PTRN_CHAR, PTRN_NUMR}) {
        setState(1, 0);
        open(bound(type).text("Tank"));
        const Picture before = canvas.picture();
        tickWithState(STATE_DISABLE | 1);
        EXPECT_TRUE(same(canvas.picture(), before)) << type;
        EXPECT_TRUE(same(asOpenedNow(), canvas.blank())) << type;
    }
}

TEST_F(OldPicture, of_a_text_is_blanked_no_higher_than_its_ink_when_it_is_disabled)
{
    // The ink's height is counted from the line's top although the ink stands lower.
    open(bound(PTRN_FCHR).text("Tank").parm(TEXT_BACKED, 1));
    tickWithState(STATE_DISABLE | 2);
    model->DrawText(10, 20, 0, 4, 8, "Tank");
    model->ClearText(10, 20, 0, 10, "Tank");

    EXPECT_TRUE(asModelled());
    EXPECT_GT(canvas.picture().count(color(8)), 0);
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_text_without_background_is_a_box_once_it_has_been_hidden)
{
    open(bound(PTRN_FCHR).text("Tank"));
    tickWithState(STATE_HIDDEN);
    tickWithState(0);
    model->DrawText(10, 20, 0, 29, 29, "Tank");
    model->DrawText(10, 20, 0, 4, NONE, "Tank");

    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_field_is_erased_as_far_as_the_text_shown_last_when_it_is_hidden)
{
    setText(1, "abcdef");
    open(bound(PTRN_CHAR).parm(FIELD_WIDTH, 8).parm(TEXT_BACKED, 1).text("x"));
    setText(1, "no longer shown");
    tickWithState(STATE_HIDDEN);
    model->DrawRect(10, 20, 10 + 8 * 8, 36, 0, 0, 8, 8);
    model->DrawText(10, 20, 0, 29, 29, "abcdef");
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());

    setState(1, 0);
    set(1, 12.0F);
    open(bound(PTRN_NUMR).parm(FIELD_WIDTH, -5).parm(TEXT_BACKED, 0).text("x"));
    set(1, 345.0F);
    tickWithState(STATE_HIDDEN);
    model->DrawText(10, 20, 0, 29, 29, "12   ");
    EXPECT_TRUE(asModelled()) << "a new window would erase the text of the pattern file";
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_number_longer_than_its_field_keeps_what_sticks_out)
{
    set(1, 1234567.0F);
    open(bound(PTRN_NUMR).parm(FIELD_WIDTH, 3).parm(TEXT_BACKED, 1));
    tickWithValue(8.0F);
    model->DrawText(10, 20, 0, 4, 8, "1234567");
    model->DrawText(10, 20, 0, 4, 8, "  8");

    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_button_keeps_what_its_caption_had_outside)
{
    for (const int state : {STATE_HIDDEN, STATE_DISABLE}) {
        setState(1, 0);
        open(Pattern("p").item(PTRN_BUTN, 40, 20, 60, 40).text("Emergency").code("A"));
        tickWithState(state);
        model->DrawButn(40, 20, 60, 40, 2, 4, 5, 6, 7, NONE, 0, "Emergency");
        model->DrawRect(40, 20, 60, 40, 0, 0, 29, 29);
        EXPECT_TRUE(asModelled());
        EXPECT_GT(canvas.picture().count(color(7)), 0);
        EXPECT_TRUE(keepsSomething());
    }
}

TEST_F(OldPicture, of_a_mark_without_background_shows_below_that_of_the_new_value)
{
    set(1, 1.0F);
    open(bound(PTRN_RDIO));
    tickWithValue(2.0F);
    model->DrawMark(10, 20, 26, 36, 4, NONE, 351);
    model->DrawMark(10, 20, 26, 36, 4, NONE, 350);
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething()) << "the dot stays in the ring";

    open(bound(PTRN_CHCK));
    tickWithValue(0.0F);
    model->DrawMark(10, 20, 26, 36, 4, NONE, 353);
    model->DrawMark(10, 20, 26, 36, 4, NONE, 352);
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething()) << "the tick stays in the box";
}

TEST_F(OldPicture, of_a_label_is_erased_no_higher_than_its_ink)
{
    for (const int type : {PTRN_RDIO, PTRN_CHCK}) {
        for (const int state : {STATE_HIDDEN, STATE_DISABLE}) {
            setState(1, 0);
            open(bound(type).text("Auto").parm(CHECK_BACKED, 1));
            tickWithState(state);
            model->DrawText(34, 20, 0, 4, 6, "Auto");
            model->DrawRect(10, 20, 26, 36, 0, 0, 29, 29);
            model->ClearText(34, 20, 0, 29, "Auto");
            EXPECT_TRUE(asModelled()) << type;
            EXPECT_GT(canvas.picture().count(color(6)), 0);
            EXPECT_TRUE(keepsSomething()) << type;
        }
    }
}

TEST_F(OldPicture, of_a_bitmap_with_a_transparent_colour_is_backed_once_it_has_been_hidden)
{
    std::filesystem::create_directories(project.folder() + "/Bitmap");
    project.write("Bitmap/two.ppm", "P6\n2 1\n255\n" + std::string("\x34\x78\x21\x11\x22\x33", 6));
    setColor(60, 0x1234, 0x5678, 0x4321);
    open(bound(PTRN_BMAP).text("two.ppm").parm(BMAP_KEYED, 1).parm(BMAP_KEY_COLOR, 60));
    tickWithState(STATE_HIDDEN);
    tickWithState(0);
    model->DrawRect(10, 20, 90, 70, 0, 0, 29, 29);
    model->DrawBmap(10, 20, 90, 70, 60, "two.ppm");

    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_mark_item_is_wiped_in_the_clear_colour_and_not_in_what_is_below)
{
    const Pattern pattern =
        Pattern("p").item(PTRN_GBOX, 0, 0, 120, 90).item(PTRN_MARK, 10, 20, 90, 70).code("A");
    open(pattern);
    tickWithState(2);
    model->DrawGbox(0, 0, 120, 90, 2, 2, 2, 2, 8, 12, 16, 20, 4);
    model->DrawMark(10, 20, 90, 70, 29, NONE, 350);
    model->DrawMark(10, 20, 90, 70, 6, NONE, 352);

    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_mark_item_is_only_wiped_as_the_mark_drawn_last)
{
    // Disabled it is not drawn, hidden it is erased: neither is a mark drawn. What the full display of
    // another window draws is not known here either.
    open(bound(PTRN_MARK));
    tickWithState(STATE_DISABLE | 1);
    model->DrawMark(10, 20, 90, 70, 4, NONE, 350);
    EXPECT_TRUE(asModelled()) << "the old picture stays";
    EXPECT_TRUE(keepsSomething());
    tickWithState(2);
    model->DrawMark(10, 20, 90, 70, 29, NONE, 350);
    model->DrawMark(10, 20, 90, 70, 6, NONE, 352);
    EXPECT_TRUE(asModelled());
    tickWithState(STATE_HIDDEN | 3);
    EXPECT_TRUE(keepsNothing());
    tickWithState(3);
    model->DrawRect(10, 20, 90, 70, 0, 0, 29, 29);
    model->DrawMark(10, 20, 90, 70, 7, NONE, 353);
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething()) << "the box of the eraser";
}

TEST_F(OldPicture, of_a_scroll_bar_with_nothing_to_scroll_is_the_box_of_its_eraser)
{
    open(bound(PTRN_SBAR).parm(SBAR_TOTAL, 10));
    EXPECT_TRUE(untouched());
    tickWithState(STATE_HIDDEN);
    tickWithState(0);

    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 90, 70, color(29))));
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_thumb_beyond_its_bar_stays_there)
{
    // Inner area 11..69 x 21..29 without buttons: thumb 5 of 58 pixels, 53 x 180 / 90 beyond the begin.
    set(1, 180.0F);
    const Pattern pattern =
        Pattern("p").item(PTRN_SBAR, 10, 20, 70, 30).code("A").parm(SBAR_ARROWS, 0).parm(SBAR_WIDTH, 1);
    open(pattern);
    const auto thumb = [this](int x) {
        model->DrawButn(x, 23, x + 5, 27, 1, SBAR_LIGHT, SBAR_DARK, SBAR_THUMB, 0, 0, 0, "");
    };
    const auto bar = [this] {
        model->DrawButn(10, 20, 70, 30, 1, SBAR_LIGHT, SBAR_DARK, SBAR_FRAME, 0, 0, 0, "");
    };
    bar();
    thumb(11 + 106);
    EXPECT_TRUE(asModelled());
    tickWithValue(0.0F);
    bar();
    thumb(11);

    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_an_item_on_top_is_painted_over_when_one_below_changes)
{
    Pattern pattern("p");
    pattern.item(PTRN_GBOX, 10, 20, 90, 70).code("A");
    pattern.item(PTRN_BUTN, 30, 30, 70, 60).code("A", 1).top();
    open(pattern);
    tickWithState(1);

    model->DrawGbox(10, 20, 90, 70, 2, 2, 2, 2, 9, 13, 17, 21, 5);
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());
    setState(2, 1);
    tick();
    EXPECT_TRUE(keepsNothing()) << "the item on top has been drawn again";
}

TEST_F(OldPicture, of_items_below_has_a_hole_where_one_has_been_hidden)
{
    Pattern pattern("p");
    pattern.item(PTRN_GBOX, 10, 20, 90, 70).code("A", 1);
    pattern.item(PTRN_RECT, 30, 30, 70, 60).code("A").parm(SHAPE_WIDTH, 0).parm(SHAPE_FILLED, 1);
    open(pattern);
    tickWithState(STATE_HIDDEN);
    model->DrawGbox(10, 20, 90, 70, 2, 2, 2, 2, 8, 12, 16, 20, 4);
    model->DrawRect(30, 30, 70, 60, 0, 0, 29, 29);
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsNothing()) << "a new window has the hole too";

    setState(2, 1);
    tick();
    model->DrawGbox(10, 20, 90, 70, 2, 2, 2, 2, 9, 13, 17, 21, 5);
    EXPECT_TRUE(asModelled()) << "until the item below is drawn again";
    EXPECT_TRUE(keepsSomething());
}

TEST_F(OldPicture, of_a_frozen_item_stays_although_a_new_window_shows_the_new_one)
{
    setText(1, "Tank");
    for (int type = 1; type <= PTRN_SPIN; ++type) {
        if (type == PTRN_BMAP || type == PTRN_SPIN || type == PTRN_SBAR)
            continue; // look the same in every colour
        setState(1, 0);
        open(bound(type).text("Tank"));
        const Picture before = canvas.picture();
        ASSERT_NE(before.bounds(Canvas::GROUND), "") << type;
        tickWithState(STATE_FROZEN | 1);
        EXPECT_TRUE(same(canvas.picture(), before)) << type;
        EXPECT_TRUE(keepsSomething()) << type;
        tickWithState(1);
        EXPECT_TRUE(type == PTRN_MARK || keepsNothing()) << type;
    }
}

TEST_F(OldPicture, of_an_item_without_code_stays_although_it_is_displayed_with_cell_0)
{
    open(Pattern("p").item(PTRN_RECT, 10, 20, 90, 70));
    setState(0, 1);
    tick();

    EXPECT_EQ(canvas.picture().at(10, 20), color(4));
    EXPECT_EQ(asOpenedNow().at(10, 20), color(5));
}

TEST_F(OldPicture, of_a_pass_that_is_never_drawn_is_never_there)
{
    open(bound(PTRN_GBOX).top(2));
    tickWithState(1);

    EXPECT_TRUE(untouched());
    EXPECT_TRUE(keepsNothing());
}

TEST_F(OldPicture, of_a_text_without_background_has_one_once_it_has_blinked)
{
    open(bound(PTRN_FCHR).text("Tank").parm(TEXT_FLICKER, 1));
    for (int ticks = 0; ticks < FLIKER_OFF; ++ticks)
        data().FlikPtrnData(canvas.draw());
    model->DrawText(10, 20, 0, 4, 8, "Tank");
    EXPECT_TRUE(asModelled());
    EXPECT_TRUE(keepsSomething());

    for (int ticks = 0; ticks < FLIKER_ON; ++ticks)
        data().FlikPtrnData(canvas.draw());
    EXPECT_EQ(canvas.picture().count(color(4)), 0) << "blanked, where a new window shows the text at first";
    EXPECT_TRUE(keepsSomething());
}
