// The real program, started as a user starts it, with projects of the test's own.
#include "tests/app/Panel.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <X11/keysym.h>

using namespace tessary;

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(Panel, tells_that_its_profile_is_missing_and_ends_with_status_0)
{
    unlink(project.profile().c_str());
    run();
    const ScreenWindow box = user.waitForWindow("起動不可");
    user.clickAt(box.x + box.width / 2, box.y + box.height / 2); // the text, not the button
    EXPECT_FALSE(program->status());
    user.key(XK_Tab);
    user.key(XK_space);
    EXPECT_EQ(waitEnd(), 0) << program->output();
}

TEST_F(Panel, tells_that_the_project_is_not_set_and_ends_with_status_0)
{
    project.unset("TESSARY", "PROJECT");
    run();
    const ScreenWindow box = user.waitForWindow("起動不可");
    user.requestClose(box.id);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_THAT(logged(), IsEmpty()) << "the log is opened only after the project is known";
}

TEST_F(Panel, shows_the_start_pattern_opens_another_and_stops)
{
    project.set("TESSARY", "WAITTIMER", "1").set("PTRN", "PTRNSTOP", NOTICE);
    Pattern(MENU).size(300, 200).item(PTRN_BUTN, 10, 10, 110, 50).text("図形").action(8, OTHER).save(project);
    Pattern(OTHER).size(320, 210).item(PTRN_BUTN, 10, 10, 110, 50).text("終了").action(16).save(project);
    Pattern(NOTICE).size(150, 80).save(project);
    run();

    EXPECT_EQ(user.waitForWindow(MENU).width, 300);
    user.clickAt(50, 30);
    EXPECT_EQ(user.waitForWindow(OTHER).width, 320);
    user.waitFor([&] { return user.windows().size() == 1; }, "the menu to go");
    user.clickAt(50, 30);
    user.waitForWindow(NOTICE);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_EQ(logged().front(), "システム起動");
    EXPECT_EQ(logged().back(), "システム停止");
}

TEST_F(Panel, idles_without_a_window_when_the_start_pattern_is_unknown)
{
    project.set("PTRN", "PTRNSTART", "no such screen");
    run();
    waitLogged("最上位ウィンドウ表示に失敗  [no such screen]");
    EXPECT_FALSE(program->status());
    EXPECT_THAT(user.windows(), IsEmpty());
}

TEST_F(Panel, idles_without_a_window_when_there_is_no_start_pattern)
{
    project.unset("PTRN", "PTRNSTART");
    run();
    waitLogged("最上位ウィンドウ表示に失敗  []");
    EXPECT_FALSE(program->status());
}

TEST_F(Panel, starts_without_any_file_in_its_project)
{
    for (const char* name : {"PtrnCode", "PtrnColr"})
        unlink((project.folder() + "/" + name).c_str());
    Pattern(MENU).size(300, 200).save(project);
    run();
    EXPECT_EQ(user.waitForWindow(MENU).width, 300);
    EXPECT_FALSE(program->status());
    EXPECT_THAT(program->output(), testing::Not(HasSubstr("ERROR")));
}

TEST_F(Panel, shows_a_window_of_one_pixel_for_a_pattern_that_is_no_pattern)
{
    project.write(std::string(MENU) + ".ptn", "this is no pattern");
    run();
    user.waitForWindow(MENU);
    EXPECT_FALSE(program->status());
    EXPECT_THAT(logged(), Contains(std::string("パターンを表示できない  [") + MENU + "]"));
}

TEST_F(Panel, shows_its_clock_values_from_the_first_tick_on)
{
    Pattern(MENU)
        .size(300, 200)
        .item(PTRN_NUMR, 20, 20, 100, 40)
        .code("DATA", 0)
        .parm(FIELD_WIDTH, 4)
        .parm(TEXT_BACKED, 1)
        .save(project);
    run();
    user.waitForWindow(MENU);
    // The year has as many pixels as its four digits need; before the first tick it is a single zero.
    user.waitFor(
        [&] {
            const Picture digits = user.picture(20, 20, 8, 16); // the thousands
            return std::any_of(digits.pixels.begin(), digits.pixels.end(),
                               [&](std::uint32_t pixel) { return pixel != digits.at(0, 0); });
        },
        "the year in its field");
}
