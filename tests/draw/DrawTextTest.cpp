// Texts and buttons: where the ink goes, what the box behind it covers.
#include "draw/Resource.h"
#include "tests/support/Canvas.h"

#include <cstring>
#include <gdk/gdkx.h>
#include <gtest/gtest.h>

namespace
{

constexpr int NONE = -1;

/// What the display itself says about a text.
struct Ink {
    int left, right, width, up, down;
};

Ink measure(int font, const char* text)
{
    XRectangle ink;
    XRectangle line;
    XmbTextExtents(static_cast<XFontSet>(GDK_FONT_XFONT(DrawFont[font])), text,
                   static_cast<int>(std::strlen(text)), &ink, &line);
    return {ink.x, ink.x + ink.width, line.width, -ink.y, ink.y + ink.height};
}

class Text : public testing::Test
{
  protected:
    Text() : canvas(160, 60)
    {
        usePalette();
        useFont(0, 16);
        useFont(1, 24);
    }

    /// The pixels of a text with its origin on the baseline (x, y), drawn with the display's own call.
    Picture ink(int font, int x, int y, const char* text, std::uint32_t rgb)
    {
        Canvas plain(160, 60);
        GdkColor pen{};
        pen.pixel = rgb;
        gdk_gc_set_foreground(plain->gc, &pen);
        gdk_draw_string(plain.pixmap(), DrawFont[font], plain->gc, x, y, text);
        return plain.picture();
    }

    /// `below` with that text on it.
    Picture with(Picture below, int font, int x, int y, const char* text, std::uint32_t rgb)
    {
        return below.paste(0, 0, ink(font, x, y, text, rgb), Canvas::GROUND);
    }

    Canvas canvas;
};

class DrawText : public Text
{
};

TEST_F(DrawText, sits_centred_in_the_line_of_its_font)
{
    for (const int font : {0, 1}) {
        for (const char* text : {"ABC", "pqg,", "-", "Ag 漢字", " x "}) {
            canvas.clear();
            canvas->DrawText(20, 15, font, 5, NONE, text);
            const Ink size = measure(font, text);
            const int baseline = 15 + (size.up + FontSize[font].cy - size.down) / 2;
            EXPECT_TRUE(same(canvas.picture(), with(canvas.blank(), font, 20, baseline, text, color(5))))
                << text;
            EXPECT_GT(canvas.picture().count(color(5)), 0) << text;
        }
    }
}

TEST_F(DrawText, has_a_box_as_wide_as_its_advance_and_as_high_as_the_fonts_line)
{
    for (const char* text : {"ABC", " a", "日本"}) {
        canvas.clear();
        canvas->DrawText(20, 15, 0, 5, 8, text);
        const Ink size = measure(0, text);
        const Picture box = canvas.blank().fill(20, 15, 20 + size.width, 15 + 16, color(8));
        const int baseline = 15 + (size.up + 16 - size.down) / 2;
        EXPECT_TRUE(same(canvas.picture(), with(box, 0, 20, baseline, text, color(5)))) << text;
        EXPECT_EQ(size.width, 8 * static_cast<int>(std::strlen(text)))
            << "the test's font has cells of 8 x 16";
    }
}

TEST_F(DrawText, has_a_box_even_when_only_blanks_are_in_it)
{
    canvas->DrawText(20, 15, 0, 5, 8, "   ");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(20, 15, 20 + 24, 15 + 16, color(8))));
}

TEST_F(DrawText, divides_towards_zero_when_its_ink_lies_below_the_line)
{
    // Without a nominal line the sum is negative for a text that is all descent.
    FontSize[0].cy = 0;
    const Ink size = measure(0, "_");
    ASSERT_LT(size.up - size.down, 0);
    ASSERT_NE((size.up - size.down) % 2, 0);
    canvas->DrawText(20, 15, 0, 5, NONE, "_");
    const int baseline = 15 - (size.down - size.up) / 2;
    EXPECT_TRUE(same(canvas.picture(), with(canvas.blank(), 0, 20, baseline, "_", color(5))));
}

TEST_F(DrawText, draws_nothing_of_an_empty_text_or_without_a_font)
{
    canvas->DrawText(20, 15, 0, 5, 8, "");
    canvas->DrawText(20, 15, 0, 5, 8, nullptr);
    canvas->DrawText(20, 15, 7, 5, 8, "ABC");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawText, in_one_colour_is_a_plain_box)
{
    canvas->DrawText(20, 15, 0, 8, 8, "ABC");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(20, 15, 44, 31, color(8))));
}

TEST_F(DrawText, takes_a_point)
{
    canvas->DrawText(20, 15, 0, 5, 8, "ABC");
    const Picture expected = canvas.picture();
    canvas.clear();
    canvas->DrawText(POINT{20, 15}, 0, 5, 8, "ABC");
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawText, is_cut_at_the_edge_of_the_drawable)
{
    canvas->DrawText(-12, 52, 0, 5, 8, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    const Ink size = measure(0, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    const Picture box = canvas.blank().fill(-12, 52, -12 + 208, 68, color(8));
    const int baseline = 52 + (size.up + 16 - size.down) / 2;
    EXPECT_TRUE(same(canvas.picture(), with(box, 0, -12, baseline, "ABCDEFGHIJKLMNOPQRSTUVWXYZ", color(5))));
}

TEST_F(DrawText, far_beyond_the_display_does_not_wrap_around)
{
    for (const int far : {65536, -65536, 131072, INT32_MAX, INT32_MIN}) {
        canvas->DrawText(far, 10, 0, 5, 8, "ABC");
        canvas->DrawText(10, far, 0, 5, 8, "ABC");
    }
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawText, of_broken_characters_does_no_harm)
{
    canvas->DrawText(20, 15, 0, 5, 8, "\xB4");
    canvas->DrawText(20, 15, 0, 5, 8, "A\xFF\xFE\x8E\x8F");
    canvas->DrawText(20, 15, 0, 5, 8, "\x01\x1B\x7F");
    EXPECT_EQ(canvas.picture().at(0, 0), Canvas::GROUND);
}

class GetTextSize : public Text
{
};

TEST_F(GetTextSize, is_the_sum_of_bearings_and_of_ascent_and_descent)
{
    for (const int font : {0, 1}) {
        for (const char* text : {"A", "gy", " i", "漢字 1"}) {
            const Ink size = measure(font, text);
            const SIZE answer = canvas->GetTextSize(font, text);
            EXPECT_EQ(answer.cx, size.left + size.right) << text;
            EXPECT_EQ(answer.cy, size.up + size.down) << text;
        }
    }
}

TEST_F(GetTextSize, is_nothing_for_an_empty_text_or_without_a_font)
{
    for (const SIZE size : {canvas->GetTextSize(0, ""), canvas->GetTextSize(0, nullptr),
                            canvas->GetTextSize(7, "A"), canvas->GetTextSize(-1, "A"),
                            canvas->GetTextSize(CONT_FONT, "A"), canvas->GetTextSize(INT32_MIN, "A")}) {
        EXPECT_EQ(size.cx, 0);
        EXPECT_EQ(size.cy, 0);
    }
}

TEST_F(GetTextSize, leaves_the_picture_alone)
{
    canvas->GetTextSize(0, "ABC");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

class ClearText : public Text
{
};

TEST_F(ClearText, fills_the_size_of_the_ink_from_the_texts_position)
{
    for (const char* text : {"ABC", " i", "漢字"}) {
        canvas.clear();
        canvas->ClearText(20, 15, 0, 8, text);
        const Ink size = measure(0, text);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(20, 15, 20 + size.left + size.right,
                                                               15 + size.up + size.down, color(8))))
            << text;
    }
    canvas.clear();
    canvas->ClearText(POINT{20, 15}, 0, 8, "ABC");
    EXPECT_GT(canvas.picture().count(color(8)), 0);
}

TEST_F(ClearText, draws_nothing_of_an_empty_text_or_without_a_font)
{
    canvas->ClearText(20, 15, 0, 8, "");
    canvas->ClearText(20, 15, 7, 8, "ABC");
    canvas->ClearText(INT32_MAX, INT32_MAX, 0, 8, "ABC");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

class DrawButn : public Text
{
  protected:
    /// The button's box, light top and left, dark bottom and right, dark on top at the corner top right and
    /// light at the corner bottom left.
    Picture box(int x1, int y1, int x2, int y2, int wide, int light, int dark, int face)
    {
        return canvas.blank()
            .fill(x1, y1, x2, y2, color(face))
            .fill(x1, y1, x2, y1 + wide, color(light))
            .fill(x1, y2 - wide, x2, y2, color(dark))
            .fill(x1, y1, x1 + wide, y2, color(light))
            .fill(x2 - wide, y1, x2, y2, color(dark));
    }
};

TEST_F(DrawButn, is_a_bevel_in_two_colours)
{
    for (const int wide : {0, 1, 2, 3, 4, 7}) {
        canvas.clear();
        canvas->DrawButn(10, 5, 90, 45, wide, 11, 12, 13, 14, NONE, 0, "");
        EXPECT_TRUE(same(canvas.picture(), box(10, 5, 90, 45, wide, 11, 12, 13))) << wide;
    }
}

TEST_F(DrawButn, centres_its_caption_by_the_sum_of_the_bearings)
{
    for (const char* caption : {"OK", "Stop", " i", "開始", "W"}) {
        canvas.clear();
        canvas->DrawButn(10, 5, 91, 46, 2, 11, 12, 13, 14, NONE, 0, caption);
        const Ink size = measure(0, caption);
        const int x = 10 + (81 - (size.left + size.right)) / 2;
        const int baseline = 5 + (41 - (size.up + size.down)) / 2 + size.up;
        EXPECT_TRUE(same(canvas.picture(),
                         with(box(10, 5, 91, 46, 2, 11, 12, 13), 0, x, baseline, caption, color(14))))
            << caption;
    }
}

TEST_F(DrawButn, puts_its_caption_at_an_offset_from_the_left)
{
    for (const int post : {0, 5, -3}) {
        canvas.clear();
        canvas->DrawButn(10, 5, 91, 46, 2, 11, 12, 13, 14, post, 0, "OK");
        const Ink size = measure(0, "OK");
        const int baseline = 5 + (41 - (size.up + size.down)) / 2 + size.up;
        EXPECT_TRUE(same(canvas.picture(),
                         with(box(10, 5, 91, 46, 2, 11, 12, 13), 0, 10 + post, baseline, "OK", color(14))))
            << post;
    }
}

TEST_F(DrawButn, lets_a_caption_reach_beyond_a_box_that_is_too_small)
{
    canvas->DrawButn(60, 20, 63, 23, 1, 11, 12, 13, 14, NONE, 0, "OK");
    const Ink size = measure(0, "OK");
    const int x = 60 + (3 - (size.left + size.right)) / 2;
    const int baseline = 20 + (3 - (size.up + size.down)) / 2 + size.up;
    EXPECT_TRUE(
        same(canvas.picture(), with(box(60, 20, 63, 23, 1, 11, 12, 13), 0, x, baseline, "OK", color(14))));
}

TEST_F(DrawButn, without_a_font_has_no_caption)
{
    canvas->DrawButn(10, 5, 90, 45, 2, 11, 12, 13, 14, NONE, 7, "OK");
    canvas->DrawButn(RECT{100, 5, 150, 45, 1, 1}, 2, 11, 12, 13, 14, NONE, 0, nullptr);
    Picture expected = box(10, 5, 90, 45, 2, 11, 12, 13);
    expected.paste(0, 0, box(100, 5, 150, 45, 2, 11, 12, 13), Canvas::GROUND);
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawButn, of_absurd_extent_does_no_harm)
{
    canvas->DrawButn(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, 98, 11, 12, 13, 14, INT32_MIN, 0, "OK");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 160, 60, color(13))));
}

TEST_F(DrawButn, sets_a_background_that_no_later_text_shows)
{
    canvas->DrawButn(100, 5, 150, 45, 2, 11, 12, 13, 14, NONE, 0, "OK");
    canvas->DrawText(10, 10, 0, 5, NONE, "ABC");
    EXPECT_EQ(canvas.picture().at(9, 9), Canvas::GROUND);
    const Ink size = measure(0, "ABC");
    const Picture text = with(canvas.blank(), 0, 10, 10 + (size.up + 16 - size.down) / 2, "ABC", color(5));
    const Picture drawn = canvas.picture();
    for (int y = 0; y < 60; y++)
        for (int x = 0; x < 100; x++)
            ASSERT_EQ(drawn.at(x, y), text.at(x, y)) << x << ' ' << y;
}

} // namespace
