// The display state of the items bound to a cell: the bits of the cell's word.
//
// Each setter is silent about the access to the cell itself. It logs what it has set, under "PTRNDISP", when
// `file` is given and the data number has a name. A number outside the store changes and logs nothing.
#pragma once

/// Selects one of the four colour sets of the items.
/// @param colour  its two lowest bits count; the log shows it as given
void Set_Color(int no, int colour, const char* file, int line);

/// Turns blinking on (1) or off (any other value).
void Set_Flikr(int no, int on, const char* file, int line);

/// Hides (mode 1) or disables (any other mode) the items.
/// @param on    1 hides or disables; any other value shows or enables again
void Set_Disable(int no, int on, int mode, const char* file, int line);
