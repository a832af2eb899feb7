// Where the items of a screen lie, and the windows that the test screens open beside them.
#pragma once

#include "tessary.h"

/// Rectangle of the item of a data number and type, in pattern coordinates; empty when the pattern has none.
RECT ItemRect(CPtrnDisp& wnd, int dataNo, int type);

/// True for a rectangle without any pixel in it.
bool IsEmptyRect(const RECT& rect);

/// A part of the pattern as it lies on the screen.
RECT OnScreen(const CPtrnDisp& wnd, const RECT& rect);

/// Opens child window (1), (2) or (3) with the button that has this data number. @return false for others
bool OpenChildOf(CPtrnDisp& wnd, int button);

/// Opens the popup menu beside a part of the pattern.
void OpenPopupMenu(CPtrnDisp& wnd, const RECT& beside);

/// Closes what the two functions above have opened.
void CloseOpened(CPtrnDisp& wnd);
