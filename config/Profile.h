// Profile files: text files of sections and key lines, read and written a key at a time.
//
//     [WINDOW]                ; a comment runs from a semicolon to the end of the line
//     WINDOW003=120,80
//
// A section header and a key start in the first column; there are no blanks around the name or the "=".
// Names are compared byte for byte and the first of equal names counts. A value may hold several fields
// separated by commas; blanks belong to a field, except at the end of the line. A line longer than 256
// bytes is taken as several lines, and a value can hold neither a semicolon nor a line feed.
//
// Every call loads the whole file and, when it writes, rewrites it from its first byte without cutting
// it: after a shorter value or a deleted key the last bytes of the old file stay behind the new content,
// and a key deleted from the end of its file is still there. Nothing is kept between calls. Not re-entrant.
//
// `file` is the full path; `section` and `key` are names without brackets or "="; the overloads with
// `number` use the key followed by the decimal number (COLOR and 5: COLOR5). A null text counts as an
// empty one. The letters of `format`, each with one pointer argument:
//
//     s S       text, a char array of at least 100 bytes; cut at 99 bytes when read
//     i I       int; only digits are accepted when read, so that a negative number reads as 0
//     h H f F   WORD in hexadecimal; written "%4X", and the blanks of a number below 1000 hexadecimal
//               make it read as 0
//
// Any other letter, and a null pointer, ends the list. The null must be a pointer (nullptr).
//
// A file that can not be read, or is longer than 64 MiB, reads as an empty one and is never written;
// both are recorded in the log (category "FILECNTL").
#pragma once

#include "base/Types.h"

/// @{
/// Reads the fields of a key. Every target is stored: a field that is missing or holds a character of
/// another kind gives empty text or 0.
/// @return how many fields were neither missing nor refused
int ProfileRead(const char* file, const char* section, const char* key, const char* format, ...);
int ProfileRead(const char* file, const char* section, const char* key, int number, const char* format, ...);
/// @}

/// @{
/// Writes a key from the values that the arguments point to. A key that exists is replaced together with
/// its comment; a new one becomes the first of its section; a new section is appended to the file, and a
/// missing file is created. A value is cut at 255 bytes, which is recorded in the log. An empty key is
/// not written; with an empty section the key line goes to the start of the file, where it can not be read.
/// No line feed is added to a last line that has none: what is written directly after it joins that line.
/// @return how many fields the value holds, whether or not the file took them; 0 when the file may not be
/// written (see above)
int ProfileWrite(const char* file, const char* section, const char* key, const char* format, ...);
int ProfileWrite(const char* file, const char* section, const char* key, int number, const char* format, ...);
/// @}

/// @{
/// Removes the first line with the key, and its comment; the section header stays. A key that does not
/// exist leaves the file alone.
void ProfileDelete(const char* file, const char* section, const char* key);
void ProfileDelete(const char* file, const char* section, const char* key, int number);
/// @}

/// @{
/// Reads one field as letter i.
int ProfileReadInt(const char* file, const char* section, const char* key);
int ProfileReadInt(const char* file, const char* section, const char* key, int number);
/// @}

/// @{
/// Reads one field as letter h.
WORD ProfileReadHex(const char* file, const char* section, const char* key);
WORD ProfileReadHex(const char* file, const char* section, const char* key, int number);
/// @}

/// @{
/// Reads one field as letter s.
/// @return a text of at most 99 bytes in a buffer of the overload, valid until its next call
LPTSTR ProfileReadAsc(const char* file, const char* section, const char* key);
LPTSTR ProfileReadAsc(const char* file, const char* section, const char* key, int number);
/// @}

/// @{
/// Writes the number found at the address `value`, not `value` itself: the value takes the place of the
/// pointer argument of ProfileWrite. 0 therefore writes the key with an empty value; so does an address
/// where nothing can be read, which is recorded in the log. To write a number, use ProfileWrite.
void ProfileWriteInt(const char* file, const char* section, const char* key, int value);
void ProfileWriteInt(const char* file, const char* section, const char* key, int number, int value);
/// @}

/// @{
/// The same with letter h: writes the WORD found at the address `value`.
void ProfileWriteHexa(const char* file, const char* section, const char* key, WORD value);
void ProfileWriteHexa(const char* file, const char* section, const char* key, int number, WORD value);
/// @}

/// @{
/// Writes one field as letter s; a null value writes the key with an empty value.
void ProfileWriteAsc(const char* file, const char* section, const char* key, const char* value);
void ProfileWriteAsc(const char* file, const char* section, const char* key, int number, const char* value);
/// @}

/// Converts at most four hexadecimal digits of either case, stopping at the first other character.
/// @return the 16-bit number: "12345" gives 0x1234, " 1" and a null text give 0
unsigned short atoh(const char* text);
