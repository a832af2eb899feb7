// Where each parameter lies in PTRNDATA::Parm and PTRNHEDR::Parm1. Names ending in "4" begin a group of four,
// one per colour selection (bits 0 and 1 of the state word).
#pragma once

#include "pattern/items/BarGraphParm.h"
#include "pattern/items/BitmapParm.h"
#include "pattern/items/GroupBoxParm.h"
#include "pattern/items/LineParm.h"
#include "pattern/items/MarkParm.h"
#include "pattern/items/PushButtonParm.h"
#include "pattern/items/RadioCheckParm.h"
#include "pattern/items/ScrollBarParm.h"
#include "pattern/items/ShapeParm.h"
#include "pattern/items/SpinButtonParm.h"
#include "pattern/items/TextFieldParm.h"

namespace tessary
{

/// Parameters of every item.
enum ItemParm {
    PARM_X1 = 0,
    PARM_Y1 = 1,
    PARM_X2 = 2,
    PARM_Y2 = 3,
    PARM_PASS = 28,  ///< drawing pass 0 or 1
    PARM_CLEAR = 29, ///< colour that every eraser paints with
};

/// Where each parameter of the pattern header lies in PTRNHEDR::Parm1.
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
    HEDR_CLASS = 29, ///< ready-made screen class, see pattern/ScreenClass.h; for programs without classes
};

} // namespace tessary
