// Cells of the sample project. project/codes.yaml gives each of them its code.
#pragma once

/// Neighbouring cells that are treated alike.
struct CellRange {
    int first;
    int count;
    constexpr bool holds(int no) const { return no >= first && no < first + count; }
    constexpr int end() const { return first + count; }
};

// Signals that the application generates.
constexpr int COUNTER_CELL = 111;
constexpr int COUNTER_COPY_CELL = 1549;
constexpr int COLOR_STEP_CELLS[] = {438, 437, 110};

// Shapes.
constexpr CellRange BLINK_MARKS = {454, 14};

// Texts and buttons. Each radio group sets the colour of one text.
constexpr int POPUP_BUTTON_CELL = 104;
constexpr CellRange COLOR_MESSAGES = {105, 4}; ///< the button that sets all colours, and the radio groups
constexpr CellRange COLOR_RADIOS = {106, 3};
constexpr CellRange COLOR_TEXTS = {101, 3};
constexpr int SAMPLE_VALUE_CELL = 1547;

/// A check box and the cell whose items it changes.
struct CheckedCell {
    int check;
    int cell;
};
constexpr CheckedCell COLOR_CHECKS[] = {{114, 436}, {115, 435}, {116, COUNTER_COPY_CELL}};
constexpr CheckedCell BLINK_CHECKS[] = {{1551, 436}, {1552, 435}, {1553, COUNTER_COPY_CELL}};

// Buttons that open the child windows (1) to (3), here and on the mouse screen.
constexpr CellRange CHILD_BUTTONS = {482, 3};

// Graphs.
constexpr int TREND_OVERLAY_CELL = 112;
constexpr int TREND_FRAME_CELL = 113;

// Mouse.
constexpr CellRange MOUSE_AREAS = {468, 4};
constexpr CellRange LEFT_LAMPS = {472, 5};
constexpr CellRange RIGHT_LAMPS = {477, 5};

// Wiring table: header fields.
constexpr int SYSTEM_NO_CELL = 1550;
constexpr int DELIVERY_CELL = 485;
constexpr int WORK_NO_CELL = 1548;
constexpr int BOARD_NO_CELL = 100;
constexpr int COMMENT_CELL = 109;

// Wiring table: the shown part and its controls. Column k of line i is TABLE_CELL + TABLE_STRIDE * k + i.
constexpr int TABLE_CELL = 117;
constexpr int TABLE_STRIDE = 20;
constexpr int TABLE_LINES = 15;
constexpr int TABLE_COLUMNS = 16;
constexpr CellRange TABLE_CELLS = {TABLE_CELL, TABLE_STRIDE* TABLE_COLUMNS};
constexpr int TABLE_LINE_NO_CELL = 439; ///< of line 0
constexpr int TABLE_FRAME_CELL = 432;
constexpr int TABLE_H_SCROLL_CELL = 433;
constexpr int TABLE_V_SCROLL_CELL = 1571;
constexpr int TABLE_PRINT_CELL = 434;
constexpr int TABLE_SAVE_CELL = 1554;
constexpr CellRange TABLE_HEADINGS = {1555, 16};
