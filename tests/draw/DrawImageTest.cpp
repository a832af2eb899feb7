// Marks, bitmap files and built-in pictures.
#include "draw/Images.h"
#include "draw/Resource.h"
#include "tests/support/Canvas.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

using namespace tessary;

namespace
{

constexpr int NONE = -1;

/// Whether the mark of these tests has its foreground at a place: a pattern that no mirror, turn or shift
/// maps to itself, with solid blocks of two by two.
bool isSet(int x, int y)
{
    return (x * 7 + y * 3) % 5 < 2 || (x / 4 + y / 2) % 3 == 0;
}

class Images : public testing::Test
{
  protected:
    Images() : canvas(100, 90)
    {
        usePalette();
        std::memset(MarkData, 0, sizeof MarkData);
        MarkDataInit();
    }

    /// Fills a mark with the pattern above.
    void makeMark(int mark)
    {
        const int width = MarkXsize[mark / 50];
        const int height = MarkYsize[mark / 50];
        for (int bit = 0; bit < width * height; bit++)
            if (isSet(bit % width, bit / width))
                MarkData[mark].mark[bit / 8] |= static_cast<BYTE>(1 << bit % 8);
        MarkDataSet();
        MarkDataInit();
    }

    /// That pattern, every pixel `scale` wide and high.
    static Picture pattern(int width, int height, std::uint32_t front, std::uint32_t back, int scale = 1)
    {
        Picture picture(width * scale, height * scale, back);
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                if (isSet(x, y))
                    picture.fill(x * scale, y * scale, (x + 1) * scale, (y + 1) * scale, front);
        return picture;
    }

    Canvas canvas;
};

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

/// Pixels of the pattern that lie under one of its half size.
int setOfFour(int x, int y)
{
    return isSet(2 * x, 2 * y) + isSet(2 * x + 1, 2 * y) + isSet(2 * x, 2 * y + 1) +
           isSet(2 * x + 1, 2 * y + 1);
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

class DrawBmap : public Images
{
  protected:
    DrawBmap() { std::filesystem::create_directories(project.folder() + "/Bitmap"); }

    /// A picture as a portable pixmap, the simplest of the formats.
    static std::string ppm(const Picture& picture)
    {
        std::string bytes =
            "P6\n" + std::to_string(picture.width()) + " " + std::to_string(picture.height()) + "\n255\n";
        for (int y = 0; y < picture.height(); y++)
            for (int x = 0; x < picture.width(); x++)
                for (const int shift : {16, 8, 0})
                    bytes += static_cast<char>(picture.at(x, y) >> shift);
        return bytes;
    }

    void save(const std::string& name, const Picture& picture)
    {
        project.write("Bitmap/" + name, ppm(picture));
    }

    int reports(const std::string& name)
    {
        const auto messages = project.messages();
        return static_cast<int>(std::count_if(messages.begin(), messages.end(), [&](const std::string& text) {
            return text.find("[" + name + "]") != std::string::npos;
        }));
    }

    Project project;
};

TEST_F(DrawBmap, draws_a_file_of_the_folder_Bitmap)
{
    save("tank.ppm", pattern(12, 10, 0x112233, 0x445566));
    canvas->DrawBmap(10, 12, 22, 22, NONE, "tank.ppm");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().paste(10, 12, pattern(12, 10, 0x112233, 0x445566))));
    canvas->DrawBmap(RECT{40, 30, 64, 50, 0, 0}, NONE, "tank.ppm");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()
                                           .paste(10, 12, pattern(12, 10, 0x112233, 0x445566))
                                           .paste(40, 30, pattern(12, 10, 0x112233, 0x445566, 2))));
}

TEST_F(DrawBmap, makes_the_colour_of_the_low_bytes_transparent)
{
    setColor(60, 0x1234, 0x5678, 0x9ABC);
    Picture file(3, 1, 0x3478BC);
    file.set(1, 0, 0x12569A).set(2, 0, 0x3478BD);
    save("key.ppm", file);
    canvas->DrawBmap(10, 12, 13, 13, 60, "key.ppm");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().set(11, 12, 0x12569A).set(12, 12, 0x3478BD)));
    canvas->DrawBmap(10, 12, 13, 13, NONE, "key.ppm");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().paste(10, 12, file)));
}

TEST_F(DrawBmap, with_a_key_shows_only_wholly_opaque_pixels_when_reduced)
{
    save("key.ppm", pattern(16, 32, 0xFF0000, color(60)));
    canvas->DrawBmap(10, 12, 18, 28, 60, "key.ppm");
    Picture expected = canvas.blank();
    for (int y = 0; y < 16; y++)
        for (int x = 0; x < 8; x++)
            if (setOfFour(x, y) == 4)
                expected.set(10 + x, 12 + y, 0xFF0000);
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawBmap, draws_half_transparent_pixels_opaquely_without_a_key)
{
    GdkPixbuf* file = gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, 2, 1);
    guchar* bytes = gdk_pixbuf_get_pixels(file);
    const guchar pixels[] = {200, 100, 50, 128, 10, 20, 30, 255};
    std::memcpy(bytes, pixels, sizeof pixels);
    const std::string path = project.folder() + "/Bitmap/half.png";
    ASSERT_TRUE(gdk_pixbuf_save(file, path.c_str(), "png", nullptr, nullptr));
    g_object_unref(file);
    canvas->DrawBmap(10, 12, 12, 13, NONE, "half.png");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().set(10, 12, 0xC86432).set(11, 12, 0x0A141E)));
    canvas.clear();
    canvas->DrawBmap(10, 12, 12, 13, 60, "half.png");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().set(11, 12, 0x0A141E)));
}

TEST_F(DrawBmap, reads_the_file_again_every_time)
{
    save("lamp.ppm", Picture(4, 4, 0xFF0000));
    canvas->DrawBmap(10, 12, 14, 16, NONE, "lamp.ppm");
    save("lamp.ppm", Picture(4, 4, 0x00FF00));
    canvas->DrawBmap(20, 12, 24, 16, NONE, "lamp.ppm");
    EXPECT_TRUE(
        same(canvas.picture(), canvas.blank().fill(10, 12, 14, 16, 0xFF0000).fill(20, 12, 24, 16, 0x00FF00)));
}

TEST_F(DrawBmap, of_a_file_that_is_missing_draws_nothing_and_is_reported_once)
{
    project.start();
    for (int i = 0; i < 3; i++) {
        canvas->DrawBmap(10, 12, 22, 22, NONE, "missing1.ppm");
        canvas->DrawBmap(10, 12, 22, 22, 60, "missing2.ppm");
    }
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
    EXPECT_EQ(reports("missing1.ppm"), 1);
    EXPECT_EQ(reports("missing2.ppm"), 1);
}

TEST_F(DrawBmap, of_a_file_that_is_missing_is_reported_again_after_the_resources_were_given_back)
{
    project.start();
    canvas->DrawBmap(10, 12, 22, 22, NONE, "missing3.ppm");
    DrawCntlExit();
    canvas->DrawBmap(10, 12, 22, 22, NONE, "missing3.ppm");
    canvas->DrawBmap(10, 12, 22, 22, NONE, "missing3.ppm");
    EXPECT_EQ(reports("missing3.ppm"), 2);
}

TEST_F(DrawBmap, of_a_file_that_is_no_picture_draws_nothing)
{
    project.start();
    project.write("Bitmap/text.ppm", "This is a text.");
    project.write("Bitmap/empty.ppm", "");
    project.write("Bitmap/header.ppm", "P6\n100000 100000\n255\nabc");
    project.write("Bitmap/negative.ppm", "P6\n-5 -5\n255\nabc");
    for (const char* name : {"text.ppm", "empty.ppm", "header.ppm", "negative.ppm"}) {
        canvas->DrawBmap(10, 12, 22, 22, NONE, name);
        EXPECT_EQ(reports(name), 1) << name;
    }
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawBmap, of_something_that_is_no_file_draws_nothing)
{
    project.start();
    std::filesystem::create_directories(project.folder() + "/Bitmap/folder");
    ASSERT_EQ(mkfifo((project.folder() + "/Bitmap/pipe").c_str(), 0600), 0);
    canvas->DrawBmap(10, 12, 22, 22, NONE, "folder");
    canvas->DrawBmap(10, 12, 22, 22, NONE, "pipe"); // would wait for a writer for ever
    canvas->DrawBmap(10, 12, 22, 22, NONE, std::string(100000, 'x').c_str());
    canvas->DrawBmap(10, 12, 22, 22, NONE, "\xA4\xFF%s%n");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
    EXPECT_EQ(reports("pipe"), 1);
}

TEST_F(DrawBmap, without_a_name_draws_nothing_and_reports_nothing)
{
    project.start();
    const auto before = project.messages();
    canvas->DrawBmap(10, 12, 22, 22, NONE, "");
    canvas->DrawBmap(10, 12, 22, 22, NONE, nullptr);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
    EXPECT_EQ(project.messages(), before);
}

TEST_F(DrawBmap, of_absurd_size_draws_nothing)
{
    save("tank.ppm", pattern(12, 10, 0x112233, 0x445566));
    canvas->DrawBmap(0, 0, 2000000000, 2000000000, NONE, "tank.ppm");
    canvas->DrawBmap(INT32_MIN, 0, INT32_MAX, 10, 60, "tank.ppm");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawBmap, of_a_file_with_too_many_pixels_draws_nothing)
{
    project.write("Bitmap/huge.pbm", "P4\n10008 10000\n" + std::string(std::size_t{10008} / 8 * 10000, '\0'));
    canvas->DrawBmap(0, 0, 12, 10, NONE, "huge.pbm");
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

/// Most address space that the process has had so far, in KiB.
long mostMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmPeak:") {
            long size = 0;
            status >> size;
            return size;
        }
    return -1;
}

TEST_F(DrawBmap, of_a_file_that_tells_of_more_than_it_has_takes_no_memory_for_it)
{
    // The offset of the pixels, at 10, and the size of the second header, at 14, are 2 GB.
    std::string offset("BM\x86\0\0\0\0\0\0\0\0\0\0\x80\x28\0\0\0\5\0\0\0\5\0\0\0\1\0\x18\0", 30);
    std::string header = offset;
    offset.resize(130);
    header.replace(10, 8, std::string("\x36\0\0\0\0\0\0\x80", 8)).resize(130);
    project.write("Bitmap/offset.bmp", offset).write("Bitmap/header.bmp", header);
    const long before = mostMemory();
    ASSERT_GT(before, 0);
    for (const char* name : {"offset.bmp", "header.bmp"})
        canvas->DrawBmap(0, 0, 12, 10, NONE, name);
    EXPECT_LT(mostMemory() - before, 1024 * 1024);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

} // namespace
