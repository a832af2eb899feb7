// Fixture: the real program, started as a user starts it, with a project of the test's own.
#pragma once

#include "tests/support/PatternBuilder.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/XDriver.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

/// The program has a name of the test's own, so that its profile is the project's: 100 colours, font 0 of 16
/// pixels, 200 cells of the code "DATA", and the menu as start pattern, which the test has to save.
class Panel : public testing::Test
{
  protected:
    // Patterns that the program knows.
    static constexpr const char* MENU = "テスト  ［メニュー選択］";
    static constexpr const char* OTHER = "テスト  （図形）";
    static constexpr const char* NOTICE = "システム終了";

    void SetUp() override
    {
        std::string colors;
        for (int number = 0; number < 100; number++)
            for (int shift = 16; shift >= 0; shift -= 8)
                colors += int32(static_cast<int>(color(number) >> shift & 0xFF) * 257);
        project.write("PtrnColr", colors);
        project.set("TESSARY", "DISPSIZE", "1280,1024");
        project.set("PTRN", "PTRNSTART", MENU);
        project.set("FONT", "FONTNAME0", "-*-fixed-medium-r-normal--16-*-*-*-*-*-*-*");
        project.code("DATA", 200);
    }

    /// 0xRRGGBB of a colour number.
    static std::uint32_t color(int number)
    {
        const auto part = static_cast<std::uint32_t>(number) * 2;
        return part << 16 | (0xFF - part) << 8 | part / 2;
    }

    /// Child window, 200 x 120, whose place is remembered.
    static Pattern rememberedChild(const char* name)
    {
        return Pattern(name)
            .size(200, 120)
            .header(tessary::HEDR_KIND, 1)
            .header(tessary::HEDR_REMEMBER, 1)
            .header(tessary::HEDR_TITLE_HEIGHT, 20);
    }

    /// A child that its button closes.
    void saveClosableChild(const char* name)
    {
        rememberedChild(name).item(PTRN_BUTN, 10, 30, 90, 60).text("close").action(9).save(project);
    }

    /// The end takes that long, and a system window announces it.
    void saveNotice(const char* seconds = "1")
    {
        project.set("TESSARY", "WAITTIMER", seconds).set("PTRN", "PTRNSTOP", NOTICE);
        Pattern(NOTICE)
            .size(100, 60)
            .header(tessary::HEDR_KIND, 2)
            .header(tessary::HEDR_LEFT, 600)
            .save(project);
    }

    void run() { program.emplace("panel", project.root() + "/panel"); }

    /// On another display than the tests'.
    void runOn(const std::string& display)
    {
        program.emplace("panel", project.root() + "/panel", std::vector<std::string>{"--display", display});
    }

    int waitEnd()
    {
        user.waitFor([&] { return program->status().has_value(); }, "the end of the program");
        return program->status().value_or(-1);
    }

    /// For faults that last; events are handled, as by everything that is waited for.
    void pass(std::chrono::seconds time)
    {
        for (; time.count() > 0; --time) { // shorter than the patience of waitFor()
            const auto from = std::chrono::steady_clock::now();
            user.waitFor([&] { return std::chrono::steady_clock::now() - from >= std::chrono::seconds(1); },
                         "a second to pass");
        }
    }

    std::vector<std::string> logged() { return project.messages(); }

    void waitLogged(const std::string& message)
    {
        user.waitFor(
            [&] {
                const auto messages = logged();
                return std::find(messages.begin(), messages.end(), message) != messages.end();
            },
            "the log line " + message);
    }

    XDriver user;
    Project project;
    std::optional<Program> program;
};
