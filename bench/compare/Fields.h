// What every program of the comparison shows: 500 numbers on a plain body, all of which change ten times a
// second.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

constexpr int SCREEN_WIDTH = 1280;
constexpr int SCREEN_HEIGHT = 1024;
constexpr int COLUMNS = 20;
constexpr int FIELD_COUNT = 500;
/// A field has room for eight characters of a font whose line is 14 pixels high.
constexpr int FIELD_CHARS = 8;
constexpr int FIELD_WIDTH = 56;
constexpr int FIELD_HEIGHT = 14;
/// Scalable fonts of this size have such a line.
constexpr int FONT_PIXELS = 12;
constexpr char FONT_NAME[] = "DejaVu Sans Mono";
/// The server's font whose line is as high.
constexpr char SERVER_FONT_NAME[] = "-*-fixed-medium-r-normal--14-*-*-*-c-70-iso8859-1";
constexpr int TICK_MILLISECONDS = 100;

struct Rgb {
    unsigned char red;
    unsigned char green;
    unsigned char blue;
};
constexpr Rgb TEXT_COLOR = {10, 122, 245};
constexpr Rgb FIELD_COLOR = {20, 245, 235};
constexpr Rgb BODY_COLOR = {76, 25, 179};

constexpr int FieldLeft(int field)
{
    return 4 + field % COLUMNS * 64;
}

constexpr int FieldTop(int field)
{
    return 12 + field / COLUMNS * 40;
}

/// Always five digits, the point and one decimal.
inline float FieldValue(int tick, int field)
{
    return 10000.0F + static_cast<float>((tick * 37 + field * 911) % 900000) / 10.0F;
}

inline std::string FieldText(int tick, int field)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", static_cast<double>(FieldValue(tick, field)));
    return text;
}

/// Whether nothing changes: the programs tick and look at the numbers, but none has anything new to show.
inline bool IsQuiet()
{
    static const bool QUIET = std::getenv("BENCH_QUIET") != nullptr;
    return QUIET;
}

/// Begins a tick: one dot on standard output, by which the program that measures counts. @return its number
inline int NextTick()
{
    static int tick = 0;
    if (write(STDOUT_FILENO, ".", 1) != 1)
        _exit(1);
    return ++tick;
}
