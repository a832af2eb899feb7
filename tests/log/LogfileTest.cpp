#include "tests/log/LogFixture.h"

#include <cstring>
#include <gmock/gmock.h>
#include <limits>
#include <sys/stat.h>

using namespace tessary;

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace fs = std::filesystem;

namespace
{

std::string dated(const struct tm& date)
{
    char text[32];
    std::strftime(text, sizeof text, "%Y%m%d.log", &date);
    return text;
}

std::string today()
{
    const std::time_t now = std::time(nullptr);
    return dated(*std::localtime(&now));
}

class LogSetting : public Log
{
  protected:
    void SetUp() override {}
};

const std::string BLANKS16(16, ' ');

} // namespace

TEST_F(LogSetting, without_a_directory_keeps_the_log_off)
{
    for (const bool missing : {true, false}) {
        if (missing)
            project.unset("LOG", "LOGFILE");
        else
            project.set("LOG", "LOGFILE", "");
        LogfileInit();
        EXPECT_EQ(LogBuff, nullptr);
        LogfileWrite("SYSTEM", "text", "main.cpp", 1);
        setClock(2026, 1, 8, 0, 0, 0);
        LogfileTimr();
        LogfileSave();
        LogfileExit();
        EXPECT_THAT(files(), IsEmpty());
        EXPECT_THAT(LogName, testing::StrEq(""));
    }
}

TEST_F(LogSetting, without_a_profile_keeps_the_log_off)
{
    fs::remove(project.profile());
    LogfileInit();
    EXPECT_EQ(LogBuff, nullptr);
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogSetting, names_the_first_file_after_today)
{
    const std::string before = today();
    LogfileInit();
    const std::string after = today();
    EXPECT_THAT(LogName, testing::AnyOf(path(before), path(after)));
    EXPECT_EQ(LogDay, 0);
    EXPECT_THAT(files(), IsEmpty()) << "a file is made by its first line";
}

TEST_F(LogSetting, defaults_to_100_lines_and_10_seconds)
{
    project.unset("LOG", "LOGSIZE").unset("LOG", "LOGTIMR");
    LogfileInit();
    EXPECT_EQ(LogSize, 100);
    EXPECT_EQ(LogTimr, 10);
    project.set("LOG", "LOGSIZE", "0").set("LOG", "LOGTIMR", "0");
    LogfileInit();
    EXPECT_EQ(LogSize, 100);
    EXPECT_EQ(LogTimr, 10);
}

TEST_F(LogSetting, takes_size_and_interval_from_the_profile)
{
    project.set("LOG", "LOGSIZE", "37").set("LOG", "LOGTIMR", "600");
    LogfileInit();
    EXPECT_EQ(LogSize, 37);
    EXPECT_EQ(LogTimr, 600);
}

TEST_F(LogSetting, bounds_the_memory_of_a_huge_buffer)
{
    project.set("LOG", "LOGSIZE", "999999999");
    LogfileInit();
    EXPECT_EQ(LogSize, LOGSIZE_MAX);
}

TEST_F(LogSetting, survives_numbers_beyond_the_range_of_int)
{
    for (const char* number : {"4294967295", "2147483648", "99999999999999999999999", "-1", "x"}) {
        project.set("LOG", "LOGSIZE", number).set("LOG", "LOGTIMR", number);
        LogfileInit();
        EXPECT_GE(LogSize, 1) << number;
        EXPECT_LE(LogSize, LOGSIZE_MAX) << number;
        EXPECT_GE(LogTimr, 1) << number;
        LogfileWrite("SYSTEM", "text", nullptr, 0);
        LogfileTimr();
    }
}

TEST_F(LogSetting, buffers_as_many_lines_as_the_size_says)
{
    project.set("LOG", "LOGSIZE", "3");
    open();
    for (const char* line : {"1", "2"})
        LogfileWrite("SYSTEM", line, nullptr, 0);
    EXPECT_THAT(files(), IsEmpty());
    LogfileWrite("SYSTEM", "3", nullptr, 0);
    EXPECT_EQ(LogCont, 0);
    EXPECT_EQ(lines(), 3);
}

TEST_F(LogSetting, writes_a_burst_in_whole_buffers)
{
    project.set("LOG", "LOGSIZE", "3");
    open();
    for (int i = 1; i <= 7; i++)
        LogfileWrite("SYSTEM", std::to_string(i).c_str(), nullptr, 0);
    EXPECT_EQ(LogCont, 1);
    EXPECT_EQ(lines(), 6);
    EXPECT_THAT(project.messages(), ElementsAre("1", "2", "3", "4", "5", "6", "7"));
}

TEST_F(LogSetting, saves_when_the_second_of_the_day_is_a_multiple_of_the_interval)
{
    project.set("LOG", "LOGSIZE", "100").set("LOG", "LOGTIMR", "7");
    open();
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    for (int second : {1, 6, 8, 13}) {
        setClock(2026, 1, 8, 0, 0, second);
        LogfileTimr();
        EXPECT_EQ(LogCont, 1) << second;
    }
    setClock(2026, 1, 8, 0, 0, 14);
    LogfileTimr();
    EXPECT_EQ(LogCont, 0);
    EXPECT_THAT(text(), EndsWith("  text\n"));
}

TEST_F(LogSetting, counts_the_interval_in_seconds_of_the_day)
{
    project.set("LOG", "LOGSIZE", "100").set("LOG", "LOGTIMR", "3601");
    open();
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    setClock(2026, 1, 8, 1, 0, 0);
    LogfileTimr();
    EXPECT_EQ(LogCont, 1);
    setClock(2026, 1, 8, 1, 0, 1);
    LogfileTimr();
    EXPECT_EQ(LogCont, 0);
}

TEST_F(LogSetting, longer_than_a_day_saves_at_midnight_alone)
{
    project.set("LOG", "LOGSIZE", "100").set("LOG", "LOGTIMR", "90000");
    open();
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    setClock(2026, 1, 8, 23, 59, 59);
    LogfileTimr();
    EXPECT_EQ(LogCont, 1);
    setClock(2026, 1, 8, 0, 0, 0);
    LogfileTimr();
    EXPECT_EQ(LogCont, 0);
}

TEST_F(Log, writes_every_line_at_once_with_size_1)
{
    LogfileWrite("SYSTEM", "one", nullptr, 0);
    EXPECT_THAT(text(), EndsWith("  one\n"));
    LogfileWrite("SYSTEM", "two", nullptr, 0);
    EXPECT_THAT(text(), EndsWith("  two\n"));
    EXPECT_EQ(LogCont, 0);
}

TEST_F(Log, shows_time_place_category_and_message)
{
    setClock(2026, 1, 8, 7, 8, 9);
    LogfileWrite("PTRNDISP", "画面を開く", "/src/window/Open.cpp", 123);
    EXPECT_EQ(text(), "07:08:09  Open.cpp        (  123)  PTRNDISP              画面を開く\n");
}

TEST_F(Log, keeps_the_message_column_without_a_place)
{
    LogfileWrite("SYSTEM", "text", nullptr, 99);
    EXPECT_EQ(text(), "12:00:01  " + BLANKS16 + " " + std::string(5, ' ') + "   " + "SYSTEM" +
                          std::string(14, ' ') + "  text\n");
}

TEST_F(Log, takes_the_time_from_the_clock_snapshot)
{
    setClock(2026, 1, 8, 23, 59, 58);
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    EXPECT_EQ(text().substr(0, 8), "23:59:58");
}

TEST_F(Log, cuts_the_file_name_to_12_and_its_extension_to_3_characters)
{
    LogfileWrite("SYSTEM", "text", "a/b/abcdefghijklmnop.extension", 1);
    EXPECT_EQ(text().substr(10, 16), "abcdefghijkl.ext");
}

TEST_F(Log, joins_name_and_extension_with_a_dot_even_without_extension)
{
    LogfileWrite("SYSTEM", "text", "Makefile", 1);
    EXPECT_EQ(text().substr(10, 16), "Makefile.       ");
}

TEST_F(Log, takes_a_path_of_any_length)
{
    const std::string deep = std::string(5000, 'd') + "/";
    LogfileWrite("SYSTEM", "text", (deep + deep + "main.cpp").c_str(), 1);
    EXPECT_EQ(text().substr(26, 7), "(    1)");
    LogfileWrite("SYSTEM", "text", std::string(5000, 'n').c_str(), 2);
    EXPECT_THAT(project.log(), SizeIs(2));
    EXPECT_EQ(project.log()[1].file, "nnnnnnnnnnnn.");
}

TEST_F(Log, lets_a_long_category_push_the_message)
{
    LogfileWrite("1234567890123456789012345", "text", nullptr, 0);
    EXPECT_EQ(text(), "12:00:01  " + std::string(25, ' ') + "1234567890123456789012" + "  text\n");
}

TEST_F(Log, stores_full_texts_without_a_terminator)
{
    project.set("LOG", "LOGSIZE", "10");
    open();
    const std::string category(22, 'c');
    const std::string message(202, 'm');
    LogfileWrite(category.c_str(), message.c_str(), "main.cpp", 4711);
    ASSERT_EQ(LogCont, 1);
    const int noon[] = {12, 0, 1};
    EXPECT_EQ(std::string(LogBuff[0].mesg1, sizeof LogBuff[0].mesg1), category);
    EXPECT_EQ(std::string(LogBuff[0].mesg2, sizeof LogBuff[0].mesg2), message);
    EXPECT_STREQ(LogBuff[0].file, "main.cpp");
    EXPECT_EQ(int{LogBuff[0].line}, 4711);
    EXPECT_EQ(std::memcmp(LogBuff[0].time, noon, sizeof LogBuff[0].time), 0);
    LogfileSave();
    EXPECT_EQ(text(), "12:00:01  main.cpp        ( 4711)  " + category + "  " + message + "\n");
}

TEST_F(Log, keeps_the_line_number_of_a_line_without_file)
{
    project.set("LOG", "LOGSIZE", "10");
    open();
    LogfileWrite("SYSTEM", "text", nullptr, 4711);
    EXPECT_STREQ(LogBuff[0].file, "");
    EXPECT_EQ(int{LogBuff[0].line}, 4711);
}

TEST_F(Log, cuts_a_message_after_202_bytes)
{
    LogfileWrite("SYSTEM", (std::string(202, 'm') + "lost").c_str(), nullptr, 0);
    EXPECT_THAT(text(), EndsWith("m\n"));
    EXPECT_EQ(text().size(), 8u + 2 + 45 + 2 + 202 + 1);
}

TEST_F(Log, writes_the_longest_line_whole)
{
    const int smallest = std::numeric_limits<int>::min();
    LocalTime.tm_hour = LocalTime.tm_min = LocalTime.tm_sec = smallest;
    LogfileWrite(std::string(30, 'c').c_str(), std::string(300, 'm').c_str(), "abcdefghijklmnop.extension",
                 smallest);
    const std::string number = std::to_string(smallest);
    EXPECT_EQ(text(), number + ":" + number + ":" + number + "  abcdefghijkl.ext(" + number + ")  " +
                          std::string(22, 'c') + "  " + std::string(202, 'm') + "\n");
}

TEST_F(Log, takes_missing_texts_as_empty)
{
    LogfileWrite(nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(text(), "12:00:01  " + std::string(45, ' ') + "  \n");
}

TEST_F(Log, writes_percent_signs_as_they_are)
{
    LogfileWrite("%n%s", "100%s %d %n", "%s.c", 1);
    EXPECT_EQ(text(), "12:00:01  %s.c            (    1)  %n%s                  100%s %d %n\n");
}

TEST_F(Log, appends_to_the_file_of_an_earlier_run)
{
    writeFile(path("20260108.log"), "earlier\n");
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    EXPECT_EQ(text().substr(0, 8), "earlier\n");
    EXPECT_THAT(text(), EndsWith("  text\n"));
}

TEST_F(Log, saves_nothing_when_nothing_is_buffered)
{
    LogfileSave();
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(Log, drops_lines_that_can_not_be_written)
{
    fs::remove(project.logFolder());
    LogfileWrite("SYSTEM", "lost", nullptr, 0);
    EXPECT_EQ(LogCont, 0);
    fs::create_directory(project.logFolder());
    LogfileWrite("SYSTEM", "kept", nullptr, 0);
    EXPECT_THAT(project.messages(), ElementsAre("kept"));
}

TEST_F(Log, does_not_wait_for_a_pipe_in_place_of_its_file)
{
    ASSERT_EQ(mkfifo(path("20260108.log").c_str(), 0600), 0);
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    EXPECT_EQ(LogCont, 0);
}

TEST_F(Log, drops_lines_when_a_folder_has_the_name_of_its_file)
{
    fs::create_directory(path("20260108.log"));
    LogfileWrite("SYSTEM", "text", nullptr, 0);
    EXPECT_EQ(LogCont, 0);
}

TEST_F(Log, writes_the_first_lines_after_midnight_to_yesterdays_file)
{
    project.set("LOG", "LOGSIZE", "100");
    open();
    LogfileWrite("SYSTEM", "evening", nullptr, 0);
    setClock(2026, 1, 9, 0, 0, 1);
    LogfileWrite("SYSTEM", "past midnight", nullptr, 0);
    LogfileTimr();
    EXPECT_EQ(LogDay, 9);
    LogfileWrite("SYSTEM", "morning", nullptr, 0);
    LogfileSave();
    EXPECT_THAT(text("20260108.log"), HasSubstr("evening"));
    EXPECT_THAT(text("20260108.log"), EndsWith("past midnight\n"));
    EXPECT_THAT(text("20260109.log"), EndsWith("morning\n"));
    EXPECT_EQ(lines("20260109.log"), 1);
}

TEST_F(Log, knows_a_new_day_by_its_day_of_month)
{
    setClock(2026, 2, 8);
    LogfileTimr();
    EXPECT_THAT(LogName, EndsWith("20260108.log"))
        << "the same day of the next month looks like the same day";
    setClock(2026, 2, 9);
    LogfileTimr();
    EXPECT_THAT(LogName, EndsWith("20260209.log"));
}

TEST_F(Log, with_an_interval_of_0_waits_until_its_buffer_is_full)
{
    project.set("LOG", "LOGSIZE", "2");
    open();
    LogTimr = 0;
    LogfileWrite("SYSTEM", "first", nullptr, 0);
    setClock(2026, 1, 8, 0, 0, 0);
    LogfileTimr();
    EXPECT_THAT(files(), IsEmpty());
    LogfileWrite("SYSTEM", "second", nullptr, 0);
    EXPECT_EQ(lines(), 2);
}

TEST_F(Log, changes_its_file_at_the_end_of_a_month)
{
    setClock(2026, 1, 31);
    LogfileTimr();
    setClock(2026, 2, 1);
    LogfileTimr();
    EXPECT_THAT(LogName, EndsWith("20260201.log"));
}

TEST_F(Log, saves_at_its_end)
{
    project.set("LOG", "LOGSIZE", "100");
    open();
    LogfileWrite("SYSTEM", "last", nullptr, 0);
    LogfileExit();
    EXPECT_THAT(text(), EndsWith("  last\n"));
}

TEST_F(Log, returns_to_its_first_state_at_its_end_but_for_the_name_of_its_file)
{
    LogfileExit();
    EXPECT_EQ(LogBuff, nullptr);
    EXPECT_STREQ(LogPath, "");
    EXPECT_EQ(LogName, path("20260108.log"));
    EXPECT_EQ(LogSize, 0);
    EXPECT_EQ(LogCont, 0);
    EXPECT_EQ(LogTimr, 0);
    EXPECT_EQ(LogDay, 0);
}

TEST_F(Log, takes_no_lines_after_its_end)
{
    LogfileExit();
    LogfileWrite("SYSTEM", "text", "main.cpp", 1);
    LogfileTimr();
    LogfileSave();
    LogfileExit();
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(Log, opened_again_keeps_the_lines_buffered_before)
{
    project.set("LOG", "LOGSIZE", "100");
    open();
    LogfileWrite("SYSTEM", "before", nullptr, 0);
    project.set("LOG", "LOGSIZE", "5");
    open();
    EXPECT_EQ(LogSize, 5);
    LogfileWrite("SYSTEM", "after", nullptr, 0);
    EXPECT_THAT(project.messages(), ElementsAre("before", "after"));
}
