// Marks and built-in pictures.
#include "draw/Images.h"
#include "tests/draw/ImageCanvas.h"

#include <cstring>
#include <gdk-pixbuf/gdk-pixbuf.h>

using namespace tessary;

namespace
{

class DrawMark : public Images
{
};

TEST_F(DrawMark, has_a_size_of_its_own_and_two_colours)
{
    for (const int mark : {0, 99, 100, 249, 250, 349}) {
        makeMark(mark);
        const int width = MarkXsize[mark / 50];
        const int height = MarkYsize[mark / 50];
        canvas.clear();
        canvas->DrawMark(10, 12, 10 + width, 12 + height, 5, 8, mark);
        Picture expected = canvas.blank();
        expected.paste(10, 12, pattern(width, height, color(5), color(8)));
        EXPECT_TRUE(same(canvas.picture(), expected)) << mark;
    }
}

TEST_F(DrawMark, without_background_leaves_the_picture_below)
{
    makeMark(0);
    canvas->DrawRect(0, 0, 30, 90, 0, 0, 7, 7);
    canvas->DrawMark(20, 10, 36, 42, 5, NONE, 0);
    Picture expected = canvas.blank().fill(0, 0, 30, 90, color(7));
    expected.paste(20, 10, pattern(16, 32, color(5), 0), 0);
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawMark, repeats_pixels_when_enlarged)
{
    makeMark(0);
    canvas->DrawMark(10, 12, 10 + 32, 12 + 64, 5, 8, 0);
    Picture expected = canvas.blank();
    expected.paste(10, 12, pattern(16, 32, color(5), color(8), 2));
    EXPECT_TRUE(same(canvas.picture(), expected));
    canvas.clear();
    canvas->DrawMark(10, 12, 10 + 32, 12 + 64, 5, NONE, 0);
    expected = canvas.blank();
    expected.paste(10, 12, pattern(16, 32, color(5), 0, 2), 0);
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawMark, mixes_its_colours_over_the_tiles_when_reduced)
{
    makeMark(0);
    setColor(5, 0xFFFF, 0, 0);
    setColor(8, 0, 0, 0xFFFF);
    canvas->DrawMark(10, 12, 10 + 8, 12 + 16, 5, 8, 0);
    const Picture drawn = canvas.picture();
    for (int y = 0; y < 16; y++) {
        for (int x = 0; x < 8; x++) {
            const int red = static_cast<int>(drawn.at(10 + x, 12 + y) >> 16);
            EXPECT_NEAR(red, 255 * setOfFour(x, y) / 4.0, 1) << x << ' ' << y;
        }
    }
}

TEST_F(DrawMark, without_background_shows_only_wholly_opaque_pixels_when_reduced)
{
    makeMark(0);
    canvas->DrawMark(10, 12, 10 + 8, 12 + 16, 5, NONE, 0);
    Picture expected = canvas.blank();
    int partial = 0;
    for (int y = 0; y < 16; y++) {
        for (int x = 0; x < 8; x++) {
            if (setOfFour(x, y) == 4)
                expected.set(10 + x, 12 + y, color(5));
            partial += setOfFour(x, y) > 0 && setOfFour(x, y) < 4;
        }
    }
    EXPECT_GT(partial, 10);
    EXPECT_GT(expected.count(color(5)), 10);
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawMark, writes_the_high_bytes_of_its_colours_into_the_marks_text)
{
    makeMark(0);
    setColor(5, 0x12FF, 0xAB00, 0x0D80);
    setColor(8, 0xFFFF, 0x00FF, 0x8000);
    canvas->DrawMark(10, 12, 26, 44, 5, 8, 0);
    EXPECT_STREQ(Mark_XPM[0].mark[2], "X c #12AB0D");
    EXPECT_STREQ(Mark_XPM[0].mark[1], ". c #FF0080");
    canvas->DrawMark(10, 12, 26, 44, 5, NONE, 0);
    EXPECT_STREQ(Mark_XPM[0].mark[2], "X c #12AB0D");
    EXPECT_STREQ(Mark_XPM[0].mark[1], ". c #010203");
}

TEST_F(DrawMark, in_the_key_colour_without_background_can_not_be_seen)
{
    makeMark(0);
    setColor(5, 0x01FF, 0x02FF, 0x03FF);
    canvas->DrawMark(10, 12, 26, 44, 5, NONE, 0);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawMark, draws_the_built_in_marks_without_a_mark_table)
{
    const struct {
        int mark;
        char** lines;
    } builtIn[] = {{350, XPM_Radio_OFF}, {351, XPM_Radio_ON}, {352, XPM_Check_OFF}, {353, XPM_Check_ON}};
    for (const auto& [mark, lines] : builtIn) {
        for (const int back : {NONE, 8}) {
            canvas.clear();
            canvas->DrawMark(10, 12, 26, 28, 5, back, mark);
            Picture expected = canvas.blank();
            for (int y = 0; y < 16; y++)
                for (int x = 0; x < 16; x++)
                    if (lines[3 + y][x] == 'X')
                        expected.set(10 + x, 12 + y, color(5));
                    else if (back != NONE)
                        expected.set(10 + x, 12 + y, color(8));
            EXPECT_TRUE(same(canvas.picture(), expected)) << mark << ' ' << back;
            EXPECT_GT(canvas.picture().count(color(5)), 0);
        }
    }
}

TEST_F(DrawMark, leaves_no_mask_to_what_is_drawn_next)
{
    makeMark(0);
    canvas->DrawMark(10, 12, 26, 44, 5, NONE, 0);
    canvas->DrawRect(0, 0, 100, 90, 0, 0, 9, 9);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 100, 90, color(9))));
    canvas->DrawMark(10, 12, 26, 44, 5, NONE, 0);
    canvas->DrawMark(50, 40, 66, 72, 6, 8, 0);
    Picture expected = canvas.blank().fill(0, 0, 100, 90, color(9));
    expected.paste(10, 12, pattern(16, 32, color(5), 0), 0);
    expected.paste(50, 40, pattern(16, 32, color(6), color(8)));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawMark, without_extent_draws_nothing)
{
    makeMark(0);
    for (const int back : {NONE, 8}) {
        canvas->DrawMark(10, 12, 10, 44, 5, back, 0);
        canvas->DrawMark(10, 12, 26, 12, 5, back, 0);
        canvas->DrawMark(10, 12, 10, 12, 5, back, 0);
    }
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawMark, is_cut_at_the_edges_of_the_drawable)
{
    makeMark(100);
    const RECT boxes[] = {
        {-9, -11, 23, 21, 0, 0}, {80, 70, 112, 102, 0, 0}, {-30, 20, 130, 73, 0, 0}, {-5, -7, 105, 97, 0, 0}};
    for (const RECT& box : boxes) {
        for (const int back : {NONE, 8}) {
            Canvas larger(300, 300);
            larger->DrawMark(box.left + 100, box.top + 100, box.right + 100, box.bottom + 100, 5, back, 100);
            const Picture whole = larger.picture();
            Picture expected = canvas.blank();
            for (int y = 0; y < 90; y++)
                for (int x = 0; x < 100; x++)
                    expected.set(x, y, whole.at(x + 100, y + 100));
            canvas.clear();
            canvas->DrawMark(box, 5, back, 100);
            EXPECT_TRUE(same(canvas.picture(), expected)) << box.left << ' ' << back;
            EXPECT_GT(canvas.picture().count(color(5)), 0);
        }
    }
}

TEST_F(DrawMark, of_a_size_beyond_the_display_draws_nothing)
{
    makeMark(0);
    for (const int back : {NONE, 8}) {
        canvas->DrawMark(0, 0, 2000000000, 2000000000, 5, back, 0);
        canvas->DrawMark(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, 5, back, 0);
        canvas->DrawMark(0, 0, 32768, 20, 5, back, 0);
        canvas->DrawMark(0, 0, 20, 32768, 5, back, 0);
        canvas->DrawMark(65536, 0, 65536 + 16, 32, 5, back, 0);
        canvas->DrawMark(-65536, 0, -65536 + 16, 32, 5, back, 0);
    }
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawMark, of_the_largest_size_takes_memory_for_the_visible_part_only)
{
    makeMark(0); // its first pixel is set and fills the whole canvas when it is enlarged two thousand times
    ASSERT_TRUE(isSet(0, 0));
    for (const int back : {NONE, 8}) {
        canvas.clear();
        canvas->DrawMark(0, 0, 32767, 32767, 5, back, 0);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 100, 90, color(5))));
    }
}

TEST_F(DrawMark, before_any_mark_is_loaded_draws_nothing)
{
    std::memset(static_cast<void*>(Mark_XPM), 0, sizeof Mark_XPM);
    canvas->DrawMark(10, 12, 26, 44, 5, 8, 0);
    canvas->DrawMark(10, 12, 26, 44, 5, NONE, 353);
    MarkDataInit(); // line pointers, but no header line
    canvas->DrawMark(10, 12, 26, 44, 5, 8, 0);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

class DrawXpm : public Images
{
};

TEST_F(DrawXpm, scales_with_the_tiles_filter)
{
    GdkPixbuf* const picture = gdk_pixbuf_new_from_xpm_data(const_cast<const char**>(XPM_Printer));
    for (const SIZE size : {SIZE{32, 32}, SIZE{37, 53}, SIZE{7, 61}, SIZE{90, 11}, SIZE{1, 1}, SIZE{64, 5}}) {
        GdkPixbuf* const scaled = gdk_pixbuf_scale_simple(picture, size.cx, size.cy, GDK_INTERP_TILES);
        ASSERT_EQ(gdk_pixbuf_get_n_channels(scaled), 3);
        Picture expected = canvas.blank();
        for (int y = 0; y < size.cy; y++) {
            for (int x = 0; x < size.cx; x++) {
                const guchar* const rgb = gdk_pixbuf_get_pixels(scaled) +
                                          std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(scaled) +
                                          std::ptrdiff_t{3} * x;
                expected.set(5 + x, 6 + y, static_cast<std::uint32_t>(rgb[0] << 16 | rgb[1] << 8 | rgb[2]));
            }
        }
        canvas.clear();
        canvas->DrawXpm(5, 6, 5 + size.cx, 6 + size.cy, XPM_Printer);
        EXPECT_TRUE(same(canvas.picture(), expected)) << size.cx << ' ' << size.cy;
        g_object_unref(scaled);
    }
    g_object_unref(picture);
}

TEST_F(DrawXpm, draws_the_lines_of_a_picture)
{
    const char* const lines[] = {"3 2 3 1", "  c #FF0000", ". c #00FF00", "X c #0000FF", " .X", "X. "};
    canvas->DrawXpm(10, 12, 13, 14, lines);
    canvas->DrawXpm(RECT{20, 12, 26, 16, 7, 7}, lines);
    Picture picture(3, 2, 0x00FF00);
    picture.set(0, 0, 0xFF0000).set(2, 0, 0x0000FF).set(0, 1, 0x0000FF).set(2, 1, 0xFF0000);
    Picture twice(6, 4, 0);
    for (int y = 0; y < 2; y++)
        for (int x = 0; x < 3; x++)
            twice.fill(2 * x, 2 * y, 2 * x + 2, 2 * y + 2, picture.at(x, y));
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().paste(10, 12, picture).paste(20, 12, twice)));
}

TEST_F(DrawXpm, draws_transparent_pixels_too)
{
    const char* const lines[] = {"2 1 2 1", "  c None", "X c #0000FF", " X"};
    canvas->DrawXpm(10, 12, 12, 13, lines);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().set(10, 12, 0x000000).set(11, 12, 0x0000FF)));
}

TEST_F(DrawXpm, draws_pixels_whose_key_has_no_colour_in_the_first_one)
{
    // What becomes of a built-in picture when the profile replaces its second colour.
    const char* const lines[] = {"3 1 3 1", "  c #FF0000", ", c #00FF00", "X c #0000FF", " .X"};
    canvas->DrawXpm(10, 12, 13, 13, lines);
    EXPECT_TRUE(same(canvas.picture(),
                     canvas.blank().set(10, 12, 0xFF0000).set(11, 12, 0xFF0000).set(12, 12, 0x0000FF)));
}

TEST_F(DrawXpm, of_lines_that_are_no_picture_draws_nothing)
{
    const char* const words[] = {"these are", "no pixels"};
    const char* const none[] = {nullptr};
    const char* const empty[] = {""};
    const char* const negative[] = {"-3 -2 3 1"};
    for (const char* const* lines : {words, none, empty, negative})
        canvas->DrawXpm(10, 12, 20, 20, lines);
    canvas->DrawXpm(10, 12, 20, 20, nullptr);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

} // namespace
