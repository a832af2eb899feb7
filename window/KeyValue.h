// The keys that key input knows, by the values that screen classes are told (PtrnKeyFunc): those of the
// toolkit and of X. Their own names there are macros, and so are the names KEY_... elsewhere.
#pragma once

namespace tessary
{

/// Values of keys.
enum KeyValue : unsigned int {
    KEYVAL_BACKSPACE = 0xFF08,
    KEYVAL_TAB = 0xFF09,
    KEYVAL_RETURN = 0xFF0D,
    KEYVAL_ESCAPE = 0xFF1B,
    KEYVAL_LEFT = 0xFF51,
    KEYVAL_UP = 0xFF52,
    KEYVAL_RIGHT = 0xFF53,
    KEYVAL_DOWN = 0xFF54,
    KEYVAL_DELETE = 0xFFFF,
};

} // namespace tessary
