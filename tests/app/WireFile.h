// The table file "Haisenhyo", written byte by byte by the tests' own code.
#pragma once

#include "tests/support/Project.h"

#include <array>
#include <string>
#include <vector>

/// One record: the texts by column on the screen (column 14, the length, stays empty).
struct WireBytes {
    int number = 0;
    int length = 0;
    std::array<std::string, 16> texts{};
};

constexpr int LENGTH_COLUMN = 14;

/// Bytes of each column's field; the columns lie in this order in the record but for 14.
constexpr int WIRE_FIELD_SIZE[16] = {10, 6, 4, 4, 6, 6, 6, 6, 6, 10, 6, 6, 6, 10, 0, 8};

inline std::string wireRecord(const WireBytes& wire)
{
    std::string bytes = int32(wire.number) + int32(wire.length);
    for (std::size_t column = 0; column < 16; column++)
        bytes += field(wire.texts[column], static_cast<std::size_t>(WIRE_FIELD_SIZE[column]));
    return bytes;
}

struct HeaderBytes {
    std::string systemNo, delivery, workNo, boardNo, comment;
};

/// @param count  what the header tells
inline std::string wireHeader(const HeaderBytes& header, int count)
{
    return field(header.systemNo, 10) + field(header.delivery, 22) + field(header.workNo, 16) +
           field(header.boardNo, 6) + field(header.comment, 80) + int32(count);
}

inline std::string wireFile(const HeaderBytes& header, const std::vector<WireBytes>& wires)
{
    std::string bytes = wireHeader(header, static_cast<int>(wires.size()));
    for (const WireBytes& wire : wires)
        bytes += wireRecord(wire);
    return bytes;
}

/// A record whose texts tell column and number: "a7" to "p7" for number 7.
inline WireBytes numberedWire(int number)
{
    WireBytes wire;
    wire.number = number;
    wire.length = number * 10;
    for (std::size_t column = 0; column < 16; column++)
        if (column != LENGTH_COLUMN)
            wire.texts[column] = static_cast<char>('a' + column) + std::to_string(number);
    return wire;
}

inline std::vector<WireBytes> numberedWires(int count)
{
    std::vector<WireBytes> wires;
    for (int number = 1; number <= count; number++)
        wires.push_back(numberedWire(number));
    return wires;
}
