// Bitmap files.
#include "tests/draw/ImageCanvas.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <sys/stat.h>

using namespace tessary;

namespace
{

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
