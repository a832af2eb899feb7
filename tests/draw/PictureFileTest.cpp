// Which picture files are drawn: how large they may be, and where they may lie.
#include "base/Limits.h"
#include "draw/DrawScope.h"
#include "draw/Resource.h"
#include "tests/support/Canvas.h"
#include "tests/support/Project.h"
#include "tests/support/UseEdition.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

using namespace tessary;

namespace
{

constexpr int NONE = -1;

// The tests' display has 1280 x 1024 pixels.
constexpr int LARGEST_WIDTH = 2 * 1280;
constexpr int LARGEST_HEIGHT = 2 * 1024;

class PictureFile : public testing::Test
{
  protected:
    PictureFile() : canvas(100, 90)
    {
        usePalette();
        std::filesystem::create_directories(project.folder() + "/Bitmap/parts");
        std::filesystem::create_directories(project.folder() + "/Other");
        project.write("Bitmap/inside.ppm", red());
        project.write("Bitmap/parts/deeper.ppm", red());
        project.write("Other/outside.ppm", red());
        project.start();
    }

    ~PictureFile() override { DrawCntlExit(); }

    static std::string red() { return "P6\n1 1\n255\n" + std::string("\xFF\0\0", 3); }

    static std::string xpm(int width, int height, const std::string& comment = "")
    {
        std::string text = "/* XPM */\nstatic char * picture[] = {\n" + comment + "\"" +
                           std::to_string(width) + " " + std::to_string(height) + " 1 1\",\n\"X c #FF0000\"";
        for (int row = 0; row < height; ++row)
            text += ",\n\"" + std::string(static_cast<std::size_t>(width), 'X') + "\"";
        return text + "};\n";
    }

    static std::string xbm(int width, int height)
    {
        std::string text = "#define width_test_width " + std::to_string(width) +
                           "\n#define width_test_height " + std::to_string(height) +
                           "\nstatic unsigned char width_test_bits[] = {\n";
        for (int i = 0; i < (width + 7) / 8 * height; ++i)
            text += "0xff,";
        return text + "};\n";
    }

    static std::string pbm(int width, int height)
    {
        return "P4\n" + std::to_string(width) + " " + std::to_string(height) + "\n" +
               std::string(static_cast<std::size_t>(width / 8 * height), '\xFF');
    }

    bool draws(const std::string& name)
    {
        canvas.clear();
        canvas->DrawBmap(10, 10, 30, 30, NONE, name.c_str());
        const Picture picture = canvas.picture();
        const std::string bounds = picture.bounds(Canvas::GROUND);
        EXPECT_TRUE(bounds == "" || bounds == "10,10-29,29") << bounds;
        return bounds != "";
    }

    int told(const std::string& text)
    {
        const auto messages = project.messages();
        return static_cast<int>(std::count(messages.begin(), messages.end(), text));
    }

    int missing(const std::string& name) { return told("ビットマップの読込みに失敗 [" + name + "]"); }
    int outside(const std::string& name) { return told("ビットマップ名がフォルダ外を指す [" + name + "]"); }

    void link(const std::string& to, const std::string& name)
    {
        std::filesystem::create_symlink(to, project.folder() + "/Bitmap/" + name);
    }

    Project project;
    Canvas canvas;
};

} // namespace

TEST_F(PictureFile, of_four_times_the_pixels_of_the_display_is_drawn)
{
    project.write("Bitmap/large.pbm", pbm(LARGEST_WIDTH, LARGEST_HEIGHT));
    project.write("Bitmap/large.xpm", xpm(LARGEST_WIDTH, LARGEST_HEIGHT));
    project.write("Bitmap/small.xbm", xbm(9, 5));
    project.write("Bitmap/comment.xpm", xpm(3, 2, "/* \"width\" height */ /* 9000 */\n"));
    for (const char* name : {"large.pbm", "large.xpm", "small.xbm", "comment.xpm"})
        EXPECT_TRUE(draws(name)) << name;
}

TEST_F(PictureFile, of_more_pixels_is_told_once_and_draws_nothing)
{
    project.write("Bitmap/larger.pbm", pbm(LARGEST_WIDTH + 8, LARGEST_HEIGHT));
    project.write("Bitmap/larger.xpm", xpm(LARGEST_WIDTH + 1, LARGEST_HEIGHT));
    project.write("Bitmap/larger.xbm",
                  "#define a_width 30000\n#define a_height 30000\nstatic char a_bits[] = {0};");
    project.write("Bitmap/claims.xpm",
                  "/* XPM */ static char * a[] = {\"46341 46341 1 1\", \"X c red\", \"X\"};");
    project.write("Bitmap/claims.pnm", "P6\n46341 46341\n255\nabc");
    for (const char* name : {"larger.pbm", "larger.xpm", "larger.xbm", "claims.xpm", "claims.pnm"}) {
        EXPECT_FALSE(draws(name)) << name;
        EXPECT_FALSE(draws(name)) << name;
        EXPECT_EQ(missing(name), 1) << name;
    }
}

TEST_F(PictureFile, is_measured_by_the_panel_where_that_is_larger_than_the_display)
{
    project.write("Bitmap/larger.pbm", pbm(LARGEST_WIDTH + 8, LARGEST_HEIGHT));
    DispSizeX = 1920;
    DispSizeY = 1080;
    EXPECT_TRUE(draws("larger.pbm"));
    EXPECT_EQ(missing("larger.pbm"), 0);
}

TEST_F(PictureFile, may_lie_anywhere_in_the_first_edition)
{
    link(project.folder() + "/Other/outside.ppm", "link.ppm");
    EXPECT_TRUE(draws("../Other/outside.ppm"));
    EXPECT_TRUE(draws("parts/../inside.ppm"));
    EXPECT_TRUE(draws("link.ppm"));
    EXPECT_TRUE(draws("/inside.ppm"));
    EXPECT_TRUE(draws("parts/deeper.ppm"));
}

TEST_F(PictureFile, comes_from_its_folder_only_in_the_next_edition)
{
    const UseEdition used;
    link(project.folder() + "/Other/outside.ppm", "link.ppm");
    link("../Other", "folder");
    link("inside.ppm", "near.ppm");
    link("parts", "near");
    const std::string absolute = project.folder() + "/Bitmap/inside.ppm";
    for (const std::string& name :
         {std::string("../Other/outside.ppm"), std::string("parts/../inside.ppm"), std::string("link.ppm"),
          std::string("folder/outside.ppm"), std::string("/inside.ppm"), absolute, std::string("..")}) {
        EXPECT_FALSE(draws(name)) << name;
        EXPECT_FALSE(draws(name)) << name;
        EXPECT_EQ(outside(name), 1) << name;
        EXPECT_EQ(missing(name), 0) << name;
    }
    for (const char* name : {"inside.ppm", "parts/deeper.ppm", "near.ppm", "near/deeper.ppm", "./inside.ppm"})
        EXPECT_TRUE(draws(name)) << name;
    EXPECT_FALSE(draws("none.ppm"));
    EXPECT_EQ(missing("none.ppm"), 1);
}

TEST_F(PictureFile, is_found_where_the_folder_itself_is_a_link)
{
    const UseEdition used;
    std::filesystem::rename(project.folder() + "/Bitmap", project.folder() + "/Pictures");
    std::filesystem::create_directory_symlink("Pictures", project.folder() + "/Bitmap");
    EXPECT_TRUE(draws("inside.ppm"));
    EXPECT_FALSE(draws("../Other/outside.ppm"));
}

TEST_F(PictureFile, outside_its_folder_is_not_drawn_in_parts_either)
{
    const UseEdition used;
    const ClipScope clip(canvas->gc, {0, 0, 20, 20});
    EXPECT_FALSE(draws("../Other/outside.ppm"));
}
