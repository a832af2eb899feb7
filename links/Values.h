// Values on their way between the plant and the cells. Nothing that comes in is believed: what is no number,
// or none that the other side can hold, gives no value.
#pragma once

#include "links/Model.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessary
{

/// Most registers of one value: a text of 246 bytes.
constexpr int VALUE_REGISTERS_MAX = 123;

/// A value as a cell holds it: a number, or a text in EUC-JP.
struct LinkValue {
    double number = 0.0;
    std::string text;
    bool isText = false;
};
bool operator==(const LinkValue& a, const LinkValue& b);
inline bool operator!=(const LinkValue& a, const LinkValue& b)
{
    return !(a == b);
}

/// Number of a value or of a text that is one.
std::optional<double> NumberOf(const LinkValue& value);

/// The number that a text is, whatever the locale: decimal, with blanks around it at most, and finite.
std::optional<double> ParseNumber(std::string_view text);

/// The shortest text that is read back as the same number.
std::string NumberText(double number);

/// A text from outside as a cell can hold it: at most 255 bytes in EUC-JP, never half a character, "?" for
/// what EUC-JP lacks and for broken UTF-8, blanks for control characters. It ends at a zero byte.
std::string TextFromOutside(std::string_view utf8);

/// From the number of the plant to that of the cell, and back.
double ToCell(const LinkPoint& point, double plant);
double ToPlant(const LinkPoint& point, double cell);

// --- Modbus
// -------------------------------------------------------------------------------------------------

/// Registers, or bits of a coil or discrete input, that one value takes.
int RegistersOf(const LinkPoint& point);

/// The value in the registers, of which there are RegistersOf().
std::optional<LinkValue> FromRegisters(const LinkPoint& point, const std::uint16_t* registers);

/// Puts a value into the registers; with `bits` the other bits of the register stay.
/// @return false when they can not hold it
bool IntoRegisters(const LinkPoint& point, const LinkValue& value, std::uint16_t* registers);

/// What the cell reads once the plant holds the value: registers may round it. None when it can not hold it.
std::optional<LinkValue> AsHeld(const LinkPoint& point, const LinkValue& value);

// --- MQTT
// ---------------------------------------------------------------------------------------------------

/// Longest message that is looked at.
constexpr std::size_t MESSAGE_MAX = 256U << 10U;

/// What a message holds for each cell of a point; none where it has no value for one.
using MessageValues = std::vector<std::optional<LinkValue>>;

/// The message is the value: a number, else a text. With `json` or several cells it is JSON: the element that
/// the pointer names, and of several cells the elements of a list.
MessageValues FromMessage(const LinkPoint& point, std::string_view message);

/// The message for a value, with `json` an object that has it where it points.
std::string IntoMessage(const LinkPoint& point, const LinkValue& value);

} // namespace tessary
