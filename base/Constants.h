// Sizes, counts and codes shared by records, files and screens.
#pragma once

/// Types of the items that a pattern may hold.
enum PtrnType {
    PTRN_GBOX = 1,  ///< group box
    PTRN_LINE = 2,  ///< line
    PTRN_RECT = 3,  ///< rectangle
    PTRN_CRCL = 4,  ///< circle or ellipse
    PTRN_BARG = 5,  ///< bar graph
    PTRN_FCHR = 6,  ///< fixed text
    PTRN_CHAR = 7,  ///< variable text
    PTRN_NUMR = 8,  ///< numeric field
    PTRN_BUTN = 9,  ///< push button
    PTRN_RDIO = 10, ///< radio button
    PTRN_CHCK = 11, ///< check box
    PTRN_BMAP = 12, ///< bitmap
    PTRN_MARK = 13, ///< mark (icon)
    PTRN_SBAR = 14, ///< scroll bar
    PTRN_SPIN = 15, ///< spin button
};
constexpr int CONT_PTRN = PTRN_SPIN; ///< the last one

// Resource tables.
constexpr int CONT_COLR = 100; ///< colours of a project
constexpr int CONT_FONT = 20;  ///< fonts of a project, in each language
constexpr int SIZE_FONT = 30;  ///< not used; a font name may be as long as a field of the profile
constexpr int CONT_MARK = 350; ///< marks of a project
constexpr int SIZE_MARK = 512; ///< bytes of a mark, of up to 64 by 64 pixels

// Parameters and texts of a pattern. Character arrays are two bytes longer than the sizes.
constexpr int CONT_PARM = 30;      ///< parameters of an item
constexpr int CONT_PARM1 = 30;     ///< parameters of a pattern
constexpr int CONT_PARM2 = 10;     ///< numbers of a pattern for the application
constexpr int SIZE_PTRNNAME = 80;  ///< bytes of a title and of the name of a pattern
constexpr int SIZE_LOGONAME = 20;  ///< bytes of the file name of a logo
constexpr int SIZE_BMAPNAME = 20;  ///< bytes of the file name of a background
constexpr int SIZE_PTRNTEXT = 100; ///< bytes of the text of an item
constexpr int SIZE_ID_NAME = 80;   ///< bytes of the name of the pattern that an action opens
constexpr int SIZE_ID_CODE = 20;   ///< bytes of the name of a code

// Message and limit tables.
constexpr int CONT_MESGDATA = 500; ///< messages of a project
constexpr int SIZE_MESGTEXT = 100; ///< bytes of a message
constexpr int CONT_LIMTDATA = 500; ///< rows of the limit table

// Log lines.
constexpr int SIZE_LOGMESG1 = 20;  ///< bytes of a category
constexpr int SIZE_LOGMESG2 = 200; ///< bytes of a message of the log
constexpr int SIZE_LOGFILE = 16;   ///< bytes of the name of a source file

// Reserved data numbers.
constexpr int DTNO_SYSCALN = 1;  ///< 1..7: year, month, day, weekday (0 = Sunday), hour, minute, second
constexpr int DTNO_SYSEROR = 11; ///< the error line
constexpr int DTNO_MENTE = 20;   ///< 20..81: the maintenance screen
constexpr int DTNO_SYSTEM = 100; ///< first number of the application

namespace tessary
{

// Display state of the items bound to a cell: the bits of the cell's word.
constexpr int STATE_COLOR = 0x0003;   ///< colour selection 0..3
constexpr int STATE_LOCKED = 0x0001;  ///< of the same two bits: locks buttons, radio buttons and check boxes
constexpr int STATE_NEVER = 0x0800;   ///< never displayed; only in an item's cached copy
constexpr int STATE_FROZEN = 0x1000;  ///< not redrawn by the tick, not hit; set while the field is in edit
constexpr int STATE_FLICKER = 0x2000; ///< blinks
constexpr int STATE_DISABLE = 0x4000; ///< drawn blanked; a click changes nothing
constexpr int STATE_HIDDEN = 0x8000;  ///< erased, not hit

/// What an operated item does, PTRNDATA::ID_Type.
enum ActionCode {
    ACTION_NONE = 0,
    ACTION_MESSAGE_SELF = 1,
    ACTION_MESSAGE_CHILD1 = 2,
    ACTION_MESSAGE_CHILD2 = 3,
    ACTION_MESSAGE_PARENT = 4,
    ACTION_OPEN_CHILD1 = 5,
    ACTION_OPEN_CHILD2 = 6,
    ACTION_OPEN_SYSTEM = 7,
    ACTION_OPEN_TOP = 8,
    ACTION_CLOSE_SELF = 9,
    ACTION_CLOSE_CHILD1 = 10,
    ACTION_CLOSE_CHILD2 = 11,
    ACTION_CLOSE_SYSTEM = 12,
    ACTION_VERSION = 13,
    ACTION_MAINTENANCE = 14,
    ACTION_HARDCOPY = 15,
    ACTION_STOP = 16,
};

/// What a press on an item asks of its window, the result of CPtrnData::LButtonDown.
enum PressResult {
    PRESS_NOTHING = 0,
    PRESS_ACTION = 1,   ///< carry out the item's action
    PRESS_KEYENTRY = 2, ///< start keyboard entry
    PRESS_DRAG = 3,     ///< start dragging the thumb
};

} // namespace tessary
