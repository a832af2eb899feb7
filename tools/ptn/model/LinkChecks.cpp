#include "tools/ptn/model/LinkChecks.h"

#include "base/Constants.h"
#include "base/EucText.h"
#include "links/Address.h"
#include "links/Values.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/model/LinkFields.h"

#include <algorithm>

namespace ptn
{

using namespace tessary;

namespace
{

/// A point, and what is said about it.
struct Looked {
    const LinkConnection& connection;
    const LinkPoint& point;
    const std::set<std::string>& given;
    const Place& place;
    Diagnostics& diagnostics;

    bool has(const char* field) const { return given.count(field) > 0; }
    template <typename... Values> void say(fmt::format_string<Values...> text, Values&&... values) const
    {
        diagnostics.error(place, LinkName(connection) + ", " + point.data.text(), text,
                          std::forward<Values>(values)...);
    }
};

bool IsTopic(const std::string& topic)
{
    return topic.find_first_of(std::string("+#\0", 3)) == std::string::npos;
}

int Addresses(const Looked& at)
{
    return at.has("coil") + at.has("discrete") + at.has("holding") + at.has("input");
}

void CheckRegisters(const Looked& at)
{
    const LinkPoint& point = at.point;
    const bool isBit = point.area() == AREA_COIL || point.area() == AREA_DISCRETE;
    if (isBit != (point.type == TYPE_BIT)) {
        at.say(": 'type' can not be {} there. {}", TYPE_NAMES[point.type],
               isBit ? "A coil or discrete input is a bit: leave it out."
                     : "Registers hold numbers: name one, or use 'bits'.");
        return;
    }
    if (point.write && (point.area() == AREA_DISCRETE || point.area() == AREA_INPUT))
        at.say(": nobody can write there. Use a coil or holding register, or leave 'write' out.");
    if (point.type == TYPE_TEXT && point.length == 0)
        at.say(" is a text without 'length'. Write how many bytes it has.");
    if (point.type != TYPE_TEXT && at.has("length"))
        at.say(": 'length' is for texts. Leave it out, or write 'type: text'.");
    if (point.bits[0] >= 0 && point.type != TYPE_INT16 && point.type != TYPE_UINT16)
        at.say(": 'bits' are those of one register. Leave 'type' out.");
    const int each = isBit ? 1 : RegistersOf(point);
    const long long end = point.address() + static_cast<long long>(point.count) * each;
    if (end > 65536)
        at.say(" ends at address {}, beyond the last one, 65535. Correct the address, 'type' or 'count'.",
               end - 1);
}

void CheckModbus(const Looked& at)
{
    if (Addresses(at) != 1) {
        at.say(" has {}. Write one of 'coil', 'discrete', 'holding' and 'input', with its address.",
               Addresses(at) ? "more than one address" : "no address");
        return;
    }
    CheckRegisters(at);
    if (at.point.scale == 0)
        at.say(": 'scale' can not be 0. Write by what the plant's number is multiplied.");
    if (at.point.type == TYPE_TEXT && at.point.part != PART_TEXT)
        at.say(": a text can only go to 'part: text'.");
}

void CheckMqtt(const Looked& at)
{
    if (!at.has("topic"))
        at.say(" has no 'topic'. Write the one of its messages.");
    if (!IsTopic(at.point.topic) || !IsTopic(at.point.read))
        at.say(": a topic can not have '+' or '#'. Write the topic of one value.");
    if (!at.point.json.empty() && at.point.json[0] != '/')
        at.say(": 'json' can not be '{}'. Write a JSON pointer, such as /sensor/temperature.", at.point.json);
    for (const char* field : {"read", "retain"})
        if (at.has(field) && !at.point.write)
            at.say(": '{}' is for values that are written. Add 'write: yes', or leave it out.", field);
    if (at.point.write && at.point.count > 1)
        at.say(": several cells can not be written by one message. Write one point for each.");
}

void CheckSimulate(const Looked& at)
{
    const LinkPoint& point = at.point;
    const bool looks = point.wave == WAVE_FOLLOW || point.wave == WAVE_ABOVE || point.wave == WAVE_BELOW;
    if (looks && !point.of.given())
        at.say(": '{}' needs 'of', the cell that it looks at.", WAVE_NAMES[point.wave]);
    if (point.wave == WAVE_STEPS && point.steps.empty())
        at.say(": 'steps' needs its list, such as steps: [3, 5.5].");
    if (!point.times.empty() && point.times.size() != point.steps.size())
        at.say(" has {} 'times' for {} 'steps'. Write one for each.", point.times.size(), point.steps.size());
    else if (!std::is_sorted(point.times.begin(), point.times.end()))
        at.say(": 'times' must go up.");
    if (!at.has("wave") && !at.has("steps") && !at.has("replay"))
        at.say(" has no 'wave'. Write one, such as wave: sine.");
}

} // namespace

Subject LinkName(const LinkConnection& connection)
{
    return "link " + Quoted(connection.name);
}

void CheckConnection(const LinkConnection& connection, const Place& place, Diagnostics& diagnostics)
{
    const Subject what = LinkName(connection);
    std::string remedy;
    if (connection.kind == LINK_MODBUS) {
        const auto address = ParseModbusAddress(connection.address, remedy);
        if (!address)
            diagnostics.error(place, what, ": '{}' is no address. {}", connection.address, remedy);
        else if (address->serial && (connection.unit < 1 || connection.unit > 247))
            diagnostics.error(place, what, ": 'unit' can not be {} on a serial line. Write 1 to 247.",
                              connection.unit);
    } else if (connection.kind == LINK_MQTT) {
        const auto address = ParseMqttAddress(connection.address, remedy);
        if (!address)
            diagnostics.error(place, what, ": '{}' is no address. {}", connection.address, remedy);
        else if (!address->encrypted && !(connection.caFile + connection.certFile).empty())
            diagnostics.error(place,
                              what + ": certificates are for mqtts://. Write mqtts://, or leave them out.");
        if (connection.certFile.empty() != connection.keyFile.empty())
            diagnostics.error(place, what + ": 'cert-file' and 'key-file' go together. Write both, or none.");
        if (!connection.passwordFile.empty() && connection.user.empty())
            diagnostics.error(place, what + ": 'password-file' needs 'user'.");
        if (!IsTopic(connection.online))
            diagnostics.error(place, what + ": 'online' can not have '+' or '#'. Write one topic.");
    } else if (connection.kind == LINK_SOCKET &&
               (connection.address.empty() || connection.address.size() > SOCKET_PATH_MAX)) {
        diagnostics.error(place, what,
                          ": the path of a socket has 1 to {} bytes, such as \"@DIR@/panel.sock\".",
                          SOCKET_PATH_MAX);
    }
}

void CheckPoint(const LinkConnection& connection, const LinkPoint& point, const std::set<std::string>& given,
                const Place& place, Diagnostics& diagnostics)
{
    const Looked at{connection, point, given, place, diagnostics};
    if (connection.kind == LINK_MODBUS)
        CheckModbus(at);
    else if (connection.kind == LINK_MQTT)
        CheckMqtt(at);
    else
        CheckSimulate(at);
    if (point.write && point.part != PART_VALUE && point.part != PART_TEXT)
        at.say(": only 'value' and 'text' can be written. Leave 'write' out, or 'part'.");
    if (point.write) {
        std::set<double> cells;
        for (const auto& [plant, cell] : point.values)
            if (!cells.insert(cell).second)
                at.say(": 'values' give {} twice, so that nobody can tell what is to be written.", cell);
    }
}

void CellWriters::add(const CellName& first, int count, int part, const Subject& what, const Place& place,
                      Diagnostics& diagnostics)
{
    const CodeTable::Row* const row = codes_.row(Utf8ToEuc(first.code));
    if (!row)
        return; // that has been said
    if (first.offset + count > row->count) {
        diagnostics.error(place, what,
                          ": {} cells from {} on are more than code '{}' has, {}. Correct 'count', or extend "
                          "the code.",
                          count, first.text(), row->name, row->count);
        return;
    }
    // The word holds the parts of the state.
    const std::vector<int> parts = part == PART_WORD
                                       ? std::vector<int>{PART_COLOR, PART_BLINK, PART_DISABLED, PART_HIDDEN}
                                       : std::vector<int>{part};
    for (int element = 0; element < count; ++element) {
        const int cell = row->first + first.offset + element;
        if (cell >= DTNO_SYSCALN && cell < DTNO_SYSCALN + 7) {
            diagnostics.error(place, what, ": the clock writes {}. Use another cell.", codes_.nameOf(cell));
            return;
        }
        for (const int one : parts) {
            const auto [other, added] = writers_.emplace(std::make_pair(cell, one), place);
            if (!added) {
                diagnostics.error(
                    place, what, ": the {} of {} has a point already, in {}:{}. Remove one of them.",
                    PART_NAMES[one], codes_.nameOf(cell), other->second.file, other->second.line);
                return;
            }
        }
    }
}

} // namespace ptn
