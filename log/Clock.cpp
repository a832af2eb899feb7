#include "log/Clock.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

struct tm LocalTime;
const int daytabl[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

namespace
{

constexpr int FIRST_YEAR = 2000; // a leap year
constexpr int FOUR_YEARS = 4 * 365 + 1;

constexpr bool IsLeap(int year)
{
    return year % 4 == 0;
}

constexpr int YearLength(int year)
{
    return IsLeap(year) ? 366 : 365;
}

int ToInt(std::int64_t value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// Without TZ in the environment localtime() looks at each call whether the system has got another time zone,
/// which is a file: once a second is enough.
bool ToLocal(std::time_t time, tm& local)
{
    static std::time_t looked = -1;
    static bool systemsZone = false;
    const bool sameSecond = time == looked && systemsZone;
    looked = time;
    systemsZone = !std::getenv("TZ");
    if (!sameSecond || !systemsZone)
        tzset();
    return localtime_r(&time, &local) != nullptr;
}

} // namespace

void GetLocalTime()
{
    const std::time_t now = std::time(nullptr);
    tm local{};
    if (!ToLocal(now, local))
        return;
    LocalTime = local;
    LocalTime.tm_year += 1900;
    LocalTime.tm_mon += 1;
}

int Get_Week(int year, int month, int day)
{
    return CalcDate(year, month, day) % 7 + 6;
}

int Get_Week(const int* ymd)
{
    return Get_Week(ymd[0], ymd[1], ymd[2]);
}

int Get_DayCount(int year, int month)
{
    if (month < 1 || month > 12)
        return 0;
    return month == 2 && IsLeap(year) ? 29 : daytabl[month - 1];
}

int Get_DayCount(const int* ym)
{
    return Get_DayCount(ym[0], ym[1]);
}

int CalcDate(int year, int month, int day)
{
    const std::int64_t years = std::max<std::int64_t>(0, std::int64_t{year} - FIRST_YEAR);
    std::int64_t days = years * 365 + (years + 3) / 4;
    for (int earlier = 1; earlier < month && earlier <= 12; earlier++)
        days += Get_DayCount(year, earlier);
    return ToInt(days + day);
}

int CalcDate(const int* ymd)
{
    return CalcDate(ymd[0], ymd[1], ymd[2]);
}

void CalcDate(int* ymd, int dayNumber)
{
    // Whole four-year periods at once, so that the largest day number takes no more steps than today's.
    const int periods = dayNumber > 0 ? (dayNumber - 1) / FOUR_YEARS : 0;
    int rest = dayNumber - periods * FOUR_YEARS;
    int year = FIRST_YEAR + periods * 4;
    while (YearLength(year) < rest)
        rest -= YearLength(year++);
    int month = 1;
    while (Get_DayCount(year, month) < rest)
        rest -= Get_DayCount(year, month++);
    ymd[0] = year;
    ymd[1] = month;
    ymd[2] = rest;
}

int CalcTime(int hour, int minute, int second)
{
    return ToInt(std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second);
}

int CalcTime(const int* hms)
{
    return CalcTime(hms[0], hms[1], hms[2]);
}

void CalcTime(int* hms, int seconds)
{
    hms[0] = seconds / 3600;
    hms[1] = seconds % 3600 / 60;
    hms[2] = seconds % 60;
}
