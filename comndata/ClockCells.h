// The clock as the cells of the common data show it to screens.
#pragma once

/// The clock cells of the common data, written by the tick: year, month, day, weekday (0 = Sunday),
/// hour, minute, second.
/// @param cal  receives the seven values
void Get_Caln(int* cal);
/// @param date  receives year, month, day, weekday
/// @param time  receives hour, minute, second
void Get_Caln(int* date, int* time);
