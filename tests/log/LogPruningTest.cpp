#include "tests/log/LogFixture.h"
#include "tests/support/UseEdition.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace
{

class LogPruning : public Log
{
  protected:
    void SetUp() override
    {
        project.set("LOG", "LOGSAVE", "7");
        LogfileInit();
    }
    void put(const std::string& name) { writeFile(path(name), "old"); }
    void changeTo(int year, int month, int day)
    {
        setClock(year, month, day);
        LogfileTimr();
    }
};

} // namespace

TEST_F(LogPruning, deletes_a_file_on_the_eighth_day_after_its_date)
{
    put("20260101.LOG");
    changeTo(2026, 1, 8);
    EXPECT_THAT(files(), ElementsAre("20260101.LOG"));
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogPruning, counts_the_days_across_months_and_years)
{
    put("20251231.LOG");
    put("20260301.LOG");
    changeTo(2026, 1, 7);
    EXPECT_THAT(files(), UnorderedElementsAre("20251231.LOG", "20260301.LOG"));
    changeTo(2026, 3, 8);
    EXPECT_THAT(files(), ElementsAre("20260301.LOG"));
    changeTo(2026, 3, 9);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogPruning, leaves_the_files_that_the_log_itself_has_written)
{
    put("20200101.log");
    put("20200101.Log");
    put("20200101.LOGS");
    put("20200101");
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), SizeIs(4));
}

TEST_F(LogPruning, happens_at_a_day_change_alone)
{
    changeTo(2026, 1, 9);
    put("20260101.LOG");
    LogfileTimr();
    EXPECT_THAT(files(), ElementsAre("20260101.LOG"));
    changeTo(2026, 1, 10);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogPruning, reads_the_days_to_keep_at_each_day_change)
{
    put("20260101.LOG");
    project.set("LOG", "LOGSAVE", "100");
    changeTo(2026, 2, 1);
    EXPECT_THAT(files(), ElementsAre("20260101.LOG"));
    project.set("LOG", "LOGSAVE", "10");
    changeTo(2026, 2, 2);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogPruning, is_off_without_a_positive_number_of_days)
{
    put("20200101.LOG");
    project.unset("LOG", "LOGSAVE");
    changeTo(2026, 1, 9);
    for (const char* days : {"0", "-7"}) {
        project.set("LOG", "LOGSAVE", days);
        changeTo(2026, 1, LocalTime.tm_mday + 1);
    }
    EXPECT_THAT(files(), ElementsAre("20200101.LOG"));
}

TEST_F(LogPruning, does_not_read_the_century)
{
    put("30260101.LOG"); // taken as 2026
    put("19991231.LOG"); // taken as 2099
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), ElementsAre("19991231.LOG"));
}

TEST_F(LogPruning, reckons_with_any_characters)
{
    // Each character counts as its code less that of "0": "-" is -3, "p" is 64, "z" is 74.
    put("xx26-1-1.LOG"); // year 2026, month -29, day -29: 30 days before 1 January 2026
    put("0000zz01.LOG"); // year 2000, month 814, day 1: the day after 2000
    put("report.LOG");   // year 2000 + 64 * 10 + 63
    put("aazz0101.LOG"); // year 2000 + 74 * 10 + 74
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), UnorderedElementsAre("report.LOG", "aazz0101.LOG"));
}

TEST_F(LogPruning, counts_bytes_of_japanese_names_as_large_digits)
{
    put("日誌日誌.LOG");
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), ElementsAre("日誌日誌.LOG"));
}

TEST_F(LogPruning, keeps_names_too_short_for_a_date)
{
    put("001.LOG");  // seven characters
    put("0012.LOG"); // year 2012, month ".L" = 8, day "OG" = 333
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), ElementsAre("001.LOG"));
}

TEST_F(LogPruning, takes_at_most_100_files_at_a_time)
{
    for (int i = 0; i < 150; i++)
        put("20" + std::to_string(10 + i / 12) + std::to_string(101 + i % 12).substr(1) + "01.LOG");
    ASSERT_THAT(files(), SizeIs(150));
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), SizeIs(50));
    changeTo(2026, 1, 10);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogPruning, takes_at_most_1500_bytes_of_names_at_a_time)
{
    for (char c = 'a'; c <= 'j'; c++)
        put("20200101" + std::string(188, c) + ".LOG"); // 201 bytes with the terminator
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), SizeIs(3));
}

TEST_F(LogPruning, leaves_folders_and_hidden_files)
{
    fs::create_directory(path("20200101.LOG"));
    put(".2200101.LOG");
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), SizeIs(2));
}

TEST_F(LogPruning, is_silent)
{
    put("20200101.LOG");
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), IsEmpty()) << "not even a line about the deletion";
}

TEST_F(LogPruning, does_nothing_in_a_missing_directory)
{
    fs::remove(project.logFolder());
    changeTo(2026, 1, 9);
    EXPECT_EQ(LogDay, 9);
    fs::create_directory(project.logFolder());
}

TEST_F(LogPruning, deletes_what_the_log_itself_has_written_in_edition_2)
{
    const UseEdition corrected;
    put("20260101.log");
    put("20260101.LOG");
    changeTo(2026, 1, 8);
    EXPECT_THAT(files(), UnorderedElementsAre("20260101.log", "20260101.LOG"));
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(LogPruning, deletes_nothing_but_day_files_in_edition_2)
{
    const UseEdition corrected;
    const std::vector<std::string> others = {
        "20200101.Log", "20200101.log.gz", "2020010.log",   "120200101.log", "20201301.log", "20200230.log",
        "20200100.log", "aazz0101.log",    "20200101-.log", ".20200101.log", "20200101"};
    for (const std::string& name : others)
        put(name);
    fs::create_directory(path("20200102.log"));
    fs::create_symlink(path("20200101.Log"), path("20200103.log"));
    put("20990101.log"); // the clock was ahead once
    put("20200104.log");
    changeTo(2026, 1, 9);
    std::vector<std::string> kept = others;
    kept.insert(kept.end(), {"20200102.log", "20200103.log", "20990101.log"});
    EXPECT_THAT(files(), testing::UnorderedElementsAreArray(kept));
}

TEST_F(LogPruning, deletes_day_files_of_years_at_once_and_keeps_those_of_a_year_in_edition_2)
{
    const UseEdition corrected;
    project.set("LOG", "LOGSAVE", "366");
    for (int day = CalcDate(2020, 1, 1); day < CalcDate(2026, 1, 9); day++) {
        int date[3];
        CalcDate(date, day);
        char name[32];
        std::snprintf(name, sizeof name, "%04d%02d%02d.log", date[0], date[1], date[2]);
        put(name);
    }
    ASSERT_THAT(files(), SizeIs(2200));
    changeTo(2026, 1, 9);
    EXPECT_THAT(files(), SizeIs(366));
    EXPECT_EQ(text("20250108.log"), "old");
    EXPECT_EQ(text("20250107.log"), "");
}

TEST_F(LogPruning, is_off_without_a_positive_number_of_days_in_edition_2)
{
    const UseEdition corrected;
    put("20200101.log");
    for (const char* days : {"0", "-7", ""}) {
        project.set("LOG", "LOGSAVE", days);
        changeTo(2026, 1, LocalTime.tm_mday + 1);
    }
    EXPECT_THAT(files(), ElementsAre("20200101.log"));
}
