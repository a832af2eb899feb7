// The local clock and the calendar arithmetic of the log and the title bar. Leap years follow the
// four-year rule alone: 2100 counts as one. Results beyond the range of int are cut to it.
#pragma once

#include <ctime>

/// The clock as it was at the last GetLocalTime, with a four-digit year and a month of 1..12.
extern struct tm LocalTime;

/// Days of the months of a common year, January first.
extern const int daytabl[12];

/// Refreshes LocalTime. The tick calls it every 100 ms.
void GetLocalTime();

/// The day number modulo 7, plus 6. The sum is not reduced: results are 6..12, and 1 January 2000, a
/// Saturday, gives 7.
int Get_Week(int year, int month, int day);
/// @param ymd  year, month, day
int Get_Week(const int* ymd);

/// Days of a month; 0 for a month outside 1..12.
int Get_DayCount(int year, int month);
/// @param ym  year, month
int Get_DayCount(const int* ym);

/// Day number, counted from 1 January 2000 = 1. Years before 2000 add nothing, and neither do months
/// outside 1..12; the day is added as it is.
int CalcDate(int year, int month, int day);
/// @param ymd  year, month, day
int CalcDate(const int* ymd);
/// The date of a day number. Numbers below 1 give that day of January 2000.
/// @param ymd  receives year, month, day
void CalcDate(int* ymd, int dayNumber);

/// Second of the day. Values out of their range are reckoned as they are.
int CalcTime(int hour, int minute, int second);
/// @param hms  hour, minute, second
int CalcTime(const int* hms);
/// Splits a number of seconds by truncating division, so a negative number gives negative parts.
/// @param hms  receives hour, minute, second
void CalcTime(int* hms, int seconds);
