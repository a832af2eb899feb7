// The printer of the title bar and the spin button.
#include "draw/Images.h"

using namespace tessary;

// XPM takes pointers to writable text, although nothing ever writes a line: the colours of a picture are
// changed by pointing at other lines.
#pragma GCC diagnostic ignored "-Wwrite-strings"

// clang-format off

char* XPM_Printer[CONT_IMAGELINE] = {
    "32 32 3 1",
    "  c #FFFFFF",
    ". c #C0C0C0",
    "X c #000000",
    "                               X",
    "                              XX",
    "  ............................XX",
    "  ............................XX",
    "  .......XXXXXXXXXXXXXX.......XX",
    "  .......XXXXXXXXXXXXXX.......XX",
    "  .......XX          XX.......XX",
    "  .......XX          XX.......XX",
    "  .......XX          XX.......XX",
    "  .......XX          XX.......XX",
    "  .......XX          XX.......XX",
    "  .......XX          XX.......XX",
    "  ..XXXXXXXXXXXXXXXXXXXXXXXX..XX",
    "  ..XXXXXXXXXXXXXXXXXXXXXXXX..XX",
    "  ..XX....................XX..XX",
    "  ..XX................XXX.XX..XX",
    "  ..XX................XXX.XX..XX",
    "  ..XX....................XX..XX",
    "  ..XX....................XX..XX",
    "  ..XX..XXXXXXXXXXXXXXXX..XX..XX",
    "  ..XX..XXXXXXXXXXXXXXXX..XX..XX",
    "  ..XX..XX            XX..XX..XX",
    "  ..XXXXXX  XXXXXXXX  XXXXXX..XX",
    "  ..XXXXXX  XXXXXXXX  XXXXXX..XX",
    "  ......XX            XX......XX",
    "  ......XX            XX......XX",
    "  ......XXXXXXXXXXXXXXXX......XX",
    "  ......XXXXXXXXXXXXXXXX......XX",
    "  ............................XX",
    "  ............................XX",
    " XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX",
    "XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX",
};

char* XPM_SpinButn[CONT_IMAGELINE] = {
    "16 32 3 1",
    "  c #FFFFFF",
    ". c #C0C0C0",
    "X c #000000",
    "               X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ......XX......X",
    " .....XXXX.....X",
    " ....XXXXXX....X",
    " ...XXXXXXXX...X",
    " ..XXXXXXXXXX..X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..............X",
    "XXXXXXXXXXXXXXXX",
    "               X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..XXXXXXXXXX..X",
    " ...XXXXXXXX...X",
    " ....XXXXXX....X",
    " .....XXXX.....X",
    " ......XX......X",
    " ..............X",
    " ..............X",
    " ..............X",
    " ..............X",
    "XXXXXXXXXXXXXXXX",
};

// clang-format on
