// Which items are drawn, when, in which order and with which data.
#include "tests/pattern/DisplayFixture.h"

#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

using namespace tessary;

namespace
{

constexpr int X = 8; ///< a point that every type of `solid` covers
constexpr int Y = 8;

/// An item of any type that covers the point in the colour 40 + type (spin buttons: in one of their image).
void solid(Project& project, Pattern& pattern, int type)
{
    const int colr = 40 + type;
    pattern.item(type, 0, 0, 40, 16).parm4(4, colr, colr, colr, colr).parm4(8, colr, colr, colr, colr);
    switch (type) {
    case PTRN_LINE:
        pattern.parm(PARM_Y1, 8).parm(PARM_Y2, 8).parm(LINE_WIDTH, 12);
        break;
    case PTRN_RECT:
    case PTRN_CRCL:
        pattern.parm(SHAPE_FILLED, 1);
        break;
    case PTRN_FCHR:
    case PTRN_CHAR:
    case PTRN_NUMR:
        pattern.parm(TEXT_BACKED, 1).text("    .");
        break;
    case PTRN_RDIO:
    case PTRN_CHCK:
        pattern.parm(CHECK_BACKED, 1);
        break;
    case PTRN_BMAP:
        // One pixel, scaled to the box.
        project.write("Bitmap/dot.ppm", "P6 1 1 255\n\x11\x22\x33");
        pattern.parm(BMAP_KEYED, 0).text("dot.ppm");
        break;
    case PTRN_MARK:
        pattern.parm(MARK_BACKED, 1);
        break;
    case PTRN_SBAR:
        pattern.parm(SBAR_ARROWS, 0).parm(SBAR_PAGES, 0);
        break;
    default:
        break;
    }
}

} // namespace

TEST_F(Display, draws_types_in_their_order_whatever_the_order_in_the_file)
{
    std::filesystem::create_directory(project.folder() + "/Bitmap");
    const std::vector<int> order{PTRN_GBOX, PTRN_RECT, PTRN_CRCL, PTRN_BARG, PTRN_LINE,
                                 PTRN_BMAP, PTRN_MARK, PTRN_SBAR, PTRN_SPIN, PTRN_BUTN,
                                 PTRN_RDIO, PTRN_CHCK, PTRN_FCHR, PTRN_CHAR, PTRN_NUMR};
    std::map<int, std::uint32_t> alone;
    std::set<std::uint32_t> colors{Canvas::GROUND};
    for (const int type : order) {
        Pattern pattern("alone");
        solid(project, pattern, type);
        load(pattern);
        alone[type] = display().at(X, Y);
        ASSERT_TRUE(colors.insert(alone[type]).second) << "type " << type << " can not be told from others";
    }

    for (std::size_t count = 1; count <= order.size(); ++count) {
        Pattern pattern("several");
        for (std::size_t i = count; i > 0; --i)
            solid(project, pattern, order[i - 1]);
        load(pattern);
        EXPECT_EQ(display().at(X, Y), alone[order[count - 1]])
            << "type " << order[count - 1] << " over those before";
    }
}

TEST_F(Display, draws_items_of_one_type_in_file_order)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 50, 50);
    box(pattern, 0, 0, 50, 50).parm(SHAPE_FILL4, 33);
    load(pattern);

    EXPECT_EQ(display().at(X, Y), color(33));
}

TEST_F(Display, draws_pass_1_over_pass_0)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 50, 50).top();
    pattern.item(PTRN_BUTN, 0, 0, 50, 50);
    load(pattern);

    EXPECT_EQ(display().at(X, Y), color(20));
}

TEST_F(Display, of_one_pass_draws_its_items_only)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 10, 10);
    box(pattern, 20, 20, 30, 30).top();
    box(pattern, 40, 40, 50, 50).top(2);
    load(pattern);

    EXPECT_EQ(drawn(display()), "0,0-29,29") << "an item of pass 2 is never drawn";
    for (const auto& [pass, bounds] : {std::pair(0, "0,0-9,9"), std::pair(1, "20,20-29,29")}) {
        canvas.clear();
        data().DispPtrnData(canvas.draw(), pass);
        EXPECT_EQ(drawn(canvas.picture()), bounds);
    }
}

TEST_F(Display, passes_over_items_of_unknown_type)
{
    Pattern pattern("p");
    pattern.item(0, 0, 0, 50, 50).code("A").item(CONT_PTRN + 1, 0, 0, 50, 50).code("A");
    load(pattern);
    set(1, 1.0F);

    EXPECT_EQ(drawn(display()), "");
    EXPECT_EQ(drawn(update()), "");
    data().DispPtrnData(canvas.draw(), &item(0), 1);
    data().ClerPtrnData(canvas.draw(), &item(1));
    EXPECT_EQ(drawn(canvas.picture()), "");
}

TEST_F(Display, draws_with_the_state_of_the_cell)
{
    load(box(0, 0, 10, 10).code("A"));
    for (const int state : {0, 1, 2, 3, 1 | STATE_FROZEN, 2 | STATE_FLICKER}) {
        setState(1, state);
        EXPECT_EQ(display().at(X, Y), color(20 + (state & 3))) << state;
    }
}

TEST_F(Display, draws_unbound_items_with_cell_0_and_unknown_ones_with_nothing)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 10, 10);
    box(pattern, 20, 0, 30, 10).code("unknown");
    load(pattern);
    setState(0, 2);

    const Picture picture = display();
    EXPECT_EQ(picture.at(5, 5), color(22));
    EXPECT_EQ(picture.at(25, 5), color(20));
}

TEST_F(Display, erases_hidden_items_even_before_they_were_drawn)
{
    load(box(0, 0, 10, 10).code("A"));
    setState(1, STATE_HIDDEN | 1);

    EXPECT_EQ(display().at(X, Y), color(29));
}

TEST_F(Display, stores_what_it_drew_the_first_time_only)
{
    load(box(0, 0, 10, 10).code("A"));
    setState(1, 1);
    set(1, 5.0F);
    setText(1, "text");
    display();
    EXPECT_EQ(val(item().wData), 1);
    EXPECT_EQ(val(item().fData), 5.0F);
    EXPECT_STREQ(item().sData, "text");

    setState(1, 2);
    set(1, 6.0F);
    setText(1, "other");
    EXPECT_EQ(display().at(X, Y), color(22)) << "drawn from the cell";
    EXPECT_EQ(val(item().wData), 1) << "but not stored";
    EXPECT_EQ(val(item().fData), 5.0F);
    EXPECT_STREQ(item().sData, "text");

    EXPECT_EQ(drawn(update()), "0,0-9,9") << "so that the update still sees the change";
    EXPECT_EQ(val(item().wData), 2);
}

TEST_F(Display, of_a_mark_always_stores_it)
{
    load(Pattern("p").item(PTRN_MARK, 0, 0, 16, 16).code("A").parm(MARK_BACKED, 1));
    display();
    EXPECT_EQ(item().Parm[MARK_LAST], 350);
    setState(1, 2);
    display();

    EXPECT_EQ(item().Parm[MARK_LAST], 352);
    EXPECT_EQ(val(item().wData), 2);
    EXPECT_EQ(drawn(update()), "");
}

TEST_F(Display, of_one_item_tells_it_the_update_flag)
{
    // Only a mark looks at it: an update first wipes the mark drawn last.
    load(Pattern("p").item(PTRN_MARK, 0, 0, 16, 16).parm(MARK_BACKED, 0).parm(MARK_NUMBER4, 351));
    PTRNDATA mark = item();
    mark.Parm[MARK_LAST] = 353;
    data().DispPtrnData(canvas.draw(), &mark, 0);
    EXPECT_EQ(canvas.picture().count(color(29)), 0);

    mark.Parm[MARK_LAST] = 353;
    data().DispPtrnData(canvas.draw(), &mark, 1);
    EXPECT_GT(canvas.picture().count(color(29)), 0);
}

TEST_F(Display, wipes_the_mark_drawn_last_at_an_update_only)
{
    load(Pattern("p")
             .item(PTRN_MARK, 0, 0, 16, 16)
             .code("A")
             .parm4(MARK_NUMBER4, 351, 352, 351, 351)
             .parm(MARK_LAST, 353));
    EXPECT_EQ(display().count(color(29)), 0);

    setState(1, 1);
    EXPECT_GT(update().count(color(29)), 0);
}

TEST_F(Display, update_draws_nothing_while_nothing_changes)
{
    Pattern pattern("p");
    for (int type = 1; type <= CONT_PTRN; ++type)
        pattern.item(type, 0, 0, 40, 16).code("A", type);
    load(pattern);
    for (int no = 1; no <= CONT_PTRN; ++no) {
        set(no, 1.5F);
        setText(no, "text");
    }
    display();

    for (int tick = 0; tick < 3; ++tick)
        EXPECT_EQ(drawn(update()), "");
}

TEST_F(Display, update_draws_the_items_whose_cells_have_changed)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 10, 10).code("A", 0);
    box(pattern, 20, 0, 30, 10).code("A", 1);
    box(pattern, 40, 0, 50, 10).code("A", 1).top();
    load(pattern);
    display();

    setState(2, 3);
    EXPECT_EQ(drawn(update()), "20,0-49,9");
    EXPECT_EQ(drawn(update()), "");
    set(1, 0.001F);
    EXPECT_EQ(drawn(update()), "0,0-9,9");
    EXPECT_EQ(drawn(update()), "");
    setText(2, "a");
    EXPECT_EQ(drawn(update()), "20,0-49,9");
    setText(2, "b");
    EXPECT_EQ(drawn(update()), "20,0-49,9");
    setText(2, nullptr);
    EXPECT_EQ(drawn(update()), "20,0-49,9");
    setText(2, "");
    EXPECT_EQ(drawn(update()), "") << "no text and an empty one are the same";
}

TEST_F(Display, update_of_one_pass_draws_its_items_only)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 10, 10).code("A");
    box(pattern, 20, 20, 30, 30).code("A").top();
    load(pattern);
    display();
    setState(1, 1);

    canvas.clear();
    data().UpdtPtrnData(canvas.draw(), 1);
    EXPECT_EQ(drawn(canvas.picture()), "20,20-29,29");
    EXPECT_EQ(drawn(update()), "0,0-9,9");
}

TEST_F(Display, update_before_the_first_display_draws_what_was_never_displayed)
{
    load(box(0, 0, 10, 10).code("A"));

    EXPECT_EQ(drawn(update()), "0,0-9,9");
    EXPECT_EQ(val(item().wData), 0);
    EXPECT_EQ(drawn(update()), "");
}

TEST_F(Display, update_never_draws_items_without_a_code_or_of_another_pass)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 10, 10);
    box(pattern, 20, 20, 30, 30).code("A").top(2);
    box(pattern, 40, 20, 50, 30).code("A").top(-1);
    load(pattern);
    display();
    setState(0, 1);
    setState(1, 1);

    EXPECT_EQ(drawn(update()), "");
    EXPECT_EQ(display().at(X, Y), color(21)) << "a display draws the first";
}

TEST_F(Display, update_draws_items_over_each_other_as_the_display_does)
{
    Pattern pattern("p");
    pattern.item(PTRN_BUTN, 0, 0, 20, 20).code("A");
    box(pattern, 0, 0, 20, 20).code("A");
    load(pattern);
    display();
    setState(1, 1);

    EXPECT_EQ(update().at(X, Y), color(BUTN_FACE));
}

TEST_F(Display, update_erases_what_becomes_hidden_and_draws_it_again_afterwards)
{
    load(box(0, 0, 10, 10).code("A"));
    display();

    setState(1, STATE_HIDDEN);
    EXPECT_EQ(update().at(X, Y), color(29));
    EXPECT_EQ(drawn(update()), "");
    setState(1, 0);
    EXPECT_EQ(update().at(X, Y), color(20));
}

TEST_F(Display, update_freezes_the_picture_while_the_cached_values_follow)
{
    load(box(0, 0, 10, 10).code("A"));
    display();

    setState(1, STATE_FROZEN | 1);
    EXPECT_EQ(drawn(update()), "");
    EXPECT_EQ(val(item().wData), STATE_FROZEN | 1);
    set(1, 5.0F);
    setText(1, "text");
    EXPECT_EQ(drawn(update()), "");
    EXPECT_EQ(val(item().fData), 5.0F);
    EXPECT_STREQ(item().sData, "text");
    setState(1, STATE_FROZEN | STATE_HIDDEN);
    EXPECT_EQ(drawn(update()), "") << "frozen counts before hidden";

    setState(1, 1);
    EXPECT_EQ(update().at(X, Y), color(21)) << "the end of the freeze is a change of the word";
}

TEST_F(Display, update_draws_a_value_that_is_no_number_at_every_tick)
{
    load(box(0, 0, 10, 10).code("A"));
    set(1, std::nanf(""));
    display();

    EXPECT_EQ(drawn(update()), "0,0-9,9");
    EXPECT_EQ(drawn(update()), "0,0-9,9");
}

TEST_F(Display, update_does_not_tell_zero_from_negative_zero)
{
    load(box(0, 0, 10, 10).code("A"));
    display();
    set(1, -0.0F);

    EXPECT_EQ(drawn(update()), "");
}

TEST_F(Display, update_compares_the_longest_texts_as_they_are_cached)
{
    load(box(0, 0, 10, 10).code("A"));
    for (const std::string& longest :
         {std::string(255, 'a'), std::string(256, 'b'), std::string(254, 'c') + "漢"}) {
        setText(1, longest.c_str());
        EXPECT_EQ(drawn(update()), "0,0-9,9") << longest.size();
        EXPECT_EQ(drawn(update()), "") << longest.size();
    }
    setText(1, (std::string(254, 'c') + "字").c_str());
    EXPECT_EQ(drawn(update()), "") << "cut before the character that differs";
}

TEST_F(Display, update_passes_over_cells_that_are_not_there)
{
    load(box(0, 0, 10, 10).code("unknown"));
    EXPECT_EQ(drawn(update()), "0,0-9,9") << "never displayed";
    EXPECT_EQ(drawn(update()), "");
    EXPECT_TRUE(project.log().empty());
}

TEST_F(Display, follows_an_item_whose_pass_or_type_was_written)
{
    Pattern pattern("p");
    box(pattern, 0, 0, 20, 20);
    pattern.item(PTRN_BUTN, 0, 0, 20, 20);
    load(pattern);
    ASSERT_EQ(display().at(X, Y), color(BUTN_FACE));

    PTRNDATA moved = item(0);
    moved.Parm[PARM_PASS] = 1;
    data().WritePtrnData(&moved);
    EXPECT_EQ(display().at(X, Y), color(20));
    moved.Parm[PARM_PASS] = 2;
    data().WritePtrnData(&moved);
    EXPECT_EQ(display().at(X, Y), color(BUTN_FACE));
    moved.Parm[PARM_PASS] = 0;
    moved.Type = 0;
    data().WritePtrnData(&moved);
    EXPECT_EQ(display().at(X, Y), color(BUTN_FACE));
}
