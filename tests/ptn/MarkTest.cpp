// Marks from PNG and XBM files: the same bits as the drawing in letters, and what is said about other files.
#include "base/Types.h"
#include "tests/ptn/Sources.h"
#include "tests/support/Picture.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

using testing::EndsWith;
using testing::StartsWith;

constexpr std::uint32_t BLACK = 0x000000;
constexpr std::uint32_t WHITE = 0xFFFFFF;

class Mark : public testing::Test
{
  protected:
    // An L of two strokes, 32 x 32, as pixels and as letters.
    static Picture letterL(std::uint32_t ink, std::uint32_t paper)
    {
        return Picture(32, 32, paper).fill(4, 2, 7, 30, ink).fill(4, 27, 28, 30, ink);
    }
    static std::string artL()
    {
        std::string art = "\n\n";
        for (int row = 2; row < 30; ++row)
            art += "      ...." + std::string(row < 27 ? 3 : 24, 'X') + "\n";
        return "marks:\n  a:\n    no: 100\n    art: |\n      .\n" + art.substr(1);
    }

    // The mark's 512 bytes, built from a section of the sources.
    std::string built(const std::string& section)
    {
        sources.write("m.yaml", section);
        const PtnResult result = sources.build();
        EXPECT_EQ(result.err, "");
        return sources.built("PtrnMark").substr(100 * 512, 512);
    }
    std::string builtImage(const std::string& file) { return built(image(file)); }
    static std::string image(const std::string& file)
    {
        return "marks:\n  a: { no: 100, image: " + file + " }\n";
    }

    void save(const std::string& name, const Picture& picture)
    {
        ASSERT_TRUE(picture.save(sources.root() + "/src/" + name));
    }

    std::string message(const std::string& file)
    {
        sources.write("m.yaml", image(file));
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 1);
        return result.err;
    }

    Sources sources;
};

TEST_F(Mark, has_the_dark_pixels_of_a_png_as_its_foreground)
{
    const std::string drawn = built(artL());
    ASSERT_NE(drawn, std::string(512, '\0'));
    save("l.png", letterL(BLACK, WHITE));
    EXPECT_EQ(builtImage("l.png"), drawn);
    save("l.png", letterL(WHITE, BLACK));
    std::string inverse = drawn.substr(0, 128);
    for (char& byte : inverse)
        byte = static_cast<char>(~byte);
    EXPECT_EQ(builtImage("l.png"), inverse + std::string(512 - 128, '\0'));
}

TEST_F(Mark, has_the_set_bits_of_an_xbm_as_its_foreground)
{
    const std::string drawn = built(artL());
    std::string xbm = "#define l_width 32\n#define l_height 32\nstatic char l_bits[] = {\n";
    for (std::size_t byte = 0; byte < 128; ++byte) {
        char text[8];
        std::snprintf(text, sizeof text, "%s0x%02x", byte ? ", " : "", static_cast<BYTE>(drawn[byte]));
        xbm += text;
    }
    fs::create_directories(sources.root() + "/src/marks");
    sources.write("marks/l.xbm", xbm + "};\n");
    EXPECT_EQ(builtImage("marks/l.xbm"), drawn);
}

TEST_F(Mark, takes_colours_for_black_or_white_by_their_brightness)
{
    const std::string drawn = built(artL());
    const std::uint32_t dark[] = {0x800000, 0x0000FF, 0x7F7F7F, 0xFF0000, 0x006000};
    const std::uint32_t bright[] = {0xFFFF00, 0x00FF00, 0x808080, 0xFF8080, 0x00FFFF};
    for (std::size_t i = 0; i < std::size(dark); ++i) {
        save("l.png", letterL(dark[i], bright[i]));
        EXPECT_EQ(builtImage("l.png"), drawn) << i;
    }
}

TEST_F(Mark, has_transparent_pixels_as_its_background)
{
    const std::string drawn = built(artL());
    GdkPixbuf* pixels = gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, 32, 32);
    gdk_pixbuf_fill(pixels, 0x00000000);
    const Picture letter = letterL(BLACK, WHITE);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            if (letter.at(x, y) == BLACK)
                gdk_pixbuf_get_pixels(pixels)[y * gdk_pixbuf_get_rowstride(pixels) + 4 * x + 3] = 0xFF;
    const std::string file = sources.root() + "/src/l.png";
    EXPECT_TRUE(gdk_pixbuf_save(pixels, file.c_str(), "png", nullptr, nullptr));
    g_object_unref(pixels);
    EXPECT_EQ(builtImage("l.png"), drawn);
}

TEST_F(Mark, is_not_made_of_a_picture_of_another_size)
{
    save("l.png", Picture(33, 32, WHITE));
    EXPECT_EQ(message("l.png"),
              "src/m.yaml:2: mark 'a' (100): 'src/l.png' has 33 x 32 pixels. Marks of this number have 32 x "
              "32; scale it, or choose a number of another group.\n1 error; out/ProjPath is unchanged.\n");
    save("l.png", Picture(16, 32, WHITE));
    EXPECT_THAT(message("l.png"),
                StartsWith("src/m.yaml:2: mark 'a' (100): 'src/l.png' has 16 x 32 pixels."));
    sources.write("m.yaml", "marks:\n  a: { no: 49, image: l.png }\n");
    EXPECT_EQ(sources.build().status, 0) << "marks from 0 to 99 have 16 x 32 pixels";
}

TEST_F(Mark, is_not_made_of_a_damaged_or_missing_file_or_of_anything_else)
{
    save("l.png", letterL(BLACK, WHITE));
    const std::string png = readFile(sources.root() + "/src/l.png");
    fs::create_directories(sources.root() + "/src/folder");
    sources.write("cut.png", png.substr(0, png.size() / 2))
        .write("empty.png", "")
        .write("text.png", "this is no picture")
        .write("cut.xbm", "#define l_width 32\n#define l_height 32\nstatic char l_bits[] = { 1, 2");
    for (const char* file : {"cut.png", "empty.png", "text.png", "cut.xbm", "folder", "nowhere.png"}) {
        const std::string said = message(file);
        EXPECT_THAT(said, StartsWith("src/m.yaml:2: mark 'a' (100): 'src/" + std::string(file) +
                                     "' can not be read: "));
        EXPECT_THAT(said, EndsWith(". Give a PNG or XBM file.\n1 error; out/ProjPath is unchanged.\n"));
    }
}

TEST_F(Mark, given_as_bytes_needs_all_of_them)
{
    sources.write("m.yaml", "marks:\n  a: { no: 100, bytes: FF00 }\n");
    EXPECT_EQ(sources.build().err,
              "src/m.yaml:2: mark 'a' (100): 'bytes' must be 512 pairs of hexadecimal digits.\n"
              "1 error; out/ProjPath is unchanged.\n");
}

} // namespace
