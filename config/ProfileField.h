// The fields of a profile value: splitting, checks and conversions. For the profile module and its tests.
#pragma once

#include "base/Limits.h"
#include "base/Types.h"

namespace tessary
{

/// Bytes of the buffers that hold a value or a field, its terminator included.
constexpr int SIZE_FIELD = 256;

/// Bytes that a text field keeps when it is read.
constexpr int SIZE_FIELDTEXT = tessary::PROFILE_FIELD_MAX;

/// What a format letter stands for. No letter stands for a float; `f` is hexadecimal.
enum FieldKind {
    FIELD_NONE = 0,
    FIELD_STRING = 1,
    FIELD_INTEGER = 2,
    FIELD_HEXA = 3,
    FIELD_FLOAT = 4,
};

} // namespace tessary

/// Copies the text between the i-th and the next comma of `value`; beyond the last comma it is empty.
void GetString(int i, char (&field)[tessary::SIZE_FIELD], const char* value);

/// @return the kind of letter i; FIELD_NONE past the end of `format` and for a letter without a kind
int GetFormat(int i, const char* format);

/// Empties a field that holds a character which its kind does not allow (a sign is allowed in none) and
/// cuts a text at SIZE_FIELDTEXT bytes.
void CheckBuffer(int kind, char (&field)[tessary::SIZE_FIELD]);

/// The number of a field that CheckBuffer has let pass as FIELD_INTEGER; at most INT_MAX, 0 when empty.
int FieldInteger(const char* field);

/// "%d".
void itoa(int value, char (&text)[tessary::SIZE_FIELD]);
/// "%4X": upper case, with blanks before the number up to four characters.
void htoa(WORD value, char (&text)[tessary::SIZE_FIELD]);
/// "%.4f".
void ftoa(float value, char (&text)[tessary::SIZE_FIELD]);
