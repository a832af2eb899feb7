// Fixture: left presses on items of a loaded pattern.
#pragma once

#include "tests/pattern/LoadedPattern.h"

enum Answer { NOTHING = 0, ACTION = 1, ENTRY = 2, DRAG = 3 };

class Press : public LoadedPattern
{
  protected:
    /// Presses an item at its first corner; `pressed` is what the press left of the copy.
    int press(int recd = 0) { return pressAt(recd, item(recd).Rect.left, item(recd).Rect.top); }
    int pressAt(int recd, int x, int y)
    {
        pressed = item(recd);
        return data().LButtonDown(POINT{x, y}, &pressed);
    }

    PTRNDATA pressed{};
};
