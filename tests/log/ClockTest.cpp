#include "log/Clock.h"
#include "comndata/ClockCells.h"

#include "comndata/ComnData.h"
#include "tests/support/Project.h"
#include "tests/support/Variable.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <optional>

using testing::ElementsAre;
using Date = std::array<int, 3>;

namespace
{

constexpr int LARGEST = std::numeric_limits<int>::max();
constexpr int SMALLEST = std::numeric_limits<int>::min();

int yearLength(int year)
{
    return year % 4 == 0 ? 366 : 365;
}

int monthLength(int year, int month)
{
    if (month == 2)
        return year % 4 == 0 ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// The definition of the day number, counted out.
int countedDays(int year, int month, int day)
{
    int days = day;
    for (int earlier = 2000; earlier < year; earlier++)
        days += yearLength(earlier);
    for (int earlier = 1; earlier < month; earlier++)
        days += monthLength(year, earlier);
    return days;
}

Date countedDate(int days)
{
    Date date{2000, 1, 0};
    while (yearLength(date[0]) < days)
        days -= yearLength(date[0]++);
    while (monthLength(date[0], date[1]) < days)
        days -= monthLength(date[0], date[1]++);
    date[2] = days;
    return date;
}

Date dateOf(int days)
{
    Date date{};
    CalcDate(date.data(), days);
    return date;
}

std::array<int, 3> timeOf(int seconds)
{
    std::array<int, 3> time{};
    CalcTime(time.data(), seconds);
    return time;
}

/// The time zone of one test.
class TimeZone
{
  public:
    explicit TimeZone(const char* zone) : variable_(std::in_place, "TZ", zone) {}
    ~TimeZone()
    {
        variable_.reset();
        tzset();
    }

  private:
    std::optional<Variable> variable_;
};

} // namespace

TEST(LocalClock, has_a_four_digit_year_and_a_month_from_one)
{
    for (const char* zone : {"UTC0", "EAST-9", "WEST+11"}) {
        const TimeZone use(zone);
        const std::time_t before = std::time(nullptr);
        GetLocalTime();
        const std::time_t after = std::time(nullptr);
        EXPECT_GE(LocalTime.tm_year, 2024) << zone;
        EXPECT_GE(LocalTime.tm_mon, 1) << zone;
        EXPECT_LE(LocalTime.tm_mon, 12) << zone;

        struct tm snapshot = LocalTime;
        snapshot.tm_year -= 1900;
        snapshot.tm_mon -= 1;
        const std::time_t shown = std::mktime(&snapshot);
        EXPECT_GE(shown, before) << zone;
        EXPECT_LE(shown, after) << zone;
        EXPECT_EQ(LocalTime.tm_wday, snapshot.tm_wday) << zone;
    }
}

TEST(DayCount, follows_the_calendar_of_a_common_year)
{
    EXPECT_THAT(daytabl, ElementsAre(31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31));
    for (int month = 1; month <= 12; month++)
        EXPECT_EQ(Get_DayCount(2026, month), daytabl[month - 1]) << month;
}

TEST(DayCount, gives_february_29_days_in_every_fourth_year)
{
    EXPECT_EQ(Get_DayCount(2024, 2), 29);
    EXPECT_EQ(Get_DayCount(2000, 2), 29);
    EXPECT_EQ(Get_DayCount(2100, 2), 29) << "the four-year rule is the only one";
    EXPECT_EQ(Get_DayCount(2025, 2), 28);
    EXPECT_EQ(Get_DayCount(2024, 1), 31);
    EXPECT_EQ(Get_DayCount(-4, 2), 29);
    EXPECT_EQ(Get_DayCount(-3, 2), 28);
}

TEST(DayCount, reads_year_and_month_from_an_array)
{
    const int february[] = {2024, 2};
    EXPECT_EQ(Get_DayCount(february), 29);
}

TEST(DayCount, is_zero_outside_the_year)
{
    for (int month : {0, 13, -1, LARGEST, SMALLEST})
        EXPECT_EQ(Get_DayCount(2024, month), 0) << month;
}

TEST(DayNumber, counts_from_the_first_day_of_2000)
{
    EXPECT_EQ(CalcDate(2000, 1, 1), 1);
    EXPECT_EQ(CalcDate(2000, 12, 31), 366);
    EXPECT_EQ(CalcDate(2001, 1, 1), 367);
    EXPECT_EQ(CalcDate(2000, 3, 1), 61);
    EXPECT_EQ(CalcDate(2001, 3, 1), 366 + 60);
}

TEST(DayNumber, agrees_with_counting_for_every_month_of_two_centuries)
{
    for (int year = 1990; year <= 2200; year++)
        for (int month = 1; month <= 12; month++)
            ASSERT_EQ(CalcDate(year, month, 15), countedDays(year, month, 15)) << year << "-" << month;
}

TEST(DayNumber, reads_the_date_from_an_array)
{
    const int date[] = {2026, 1, 9};
    EXPECT_EQ(CalcDate(date), countedDays(2026, 1, 9));
}

TEST(DayNumber, counts_no_years_before_2000)
{
    EXPECT_EQ(CalcDate(1999, 1, 1), 1);
    EXPECT_EQ(CalcDate(1999, 3, 1), 60);
    EXPECT_EQ(CalcDate(1996, 3, 1), 61) << "the months are those of the year itself";
    EXPECT_EQ(CalcDate(SMALLEST, 1, 5), 5);
}

TEST(DayNumber, adds_a_day_out_of_range_as_it_is)
{
    EXPECT_EQ(CalcDate(2000, 1, 0), 0);
    EXPECT_EQ(CalcDate(2000, 1, -40), -40);
    EXPECT_EQ(CalcDate(2000, 2, 60), 91);
}

TEST(DayNumber, adds_the_twelve_months_at_most)
{
    EXPECT_EQ(CalcDate(2000, 13, 1), 367);
    EXPECT_EQ(CalcDate(2000, LARGEST, 1), 367);
    EXPECT_EQ(CalcDate(2000, 0, 1), 1);
    EXPECT_EQ(CalcDate(2000, SMALLEST, 1), 1);
}

TEST(DayNumber, stays_within_the_range_of_int)
{
    EXPECT_EQ(CalcDate(LARGEST, 12, 31), LARGEST);
    EXPECT_EQ(CalcDate(2026, 1, LARGEST), LARGEST);
    EXPECT_EQ(CalcDate(2000, 1, SMALLEST), SMALLEST);
}

TEST(DateOfDayNumber, agrees_with_counting_for_every_day_of_a_century)
{
    for (int days = 1; days <= 40000; days++)
        ASSERT_EQ(dateOf(days), countedDate(days)) << days;
}

TEST(DateOfDayNumber, keeps_the_last_day_in_its_year_and_month)
{
    EXPECT_EQ(dateOf(366), (Date{2000, 12, 31}));
    EXPECT_EQ(dateOf(367), (Date{2001, 1, 1}));
    EXPECT_EQ(dateOf(31), (Date{2000, 1, 31}));
    EXPECT_EQ(dateOf(60), (Date{2000, 2, 29}));
    EXPECT_EQ(dateOf(1461), (Date{2003, 12, 31}));
    EXPECT_EQ(dateOf(1462), (Date{2004, 1, 1}));
}

TEST(DateOfDayNumber, is_the_inverse_of_the_day_number)
{
    for (int days = 1; days <= 40000; days += 7) {
        const Date date = dateOf(days);
        ASSERT_EQ(CalcDate(date.data()), days);
    }
}

TEST(DateOfDayNumber, stays_in_january_2000_below_one)
{
    EXPECT_EQ(dateOf(0), (Date{2000, 1, 0}));
    EXPECT_EQ(dateOf(-5), (Date{2000, 1, -5}));
    EXPECT_EQ(dateOf(SMALLEST), (Date{2000, 1, SMALLEST}));
}

TEST(DateOfDayNumber, reaches_the_largest_number)
{
    EXPECT_EQ(dateOf(LARGEST), countedDate(LARGEST));
}

TEST(Week, is_the_day_number_modulo_seven_plus_six)
{
    EXPECT_EQ(Get_Week(2000, 1, 1), 7);
    EXPECT_EQ(Get_Week(2000, 1, 6), 12) << "the sum is not reduced again";
    EXPECT_EQ(Get_Week(2000, 1, 7), 6);
    EXPECT_EQ(Get_Week(2000, 1, 8), 7);
    for (int day = 1; day <= 31; day++)
        EXPECT_EQ(Get_Week(2026, 1, day), countedDays(2026, 1, day) % 7 + 6);
}

TEST(Week, reads_the_date_from_an_array)
{
    const int date[] = {2000, 1, 6};
    EXPECT_EQ(Get_Week(date), 12);
}

TEST(SecondOfDay, is_counted_from_midnight)
{
    EXPECT_EQ(CalcTime(0, 0, 0), 0);
    EXPECT_EQ(CalcTime(23, 59, 59), 86399);
    EXPECT_EQ(CalcTime(1, 2, 3), 3723);
    const int time[] = {1, 2, 3};
    EXPECT_EQ(CalcTime(time), 3723);
}

TEST(SecondOfDay, reckons_values_out_of_range_as_they_are)
{
    EXPECT_EQ(CalcTime(25, 61, 61), 25 * 3600 + 61 * 60 + 61);
    EXPECT_EQ(CalcTime(0, -1, 0), -60);
    EXPECT_EQ(CalcTime(LARGEST, LARGEST, LARGEST), LARGEST);
    EXPECT_EQ(CalcTime(SMALLEST, 0, 0), SMALLEST);
}

TEST(SecondOfDay, splits_by_truncating_division)
{
    EXPECT_THAT(timeOf(86399), ElementsAre(23, 59, 59));
    EXPECT_THAT(timeOf(3600), ElementsAre(1, 0, 0));
    EXPECT_THAT(timeOf(100000), ElementsAre(27, 46, 40));
    EXPECT_THAT(timeOf(-3723), ElementsAre(-1, -2, -3));
    EXPECT_THAT(timeOf(SMALLEST), ElementsAre(-596523, -14, -8));
}

class CalendarCells : public testing::Test
{
  protected:
    void SetUp() override
    {
        project.code("FIRST", 100);
        project.start();
        for (int no = 1; no <= 8; no++)
            Set_iData(no, no * 11, nullptr, 0);
    }
    Project project;
};

TEST_F(CalendarCells, are_read_into_one_array)
{
    std::array<int, 8> calendar{};
    Get_Caln(calendar.data());
    EXPECT_THAT(calendar, ElementsAre(11, 22, 33, 44, 55, 66, 77, 0));
}

TEST_F(CalendarCells, are_read_as_date_and_time)
{
    std::array<int, 5> date{};
    std::array<int, 4> time{};
    Get_Caln(date.data(), time.data());
    EXPECT_THAT(date, ElementsAre(11, 22, 33, 44, 0));
    EXPECT_THAT(time, ElementsAre(55, 66, 77, 0));
}

TEST(Calendar, is_zero_without_common_data)
{
    std::array<int, 7> calendar{1, 2, 3, 4, 5, 6, 7};
    Get_Caln(calendar.data());
    EXPECT_THAT(calendar, testing::Each(0));
}
