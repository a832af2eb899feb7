// The links of a project: which cells go with which values of the plant. As the authoring tool compiles them,
// and as the panel reads them.
//
// All texts are UTF-8. Members that are enumerations are ints, so that one table of fields (links/Fields.h)
// serves for reading, writing and explaining all of them.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace tessary
{

/// Most connections and cells that the links of a project may have.
constexpr int LINK_CONNECTIONS_MAX = 64;
constexpr int LINK_CELLS_MAX = 100000;

enum LinkKind { LINK_MODBUS, LINK_MQTT, LINK_SIMULATE, LINK_SOCKET };
constexpr int LINK_KINDS = 4;
/// What each of them is called.
extern const char* const LINK_KIND_NAMES[LINK_KINDS];

/// What of a cell a point is.
enum CellPart { PART_VALUE, PART_TEXT, PART_COLOR, PART_BLINK, PART_DISABLED, PART_HIDDEN, PART_WORD };

enum RegisterType {
    TYPE_INT16,
    TYPE_UINT16,
    TYPE_INT32,
    TYPE_UINT32,
    TYPE_INT64,
    TYPE_UINT64,
    TYPE_FLOAT32,
    TYPE_FLOAT64,
    TYPE_BIT,
    TYPE_BCD16,
    TYPE_TEXT
};

/// Where the bytes of a number lie in its registers. A is the highest of four; eight go the same way.
enum ByteOrder { ORDER_ABCD, ORDER_CDAB, ORDER_BADC, ORDER_DCBA };

enum RegisterArea { AREA_COIL, AREA_DISCRETE, AREA_HOLDING, AREA_INPUT };

enum Wave {
    WAVE_SINE,
    WAVE_RAMP,
    WAVE_TRIANGLE,
    WAVE_SQUARE,
    WAVE_RANDOM,
    WAVE_WALK,
    WAVE_STEPS,
    WAVE_CONSTANT,
    WAVE_CLOCK,
    WAVE_COUNTER,
    WAVE_FOLLOW,
    WAVE_FLOW,
    WAVE_ABOVE,
    WAVE_BELOW
};

/// A cell by its code; an empty code is none.
struct CellName {
    std::string code;
    int offset = 0;

    bool given() const { return !code.empty(); }
    std::string text() const { return code + "+" + std::to_string(offset); }
};

using ValuePairs = std::vector<std::pair<double, double>>;
using CellFactors = std::vector<std::pair<CellName, double>>;
using BitRange = std::array<int, 2>;

/// How items look whose value is not to be believed; -1 leaves it as it is.
struct LostLook {
    int color = -1;
    int blink = -1;
    int disabled = -1;
    int hidden = -1;
};

/// A cell, or several that follow each other, and what it goes with.
struct LinkPoint {
    CellName data;
    int count = 1;
    int part = PART_VALUE;
    bool write = false;
    int period = 0; ///< ms; 0: that of the connection
    double scale = 1.0;
    double offset = 0.0;
    ValuePairs values; ///< of the plant, of the cell

    int coil = -1; ///< one of these four is the address
    int discrete = -1;
    int holding = -1;
    int input = -1;
    int type = TYPE_INT16;
    int order = ORDER_ABCD;
    int length = 0;           ///< bytes of a text
    BitRange bits = {-1, -1}; ///< of the register; -1: all

    std::string topic;
    std::string json; ///< JSON pointer; empty: the whole message is the value
    std::string read;
    bool retain = false;
    int qos = 0;

    int wave = WAVE_SINE;
    double from = 0.0;
    double to = 100.0;
    double noise = 0.0;
    double rate = 0.0;
    double limit = 0.0;
    double start = 0.0;
    std::vector<double> steps;
    std::vector<double> times; ///< when each step begins, in seconds; empty: one after each period
    CellName of;
    CellFactors by;

    int line = 0; ///< in the source file of the connection

    /// Where a Modbus point lies, and at which address.
    RegisterArea area() const;
    int address() const;
    /// The topic of MQTT that its value comes from; empty when it is only written.
    const std::string& readTopic() const { return write ? read : topic; }
};

/// A device, a broker, a made-up plant or a socket.
struct LinkConnection {
    std::string name;
    int kind = LINK_MODBUS;
    std::string address; ///< as the source has it behind the kind's name

    int unit = 1;
    int period = 0; ///< ms; 0: what is usual for the kind
    int timeout = 500;
    int gap = 8;
    CellName status;
    LostLook lost;
    std::vector<std::string> failed; ///< what the error line says, one per language; empty: a text of our own

    std::string user;
    std::string passwordFile;
    std::string caFile;
    std::string certFile;
    std::string keyFile;
    std::string client;
    std::string online;
    int keepalive = 10000;

    std::vector<LinkPoint> points;
    std::string file; ///< of the source, for messages
    int line = 0;
};

using LinkModel = std::vector<LinkConnection>;

} // namespace tessary
