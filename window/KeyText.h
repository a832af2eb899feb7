// How a key changes the text of a field in edit. Texts are EUC-JP in buffers of KEYTEXT_SIZE bytes; cursors
// are byte indexes.
#pragma once

#include "base/Limits.h"
#include "pattern/PtrnData.h"
#include "window/KeyValue.h"

namespace tessary
{

constexpr int KEYTEXT_SIZE = TEXT_BUFFER;

/// Field length in bytes, held within what an edited text can be.
int KeyFieldWidth(const PTRNDATA& item);

/// True for a byte that stands for itself in a text field.
bool PrintableKey(unsigned char byte);

/// True when a numeric field takes the byte: digits; in a hexadecimal field also a-f and A-F; otherwise '-'
/// at the start and '.' where the field has decimals, each once.
bool NumericKey(const PTRNDATA& item, const char* text, int cursor, unsigned char byte);

/// Inserts one or two bytes (c2 0: one). A numeric field keeps its length: its leftmost byte drops out and
/// the cursor stays. A text field grows and the cursor moves on, at most to the end of the field.
/// @return the new cursor
int InsertKey(const PTRNDATA& item, char* text, int cursor, unsigned int c1, unsigned int c2);

/// BackSpace and Delete; the field is filled up with a blank. @return the new cursor
int DeleteKey(int width, char* text, int cursor, unsigned int key);

/// Left and Right. @return the new cursor; the old one where it can not move
int ShiftKey(const PTRNDATA& item, const char* text, int cursor, unsigned int key);

/// From the field's last position on, blanks end the text; blanks before that position stay.
void DropTrailingBlank(char* text, int width);

} // namespace tessary
