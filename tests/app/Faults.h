// Fixture: the real program with a menu that can be stopped, a child whose place is remembered, and the error
// line.
#pragma once

#include "tests/app/Panel.h"

#include <csignal>
#include <gmock/gmock.h>

class FaultyPanel : public Panel
{
  protected:
    static constexpr const char* CHILD = "子ウィンドウ (1)";

    void SetUp() override
    {
        Panel::SetUp();
        saveNotice();
        saveClosableChild(CHILD);
        Pattern(MENU)
            .size(500, 300)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .text("child")
            .action(5, CHILD)
            .item(PTRN_BUTN, 110, 10, 190, 40)
            .text("stop")
            .action(16)
            .item(PTRN_BUTN, 210, 10, 290, 40)
            .text("maintenance")
            .action(14)
            .item(PTRN_RECT, ERROR_LEFT, 100, ERROR_LEFT + 100, 120)
            .code("DATA", DTNO_SYSEROR - 1)
            .parm(tessary::SHAPE_FILLED, 1)
            .parm4(tessary::SHAPE_FILL4, QUIET, RED, QUIET, QUIET)
            .save(project);
    }

    void runMenu()
    {
        run();
        user.waitForDrawn(MENU);
    }

    /// Opens the child and closes it, which saves its place.
    void savePlace()
    {
        user.clickAt(50, 25);
        const ScreenWindow child = user.waitForDrawn(CHILD);
        user.clickAt(child.x + 50, child.y + 45);
        user.waitFor([&] { return user.windows().size() == 1; }, "the child to go");
    }

    bool showsError() { return user.pixel(ERROR_LEFT + 50, 110) == color(RED); }
    void waitError()
    {
        user.waitFor([&] { return showsError(); }, "the error line");
    }

    void stopByButton()
    {
        user.clickAt(150, 25);
        EXPECT_EQ(waitEnd(), 0) << program->output();
    }

    static constexpr int ERROR_LEFT = 10;
    static constexpr int QUIET = 20;
    static constexpr int RED = 21;
};
