// Radio and check marks: the shape is foreground.
#include "draw/Images.h"

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
    "..XXX......XXX..",
    "..XX........XX..",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    ".XX..........XX.",
    "..XX........XX..",
    "..XXX......XXX..",
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
    "..XXX......XXX..",
    "..XX........XX..",
    ".XX...XXXX...XX.",
    ".XX..XXXXXX..XX.",
    ".XX..XXXXXX..XX.",
    ".XX..XXXXXX..XX.",
    ".XX..XXXXXX..XX.",
    ".XX...XXXX...XX.",
    "..XX........XX..",
    "..XXX......XXX..",
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
    ".XX........X.XX.",
    ".XX.......XX.XX.",
    ".XX......XXX.XX.",
    ".XX.X...XXX..XX.",
    ".XX.XX.XXX...XX.",
    ".XX.XXXXX....XX.",
    ".XX..XXX.....XX.",
    ".XX...X......XX.",
    ".XX..........XX.",
    ".XXXXXXXXXXXXXX.",
    ".XXXXXXXXXXXXXX.",
    "................",
};

// clang-format on
