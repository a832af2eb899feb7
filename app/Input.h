// Pointer cursors, mouse buttons and modifier keys, by the numbers that the framework's hooks use.
#pragma once

enum PointerCursor { CURSOR_ARROW = 0, CURSOR_CROSS = 1, CURSOR_BUSY = 2 };

enum MouseButton { MOUSE_NONE = 0, MOUSE_LEFT = 1, MOUSE_RIGHT = 2 };

enum Modifier { MODIFIER_NONE = 0, MODIFIER_SHIFT = 1, MODIFIER_CONTROL = 2 };
