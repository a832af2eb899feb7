// Image files with a transparency of their own.
#include "draw/DrawScope.h"
#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "tests/support/Canvas.h"
#include "tests/support/Project.h"
#include "tests/support/UseEdition.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>

namespace
{

constexpr int NONE = -1;
constexpr int BELOW = 40;
constexpr std::uint32_t BELOW_PIXEL = 0xC86400; ///< that colour here

class Transparency : public testing::Test
{
  protected:
    Transparency() : canvas(20, 10)
    {
        usePalette();
        setColor(BELOW, 0xC8C8, 0x6464, 0);
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        // Nothing, half, all, and the key colour.
        const std::array<guchar, 16> pixels = {255, 255, 255, 0,   0, 100, 200, 128,
                                               10,  20,  30,  255, 7, 8,   9,   255};
        const tessary::PixbufPtr file(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, 4, 1));
        std::copy(pixels.begin(), pixels.end(), gdk_pixbuf_get_pixels(file.get()));
        const std::string path = project.folder() + "/Bitmap/glass.png";
        EXPECT_TRUE(gdk_pixbuf_save(file.get(), path.c_str(), "png", nullptr, nullptr));
    }

    /// The four pixels as they are drawn over the colour below.
    std::array<std::uint32_t, 4> drawn(int key = NONE)
    {
        canvas->ClearScreen(BELOW);
        canvas->DrawBmap(3, 2, 7, 3, key, "glass.png");
        const Picture picture = canvas.picture();
        EXPECT_EQ(picture.count(BELOW_PIXEL),
                  20 * 10 - 4 + (picture.at(3, 2) == BELOW_PIXEL) + (picture.at(6, 2) == BELOW_PIXEL))
            << "nothing outside";
        return {picture.at(3, 2), picture.at(4, 2), picture.at(5, 2), picture.at(6, 2)};
    }

    Canvas canvas;
    Project project;
};

} // namespace

TEST_F(Transparency, shows_what_lies_below)
{
    EXPECT_EQ(drawn()[0], 0U) << "edition 1";
    EXPECT_EQ(drawn()[1], 0x0064C8U);

    const UseEdition edition;
    const auto pixels = drawn();
    EXPECT_EQ(pixels[0], BELOW_PIXEL);
    // Half of each, as near as the display's own arithmetic comes.
    for (const auto& [shift, middle] : {std::pair(16, 0x64), {8, 0x64}, {0, 0x64}})
        EXPECT_NEAR(static_cast<int>(pixels[1] >> shift & 0xFF), middle, 2) << shift;
    EXPECT_EQ(pixels[2], 0x0A141EU);
    EXPECT_EQ(pixels[3], 0x070809U);
}

TEST_F(Transparency, counts_beside_a_key_colour)
{
    setColor(60, 7, 8, 9);
    const UseEdition edition;
    const auto pixels = drawn(60);
    EXPECT_EQ(pixels[0], BELOW_PIXEL);
    EXPECT_NEAR(static_cast<int>(pixels[1] & 0xFF), 0x64, 2);
    EXPECT_EQ(pixels[2], 0x0A141EU);
    EXPECT_EQ(pixels[3], BELOW_PIXEL) << "the key";
}

TEST_F(Transparency, keeps_to_the_area_that_is_restored)
{
    const UseEdition edition;
    canvas->ClearScreen(BELOW);
    canvas->DrawBmap(0, 0, 20, 10, NONE, "glass.png");
    const Picture whole = canvas.picture();
    canvas->ClearScreen(BELOW);
    {
        const tessary::ClipScope clip(canvas->gc, {6, 3, 12, 7});
        canvas->DrawBmap(0, 0, 20, 10, NONE, "glass.png");
    }
    Picture expected = canvas.blank().fill(0, 0, 20, 10, BELOW_PIXEL);
    for (int y = 3; y < 7; ++y)
        for (int x = 6; x < 12; ++x)
            expected.set(x, y, whole.at(x, y));
    EXPECT_TRUE(same(canvas.picture(), expected));
}
