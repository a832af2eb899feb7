// What a display shows of a panel that is scaled to it.
#include "tests/support/Sheet.h"
#include "tests/support/UseEdition.h"
#include "tests/support/XProbe.h"
#include "tests/window/Scaled.h"

#include "draw/Scale.h"

#include <algorithm>
#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;

namespace
{

class ScaledDisplay : public Scaled
{
  protected:
    /// Everything of the display beside the panel.
    void expectRestIn(std::uint32_t color)
    {
        Picture screen = user.screen();
        screen.fill(layout.left, layout.top, layout.left + layout.shownWidth, layout.top + layout.shownHeight,
                    color);
        EXPECT_EQ(screen.bounds(color), "");
    }

    /// Draws on the window itself, behind its back buffer: the next copy of that part shows.
    static void scribble(const CPtrnDisp* wnd)
    {
        CClientDraw draw(wnd->DrawArea->window);
        draw.ClearScreen(60);
        g_object_unref(draw.gc);
        gdk_flush();
    }

    std::vector<int> sizes(const CPtrnDisp* wnd)
    {
        return {wnd->WindRect.left, wnd->WindRect.top, wnd->WindRect.width, wnd->WindRect.height};
    }

    /// Each pixel of the display whose surroundings in the buffer have one colour has it, and no pixel has
    /// more or less of a channel than its surroundings.
    void expectBlendedFrom(const Picture& buffer, const Picture& shown)
    {
        int flat = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const Bounds around = boundsAround(buffer, x, y);
                for (int channel = 0; channel < 3; ++channel) {
                    const int value = static_cast<int>(shown.at(x, y) >> 8 * channel & 0xFF);
                    ASSERT_GE(value, around.least[channel]) << x << "," << y;
                    ASSERT_LE(value, around.most[channel]) << x << "," << y;
                    flat += around.least[channel] == around.most[channel];
                }
            }
        }
        EXPECT_GT(flat, shown.width() * shown.height()) << "much of the picture is of one colour";
    }

  private:
    struct Bounds {
        int least[3] = {255, 255, 255};
        int most[3] = {0, 0, 0};
    };

    Bounds boundsAround(const Picture& buffer, int x, int y) const
    {
        Bounds bounds;
        const auto first = [&](int at) { return static_cast<int>((at + 0.5) / layout.factor - 1.5); };
        const int reach = layout.factor < 1 ? 3 : 2;
        for (int row = std::max(0, first(y)); row <= std::min(first(y) + reach, buffer.height() - 1); ++row)
            for (int column = std::max(0, first(x)); column <= std::min(first(x) + reach, buffer.width() - 1);
                 ++column)
                for (int channel = 0; channel < 3; ++channel) {
                    const int value = static_cast<int>(buffer.at(column, row) >> 8 * channel & 0xFF);
                    bounds.least[channel] = std::min(bounds.least[channel], value);
                    bounds.most[channel] = std::max(bounds.most[channel], value);
                }
        return bounds;
    }
};

} // namespace

TEST_F(ScaledDisplay, makes_each_pixel_a_square_of_whole_steps)
{
    CPtrnDisp* wnd = show(TWICE, busy("p", 500, 300));
    EXPECT_TRUE(same(shown(), enlarged(buffer(wnd), 2)));
    expectRestIn(color(30));
    EXPECT_THAT(sizes(wnd), ElementsAre(0, 0, 500, 300)) << "the panel knows nothing of it";
}

TEST_F(ScaledDisplay, makes_squares_of_any_size)
{
    for (const int steps : {3, 5, 7, 12, 20}) {
        const int width = 1280 / steps;
        const int height = 1024 / steps;
        CPtrnDisp* wnd = show({"steps", width, height, 1.0 * steps, (1280 - width * steps) / 2,
                               (1024 - height * steps) / 2, width * steps, height * steps},
                              busy("p" + std::to_string(steps), width, height));
        EXPECT_TRUE(same(shown(), enlarged(buffer(wnd), steps))) << steps;
    }
}

TEST_F(ScaledDisplay, by_whole_steps_only_centres_a_panel_that_has_no_room_to_grow)
{
    CPtrnDisp* wnd = show({"steps", 1000, 601, 1, 140, 211, 1000, 601}, busy("p", 1000, 601));
    EXPECT_TRUE(same(shown(), buffer(wnd)));
    expectRestIn(color(30));
    tick(2);
    EXPECT_TRUE(same(shown(), buffer(wnd)));
}

TEST_F(ScaledDisplay, by_whole_steps_shows_the_beginning_of_a_panel_that_is_larger_than_the_display)
{
    CPtrnDisp* wnd = show({"steps", 1400, 600, 1, 0, 212, 1280, 600}, busy("p", 1280, 600));
    EXPECT_TRUE(same(shown(), buffer(wnd)));
}

TEST_F(ScaledDisplay, fits_a_smaller_panel_and_blends_only_the_edges_of_its_pixels)
{
    CPtrnDisp* wnd = show(FITTED, busy("p", 500, 300));
    const Picture pixels = buffer(wnd);
    const Picture display = shown();
    expectBlendedFrom(pixels, display);
    expectRestIn(color(30));
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 500; ++x) {
            const POINT middle = onDisplay(wnd, x, y);
            ASSERT_LE(apart(display.at(middle.x, middle.y - layout.top), pixels.at(x, y)), 2)
                << "the middle of " << x << "," << y;
        }
}

TEST_F(ScaledDisplay, fits_a_larger_panel_and_loses_no_line_of_it)
{
    CPtrnDisp* wnd = show(REDUCED, busy("p", 1600, 1300));
    expectBlendedFrom(buffer(wnd), shown());
    expectRestIn(color(30));
}

TEST_F(ScaledDisplay, keeps_thin_lines_of_a_panel_that_is_reduced_a_lot)
{
    Pattern pattern("p");
    pattern.size(4000, 3200).header(HEDR_BODY_COLOR, 30);
    for (int x = 11; x < 4000; x += 37)
        pattern.item(PTRN_LINE, x, 0, x, 3199).parm4(LINE_COLOR4, 40, 40, 40, 40);
    show({"fit", 4000, 3200, 0.32, 0, 0, 1280, 1024}, pattern);
    const Picture display = shown();
    for (int x = 11; x < 4000; x += 37) {
        const int at = static_cast<int>((x + 0.5) * 0.32);
        int most = 0;
        for (int column = std::max(0, at - 1); column <= std::min(at + 1, 1279); ++column)
            most = std::max(most, apart(display.at(column, 500), color(30)));
        EXPECT_GE(most, apart(color(30), color(40)) / 8) << x;
    }
}

TEST_F(ScaledDisplay, has_odd_sizes_in_the_middle_of_the_display)
{
    // 1024 / 333 is less than 1280 / 333; 333 * 1024 / 333 = 1024.
    show({"fit", 333, 333, 1024 / 333.0, 128, 0, 1024, 1024}, busy("p", 333, 333));
    expectRestIn(color(30));
    EXPECT_LE(apart(shown().at(1023, 1023), buffer(AppliWnd).at(332, 332)), 2);
}

TEST_F(ScaledDisplay, shows_at_once_what_a_tick_draws_and_copies_nothing_else)
{
    for (const int edition : {1, 2}) {
        const UseEdition used(edition);
        for (const Layout& each : {TWICE, FITTED, REDUCED}) {
            Pattern pattern("p" + std::to_string(edition));
            pattern.size(400, 250);
            pattern.item(PTRN_RECT, 20, 20, 61, 61).parm(SHAPE_WIDTH, 0).parm(SHAPE_FILLED, 1);
            pattern.parm4(SHAPE_FILL4, 40, 41, 42, 43).code("D");
            CPtrnDisp* wnd = show(each, pattern);
            tick(3);
            scribble(wnd);
            Set_wData(100, 1, nullptr, 0);
            tick(2);
            EXPECT_EQ(pixel(wnd, 40, 40), color(41));
            EXPECT_EQ(pixel(wnd, 22, 22), color(41));
            EXPECT_EQ(pixel(wnd, 70, 70), color(60)) << "nothing was drawn here";
            EXPECT_EQ(pixel(wnd, 300, 200), color(60));
            Set_wData(100, 0, nullptr, 0);
            tick();
        }
    }
}

TEST_F(ScaledDisplay, repaints_what_was_covered)
{
    for (const Layout& each : {TWICE, FITTED, REDUCED}) {
        show(each, busy("p" + std::to_string(each.width), each.width, each.height));
        const Picture before = user.screen();
        {
            const ForeignWindow other(333, 181, 307, 411);
            user.settle();
            ASSERT_GT(apart(user.screen(), before), 100);
        }
        user.waitFor([&] { return apart(user.pixel(500, 500), before.at(500, 500)) < 4; },
                     "what was covered");
        user.settle();
        EXPECT_LE(apart(user.screen(), before), each.factor == 2 ? 0 : 3);
    }
}

TEST_F(ScaledDisplay, shows_the_part_of_a_pattern_that_is_in_view)
{
    use(TWICE);
    know(busy("part", 300, 200));
    open(Pattern("p").size(500, 300));
    AppliWnd->PtrnDispChild(1, "part", SetRect(50, 60, 150, 120), nullptr, 0);
    CPtrnDisp* child = AppliWnd->ChildWnd1;
    waitShown(child);
    child->PtrnSetOffset(0, 33, 15, nullptr, 0);
    tick();
    EXPECT_TRUE(same(user.picture(140 + 100, 212 + 120, 200, 120),
                     enlarged(bufferPicture(child, 33, 15, 100, 60), 2)));
    child->PtrnSetOffset(0, 250, 180, nullptr, 0); // beyond the end of the pattern
    tick();
    EXPECT_TRUE(same(user.picture(140 + 100, 212 + 120, 100, 40),
                     enlarged(bufferPicture(child, 250, 180, 50, 20), 2)));
    EXPECT_NE(user.pixel(140 + 100 + 150, 212 + 120 + 50), bufferPixel(child, 299, 199));
}

TEST_F(ScaledDisplay, places_and_sizes_child_and_system_windows)
{
    for (const Layout& each : {TWICE, FITTED, REDUCED}) {
        use(each);
        const std::string name = std::to_string(each.width);
        know(busy("child" + name, 111, 101).header(HEDR_KIND, 2).header(HEDR_LEFT, 201).header(HEDR_TOP, 99));
        know(busy("system" + name, 120, 100).header(HEDR_KIND, 1).header(HEDR_REMEMBER, 1));
        open(busy("p" + name, each.width, each.height));
        CPtrnDisp* child = openChild(AppliWnd, 1, "child" + name); // waits for the place on the display
        EXPECT_THAT(sizes(child), ElementsAre(201, 99, 111, 101));
        CPtrnDisp* system = openSystem("system" + name);
        EXPECT_THAT(sizes(system), ElementsAre((each.width - 120) / 2, (each.height - 100) / 2, 120, 100))
            << "in the middle of the panel";
        EXPECT_EQ(pixel(child, 5, 5), color(30));
        EXPECT_LE(apart(pixel(system, 50, 40), bufferPixel(system, 50, 40)), 2);
        PtrnDispSysWnd("", nullptr, 0);
    }
}

TEST_F(ScaledDisplay, opens_popups_beside_what_they_belong_to_and_within_the_panel)
{
    use(TWICE);
    know(Pattern("menu").size(80, 100).header(HEDR_KIND, 2));
    open(Pattern("p").size(500, 300));
    AppliWnd->PtrnDispPopup(1, "menu", SetRect(400, 250, 430, 270), nullptr, 0);
    waitShown(AppliWnd->ChildWnd1);
    // 430 + 80 and 270 + 100 are more than the panel has.
    EXPECT_THAT(sizes(AppliWnd->ChildWnd1), ElementsAre(400 - 80, 270 - 100, 80, 100));
}

TEST_F(ScaledDisplay, enlarges_the_pointer_by_whole_steps)
{
    show(FITTED, Pattern("p").size(500, 300).header(HEDR_CURSOR, 1));
    tick();
    moveTo(AppliWnd, 100, 100);
    const PointerPicture pointer = pointerPicture();
    EXPECT_EQ(pointer.width, 64);
    EXPECT_EQ(pointer.height, 64);
    EXPECT_EQ(pointer.hotX, 30);
    EXPECT_EQ(pointer.hotY, 30);
    for (int y = 0; y < 64; y += 2)
        for (int x = 0; x < 64; x += 2) {
            const auto at = [&](int dx, int dy) {
                return pointer
                    .pixels[std::size_t{64} * static_cast<unsigned>(y + dy) + static_cast<unsigned>(x + dx)];
            };
            ASSERT_THAT((std::vector<std::uint32_t>{at(1, 0), at(0, 1), at(1, 1)}), testing::Each(at(0, 0)))
                << x << "," << y;
        }
}

TEST_F(ScaledDisplay, paints_the_rest_in_the_body_colour_of_the_screen_that_is_shown)
{
    use(TWICE);
    know(Pattern("q").size(500, 300).header(HEDR_BODY_COLOR, 55));
    open(Pattern("p").size(500, 300).header(HEDR_BODY_COLOR, 30));
    expectRestIn(color(30));
    openTop("q");
    tick();
    user.waitFor([&] { return user.pixel(20, 20) == color(55); }, "the other screen");
    expectRestIn(color(55));
}

TEST_F(ScaledDisplay, leaves_everything_alone_without_the_key_without_a_size_and_for_an_unknown_word)
{
    const auto expectNatural = [&](const char* name) {
        know(busy(name, 500, 300));
        start();
        PtrnDispTopWnd(name, nullptr, 0);
        user.waitFor(
            [&] {
                const auto windows = user.windows();
                return AppliWnd->Pixmap && std::any_of(windows.begin(), windows.end(), [&](const auto& each) {
                           return each.title == name && each.width == 500 && each.height == 300;
                       });
            },
            name);
        user.settle();
        EXPECT_TRUE(DisplayScale().natural());
        EXPECT_EQ(gtk_bin_get_child(GTK_BIN(AppliWnd->Widget)), AppliWnd->DrawArea);
        EXPECT_TRUE(same(user.picture(0, 0, 500, 300), buffer(AppliWnd)));
    };
    project.set("TESSARY", "DISPSIZE", "500,300");
    expectNatural("none");
    project.set("TESSARY", "SCALE", "large");
    expectNatural("unknown");
    project.set("TESSARY", "SCALE", "fit").set("TESSARY", "DISPSIZE", "0,300");
    expectNatural("sizeless");
}
