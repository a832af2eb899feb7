// The pointer's picture over a window, as the display server shows it.
#include "tests/support/Screen.h"
#include "tests/support/XProbe.h"

#include "draw/Resource.h"
#include "window/Request.h"

#include <gmock/gmock.h>

using testing::IsEmpty;

namespace
{

class MouseCursor : public Screen
{
  protected:
    void SetUp() override
    {
        project.code("SYSTEM", 99);
        project.set("COLOR", "CURSOR_FG", "65535,0,0").set("COLOR", "CURSOR_BG", "0,65535,0");
        know(Pattern("p").size(200, 200));
        start();
        openTop("p");
        project.clearLog();
        moveTo(AppliWnd, 50, 50);
    }

    /// What the server shows: "X" foreground, "." background, " " nothing.
    static std::string shown()
    {
        const PointerPicture picture = pointerPicture();
        std::string rows;
        for (const std::uint32_t argb : picture.pixels)
            rows += argb == 0 ? ' ' : argb == 0xFFFF0000 ? 'X' : argb == 0xFF00FF00 ? '.' : '?';
        return rows;
    }

    static std::string wanted(int number)
    {
        std::string rows;
        for (int i = 0; i < 32 * 32; i++) {
            const auto bit = [&](const char* bits) { return (bits[i / 8] >> i % 8) & 1; };
            rows += !bit(CursorMask[number]) ? ' ' : bit(CursorData[number]) ? 'X' : '.';
        }
        return rows;
    }
};

} // namespace

TEST_F(MouseCursor, shows_each_of_the_eight_pictures_at_its_hot_spot)
{
    const POINT home[] = {{1, 1}, {15, 15}, {15, 16}, {15, 15}, {9, 15}, {15, 9}, {12, 12}, {12, 12}};
    for (int number = 0; number < 8; number++) {
        AppliWnd->PtrnSetCursor(number, nullptr, 0);
        EXPECT_EQ(AppliWnd->CursorType, number);
        EXPECT_EQ(shown(), wanted(number)) << number;
        EXPECT_EQ(pointerPicture().hotX, home[number].x) << number;
        EXPECT_EQ(pointerPicture().hotY, home[number].y) << number;
    }
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(MouseCursor, changes_at_the_next_tick_when_a_screen_class_stores_another_number)
{
    tick();
    EXPECT_EQ(shown(), wanted(0)) << "the header's";
    AppliWnd->CursorType = 6;
    EXPECT_EQ(shown(), wanted(0));
    tick();
    EXPECT_EQ(shown(), wanted(6));
}

TEST_F(MouseCursor, shows_a_number_that_the_timer_hook_stores_from_the_next_tick_on)
{
    hooks.timr = [](CPtrnDisp& wnd) { wnd.CursorType = 6; };
    tick();
    EXPECT_EQ(shown(), wanted(0));
    tick();
    EXPECT_EQ(shown(), wanted(6));
}

TEST_F(MouseCursor, keeps_the_picture_for_a_number_that_has_none)
{
    AppliWnd->PtrnSetCursor(3, nullptr, 0);
    for (const int number : {8, -1, 1000000, -2147483647 - 1}) {
        AppliWnd->PtrnSetCursor(number, nullptr, 0);
        EXPECT_EQ(AppliWnd->CursorType, number);
        tick();
        EXPECT_EQ(shown(), wanted(3));
    }
}

TEST_F(MouseCursor, logs_its_number_when_asked_to)
{
    AppliWnd->PtrnSetCursor(5, "screen.cpp", 12);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "カーソル設定  [5]");
    EXPECT_EQ(log[0].file, "screen.cpp");
    EXPECT_EQ(log[0].line, 12);
}

TEST_F(MouseCursor, is_each_window_s_own)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "p", 700, 10);
    AppliWnd->CursorType = 2;
    child->CursorType = 4;
    tick(2);
    moveTo(AppliWnd, 50, 50);
    EXPECT_EQ(shown(), wanted(2));
    moveTo(child, 50, 50);
    EXPECT_EQ(shown(), wanted(4));
}
