#include "pattern/NumberText.h"

#include "base/Limits.h"
#include "pattern/ItemCell.h"
#include "pattern/ItemParm.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tessary
{

namespace
{

/// Longest text of a field, whatever a damaged file asks for.
constexpr int LONGEST = TEXT_BUFFER - 1;

std::size_t RoomOf(const PTRNDATA* item)
{
    return static_cast<std::size_t>(std::abs(std::clamp<int>(item->Parm[FIELD_WIDTH], -LONGEST, LONGEST)));
}

/// printf with a number of decimals, which have their places also where there are 300 digits before them.
std::string Decimal(double value, int decimals)
{
    char text[TEXT_BUFFER + 400];
    std::snprintf(text, sizeof text, "%.*f", std::min(decimals, LONGEST), value);
    return text;
}

/// "-0.00" is no number that anybody wants to see.
void DropSignOfZero(std::string& digits)
{
    if (digits[0] == '-' && digits.find_first_of("123456789") == std::string::npos)
        digits.erase(0, 1);
}

/// Two's complement of 32 bits as far as that reaches: -1 is "FFFFFFFF". A number beyond it has more digits.
std::string Hexadecimal(double value)
{
    constexpr double lowest = -2147483648.0;
    constexpr double beyond = 9007199254740992.0; // integers have no gaps below
    const double whole = std::trunc(value);
    if (whole < lowest || whole > beyond)
        return "";
    char text[TEXT_BUFFER];
    const auto bits = static_cast<std::int64_t>(whole);
    std::snprintf(text, sizeof text, "%llX",
                  static_cast<unsigned long long>(bits < 0 ? bits & 0xFFFFFFFF : bits));
    return text;
}

/// The digits alone; empty when they can not be told or are more than the field has room for.
std::string Digits(const PTRNDATA* item, double value)
{
    if (!std::isfinite(value))
        return "";
    std::string digits =
        item->Parm[FIELD_HEX] ? Hexadecimal(value) : Decimal(value, item->Parm[FIELD_DECIMALS]);
    DropSignOfZero(digits);
    return digits.size() <= RoomOf(item) ? digits : "";
}

/// Puts a comma before every third digit of the whole part, counted from its end.
std::string Grouped(const std::string& digits)
{
    std::string grouped = digits;
    const std::size_t first = digits[0] == '-' ? 1 : 0;
    const std::size_t end = std::min(digits.find('.'), digits.size());
    for (std::size_t place = end; place > first + 3; place -= 3)
        grouped.insert(place - 3, ",");
    return grouped;
}

bool HasGrouping(const PTRNDATA* item)
{
    return item->Parm[FIELD_GROUPING] && !item->Parm[FIELD_HEX];
}

/// Digits as long as the field.
std::string Filled(const PTRNDATA* item, std::string digits)
{
    const std::size_t room = RoomOf(item);
    const std::size_t missing = room - std::min(room, digits.size());
    if (item->Parm[FIELD_WIDTH] < 0)
        return digits + std::string(missing, ' ');
    if (item->Parm[FIELD_ZEROFILL] && !HasGrouping(item))
        return digits.insert(digits[0] == '-' ? 1 : 0, missing, '0');
    return std::string(missing, ' ') + digits;
}

} // namespace

std::string NumberText(const PTRNDATA* item)
{
    const double value = CellNumber(item->DataNo);
    const std::size_t room = RoomOf(item);
    if (!std::isfinite(value))
        return room ? std::string(room - 1, ' ') + "?" : "";
    const std::string digits = Digits(item, value);
    if (digits.empty())
        return std::string(room, '#');
    if (Has(Correction::Grouping) && HasGrouping(item)) {
        const std::string grouped = Grouped(digits);
        if (grouped.size() <= room)
            return Filled(item, grouped);
    }
    return Filled(item, digits);
}

std::string PlainNumberText(const PTRNDATA* item)
{
    return Digits(item, CellNumber(item->DataNo));
}

} // namespace tessary
