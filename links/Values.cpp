#include "links/Values.h"

#include "base/EucText.h"
#include "base/Limits.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>

namespace tessary
{

bool operator==(const LinkValue& a, const LinkValue& b)
{
    if (a.isText || b.isText)
        return a.isText == b.isText && a.text == b.text;
    return a.number == b.number || (std::isnan(a.number) && std::isnan(b.number));
}

std::optional<double> NumberOf(const LinkValue& value)
{
    if (value.isText)
        return ParseNumber(value.text);
    return std::isfinite(value.number) ? std::optional<double>(value.number) : std::nullopt;
}

std::optional<double> ParseNumber(std::string_view text)
{
    const auto blank = [](char letter) { return letter == ' ' || (letter >= '\t' && letter <= '\r'); };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [at, problem] = std::from_chars(text.data(), end, value);
    if (text.empty() || at != end || problem != std::errc() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string NumberText(double number)
{
    char text[64];
    const auto [end, problem] = std::to_chars(text, text + sizeof text, number);
    return problem == std::errc() ? std::string(text, end) : "";
}

std::string TextFromOutside(std::string_view utf8)
{
    constexpr std::size_t LOOKED_AT = std::size_t{4} * TEXT_BUFFER;
    std::string text(utf8.substr(0, std::min(utf8.find('\0'), LOOKED_AT)));
    for (char& letter : text)
        if (static_cast<unsigned char>(letter) < ' ' || letter == 0x7F)
            letter = ' ';
    text = Utf8ToEuc(text);
    text.resize(EucCut(text.c_str(), TEXT_BUFFER - 1));
    return text;
}

double ToCell(const LinkPoint& point, double plant)
{
    for (const auto& [from, to] : point.values)
        if (from == plant)
            return to;
    return plant * point.scale + point.offset;
}

double ToPlant(const LinkPoint& point, double cell)
{
    for (const auto& [to, from] : point.values)
        if (from == cell)
            return to;
    return (cell - point.offset) / point.scale;
}

namespace
{

/// Whole numbers that a type can hold.
struct Whole {
    int bytes;
    bool isSigned;
};

std::optional<Whole> WholeOf(int type)
{
    switch (type) {
    case TYPE_INT16:
        return Whole{2, true};
    case TYPE_UINT16:
        return Whole{2, false};
    case TYPE_INT32:
        return Whole{4, true};
    case TYPE_UINT32:
        return Whole{4, false};
    case TYPE_INT64:
        return Whole{8, true};
    case TYPE_UINT64:
        return Whole{8, false};
    default:
        return std::nullopt;
    }
}

std::uint16_t Swapped(std::uint16_t word)
{
    return static_cast<std::uint16_t>(word << 8 | word >> 8);
}

bool SwapsBytes(int order)
{
    return order == ORDER_BADC || order == ORDER_DCBA;
}

bool SwapsWords(int order)
{
    return order == ORDER_CDAB || order == ORDER_DCBA;
}

/// The registers as one number, the first one its highest part.
std::uint64_t Joined(const LinkPoint& point, const std::uint16_t* registers, int count)
{
    std::uint64_t bits = 0;
    for (int i = 0; i < count; ++i) {
        const std::uint16_t word = registers[SwapsWords(point.order) ? count - 1 - i : i];
        bits = bits << 16U | (SwapsBytes(point.order) ? Swapped(word) : word);
    }
    return bits;
}

void Split(const LinkPoint& point, std::uint64_t bits, std::uint16_t* registers, int count)
{
    for (int i = count - 1; i >= 0; --i, bits >>= 16U) {
        const auto word = static_cast<std::uint16_t>(bits & 0xFFFFU);
        registers[SwapsWords(point.order) ? count - 1 - i : i] =
            SwapsBytes(point.order) ? Swapped(word) : word;
    }
}

template <class To, class From> To SameBits(From from)
{
    static_assert(sizeof(To) == sizeof(From));
    To to;
    std::memcpy(&to, &from, sizeof to);
    return to;
}

double WholeNumber(std::uint64_t bits, const Whole& type)
{
    if (!type.isSigned)
        return static_cast<double>(bits);
    const auto unused = static_cast<unsigned>(64 - 8 * type.bytes);
    return static_cast<double>(SameBits<std::int64_t>(bits << unused) >> unused);
}

/// The bits of a whole number; none when the type can not hold it.
std::optional<std::uint64_t> WholeBits(double value, const Whole& type)
{
    const double rounded = std::round(value);
    const double range = std::ldexp(1.0, 8 * type.bytes - (type.isSigned ? 1 : 0));
    if (!(rounded < range) || rounded < (type.isSigned ? -range : 0.0))
        return std::nullopt;
    return type.isSigned ? SameBits<std::uint64_t>(static_cast<std::int64_t>(rounded))
                         : static_cast<std::uint64_t>(rounded);
}

std::optional<double> FromBcd(std::uint64_t bits)
{
    double value = 0.0;
    for (int shift = 12; shift >= 0; shift -= 4) {
        const auto digit = bits >> static_cast<unsigned>(shift) & 0xFU;
        if (digit > 9)
            return std::nullopt;
        value = value * 10.0 + static_cast<double>(digit);
    }
    return value;
}

std::optional<std::uint64_t> IntoBcd(double value)
{
    const double rounded = std::round(value);
    if (!(rounded >= 0.0) || rounded > 9999.0)
        return std::nullopt;
    auto rest = static_cast<unsigned>(rounded);
    std::uint64_t bits = 0;
    for (unsigned shift = 0; shift < 16; shift += 4, rest /= 10)
        bits |= static_cast<std::uint64_t>(rest % 10) << shift;
    return bits;
}

/// Mask of the point's bits, moved to the lowest ones.
std::uint64_t BitMask(const LinkPoint& point)
{
    return (1ULL << static_cast<unsigned>(point.bits[1] - point.bits[0] + 1)) - 1;
}

std::optional<double> Number(const LinkPoint& point, std::uint64_t bits)
{
    if (point.bits[0] >= 0)
        return static_cast<double>(bits >> static_cast<unsigned>(point.bits[0]) & BitMask(point));
    if (const auto whole = WholeOf(point.type))
        return WholeNumber(bits, *whole);
    switch (point.type) {
    case TYPE_FLOAT32:
        return static_cast<double>(SameBits<float>(static_cast<std::uint32_t>(bits)));
    case TYPE_FLOAT64:
        return SameBits<double>(bits);
    case TYPE_BCD16:
        return FromBcd(bits);
    default:
        return bits ? 1.0 : 0.0;
    }
}

std::optional<std::uint64_t> Bits(const LinkPoint& point, double value, std::uint64_t before)
{
    if (point.bits[0] >= 0) {
        const double rounded = std::round(value);
        if (!(rounded >= 0.0) || rounded > static_cast<double>(BitMask(point)))
            return std::nullopt;
        const auto shift = static_cast<unsigned>(point.bits[0]);
        return (before & ~(BitMask(point) << shift)) | static_cast<std::uint64_t>(rounded) << shift;
    }
    if (const auto whole = WholeOf(point.type))
        return WholeBits(value, *whole);
    switch (point.type) {
    case TYPE_FLOAT32:
        if (!(std::abs(value) <= static_cast<double>(FLT_MAX)))
            return std::nullopt;
        return SameBits<std::uint32_t>(static_cast<float>(value));
    case TYPE_FLOAT64:
        return SameBits<std::uint64_t>(value);
    case TYPE_BCD16:
        return IntoBcd(value);
    default:
        return value == 0.0 ? 0U : 1U;
    }
}

LinkValue RegisterText(const LinkPoint& point, const std::uint16_t* registers)
{
    std::string bytes;
    for (int i = 0; i < RegistersOf(point); ++i) {
        const std::uint16_t word = SwapsBytes(point.order) ? Swapped(registers[i]) : registers[i];
        bytes += static_cast<char>(word >> 8);
        bytes += static_cast<char>(word & 0xFF);
    }
    bytes.resize(std::min(bytes.find('\0'), static_cast<std::size_t>(point.length)));
    bytes.erase(bytes.find_last_not_of(' ') + 1);
    return {0.0, TextFromOutside(bytes), true};
}

bool IntoRegisterText(const LinkPoint& point, const LinkValue& value, std::uint16_t* registers)
{
    std::string bytes = EucToUtf8(value.isText ? value.text : NumberText(value.number));
    if (bytes.size() > static_cast<std::size_t>(point.length))
        return false;
    bytes.resize(static_cast<std::size_t>(RegistersOf(point)) * 2, '\0');
    for (int i = 0; i < RegistersOf(point); ++i) {
        const auto byte = [&](int at) {
            return static_cast<unsigned char>(bytes[static_cast<std::size_t>(at)]);
        };
        const auto word = static_cast<std::uint16_t>(byte(2 * i) << 8 | byte(2 * i + 1));
        registers[i] = SwapsBytes(point.order) ? Swapped(word) : word;
    }
    return true;
}

} // namespace

int RegistersOf(const LinkPoint& point)
{
    switch (point.type) {
    case TYPE_INT32:
    case TYPE_UINT32:
    case TYPE_FLOAT32:
        return 2;
    case TYPE_INT64:
    case TYPE_UINT64:
    case TYPE_FLOAT64:
        return 4;
    case TYPE_TEXT:
        return (point.length + 1) / 2;
    default:
        return 1;
    }
}

std::optional<LinkValue> FromRegisters(const LinkPoint& point, const std::uint16_t* registers)
{
    if (point.type == TYPE_TEXT)
        return RegisterText(point, registers);
    const auto number = Number(point, Joined(point, registers, RegistersOf(point)));
    if (!number)
        return std::nullopt;
    const double cell = ToCell(point, *number);
    return std::isfinite(cell) ? std::optional<LinkValue>({cell, "", false}) : std::nullopt;
}

bool IntoRegisters(const LinkPoint& point, const LinkValue& value, std::uint16_t* registers)
{
    if (point.type == TYPE_TEXT)
        return IntoRegisterText(point, value, registers);
    const auto number = NumberOf(value);
    if (!number)
        return false;
    const auto bits = Bits(point, ToPlant(point, *number), Joined(point, registers, RegistersOf(point)));
    if (bits)
        Split(point, *bits, registers, RegistersOf(point));
    return bits.has_value();
}

std::optional<LinkValue> AsHeld(const LinkPoint& point, const LinkValue& value)
{
    std::uint16_t registers[VALUE_REGISTERS_MAX] = {};
    if (!IntoRegisters(point, value, registers))
        return std::nullopt;
    return FromRegisters(point, registers);
}

} // namespace tessary
