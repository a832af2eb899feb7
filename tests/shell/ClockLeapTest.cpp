// The clock is set while the real program runs: forth and back, over the ends of days, months and years, and
// where 32 bits for the seconds end.
#include "tests/support/PatternBuilder.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/Variable.h"
#include "tests/support/XDriver.h"

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <gmock/gmock.h>
#include <optional>

using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace
{

class ClockLeap : public testing::Test
{
  protected:
    void SetUp() override
    {
        project.code("CLOCK", 200, 1);
        project.set("PTRN", "PTRNSTART", "screen");
        Pattern("screen").size(600, 200).header(tessary::HEDR_TITLE_HEIGHT, 30).save(project);
    }

    /// @param how  " held" for a clock that stands still
    void setClock(int year, int month, int day, int hour, int minute, int second, const char* how = "")
    {
        std::tm date{};
        date.tm_year = year - 1900;
        date.tm_mon = month - 1;
        date.tm_mday = day;
        date.tm_hour = hour;
        date.tm_min = minute;
        date.tm_sec = second;
        writeFile("clock.new", std::to_string(timegm(&date)) + how + "\n");
        fs::rename("clock.new", "clock");
    }

    std::string logOf(const std::string& day) const
    {
        return readFile(project.logFolder() + "/" + day + ".log");
    }

    /// Waits until the cells of the clock show the time and the log of the day has a line that says so.
    void expectDay(int year, int month, int day, const std::string& time)
    {
        char name[32];
        std::snprintf(name, sizeof name, "%04d%02d%02d", year, month, day);
        const std::string cells =
            "clock " + std::to_string(year) + " " + std::to_string(month) + " " + std::to_string(day) + " ";
        ASSERT_TRUE(user.waitFor([&] { return logOf(name).find(cells) != std::string::npos; },
                                 std::string("the log of ") + name + " at " + time));
        EXPECT_THAT(logOf(name), HasSubstr(time)) << name;
        EXPECT_FALSE(program->status()) << program->output();
    }

    const Variable zone{"TZ", "UTC"};
    XDriver user;
    Project project;
    std::optional<Program> program;
};

} // namespace

TEST_F(ClockLeap, takes_the_log_to_the_file_of_the_day_and_back)
{
    setClock(2026, 12, 31, 23, 59, 57);
    program.emplace("clock_program", project.root() + "/panel");
    user.waitForWindow("screen");
    expectDay(2026, 12, 31, "23:59:");
    expectDay(2027, 1, 1, "00:0"); // by itself
    setClock(2026, 12, 31, 12, 0, 0);
    ASSERT_TRUE(user.waitFor([&] { return logOf("20261231").find("12:00:0") != std::string::npos; },
                             "the day before"));
    setClock(2027, 2, 28, 23, 59, 56);
    expectDay(2027, 2, 28, "23:59:5");
    expectDay(2027, 3, 1, "00:0");
    setClock(2028, 2, 29, 23, 59, 56);
    expectDay(2028, 2, 29, "23:59:5");
    expectDay(2028, 3, 1, "00:0");
    setClock(2038, 1, 19, 3, 14, 6);
    expectDay(2038, 1, 19, "03:14:0");
    ASSERT_TRUE(user.waitFor([&] { return logOf("20380119").find("03:14:09") != std::string::npos; },
                             "the seconds beyond 32 bits"));
    setClock(2107, 3, 1, 0, 0, 0);
    expectDay(2107, 3, 1, "00:0");
    setClock(1999, 12, 31, 23, 59, 58);
    expectDay(1999, 12, 31, "23:59:5");
    expectDay(2000, 1, 1, "00:0");
    EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
    ASSERT_TRUE(user.waitFor([&] { return program->status().has_value(); }, "the end"));
    EXPECT_EQ(*program->status(), 0) << program->output();
}

TEST_F(ClockLeap, does_not_keep_the_log_in_memory)
{
    // The second at which it would be written never comes.
    project.set("LOG", "LOGSIZE", "1000").set("LOG", "LOGTIMR", "2");
    setClock(2026, 6, 1, 12, 0, 1, " held");
    program.emplace("clock_program", project.root() + "/panel");
    ASSERT_TRUE(user.waitFor([&] { return logOf("20260601").find("clock 2026") != std::string::npos; },
                             "the log on the disk"));
    EXPECT_THAT(logOf("20260601"), Not(HasSubstr("12:00:02")));
}
