// "ptn watch" on a real display: the picture follows the source, errors take its place.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Toolkit.h"
#include "tests/support/XDriver.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace
{

std::string ScreenWith(const std::string& color, const std::string& name = "a")
{
    return "name: " + name + "\nwindow: { size: [200, 100], body-color: " + color + " }\n";
}

TEST(Watch, redraws_the_screen_when_it_is_saved_and_shows_errors_in_its_place)
{
    useToolkit();
    XDriver user;
    Sources sources;
    sources.base().screen(ScreenWith("hot"));
    const Program watch("ptn", "ptn", {"watch", "src", "a"});
    const auto shown = [&](std::uint32_t color) { return user.screen().count(color) >= 200 * 100; };
    ASSERT_TRUE(user.waitFor([&] { return shown(0xFF8000); }, "the screen")) << watch.output();
    sources.screen(ScreenWith("black") +
                   "items: [{ type: rectangle, rect: [0, 0, 200, 100], fill: '#00FF00' }]");
    EXPECT_TRUE(user.waitFor([&] { return !shown(0xFF8000); }, "the error in place of it")) << watch.output();
    sources.screen(ScreenWith("hot"));
    EXPECT_TRUE(user.waitFor([&] { return shown(0xFF8000); }, "the screen again")) << watch.output();
}

TEST(Watch, shows_the_screen_that_the_panel_starts_with_unless_another_is_named)
{
    useToolkit();
    XDriver user;
    Sources sources;
    sources.base().screen(ScreenWith("black")).write("screens/b.yaml", ScreenWith("hot", "b"));
    sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: b } }\n");
    const Program watch("ptn", "ptn", {"watch", "src"});
    EXPECT_TRUE(user.waitFor([&] { return user.screen().count(0xFF8000) >= 200 * 100; }, "the screen"))
        << watch.output();
}

TEST(Watch, sees_a_folder_of_screens_that_is_made_later)
{
    useToolkit();
    XDriver user;
    Sources sources;
    sources.base();
    std::filesystem::remove_all(sources.root() + "/src/screens");
    const Program watch("ptn", "ptn", {"watch", "src", "a"});
    ASSERT_TRUE(user.waitFor([&] { return !user.windows().empty(); }, "the window")) << watch.output();
    std::filesystem::create_directory(sources.root() + "/src/screens");
    sources.screen(ScreenWith("hot"));
    EXPECT_TRUE(user.waitFor([&] { return user.screen().count(0xFF8000) >= 200 * 100; }, "the screen"))
        << watch.output();
    // And what is saved in it from then on.
    sources.screen(ScreenWith("black"));
    EXPECT_TRUE(user.waitFor([&] { return user.screen().count(0xFF8000) == 0; }, "the screen saved later"))
        << watch.output();
}

TEST(Watch, shows_what_is_found_beside_the_screen)
{
    useToolkit();
    XDriver user;
    Sources sources;
    sources.checkedBase().screen(ScreenWith("hot"));
    sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: a } }\n");
    const Program watch("ptn", "ptn", {"watch", "src", "a"});
    const auto shown = [&] { return user.screen().count(0xFF8000) >= 200 * 100; };
    const auto isWide = [&] {
        for (const ScreenWindow& window : user.windows())
            if (window.width > 2 * 200)
                return true;
        return false;
    };
    ASSERT_TRUE(user.waitFor(shown, "the screen")) << watch.output();
    EXPECT_FALSE(isWide()) << "nothing is found in it";
    sources.screen(ScreenWith("hot") + "items: [{ type: spin, rect: [400, 1, 420, 40], data: A }]\n");
    EXPECT_TRUE(user.waitFor([&] { return isWide() && shown(); }, "the screen with what was found"))
        << watch.output();
}

} // namespace
