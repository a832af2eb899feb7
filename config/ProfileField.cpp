#include "config/ProfileField.h"

#include "base/EucText.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace tessary;

namespace
{

constexpr const char* DECIMAL_DIGITS = "0123456789";
constexpr const char* HEXADECIMAL_DIGITS = "0123456789ABCDEFabcdef";

bool HoldsOnly(const char* text, const char* allowed)
{
    return text[std::strspn(text, allowed)] == '\0';
}

bool IsDecimalNumber(const char* text)
{
    return HoldsOnly(text, "0123456789.") && std::count(text, text + std::strlen(text), '.') <= 1;
}

} // namespace

void GetString(int i, char (&field)[SIZE_FIELD], const char* value)
{
    for (; i > 0 && *value; i--) {
        value += std::strcspn(value, ",");
        if (*value)
            value++;
    }
    CopyText(field, value);
    field[std::strcspn(field, ",")] = '\0';
}

int GetFormat(int i, const char* format)
{
    if (BoundedLength(format, static_cast<std::size_t>(i) + 1) <= static_cast<std::size_t>(i))
        return FIELD_NONE;
    switch (format[i]) {
    case 's':
    case 'S':
        return FIELD_STRING;
    case 'i':
    case 'I':
        return FIELD_INTEGER;
    case 'h':
    case 'H':
    case 'f': // not a float: limits and tables keep 16-bit numbers here
    case 'F':
        return FIELD_HEXA;
    default:
        return FIELD_NONE;
    }
}

void CheckBuffer(int kind, char (&field)[SIZE_FIELD])
{
    bool accepted = true;
    switch (kind) {
    case FIELD_STRING:
        field[SIZE_FIELDTEXT] = '\0';
        break;
    case FIELD_INTEGER:
        accepted = HoldsOnly(field, DECIMAL_DIGITS);
        break;
    case FIELD_HEXA:
        accepted = HoldsOnly(field, HEXADECIMAL_DIGITS);
        break;
    case FIELD_FLOAT:
        accepted = IsDecimalNumber(field);
        break;
    default:
        accepted = false;
        break;
    }
    if (!accepted)
        field[0] = '\0';
}

int FieldInteger(const char* field)
{
    return static_cast<int>(std::min<long>(std::strtol(field, nullptr, 10), INT_MAX));
}

void itoa(int value, char (&text)[SIZE_FIELD])
{
    std::snprintf(text, sizeof text, "%d", value);
}

void htoa(WORD value, char (&text)[SIZE_FIELD])
{
    std::snprintf(text, sizeof text, "%4X", static_cast<unsigned>(value));
}

void ftoa(float value, char (&text)[SIZE_FIELD])
{
    std::snprintf(text, sizeof text, "%.4f", static_cast<double>(value));
}
