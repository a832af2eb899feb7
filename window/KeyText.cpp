#include "window/KeyText.h"

#include "base/EucText.h"
#include "pattern/ItemParm.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace tessary
{

namespace
{

/// Room is left for one two-byte character past the field and the terminator.
constexpr int LONGEST_FIELD = KEYTEXT_SIZE - 3;

bool HalfAt(const char* text, int index)
{
    return IsEucHalf(static_cast<unsigned char>(text[index]));
}

int Length(const char* text)
{
    return static_cast<int>(strnlen(text, KEYTEXT_SIZE - 1));
}

/// Blanks up to `length`, so that nothing behind the terminator is ever moved into the field.
void Pad(char* text, int length)
{
    const int used = Length(text);
    if (used < length) {
        std::memset(text + used, ' ', static_cast<std::size_t>(length - used));
        text[length] = '\0';
    }
}

/// One byte out at the cursor, one blank in at the field's end.
void ShiftLeft(char* text, int width, int cursor)
{
    if (cursor < width)
        std::memmove(text + cursor, text + cursor + 1, static_cast<std::size_t>(width - cursor - 1));
    if (width > 0)
        text[width - 1] = ' ';
}

} // namespace

int KeyFieldWidth(const PTRNDATA& item)
{
    return std::clamp(item.Parm[FIELD_WIDTH], 0, LONGEST_FIELD);
}

bool PrintableKey(unsigned char byte)
{
    return byte >= 0x20 && byte < 0x7F;
}

bool NumericKey(const PTRNDATA& item, const char* text, int cursor, unsigned char byte)
{
    if (byte >= '0' && byte <= '9')
        return true;
    if (item.Parm[FIELD_HEX])
        return byte < 0x80 && std::isxdigit(byte);
    if (byte == '-')
        return cursor == 0 && !std::strchr(text, '-');
    if (byte == '.')
        return item.Parm[FIELD_DECIMALS] != 0 && !std::strchr(text, '.');
    return false;
}

int InsertKey(const PTRNDATA& item, char* text, int cursor, unsigned int c1, unsigned int c2)
{
    const int width = KeyFieldWidth(item);
    const int added = c2 ? 2 : 1;
    if (cursor + added >= KEYTEXT_SIZE) // the cursor has followed a text that has outgrown its field
        return cursor;
    Pad(text, cursor);

    char work[2 * KEYTEXT_SIZE];
    std::memcpy(work, text, static_cast<std::size_t>(cursor));
    work[cursor] = static_cast<char>(c1);
    if (c2)
        work[cursor + 1] = static_cast<char>(c2);
    const int rest = std::max(std::min(Length(text), width) - cursor, 0);
    std::memcpy(work + cursor + added, text + cursor, static_cast<std::size_t>(rest));
    work[cursor + added + rest] = '\0';

    if (item.Type == PTRN_NUMR) {
        work[width + 1] = '\0'; // the first byte is not taken over
        CopyText(text, KEYTEXT_SIZE, work + 1);
        return std::min(cursor, width);
    }
    CopyText(text, KEYTEXT_SIZE, work);
    return std::min(cursor + added, width);
}

int DeleteKey(int width, char* text, int cursor, unsigned int key)
{
    const bool back = key == KEYVAL_BACKSPACE;
    if (back ? cursor == 0 : cursor == width - 1)
        return cursor;

    Pad(text, width);
    const int steps = HalfAt(text, cursor) ? 2 : 1;
    for (int i = 0; i < steps; i++) {
        if (back)
            cursor = std::max(cursor - 1, 0);
        ShiftLeft(text, width, cursor);
    }
    text[width] = '\0';
    return cursor;
}

int ShiftKey(const PTRNDATA& item, const char* text, int cursor, unsigned int key)
{
    if (key == KEYVAL_LEFT) {
        if (cursor == 0)
            return cursor;
        if (item.Type == PTRN_NUMR)
            return text[cursor - 1] == ' ' ? cursor : cursor - 1;
        cursor--;
        return cursor > 0 && HalfAt(text, cursor) ? cursor - 1 : cursor;
    }
    const int length = Length(text);
    if (cursor >= length)
        return cursor;
    cursor++;
    return cursor < length && HalfAt(text, cursor) ? cursor + 1 : cursor;
}

void DropTrailingBlank(char* text, int width)
{
    for (int i = width - 1; i >= 0 && i < KEYTEXT_SIZE && text[i] == ' '; i++)
        text[i] = '\0';
}

} // namespace tessary
