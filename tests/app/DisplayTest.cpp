// The real program on displays of other sizes and depths than the tests' own.
#include "tests/app/Panel.h"
#include "tests/support/Apart.h"
#include "tests/support/OtherServer.h"
#include "tests/support/ScreenSize.h"

#include <csignal>
#include <filesystem>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gmock/gmock.h>
#include <X11/Xlib.h>

using namespace tessary;

namespace
{

constexpr int WIDTH = 300;
constexpr int HEIGHT = 200;

class PanelOnDisplay : public Panel
{
  protected:
    void SetUp() override
    {
        Panel::SetUp();
        saveNotice();
        menu().save(project);
    }

    static Pattern menu()
    {
        return Pattern(MENU).size(WIDTH, HEIGHT).item(PTRN_BUTN, 10, 10, 90, 40).text("stop").action(16);
    }

    /// Pictures of every kind: marks with and without a ground, check marks, arrows, and bitmaps that are
    /// opaque, keyed and transparent.
    Pattern pictures()
    {
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        std::string wheel = "P6\n32 32\n255\n";
        for (int i = 0; i < 32 * 32; ++i)
            wheel += {static_cast<char>(i), static_cast<char>(255 - i / 4), static_cast<char>(i * 7)};
        project.write("Bitmap/wheel.ppm", wheel);
        saveTransparent(project.folder() + "/Bitmap/glass.png");
        Pattern pattern = menu();
        pattern.item(PTRN_BMAP, 10, 50, 60, 100).text("wheel.ppm");
        pattern.item(PTRN_BMAP, 70, 50, 120, 100).text("wheel.ppm").parm(BMAP_KEYED, 1);
        pattern.item(PTRN_BMAP, 130, 50, 180, 100).text("glass.png");
        pattern.item(PTRN_MARK, 190, 50, 222, 82);
        pattern.item(PTRN_MARK, 230, 50, 262, 82).parm(MARK_BACKED, 1);
        pattern.item(PTRN_CHCK, 10, 110, 80, 130).text("check").code("DATA", 191);
        pattern.item(PTRN_RDIO, 90, 110, 160, 130).text("radio").code("DATA", 192);
        pattern.item(PTRN_SBAR, 10, 140, 150, 164).parm(SBAR_ARROWS, 1).code("DATA", 193);
        pattern.item(PTRN_SPIN, 170, 130, 202, 194).code("DATA", 194);
        return pattern;
    }

    static void saveTransparent(const std::string& path)
    {
        GdkPixbuf* image = gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, 16, 16);
        guchar* pixels = gdk_pixbuf_get_pixels(image);
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                guchar* const pixel =
                    pixels + std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(image) + std::ptrdiff_t{4} * x;
                pixel[0] = static_cast<guchar>(16 * x);
                pixel[1] = static_cast<guchar>(16 * y);
                pixel[2] = 99;
                pixel[3] = static_cast<guchar>(x < 5 ? 0 : x < 10 ? 128 : 255);
            }
        gdk_pixbuf_save(image, path.c_str(), "png", nullptr, nullptr);
        g_object_unref(image);
    }

    /// What the panel shows, once two looks at it are alike and show more than one colour.
    Picture look(const OtherUser& eyes, int width, int height)
    {
        Picture before(width, height, 0);
        Picture now = before;
        user.waitFor(
            [&] {
                before = now;
                now = eyes.picture(0, 0, width, height);
                const bool drawn = now.bounds(now.at(0, 0)) != "";
                return drawn && now.pixels == before.pixels;
            },
            "the panel");
        return now;
    }

    Picture shotAt(int depth)
    {
        const OtherServer server("400x300x" + std::to_string(depth));
        const OtherUser eyes(server.name());
        runOn(server.name());
        Picture picture = look(eyes, WIDTH, HEIGHT);
        EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
        EXPECT_EQ(waitEnd(), 0) << program->output();
        return picture;
    }
};

/// The parameter is what Xvfb calls a screen.
class PanelOnScreen : public PanelOnDisplay, public testing::WithParamInterface<const char*>
{
};

std::string screenName(const testing::TestParamInfo<const char*>& info)
{
    return std::string("of_") + info.param;
}

/// The parameters are the key's word and the size and place of the panel of 300 x 200 on 1000 x 500.
struct Shown {
    const char* word;
    int left;
    int top;
    double factor;
};

class ScaledPanelOnDisplay : public PanelOnDisplay, public testing::WithParamInterface<Shown>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Depths, PanelOnScreen,
                         testing::Values("640x480x8", "640x480x15", "640x480x16", "640x480x24", "640x480x30",
                                         "320x240x24", "3840x2160x24"),
                         screenName);

TEST_P(PanelOnScreen, starts_is_operated_and_stops_in_order)
{
    pictures().save(project);
    const OtherServer server(GetParam());
    ASSERT_NE(server.name(), "");
    const OtherUser eyes(server.name());
    runOn(server.name());
    look(eyes, WIDTH, HEIGHT);
    eyes.click(50, 25);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_THAT(program->output(), testing::Not(testing::HasSubstr("CRITICAL")));
    EXPECT_EQ(logged().back(), "システム停止");
}

TEST_F(PanelOnDisplay, shows_pictures_on_thirty_bits_as_on_twenty_four)
{
    for (const char* edition : {"1", "2"}) {
        project.set("TESSARY", "EDITION", edition);
        pictures().save(project);
        const Picture usual = shotAt(24);
        const Picture deep = shotAt(30);
        EXPECT_LE(apart(usual, deep), 1) << "edition " << edition;
    }
}

INSTANTIATE_TEST_SUITE_P(Words, ScaledPanelOnDisplay,
                         testing::Values(Shown{"steps", 200, 50, 2}, Shown{"fit", 125, 0, 2.5}),
                         [](const auto& tested) { return std::string(tested.param.word); });

TEST_P(ScaledPanelOnDisplay, follows_a_display_that_changes_its_size)
{
    const Shown shown = GetParam();
    project.set("TESSARY", "DISPSIZE", "300,200").set("TESSARY", "SCALE", shown.word);
    const OtherServer server("1000x500x24");
    const OtherUser eyes(server.name());
    runOn(server.name());
    EXPECT_TRUE(user.waitFor([&] { return eyes.shows(1000, 500); }, "the panel"));
    const std::uint32_t body = color(HEDR_BODY_COLOR);
    EXPECT_TRUE(user.waitFor(
        [&] {
            return eyes.picture(shown.left + static_cast<int>(120 * shown.factor), 250, 1, 1).at(0, 0) ==
                   body;
        },
        "the body"));
    EXPECT_EQ(eyes.picture(5, 5, 1, 1).at(0, 0), body);

    resizeScreen(eyes, 640, 480); // of which the panel takes 600 x 400, or 640 x 427
    EXPECT_TRUE(user.waitFor([&] { return eyes.shows(640, 480); }, "the panel in its new size"));
    const bool fits = std::string(shown.word) == "fit";
    const double factor = fits ? 640 / 300.0 : 2;
    const int left = fits ? 0 : 20;
    const int top = fits ? 26 : 40;
    EXPECT_TRUE(user.waitFor(
        [&] {
            // On the button, left of its text.
            const int x = left + static_cast<int>(14.5 * factor);
            return eyes.picture(x, top + static_cast<int>(25 * factor), 1, 1).at(0, 0) != body;
        },
        "the button"));
    eyes.click(left + static_cast<int>(50 * factor), top + static_cast<int>(25 * factor));
    EXPECT_EQ(waitEnd(), 0) << program->output();
}
