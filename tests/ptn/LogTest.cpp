// "ptn log" on files as panels write them: EUC-JP, one for every day.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{

using testing::HasSubstr;

class Log : public testing::Test
{
  protected:
    Log() { std::filesystem::create_directory("log"); }

    void append(const std::string& file, const std::string& bytes)
    {
        std::ofstream(file, std::ios::binary | std::ios::app) << bytes;
    }

    /// Waits until a program has printed exactly this.
    static std::string outputOf(const Program& program, const std::string& expected)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (program.output() != expected && std::chrono::steady_clock::now() < end)
            usleep(1000); // between two looks
        return program.output();
    }

    Sources sources; // its folder is the working directory
};

TEST_F(Log, is_shown_as_utf_8)
{
    writeFile("day.log", "08:15:02  起動\n08:15:03  end\n"); // compiled to EUC-JP
    const PtnResult result = sources.run("log day.log");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, u8"08:15:02  起動\n08:15:03  end\n");
}

TEST_F(Log, has_a_mark_for_each_byte_that_is_no_euc)
{
    writeFile("day.log", "half \xB1\nwrong \xFF\xFE!\n動\xFF on\nlast \x8F");
    EXPECT_EQ(sources.run("log day.log").out,
              u8"half \uFFFD\nwrong \uFFFD\uFFFD!\n動\uFFFD on\nlast \uFFFD\n");
}

TEST_F(Log, of_a_folder_is_that_of_its_newest_day)
{
    writeFile("log/20260131.log", "old\n");
    writeFile("log/20260201.log", "new\n");
    writeFile("log/20260301.LOG", "kept\n");
    writeFile("log/notes.log", "notes\n");
    EXPECT_EQ(sources.run("log log").out, "new\n");
}

TEST_F(Log, of_a_folder_without_any_is_asked_for)
{
    const PtnResult result = sources.run("log log");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("'log' has no file"));
}

TEST_F(Log, that_is_not_there_is_refused)
{
    EXPECT_EQ(sources.run("log nothing.log").status, 2);
}

TEST_F(Log, is_followed_in_whole_lines)
{
    writeFile("day.log", "one\n");
    const Program follower("ptn", "ptn", {"log", "--follow", "day.log"});
    ASSERT_EQ(outputOf(follower, "one\n"), "one\n");
    append("day.log", "\xB5\xAF"); // the first character of a word
    append("day.log", "\xC6\xB0\ntwo\n");
    EXPECT_EQ(outputOf(follower, u8"one\n起動\ntwo\n"), u8"one\n起動\ntwo\n");
}

TEST_F(Log, is_followed_into_the_next_day)
{
    writeFile("log/20260131.log", "one\n");
    const Program follower("ptn", "ptn", {"log", "-f", "log"});
    ASSERT_EQ(outputOf(follower, "one\n"), "one\n");
    append("log/20260131.log", "two\n");
    append("log/20260201.log", "three\n");
    ASSERT_EQ(outputOf(follower, "one\ntwo\nthree\n"), "one\ntwo\nthree\n");
    append("log/20260201.log", "four\n");
    EXPECT_EQ(outputOf(follower, "one\ntwo\nthree\nfour\n"), "one\ntwo\nthree\nfour\n");
}

TEST_F(Log, is_followed_to_the_last_line_of_each_day)
{
    std::string expected = "first 10\n";
    writeFile("log/20260110.log", expected);
    const Program follower("ptn", "ptn", {"log", "-f", "log"});
    ASSERT_EQ(outputOf(follower, expected), expected);
    for (int day = 10; day < 99; ++day) {
        // The last line is written while the one before is looked at, and the next day begins at once.
        const std::string today = std::to_string(day);
        const std::string tomorrow = std::to_string(day + 1);
        for (const std::string line : {"middle ", "last "})
            append("log/202601" + today + ".log", line + today + "\n");
        append("log/202601" + tomorrow + ".log", "first " + tomorrow + "\n");
        expected += "middle " + today + "\nlast " + today + "\nfirst " + tomorrow + "\n";
        ASSERT_EQ(outputOf(follower, expected), expected);
    }
}

TEST_F(Log, may_begin_while_it_is_followed)
{
    const Program follower("ptn", "ptn", {"log", "-f", "log"});
    append("log/20260131.log", "one\n");
    EXPECT_EQ(outputOf(follower, "one\n"), "one\n");
}

TEST_F(Log, that_begins_anew_is_followed_from_its_start)
{
    writeFile("day.log", "one\ntwo\n");
    const Program follower("ptn", "ptn", {"log", "-f", "day.log"});
    ASSERT_EQ(outputOf(follower, "one\ntwo\n"), "one\ntwo\n");
    writeFile("day.log", "new\n");
    EXPECT_EQ(outputOf(follower, "one\ntwo\nnew\n"), "one\ntwo\nnew\n");
}

} // namespace
