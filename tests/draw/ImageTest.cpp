// Built-in pictures: that they are what they claim to be, and their colours from the profile file.
#include "draw/DrawCntl.h"
#include "tests/draw/ResourceFixture.h"

#include <cstdlib>
#include <set>

using namespace tessary;

using testing::ElementsAre;
using testing::StartsWith;

namespace
{

using Lines = std::vector<std::string>;

const Lines OWN_COLORS{"  c #FFFFFF", ". c #C0C0C0", "X c #000000"};

char** const ARROWS[] = {XPM_LeftArrow1, XPM_LeftArrow2, XPM_RightArrow1, XPM_RightArrow2,
                         XPM_UpArrow1,   XPM_UpArrow2,   XPM_DownArrow1,  XPM_DownArrow2};
char** const CURSORS[] = {XPM_Cursor1, XPM_Cursor2, XPM_Cursor3, XPM_Cursor4,
                          XPM_Cursor5, XPM_Cursor6, XPM_Cursor7, XPM_Cursor8};
char** const MARKS[] = {XPM_Radio_OFF, XPM_Radio_ON, XPM_Check_OFF, XPM_Check_ON};

Lines rows(char** xpm)
{
    return texts(xpm, 4, 32);
}

void expectPicture(char** xpm, const char* header, const Lines& colors, std::size_t width, int height)
{
    EXPECT_STREQ(xpm[0], header);
    EXPECT_EQ(texts(xpm, 1, static_cast<int>(colors.size())), colors);
    std::set<char> keys;
    for (const std::string& color : colors)
        keys.insert(color[0]);
    std::set<char> used;
    for (const std::string& row : texts(xpm, 1 + static_cast<int>(colors.size()), height)) {
        EXPECT_EQ(row.size(), width);
        used.insert(row.begin(), row.end());
    }
    EXPECT_EQ(used, keys) << "every colour is used and no other";
}

PixbufPtr image(char** xpm)
{
    return PixbufPtr(gdk_pixbuf_new_from_xpm_data(const_cast<const char**>(xpm)));
}

/// 0xRRGGBB of a pixel.
unsigned color(const PixbufPtr& image, int x, int y)
{
    const guchar* at = gdk_pixbuf_get_pixels(image.get()) + y * gdk_pixbuf_get_rowstride(image.get()) +
                       x * gdk_pixbuf_get_n_channels(image.get());
    return static_cast<unsigned>(at[0] << 16 | at[1] << 8 | at[2]);
}

/// First pixel of a key, as x and y.
std::pair<int, int> findKey(char** xpm, char key)
{
    for (int y = 0; y < 32; ++y)
        if (const char* at = std::strchr(xpm[4 + y], key))
            return {static_cast<int>(at - xpm[4 + y]), y};
    return {-1, -1};
}

TEST(Images, of_buttons_have_their_size_and_three_colors)
{
    expectPicture(XPM_Printer, "32 32 3 1", OWN_COLORS, 32, 32);
    expectPicture(XPM_SpinButn, "16 32 3 1", OWN_COLORS, 16, 32);
    for (char** arrow : ARROWS)
        expectPicture(arrow, "32 32 3 1", OWN_COLORS, 32, 32);
}

TEST(Images, of_cursors_are_transparent_outside_their_shape)
{
    for (char** cursor : CURSORS)
        expectPicture(cursor, "32 32 3 1", {"  c None", ". c #FFFFFF", "X c #000000"}, 32, 32);
}

TEST(Images, of_marks_have_two_colors)
{
    for (char** mark : MARKS)
        expectPicture(mark, "16 16 2 1", {". c #FFFFFF", "X c #000000"}, 16, 16);
}

TEST(Images, of_marks_differ_in_the_middle_only)
{
    const auto border = [](char** mark) {
        Lines lines = texts(mark, 3, 16);
        for (int y = 3; y < 13; ++y)
            lines[static_cast<std::size_t>(y)].replace(4, 8, 8, ' ');
        return lines;
    };
    EXPECT_EQ(border(XPM_Radio_OFF), border(XPM_Radio_ON));
    EXPECT_EQ(border(XPM_Check_OFF), border(XPM_Check_ON));
    EXPECT_EQ(XPM_Radio_OFF[3 + 8][8], '.');
    EXPECT_EQ(XPM_Radio_ON[3 + 8][8], 'X');
    EXPECT_EQ(XPM_Check_OFF[3 + 8][7], '.');
    EXPECT_EQ(XPM_Check_ON[3 + 8][7], 'X');
}

/// Columns (or rows) of an arrow's shape, the dark pixels within its bevel, counted from left (or top).
std::vector<int> profile(char** xpm, bool columns)
{
    std::vector<int> counts(28, 0);
    for (int y = 2; y < 30; ++y)
        for (int x = 2; x < 30; ++x)
            if (xpm[4 + y][x] == 'X')
                ++counts[static_cast<std::size_t>((columns ? x : y) - 2)];
    return counts;
}

std::vector<int> reversed(std::vector<int> counts)
{
    std::reverse(counts.begin(), counts.end());
    return counts;
}

TEST(Images, of_arrows_point_where_their_names_say)
{
    for (const bool page : {false, true}) {
        char** const left = page ? XPM_LeftArrow2 : XPM_LeftArrow1;
        char** const right = page ? XPM_RightArrow2 : XPM_RightArrow1;
        char** const up = page ? XPM_UpArrow2 : XPM_UpArrow1;
        char** const down = page ? XPM_DownArrow2 : XPM_DownArrow1;
        const std::vector<int> growing = profile(left, true);
        // The tip comes first and the shape grows behind it, without a jump.
        const auto tip = std::find_if(growing.begin(), growing.end(), [](int count) { return count > 0; });
        ASSERT_NE(tip, growing.end());
        EXPECT_LE(*tip, 2);
        EXPECT_GT(tip[5], *tip);
        EXPECT_EQ(profile(right, true), reversed(growing));
        EXPECT_EQ(profile(up, false), growing);
        EXPECT_EQ(profile(down, false), reversed(growing));
        EXPECT_NE(rows(left), rows(right));
        EXPECT_NE(rows(up), rows(down));
    }
    EXPECT_NE(rows(XPM_LeftArrow1), rows(XPM_LeftArrow2));
}

TEST(Images, of_the_spin_button_point_up_above_and_down_below)
{
    const auto width = [](int y) {
        const std::string row(XPM_SpinButn[4 + y], 1, 14);
        return std::count(row.begin(), row.end(), 'X');
    };
    EXPECT_EQ(width(5), 2);
    EXPECT_EQ(width(9), 10);
    EXPECT_EQ(width(22), 10);
    EXPECT_EQ(width(26), 2);
}

TEST(Images, are_all_read_by_the_toolkit)
{
    for (char** xpm : {XPM_Printer, XPM_SpinButn, XPM_DownArrow2, XPM_Cursor1, XPM_Check_ON})
        EXPECT_TRUE(image(xpm));
}

/// A mark as radio buttons and check boxes draw it: scaled to the height of a font, without a background.
class ScaledMark : public Resources
{
  protected:
    ScaledMark()
    {
        colors({{1, {65535, 65535, 65535}}});
        DrawCntlInit();
    }

    /// Rows of "X" for pixels of the mark.
    static Lines draw(int mark, int size)
    {
        const PixmapPtr pixmap(gdk_pixmap_new(nullptr, size, size, gdk_visual_get_system()->depth));
        gdk_drawable_set_colormap(pixmap.get(), gdk_colormap_get_system());
        CPaintDraw context(pixmap.get());
        context.ClearScreen(0);
        context.DrawMark(0, 0, size, size, 1, -1, mark);
        const PixbufPtr picture(
            gdk_pixbuf_get_from_drawable(nullptr, pixmap.get(), nullptr, 0, 0, 0, 0, size, size));
        Lines lines(static_cast<std::size_t>(size));
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                lines[static_cast<std::size_t>(y)] += color(picture, x, y) == 0xFFFFFF ? 'X' : '.';
        return lines;
    }

    /// True when no path between the pixels leads from the corner to a place within three pixels of the
    /// middle.
    static bool closed(Lines lines)
    {
        const int size = static_cast<int>(lines.size());
        std::vector<std::pair<int, int>> open{{0, 0}};
        while (!open.empty()) {
            const auto [x, y] = open.back();
            open.pop_back();
            if (x < 0 || y < 0 || x >= size || y >= size ||
                lines[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] != '.')
                continue;
            if (std::abs(x - size / 2) < 3 && std::abs(y - size / 2) < 3)
                return false;
            lines[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = 'o';
            for (const auto& [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
                open.emplace_back(x + dx, y + dy);
        }
        return true;
    }

    static long pixels(const Lines& lines)
    {
        long count = 0;
        for (const std::string& line : lines)
            count += std::count(line.begin(), line.end(), 'X');
        return count;
    }
};

TEST_F(ScaledMark, keeps_its_outline_and_its_content_at_the_heights_of_fonts)
{
    for (const int size : {14, 15, 16, 17, 18, 20, 22, 24, 28, 32}) {
        for (int mark = 350; mark < 354; ++mark)
            EXPECT_TRUE(closed(draw(mark, size))) << mark << " at " << size;
        EXPECT_GE(pixels(draw(351, size)), pixels(draw(350, size)) + 4) << size;
        EXPECT_GE(pixels(draw(353, size)), pixels(draw(352, size)) + 6) << size;
    }
}

class ImageColors : public Resources
{
};

TEST_F(ImageColors, are_their_own_without_the_keys)
{
    DrawCntlInit();
    EXPECT_EQ(texts(XPM_Printer, 1, 3), OWN_COLORS);
    EXPECT_EQ(texts(XPM_SpinButn, 1, 3), OWN_COLORS);
    for (char** arrow : ARROWS)
        EXPECT_EQ(texts(arrow, 1, 3), OWN_COLORS);
}

TEST_F(ImageColors, of_the_printer_have_key_1_and_a_comma_for_the_second)
{
    project.set("COLOR", "XPM_COLR1", "FF0000,00FF00,0000FF");
    DrawCntlInit();
    EXPECT_THAT(texts(XPM_Printer, 1, 3), ElementsAre("  c #FF0000", ", c #00FF00", "X c #0000FF"));
    EXPECT_EQ(texts(XPM_SpinButn, 1, 3), OWN_COLORS);
    EXPECT_EQ(texts(XPM_UpArrow1, 1, 3), OWN_COLORS);
}

TEST_F(ImageColors, of_the_spin_button_have_key_2)
{
    project.set("COLOR", "XPM_COLR2", "010203,0A0B0C,abcdef");
    DrawCntlInit();
    EXPECT_THAT(texts(XPM_SpinButn, 1, 3), ElementsAre("  c #010203", ", c #0A0B0C", "X c #abcdef"));
    EXPECT_EQ(texts(XPM_Printer, 1, 3), OWN_COLORS);
}

TEST_F(ImageColors, of_the_arrows_have_key_3_except_for_page_down)
{
    project.set("COLOR", "XPM_COLR3", "111111,222222,333333");
    DrawCntlInit();
    for (char** arrow : ARROWS) {
        if (arrow == XPM_DownArrow2)
            EXPECT_EQ(texts(arrow, 1, 3), OWN_COLORS);
        else
            EXPECT_THAT(texts(arrow, 1, 3), ElementsAre("  c #111111", ", c #222222", "X c #333333"));
    }
}

TEST_F(ImageColors, that_are_not_six_characters_long_are_ignored_one_by_one)
{
    project.set("COLOR", "XPM_COLR1", "FFFFF,00FF00,0000FF0")
        .set("COLOR", "XPM_COLR2", ",,123456")
        .set("COLOR", "XPM_COLR3", "#12345");
    DrawCntlInit();
    EXPECT_THAT(texts(XPM_Printer, 1, 3), ElementsAre("  c #FFFFFF", ", c #00FF00", "X c #000000"));
    EXPECT_THAT(texts(XPM_SpinButn, 1, 3), ElementsAre("  c #FFFFFF", ". c #C0C0C0", "X c #123456"));
    EXPECT_THAT(texts(XPM_LeftArrow1, 1, 3), ElementsAre("  c ##12345", ". c #C0C0C0", "X c #000000"));
}

TEST_F(ImageColors, set_a_second_color_that_no_pixel_has)
{
    project.set("COLOR", "XPM_COLR1", "FF0000,00FF00,0000FF");
    DrawCntlInit();
    const PixbufPtr picture = image(XPM_Printer);
    ASSERT_TRUE(picture);
    const auto light = findKey(XPM_Printer, ' ');
    const auto grey = findKey(XPM_Printer, '.');
    const auto dark = findKey(XPM_Printer, 'X');
    EXPECT_EQ(color(picture, light.first, light.second), 0xFF0000u);
    EXPECT_EQ(color(picture, grey.first, grey.second), 0xFF0000u) << "drawn in the first color";
    EXPECT_EQ(color(picture, dark.first, dark.second), 0x0000FFu);
}

TEST_F(ImageColors, that_are_no_colors_leave_a_picture_that_can_be_read)
{
    project.set("COLOR", "XPM_COLR1", "GGGGGG,漢字色,\xA1\xFF%s%n")
        .set("COLOR", "XPM_COLR3", "None##,      x");
    DrawCntlInit();
    EXPECT_THAT(texts(XPM_Printer, 1, 3), ElementsAre("  c #GGGGGG", ", c #漢字色", "X c #\xA1\xFF%s%n"));
    const PixbufPtr picture = image(XPM_Printer);
    ASSERT_TRUE(picture);
    EXPECT_EQ(gdk_pixbuf_get_width(picture.get()), 32);
    EXPECT_TRUE(image(XPM_LeftArrow1));
}

TEST_F(ImageColors, are_set_by_any_number_for_any_picture)
{
    project.set("COLOR", "XPM_COLR17", "111111,22222,333333");
    char header[] = "1 1 3 1";
    char line1[] = "  c #FFFFFF";
    char line2[] = ". c #C0C0C0";
    char line3[] = "X c #000000";
    char row[] = ".";
    char* xpm[] = {header, line1, line2, line3, row};
    char colr1[SIZE_XPMCOLR];
    char colr2[SIZE_XPMCOLR] = "untouched";
    char colr3[SIZE_XPMCOLR];
    SetXpmColr(xpm, 17, colr1, colr2, colr3);

    EXPECT_EQ(xpm[0], header);
    EXPECT_EQ(xpm[1], colr1);
    EXPECT_EQ(xpm[2], line2);
    EXPECT_EQ(xpm[3], colr3);
    EXPECT_STREQ(colr1, "  c #111111");
    EXPECT_STREQ(colr2, "untouched");
    EXPECT_STREQ(colr3, "X c #333333");
    EXPECT_STREQ(line1, "  c #FFFFFF");
}

} // namespace
