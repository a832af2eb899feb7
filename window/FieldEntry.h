// Corrected entry: how a field in edit, the panel's windows and its keys go together from edition 2 on.
// Edition 1's part is window/KeyInput.
#pragma once

#include "window/PtrnDisp.h"

#include <string>

namespace tessary
{

/// The window whose field is in edit, anywhere in the panel; null when none is.
CPtrnDisp* EditedWnd();

/// A key for the panel: the field in edit takes it, else the window in front (window/Front.h).
/// @param key       GDK key value, keypad already translated
/// @param flags     1 Shift, else 2 Control, else 4 Alt, else 0
/// @param repeated  the key is being held, and this is not its first report
void PanelKey(unsigned int key, int flags, bool repeated);

// Declared by window/PtrnDisp.h, whose windows they know from inside:
//
// StoreBeforePress: a press of a button or the wheel at a point in pattern coordinates; the entry in progress
// is stored as Return does. False when the press has done its work with that: it only placed the cursor, or
// the value was refused and the press is not one of the stop button.
//
// TypeCharacter: what one character of EUC-JP, typed by an input method, is to the field in edit.

/// Around the handling of a toolkit's key press.
class KeyReport
{
  public:
    /// @param code  the key on the keyboard
    explicit KeyReport(unsigned code);
    ~KeyReport();
    KeyReport(const KeyReport&) = delete;
    KeyReport& operator=(const KeyReport&) = delete;
};
/// A key was let go.
void NoteKeyRelease(unsigned code);
/// Whether the key that is being handled was reported before and has not been let go since.
bool KeyIsHeld();

/// The character that a key value stands for, in EUC-JP: printable ASCII or two bytes. Empty for every other
/// key.
std::string CharacterOfKey(unsigned int key);

} // namespace tessary
