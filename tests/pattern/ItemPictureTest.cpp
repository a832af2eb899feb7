// Bitmap and mark. Mark colours are 4..7, backgrounds 8..11, marks 350..353, clear colour 29.
#include "tests/pattern/ItemCanvas.h"

#include <filesystem>

using namespace tessary;

namespace
{

constexpr int NONE = -1;

class BitmapItem : public ItemCanvas
{
  protected:
    BitmapItem()
    {
        // Two pixels: the first in the low bytes of colour 60, the second not.
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        project.write("Bitmap/two.ppm", "P6\n2 1\n255\n" + std::string("\x34\x78\x21\x11\x22\x33", 6));
        setColor(60, 0x1234, 0x5678, 0x4321);
    }

    static Pattern bitmap() { return Pattern("p").item(PTRN_BMAP, 12, 21, 10, 20).text("two.ppm"); }
};

TEST_F(BitmapItem, draws_the_file_that_its_text_names)
{
    PTRNDATA item = make(bitmap().parm(BMAP_KEY_COLOR, 60));
    draw(item);
    model->DrawBmap(10, 20, 12, 21, NONE, "two.ppm");
    EXPECT_TRUE(asModelled());
    EXPECT_EQ(canvas.picture().bounds(Canvas::GROUND), "10,20-11,20");
}

TEST_F(BitmapItem, has_a_transparent_colour_when_it_is_told_to)
{
    for (const int keyed : {1, -1}) {
        clear();
        PTRNDATA item = make(bitmap().parm(BMAP_KEY_COLOR, 60).parm(BMAP_KEYED, keyed), 3);
        draw(item);
        model->DrawBmap(10, 20, 12, 21, 60, "two.ppm");
        EXPECT_TRUE(asModelled());
        EXPECT_EQ(canvas.picture().bounds(Canvas::GROUND), "11,20-11,20");
    }
}

TEST_F(BitmapItem, of_a_missing_file_draws_nothing)
{
    PTRNDATA item = make(bitmap().text("none.ppm"));
    draw(item);
    item.Text[0] = '\0';
    draw(item);
    EXPECT_TRUE(untouched());
}

TEST_F(BitmapItem, is_erased_as_a_filled_box)
{
    PTRNDATA item = make(bitmap());
    erase(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 12, 21, color(29))));
}

class MarkItem : public ItemCanvas
{
  protected:
    static Pattern mark() { return Pattern("p").item(PTRN_MARK, 50, 60, 10, 20); }
};

TEST_F(MarkItem, has_a_mark_and_colours_for_each_selection)
{
    for (const int backed : {0, 1}) {
        for (int c = 0; c < 4; c++) {
            clear();
            PTRNDATA item = make(mark().parm(MARK_BACKED, backed), c);
            draw(item);
            model->DrawMark(10, 20, 50, 60, 4 + c, backed ? 8 + c : NONE, 350 + c);
            EXPECT_TRUE(asModelled()) << backed << ' ' << c;
        }
    }
}

TEST_F(MarkItem, writes_the_drawn_mark_back_whenever_it_is_drawn)
{
    for (const int updt : {0, 1}) {
        PTRNDATA item = make(mark(), 2);
        ASSERT_EQ(data().PtrnData[0].Parm[MARK_LAST], 0);
        draw(item, updt);
        EXPECT_EQ(val(item.Parm[MARK_LAST]), 352);
        EXPECT_EQ(val(data().PtrnData[0].Parm[MARK_LAST]), 352);
        EXPECT_EQ(val(data().PtrnData[0].wData), 2);
    }
}

TEST_F(MarkItem, wipes_the_mark_drawn_last_in_an_update)
{
    // Without background only the wiped mark's own pixels change; with one the whole box is painted.
    for (const int backed : {0, 1}) {
        clear();
        PTRNDATA item = make(mark().parm(MARK_BACKED, backed), 0);
        draw(item);
        model->DrawMark(10, 20, 50, 60, 4, backed ? 8 : NONE, 350);
        item.wData = 1;
        draw(item, 1);
        model->DrawMark(10, 20, 50, 60, 29, backed ? 29 : NONE, 350);
        model->DrawMark(10, 20, 50, 60, 5, backed ? 9 : NONE, 351);
        EXPECT_TRUE(asModelled()) << backed;
        item.wData = 2;
        draw(item, 1);
        model->DrawMark(10, 20, 50, 60, 29, backed ? 29 : NONE, 351);
        model->DrawMark(10, 20, 50, 60, 6, backed ? 10 : NONE, 352);
        EXPECT_TRUE(asModelled()) << backed;
    }
}

TEST_F(MarkItem, wipes_nothing_in_a_full_display)
{
    PTRNDATA item = make(mark(), 3);
    draw(item);
    item.wData = 0;
    draw(item, 0);
    model->DrawMark(10, 20, 50, 60, 7, NONE, 353);
    model->DrawMark(10, 20, 50, 60, 4, NONE, 350);
    EXPECT_TRUE(asModelled());
}

TEST_F(MarkItem, wipes_the_first_mark_when_it_has_never_been_drawn)
{
    PTRNDATA item = make(mark(), 0);
    draw(item, 1);
    model->DrawMark(10, 20, 50, 60, 29, NONE, 0);
    model->DrawMark(10, 20, 50, 60, 4, NONE, 350);
    EXPECT_TRUE(asModelled());
}

TEST_F(MarkItem, is_blanked_in_its_background_when_disabled)
{
    for (const int updt : {0, 1}) {
        clear();
        PTRNDATA item = make(mark().parm(MARK_BACKED, 1), STATE_DISABLE | 2);
        draw(item, updt);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 50, 60, color(10))));
        EXPECT_EQ(val(data().PtrnData[0].Parm[MARK_LAST]), 0);
    }
    clear();
    PTRNDATA item = make(mark(), STATE_DISABLE);
    draw(item, 1);
    EXPECT_TRUE(untouched());
}

TEST_F(MarkItem, blinks_on_its_background_or_in_the_clear_colour)
{
    for (const int backed : {0, 1}) {
        for (int c = 0; c < 4; c++) {
            clear();
            PTRNDATA item = make(mark().parm(MARK_BACKED, backed), c);
            data().FlikPtrnData13(canvas.draw(), &item, 1);
            model->DrawMark(10, 20, 50, 60, 4 + c, backed ? 8 + c : NONE, 350 + c);
            EXPECT_TRUE(asModelled()) << backed << ' ' << c;
            data().FlikPtrnData13(canvas.draw(), &item, 0);
            model->DrawMark(10, 20, 50, 60, backed ? 8 + c : 29, backed ? 8 + c : NONE, 350 + c);
            EXPECT_TRUE(asModelled()) << backed << ' ' << c;
        }
    }
}

TEST_F(MarkItem, is_erased_as_a_filled_box)
{
    PTRNDATA item = make(mark());
    erase(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 50, 60, color(29))));
}

} // namespace
