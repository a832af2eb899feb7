// Radio and check marks: the shape is foreground. Scaled down without a background, only pixels that are
// covered entirely are drawn, so strokes are two pixels wide, and slanted ones thicker.
#include "draw/Images.h"

using namespace tessary;

// XPM takes pointers to writable text, although nothing ever writes a line: the colours of a picture are
// changed by pointing at other lines.
#pragma GCC diagnostic ignored "-Wwrite-strings"

// clang-format off

char* XPM_Radio_OFF[CONT_BUILTINLINE] = {
    "16 16 2 1",
    ". c #FFFFFF",
    "X c #000000",
    "................",
    ".....XXXXXX.....",
    "...XXXXXXXXXX...",
    "..XXXX....XXXX..",
    "..XXX......XXX..",
    ".XXX........XXX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XXX........XXX.",
    "..XXX......XXX..",
    "..XXXX....XXXX..",
    "...XXXXXXXXXX...",
    ".....XXXXXX.....",
    "................",
};

char* XPM_Radio_ON[CONT_BUILTINLINE] = {
    "16 16 2 1",
    ". c #FFFFFF",
    "X c #000000",
    "................",
    ".....XXXXXX.....",
    "...XXXXXXXXXX...",
    "..XXXX....XXXX..",
    "..XXX......XXX..",
    ".XXX..XXXX..XXX.",
    ".XX..XXXXXX..XX.",
    ".XX..XXXXXX..XX.",
    ".XX..XXXXXX..XX.",
    ".XX..XXXXXX..XX.",
    ".XXX..XXXX..XXX.",
    "..XXX......XXX..",
    "..XXXX....XXXX..",
    "...XXXXXXXXXX...",
    ".....XXXXXX.....",
    "................",
};

char* XPM_Check_OFF[CONT_BUILTINLINE] = {
    "16 16 2 1",
    ". c #FFFFFF",
    "X c #000000",
    "................",
    ".XXXXXXXXXXXXXX.",
    ".XXXXXXXXXXXXXX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XXXXXXXXXXXXXX.",
    ".XXXXXXXXXXXXXX.",
    "................",
};

char* XPM_Check_ON[CONT_BUILTINLINE] = {
    "16 16 2 1",
    ". c #FFFFFF",
    "X c #000000",
    "................",
    ".XXXXXXXXXXXXXX.",
    ".XXXXXXXXXXXXXX.",
    ".XX..........XX.",
    ".XX......XXX.XX.",
    ".XX.....XXXX.XX.",
    ".XX.X..XXXX..XX.",
    ".XX.XXXXXX...XX.",
    ".XX.XXXXX....XX.",
    ".XX..XXX.....XX.",
    ".XX..XX......XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XXXXXXXXXXXXXX.",
    ".XXXXXXXXXXXXXX.",
    "................",
};

// clang-format on
