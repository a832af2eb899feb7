// The common data: numbered cells through which the screens and the application exchange values.
//
// Every cell holds a word, a number and a text at the same time. Items of a pattern are bound to cells by
// data number; the windows read the cells in every tick and redraw what has changed. The word is also the
// display state of the items bound to the cell (STATE_... in base/Constants.h).
//
// The last two parameters of every access are the caller's place, `__FILE__, __LINE__`. They turn on the
// access log for those numbers whose log flag is set, and the line about a data number outside the store.
// With a null `file` an access is silent.
#pragma once

#include "comndata/CellData.h"

// --- life ------------------------------------------------------------------------------------------

/// Empties everything, then loads messages, limits and the code table, in this order; the code table
/// creates the cells. The log should be open. @return 1
int ComnDataInit();

/// Frees the cells with their texts, the code table, the messages and the limits.
void ComnDataExit();

// --- access ----------------------------------------------------------------------------------------

/// @return 1 for a valid data number; else 0, logged when `file` is given
int CheckComnData(int no, const char* file, int line);

/// Reads the word; 0 for a number outside the store.
WORD Get_wData(int no, const char* file, int line);

/// Reads the number, truncated towards zero. A number outside the range of an int gives the nearest int,
/// no number (NaN) gives 0; 0 for a number outside the store.
int Get_iData(int no, const char* file, int line);

/// Reads the number; 0.0 for a number outside the store.
float Get_fData(int no, const char* file, int line);

/// Reads the number as Set_dData has stored it, with all its digits. The functions above see the same number
/// rounded to a float; one that was stored by another function reads the same here and there, but for
/// integers, which keep all their digits.
double Get_dData(int no, const char* file, int line);

/// Reads the text.
/// @return one static buffer of SIZE_SDATA bytes, overwritten by the next call; empty when the cell has no
///         text or the number is outside the store. A text of 256 bytes is cut before the character that
///         does not fit
LPTSTR Get_sData(int no, const char* file, int line);

/// Writes the word. Like every writing access it does nothing for a number outside the store.
void Set_wData(int no, WORD value, const char* file, int line);

/// Writes an integer as float.
void Set_iData(int no, int value, const char* file, int line);

/// Writes the number.
void Set_fData(int no, float value, const char* file, int line);

/// Writes the number. One beyond the range of a float reads as infinity there.
void Set_dData(int no, double value, const char* file, int line);

/// Writes a copy of the text: at most 256 bytes, never half of a two-byte character.
/// @param text  may be what the cell holds already; null or empty leaves the cell without text
void Set_sData(int no, const char* text, const char* file, int line);

/// Sets the bits of `mask` in the word; the log shows the new word.
void OR_wData(int no, WORD mask, const char* file, int line);

/// Keeps only the bits of `mask` in the word; the log shows the new word.
void AND_wData(int no, WORD mask, const char* file, int line);

/// Inverts the bits of `mask` in the word; the log shows the new word.
void EOR_wData(int no, WORD mask, const char* file, int line);

/// @{
/// Bracket every read-modify-write and every fill. One thread uses the store, so they do nothing.
void LockComnData();
void UnlockComnData();
/// @}

// --- filling; the cells are set without any log line -----------------------------------------------

/// @{
/// Set one cell, the one numbered `no` + 1, when `count` is at least 1; no other cell is touched, whatever
/// the count. `file` and `line` are not used.
void Clear_wData(int no, int count, WORD value, const char* file, int line);
void Clear_iData(int no, int count, int value, const char* file, int line);
void Clear_fData(int no, int count, float value, const char* file, int line);
void Clear_sData(int no, int count, const char* text, const char* file, int line);
/// @}

/// Empties the cells `no` to `no` + `count` - 1: word 0, number 0, no text. Numbers outside the store are
/// skipped; a count of 0 or less does nothing.
void Clear_AllData(int no, int count, const char* file, int line);

/// Sets the same cells to a word, an integer and a text.
void Clear_AllData(int no, int count, WORD word, int value, const char* text, const char* file, int line);

/// Sets the same cells to a word, a number and a text.
void Clear_AllData(int no, int count, WORD word, float value, const char* text, const char* file, int line);

/// Empties cells from `no` on. Their count is the `DataCount` of the code that holds `no`, minus `no`
/// itself: it is not measured from the end of the code. A number that no code holds is always logged.
void Clear_AllData(int no, const char* file, int line);

// --- access log ------------------------------------------------------------------------------------

/// @{
/// Records one access when `file` is given and the log flag of the number is set.
/// @param write  0 a read, any other value a write
void SetLogfile(int no, int write, WORD value, const char* file, int line);
void SetLogfile(int no, int write, int value, const char* file, int line);
void SetLogfile(int no, int write, float value, const char* file, int line);
void SetLogfile(int no, int write, const char* value, const char* file, int line);
/// @}
