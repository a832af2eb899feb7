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
constexpr int kCounterCell = 111;
constexpr int kCounterCopyCell = 1549;
constexpr int kColorStepCells[] = {438, 437, 110};

// Shapes.
constexpr CellRange kBlinkMarks = {454, 14};

// Texts and buttons. Each radio group sets the colour of one text.
constexpr int kPopupButtonCell = 104;
constexpr CellRange kColorMessages = {105, 4}; ///< the button that sets all colours, and the radio groups
constexpr CellRange kColorRadios = {106, 3};
constexpr CellRange kColorTexts = {101, 3};
constexpr int kSampleValueCell = 1547;

/// A check box and the cell whose items it changes.
struct CheckedCell {
    int check;
    int cell;
};
constexpr CheckedCell kColorChecks[] = {{114, 436}, {115, 435}, {116, kCounterCopyCell}};
constexpr CheckedCell kBlinkChecks[] = {{1551, 436}, {1552, 435}, {1553, kCounterCopyCell}};

// Buttons that open the child windows (1) to (3), here and on the mouse screen.
constexpr CellRange kChildButtons = {482, 3};

// Graphs.
constexpr int kTrendOverlayCell = 112;
constexpr int kTrendFrameCell = 113;

// Mouse.
constexpr CellRange kMouseAreas = {468, 4};
constexpr CellRange kLeftLamps = {472, 5};
constexpr CellRange kRightLamps = {477, 5};

// Wiring table: header fields.
constexpr int kSystemNoCell = 1550;
constexpr int kDeliveryCell = 485;
constexpr int kWorkNoCell = 1548;
constexpr int kBoardNoCell = 100;
constexpr int kCommentCell = 109;

// Wiring table: the shown part and its controls. Column k of line i is kTableCell + kTableStride * k + i.
constexpr int kTableCell = 117;
constexpr int kTableStride = 20;
constexpr int kTableLines = 15;
constexpr int kTableColumns = 16;
constexpr CellRange kTableCells = {kTableCell, kTableStride* kTableColumns};
constexpr int kTableLineNoCell = 439; ///< of line 0
constexpr int kTableFrameCell = 432;
constexpr int kTableHScrollCell = 433;
constexpr int kTableVScrollCell = 1571;
constexpr int kTablePrintCell = 434;
constexpr int kTableSaveCell = 1554;
constexpr CellRange kTableHeadings = {1555, 16};
