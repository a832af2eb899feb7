// What every program of the comparison shows: 500 numbers on a plain body, all of which change ten times a
// second.
#pragma once

#include <cstdio>
#include <string>
#include <unistd.h>

constexpr int screenWidth = 1280;
constexpr int screenHeight = 1024;
constexpr int columns = 20;
constexpr int fieldCount = 500;
/// A field has room for eight characters of a font whose line is 14 pixels high.
constexpr int fieldChars = 8;
constexpr int fieldWidth = 56;
constexpr int fieldHeight = 14;
/// Scalable fonts of this size have such a line.
constexpr int fontPixels = 12;
constexpr char fontName[] = "DejaVu Sans Mono";
constexpr int tickMilliseconds = 100;

struct Rgb {
    unsigned char red;
    unsigned char green;
    unsigned char blue;
};
constexpr Rgb textColor = {10, 122, 245};
constexpr Rgb fieldColor = {20, 245, 235};
constexpr Rgb bodyColor = {76, 25, 179};

constexpr int FieldLeft(int field)
{
    return 4 + field % columns * 64;
}

constexpr int FieldTop(int field)
{
    return 12 + field / columns * 40;
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

/// Begins a tick: one dot on standard output, by which the program that measures counts. @return its number
inline int NextTick()
{
    static int tick = 0;
    if (write(STDOUT_FILENO, ".", 1) != 1)
        _exit(1);
    return ++tick;
}
