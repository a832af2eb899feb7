// The numbers that a window's calls take and its hooks are given.
#pragma once

namespace tessary
{

/// Whom CPtrnDisp::PtrnSendMessage reaches.
enum MessageTarget {
    MESSAGE_SELF = 0,
    MESSAGE_CHILD = 1,  ///< child 1, or child 2 while slot 1 is empty
    MESSAGE_NOBODY = 2, ///< child 2 is reached in no other way
    MESSAGE_PARENT = 3,
};

/// What CPtrnDisp::PtrnCloseWnd closes.
enum CloseTarget {
    CLOSE_SELF = 0,
    CLOSE_CHILD1 = 1,
    CLOSE_CHILD2 = 2,
    CLOSE_SYSTEM = 3,
};

/// Whose view CPtrnDisp::PtrnSetOffset scrolls.
enum ViewTarget {
    VIEW_SELF = 0,
    VIEW_CHILD1 = 1,
    VIEW_CHILD2 = 2,
    VIEW_PARENT = 3,
};

/// What CPtrnDisp::PtrnMouseFunc is told of.
enum MouseEvent {
    MOUSE_MOTION = 0,
    MOUSE_LEFT = 1,
    MOUSE_RIGHT = 2,
};

/// Direction of a wheel click.
enum WheelDirection {
    WHEEL_UP = 0,
    WHEEL_DOWN = 1,
};

/// Modifier keys that are held; the first that is counts.
enum Modifier {
    MODIFIER_NONE = 0,
    MODIFIER_SHIFT = 1,
    MODIFIER_CONTROL = 2,
    MODIFIER_ALT = 4,
};

/// What CPtrnDisp::KeyInputDisp draws; bits.
enum KeyDraw {
    DRAW_BACK = 1,
    DRAW_TEXT = 2,
    DRAW_CURSOR = 4,
    DRAW_NO_CURSOR = 8,
};

/// When CPtrnDisp::PtrnDispFunc is called.
enum DisplayMode {
    DISPLAY_PAINT = 0, ///< at the end of a full paint
    DISPLAY_TICK = 1,  ///< at every tick, after the items
};

} // namespace tessary
