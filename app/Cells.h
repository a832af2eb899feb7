// Cells of the sample project. project/codes.yaml gives each of them its code, and with them the build makes
// the constants in "cells.h".
#pragma once

#include "cells.h"

/// Neighbouring cells that are treated alike.
struct CellRange {
    int first;
    int count;
    constexpr bool holds(int no) const { return no >= first && no < first + count; }
    constexpr int end() const { return first + count; }
};

// Signals that the application generates.
constexpr int COUNTER_CELL = panel::COUNTER;
constexpr int COUNTER_COPY_CELL = panel::COUNTER2;
constexpr int COLOR_STEP_CELLS[] = {panel::COLOR_STEP2 + 1, panel::COLOR_STEP2, panel::COLOR_STEP1};

// Stop.
constexpr int STOP_ASK_CELL = panel::SPARE492;
constexpr int STOP_TELL_CELL = panel::SPARE492 + 1;

// Shapes.
constexpr CellRange BLINK_MARKS = {panel::MARK, panel::count::MARK};

// Texts and buttons. Each radio group sets the colour of one text.
constexpr int POPUP_BUTTON_CELL = panel::POPUP;
/// The button that sets all colours, and the radio groups behind it.
constexpr CellRange COLOR_MESSAGES = {panel::SAMPLE_SELECT,
                                      panel::count::SAMPLE_SELECT + panel::count::SAMPLE_COLOR};
constexpr CellRange COLOR_RADIOS = {panel::SAMPLE_COLOR, panel::count::SAMPLE_COLOR};
constexpr CellRange COLOR_TEXTS = {panel::SAMPLE_TEXT, panel::count::SAMPLE_TEXT};
constexpr int SAMPLE_VALUE_CELL = panel::SAMPLE_VALUE;

/// A check box and the cell whose items it changes.
struct CheckedCell {
    int check;
    int cell;
};
constexpr CheckedCell COLOR_CHECKS[] = {{panel::CHECK_COLOR, panel::COLOR_CHECK + 1},
                                        {panel::CHECK_COLOR + 1, panel::COLOR_CHECK},
                                        {panel::CHECK_COLOR + 2, COUNTER_COPY_CELL}};
constexpr CheckedCell BLINK_CHECKS[] = {{panel::CHECK_BLINK, panel::COLOR_CHECK + 1},
                                        {panel::CHECK_BLINK + 1, panel::COLOR_CHECK},
                                        {panel::CHECK_BLINK + 2, COUNTER_COPY_CELL}};

// Buttons that open the child windows (1) to (3), here and on the mouse screen.
constexpr CellRange CHILD_BUTTONS = {panel::CHILD, panel::count::CHILD};

// Graphs.
constexpr int TREND_OVERLAY_CELL = panel::TREND_LINES;
constexpr int TREND_FRAME_CELL = panel::TREND;

// Mouse.
constexpr CellRange MOUSE_AREAS = {panel::MOUSE_AREA, panel::count::MOUSE_AREA};
constexpr CellRange LEFT_LAMPS = {panel::MOUSE_LEFT, panel::count::MOUSE_LEFT};
constexpr CellRange RIGHT_LAMPS = {panel::MOUSE_RIGHT, panel::count::MOUSE_RIGHT};

// Wiring table: header fields.
constexpr int SYSTEM_NO_CELL = panel::SYSTEM_NO;
constexpr int DELIVERY_CELL = panel::DELIVERY;
constexpr int WORK_NO_CELL = panel::WORK_NO;
constexpr int BOARD_NO_CELL = panel::BOARD_NO;
constexpr int COMMENT_CELL = panel::COMMENT;

// Wiring table: the shown part and its controls. Column k of line i is TABLE_CELL + TABLE_STRIDE * k + i.
constexpr int TABLE_CELL = panel::TABLE;
constexpr int TABLE_STRIDE = 20;
constexpr int TABLE_LINES = 15;
constexpr int TABLE_COLUMNS = 16;
constexpr CellRange TABLE_CELLS = {TABLE_CELL, TABLE_STRIDE* TABLE_COLUMNS};
constexpr int TABLE_LINE_NO_CELL = panel::TABLE_LINE; ///< of line 0
constexpr int TABLE_FRAME_CELL = panel::TABLE_FRAME;
constexpr int TABLE_H_SCROLL_CELL = panel::TABLE_HSCROLL;
constexpr int TABLE_V_SCROLL_CELL = panel::TABLE_VSCROLL;
constexpr int TABLE_PRINT_CELL = panel::TABLE_PRINT;
constexpr int TABLE_SAVE_CELL = panel::TABLE_SAVE;
constexpr CellRange TABLE_HEADINGS = {panel::TABLE_SORT, panel::count::TABLE_SORT};
