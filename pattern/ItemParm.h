// Where each parameter of an item lies in PTRNDATA::Parm. Names ending in "4" begin a group of four,
// one per colour selection (bits 0 and 1 of the state word).
#pragma once

enum ItemParm {
    // every type
    PARM_X1 = 0,
    PARM_Y1 = 1,
    PARM_X2 = 2,
    PARM_Y2 = 3,
    PARM_PASS = 28,  ///< drawing pass 0 or 1
    PARM_CLEAR = 29, ///< colour that every eraser paints with

    // group box
    GBOX_FACE4 = 4,
    GBOX_TOP4 = 8,
    GBOX_BOTTOM4 = 12,
    GBOX_LEFT4 = 16,
    GBOX_RIGHT4 = 20,
    GBOX_TOP_WIDTH = 24,
    GBOX_BOTTOM_WIDTH = 25,
    GBOX_LEFT_WIDTH = 26,
    GBOX_RIGHT_WIDTH = 27,

    // line
    LINE_COLOR4 = 4,
    LINE_FOMT = 13,
    LINE_TYPE = 14,
    LINE_WIDTH = 15,

    // rectangle, circle
    SHAPE_OUTLINE4 = 4,
    SHAPE_FILL4 = 8,
    SHAPE_FILLED = 12,
    SHAPE_FOMT = 13,
    SHAPE_WIDTH = 15,

    // bar graph
    BARG_BAR4 = 4,
    BARG_BACK4 = 8,
    BARG_FRAME_COLOR = 12,
    BARG_HORIZONTAL = 13,
    BARG_NEEDLE_WIDTH = 14,
    BARG_FRAME_WIDTH = 15,
    BARG_MINIMUM = 16,
    BARG_MAXIMUM = 17,

    // fixed text, variable text, numeric field
    TEXT_COLOR4 = 4,
    TEXT_BACK4 = 8,
    TEXT_BACKED = 12,
    TEXT_FLICKER = 13,
    TEXT_FONT = 15,
    FIELD_WIDTH = 16, ///< bytes
    FIELD_DECIMALS = 17,
    FIELD_KEYENTRY = 18, ///< 1: a click opens keyboard entry
    FIELD_ZEROFILL = 19,
    FIELD_GROUPING = 20,
    FIELD_HEX = 21,
    FIELD_NAVIGATION = 27, ///< 1 Up, 2 Down, 4 Left, 8 Right end the input

    // push button
    BUTN_LIGHT = 4,
    BUTN_DARK = 5,
    BUTN_FACE = 6,
    BUTN_CAPTION = 7,        ///< caption colour
    BUTN_CAPTION_LOCKED = 8, ///< caption colour while bit 0 of the state is set
    BUTN_POST_ON = 13,
    BUTN_POST = 14, ///< caption offset from the left edge
    BUTN_FONT = 15,
    BUTN_WIDTH = 16,
    BUTN_KEY = 27, ///< function key 1..12

    // radio button, check box
    CHECK_COLOR = 4,
    CHECK_COLOR_LOCKED = 5,
    CHECK_BACK = 6,
    CHECK_BACK_LOCKED = 7,
    CHECK_BACKED = 12,
    CHECK_FONT = 15,
    RDIO_VALUE = 27,

    // bitmap
    BMAP_KEY_COLOR = 4,
    BMAP_KEYED = 5,

    // mark
    MARK_COLOR4 = 4,
    MARK_BACK4 = 8,
    MARK_BACKED = 12,
    MARK_FLICKER = 13,
    MARK_NUMBER4 = 15,
    MARK_LAST = 19, ///< the mark drawn last; written at run time

    // scroll bar
    SBAR_LIGHT = 4,
    SBAR_DARK = 5,
    SBAR_FRAME = 6,
    SBAR_THUMB = 7,
    SBAR_ARROWS = 8,
    SBAR_PAGES = 9,
    SBAR_VERTICAL = 13,
    SBAR_WIDTH = 15,
    SBAR_VISIBLE = 16,
    SBAR_TOTAL = 17,
    SBAR_LINE_STEP = 18,
    SBAR_PAGE_STEP = 19,
    SBAR_TROUGH_STEP = 20,
    SBAR_ROLE1 = 26,
    SBAR_KEYS = 27,

    // spin button
    SPIN_MINIMUM = 16,
    SPIN_MAXIMUM = 17,
};

// Where each parameter of the pattern header lies in PTRNHEDR::Parm1.
enum HedrParm {
    HEDR_KIND = 0, ///< 0 at the screen origin; other values placed; exactly 1: frame and dragging
    HEDR_WIDTH = 1,
    HEDR_HEIGHT = 2,
    HEDR_REMEMBER = 4, ///< 0: at HEDR_LEFT, HEDR_TOP; other values: the remembered position
    HEDR_LEFT = 5,
    HEDR_TOP = 6,
    HEDR_NO_DRAG = 7,
    HEDR_TITLE_HEIGHT = 8,
    HEDR_TITLE_COLOR = 9,
    HEDR_TITLE_BACK = 10,
    HEDR_TITLE_FONT = 11,
    HEDR_TITLE_CENTERED = 12,
    HEDR_LOGO = 13,
    HEDR_HARDCOPY = 14,
    HEDR_LOGO_LEFT = 15,  ///< the logo answers the left button
    HEDR_LOGO_RIGHT = 16, ///< the logo answers the right button
    HEDR_CLOCK = 17,      ///< date and time format 1..6; 0 none
    HEDR_CLOCK_FONT = 18,
    HEDR_BODY_COLOR = 19,
    HEDR_BODY_SHADED = 20,
    HEDR_BAND_HEIGHT = 21,
    HEDR_BAND_COLOR = 22,
    HEDR_FRAME_WIDTH = 23,
    HEDR_FRAME_COLOR = 24,
    HEDR_CURSOR = 25,
    HEDR_MODELESS = 26, ///< of a child window: 0 blocks the parent's items
    HEDR_EDIT_COLOR = 27,
    HEDR_EDIT_BACK = 28,
};
