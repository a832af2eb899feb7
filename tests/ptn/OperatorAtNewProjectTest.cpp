// An operator before the panel of "ptn new", by real keys, buttons and wheel: the same hands in both
// editions.
#include "tests/ptn/Sources.h"
#include "tests/support/Picture.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/XDriver.h"

#include <gtest/gtest.h>
#include <X11/keysym.h>

namespace
{

class OperatorAtNewProject : public testing::Test
{
  protected:
    struct Place {
        int x;
        int y;
    };
    // Where the starting project has them.
    static constexpr Place FIELD = {288, 112};
    static constexpr int FIELD_WIDTH = 4 * 12;
    static constexpr int FIELD_HEIGHT = 24;
    static constexpr Place SPIN_UP = {368, 110};
    static constexpr Place STATES = {96, 440};
    static constexpr Place STOP = {544, 440};
    static constexpr Place NOTHING = {320, 350};

    void begin(int edition)
    {
        ASSERT_EQ(sources.run("new --program plant").status, 0);
        if (edition == 1) {
            std::string project = readFile("plant/project.yaml");
            const std::size_t line = project.find("edition:");
            ASSERT_NE(line, std::string::npos);
            writeFile("plant/project.yaml", project.erase(line, project.find('\n', line) + 1 - line));
        }
        ASSERT_EQ(sources.run("build plant out/ProjPath").err, "");
        program.emplace("starter_program", sources.root() + "/out/plant");
        window = user.waitForWindow("Main");
        expectSetpoint("60");
    }

    void clickOn(Place place, unsigned button = 1)
    {
        user.clickAt(window.x + place.x, window.y + place.y, button);
    }

    void enter(const std::string& keys)
    {
        clickOn({FIELD.x + 4, FIELD.y + 4});
        user.type(keys);
    }

    /// Waits until the field looks as the tool renders it with that value.
    void expectSetpoint(const std::string& value)
    {
        writeFile("now.state", "cells: { SETPOINT: " + value + " }\n");
        ASSERT_EQ(sources.run("render plant Main --state now.state -o now.png").err, "");
        const std::optional<Picture> screen = Picture::load("now.png");
        ASSERT_TRUE(screen);
        Picture expected(FIELD_WIDTH, FIELD_HEIGHT, 0);
        for (int y = 0; y < FIELD_HEIGHT; y++)
            for (int x = 0; x < FIELD_WIDTH; x++)
                expected.set(x, y, screen->at(FIELD.x + x, FIELD.y + y));
        const auto shown = [&] {
            return user.picture(window.x + FIELD.x, window.y + FIELD.y, FIELD_WIDTH, FIELD_HEIGHT);
        };
        if (!user.waitFor([&] { return shown().pixels == expected.pixels; }, "the setpoint " + value)) {
            EXPECT_TRUE(same(shown(), expected));
        }
    }

    /// Nothing here waits for a window to be drawn over again: one that is quiet does not.
    void lookAtStatesAndReturn()
    {
        clickOn(STATES);
        const ScreenWindow states = user.waitForWindow("States");
        user.clickAt(states.x + BACK.x, states.y + BACK.y);
        window = user.waitForWindow("Main");
    }
    static constexpr Place BACK = {96, 440};

    void stop()
    {
        clickOn(STOP);
        user.waitFor([&] { return program->status().has_value(); }, "the end of the program");
        EXPECT_EQ(program->status(), 0);
        EXPECT_EQ(program->output(), "");
    }

    XDriver user;
    Sources sources;
    std::optional<Program> program;
    ScreenWindow window;
};

} // namespace

TEST_F(OperatorAtNewProject, of_the_first_edition)
{
    begin(1);
    enter("85");
    user.key(XK_Return);
    expectSetpoint("6085"); // the digits shift in
    clickOn(SPIN_UP);
    expectSetpoint("100");
    clickOn(SPIN_UP, 4);
    expectSetpoint("99"); // the wheel turns the other way
    enter("7");
    lookAtStatesAndReturn(); // what was typed is discarded
    expectSetpoint("99");
    stop();
}

TEST_F(OperatorAtNewProject, of_the_second_edition)
{
    begin(2);
    enter("85");
    user.key(XK_Return);
    expectSetpoint("85");
    clickOn(SPIN_UP, 4);
    clickOn(SPIN_UP, 4);
    clickOn(SPIN_UP, 5);
    expectSetpoint("86");
    enter("5-");
    user.key(XK_Tab); // the only field is edited again
    user.key(XK_Escape);
    expectSetpoint("-5");
    enter("12345"); // of which four fit
    clickOn(NOTHING);
    expectSetpoint("1234");
    enter("7");
    lookAtStatesAndReturn();
    expectSetpoint("7");
    user.save(Program::buildFolder() + "/operator-edition2.png");
    stop();
}
