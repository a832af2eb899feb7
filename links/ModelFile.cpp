#include "links/ModelFile.h"

#include "links/Fields.h"
#include "links/Json.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace tessary
{

namespace
{

using Json = nlohmann::ordered_json;

constexpr const char* KIND = "tessary-links";
constexpr int VERSION = 1;
constexpr std::size_t BYTES_MAX = 32U << 20U;
constexpr int DEPTH_MAX = 8;
constexpr std::size_t LIST_MAX = 100000;  ///< steps of one point
constexpr std::size_t FACTORS_MAX = 1000; ///< pairs of one point
constexpr std::size_t TEXT_MAX = 1000;
constexpr int SOURCE_LINE_MAX = 10000000;

// --- writing -------------------------------------------------------------------------------------------

template <class Plain> Json ToJson(const Plain& value)
{
    return value;
}

Json ToJson(const CellName& cell)
{
    return Json::array({cell.code, cell.offset});
}

Json ToJson(const CellFactors& factors)
{
    Json list = Json::array();
    for (const auto& [cell, factor] : factors)
        list.push_back(Json::array({cell.code, cell.offset, factor}));
    return list;
}

Json ToJson(const LostLook& look)
{
    Json object = Json::object();
    for (const LookPart& part : LOOK_PARTS)
        if (look.*part.member >= 0)
            object[part.name] = look.*part.member;
    return object;
}

template <class T> void PutFields(Json& to, const T& from, int kind, const std::vector<Field<T>>& fields)
{
    static const T INITIAL;
    for (const Field<T>& field : fields) {
        if (!field.of(kind))
            continue;
        std::visit(
            [&](auto member) {
                const Json value = ToJson(from.*member);
                if (value != ToJson(INITIAL.*member))
                    to[field.name] = value;
            },
            field.member);
    }
}

// --- reading -------------------------------------------------------------------------------------------

/// Limits of a value, and what it may be.
struct Rule {
    double minimum;
    double maximum;
    int choices; ///< how many; 0 when it is no choice
};

bool IsWhole(const Json& json, int minimum, int maximum)
{
    if (!json.is_number_integer())
        return false;
    if (json.is_number_unsigned() && json.get<std::uint64_t>() > static_cast<std::uint64_t>(INT32_MAX))
        return false;
    const auto value = json.get<std::int64_t>();
    return value >= minimum && value <= maximum;
}

bool IsText(const Json& json, std::size_t maximum)
{
    return json.is_string() && json.get_ref<const std::string&>().size() <= maximum &&
           json.get_ref<const std::string&>().find('\0') == std::string::npos;
}

bool Get(const Json& json, const Rule& rule, int& value)
{
    const int last = rule.choices ? rule.choices - 1 : static_cast<int>(rule.maximum);
    if (!IsWhole(json, rule.choices ? 0 : static_cast<int>(rule.minimum), last))
        return false;
    value = json.get<int>();
    return true;
}

bool Get(const Json& json, const Rule& rule, double& value)
{
    if (!json.is_number())
        return false;
    value = json.get<double>();
    return std::isfinite(value) && value >= rule.minimum && value <= rule.maximum;
}

bool Get(const Json& json, const Rule&, bool& value)
{
    if (!json.is_boolean())
        return false;
    value = json.get<bool>();
    return true;
}

bool Get(const Json& json, const Rule& rule, std::string& value)
{
    if (!IsText(json, static_cast<std::size_t>(rule.maximum)))
        return false;
    value = json.get<std::string>();
    return true;
}

bool Get(const Json& json, const Rule& rule, std::vector<double>& values)
{
    if (!json.is_array() || json.size() > LIST_MAX)
        return false;
    for (const Json& one : json)
        if (!Get(one, rule, values.emplace_back()))
            return false;
    return true;
}

bool Get(const Json& json, const Rule&, ValuePairs& values)
{
    constexpr Rule any = {-1e300, 1e300, 0};
    if (!json.is_array() || json.size() > FACTORS_MAX)
        return false;
    for (const Json& one : json) {
        auto& [plant, cell] = values.emplace_back();
        if (!one.is_array() || one.size() != 2 || !Get(one[0], any, plant) || !Get(one[1], any, cell))
            return false;
    }
    return true;
}

bool Get(const Json& json, const Rule& rule, BitRange& bits)
{
    return json.is_array() && json.size() == 2 && Get(json[0], rule, bits[0]) &&
           Get(json[1], rule, bits[1]) && bits[0] <= bits[1];
}

bool GetCell(const Json& json, CellName& cell)
{
    if (!IsText(json[0], 100) || !IsWhole(json[1], 0, LINK_CELLS_MAX * 10))
        return false;
    cell = {json[0].get<std::string>(), json[1].get<int>()};
    return true;
}

bool Get(const Json& json, const Rule&, CellName& cell)
{
    return json.is_array() && json.size() == 2 && GetCell(json, cell) && cell.given();
}

bool Get(const Json& json, const Rule&, CellFactors& factors)
{
    constexpr Rule any = {-1e300, 1e300, 0};
    if (!json.is_array() || json.size() > FACTORS_MAX)
        return false;
    for (const Json& one : json) {
        auto& [cell, factor] = factors.emplace_back();
        if (!one.is_array() || one.size() != 3 || !GetCell(one, cell) || !Get(one[2], any, factor))
            return false;
    }
    return true;
}

bool Get(const Json& json, const Rule&, LostLook& look)
{
    if (!json.is_object())
        return false;
    for (const LookPart& part : LOOK_PARTS)
        if (json.contains(part.name) &&
            !Get(json[part.name], {0, static_cast<double>(part.maximum), 0}, look.*part.member))
            return false;
    return true;
}

bool Get(const Json& json, const Rule& rule, std::vector<std::string>& texts)
{
    if (!json.is_array() || json.size() > 3)
        return false;
    for (const Json& one : json)
        if (!Get(one, rule, texts.emplace_back()))
            return false;
    return true;
}

template <class T> Rule RuleOf(const Field<T>& field)
{
    int count = 0;
    while (field.choices && field.choices[count])
        ++count;
    return {field.minimum, field.maximum, count};
}

/// @return the name of the first field that is not as it has to be; empty when all are
template <class T>
std::string GetFields(const Json& from, T& to, int kind, const std::vector<Field<T>>& fields)
{
    for (const Field<T>& field : fields) {
        if (!field.of(kind) || !from.contains(field.name))
            continue;
        const bool good = std::visit(
            [&](auto member) {
                std::decay_t<decltype(to.*member)> value{};
                if (!Get(from[field.name], RuleOf(field), value))
                    return false;
                to.*member = std::move(value);
                return true;
            },
            field.member);
        if (!good)
            return field.name;
    }
    return "";
}

/// @return what of a point is not as it has to be; empty when nothing is
std::string PointProblem(const LinkPoint& point, int kind)
{
    if (!point.data.given())
        return "data";
    if (kind == LINK_MODBUS) {
        const bool addresses[] = {point.coil >= 0, point.discrete >= 0, point.holding >= 0, point.input >= 0};
        if (addresses[0] + addresses[1] + addresses[2] + addresses[3] != 1)
            return "address";
        const bool isBit = point.area() == AREA_COIL || point.area() == AREA_DISCRETE;
        if (isBit != (point.type == TYPE_BIT) || (point.type == TYPE_TEXT) != (point.length > 0))
            return "type";
        if (point.scale == 0.0)
            return "scale";
    }
    if (kind == LINK_MQTT && point.topic.empty())
        return "topic";
    if (kind == LINK_SIMULATE && !point.times.empty() && point.times.size() != point.steps.size())
        return "times";
    return "";
}

bool ReadPoint(const Json& from, int kind, LinkPoint& point, std::string& error)
{
    if (!from.is_object()) {
        error = "not an object";
        return false;
    }
    error = GetFields(from, point, kind, PointFields());
    if (from.contains("line") && !Get(from["line"], {0, SOURCE_LINE_MAX, 0}, point.line))
        error = "line";
    if (error.empty())
        error = PointProblem(point, kind);
    return error.empty();
}

bool ReadPoints(const Json& list, LinkConnection& connection, int& cells, std::string& error)
{
    if (!list.is_array() || list.size() > static_cast<std::size_t>(LINK_CELLS_MAX)) {
        error = "points";
        return false;
    }
    for (const Json& one : list) {
        LinkPoint& point = connection.points.emplace_back();
        if (!ReadPoint(one, connection.kind, point, error)) {
            error = "point " + std::to_string(connection.points.size()) + ": " + error;
            return false;
        }
        cells += point.count;
        if (cells > LINK_CELLS_MAX) {
            error = "more than " + std::to_string(LINK_CELLS_MAX) + " cells";
            return false;
        }
    }
    return true;
}

bool ReadConnection(const Json& from, LinkConnection& connection, int& cells, std::string& error)
{
    error = "name or kind";
    if (!from.is_object() || !from.contains("name") || !Get(from["name"], {0, 100, 0}, connection.name))
        return false;
    const std::string name = connection.name;
    connection.kind = -1;
    for (int kind = 0; kind < LINK_KINDS; ++kind)
        if (from.contains(LINK_KIND_NAMES[kind])) {
            connection.kind = kind;
            if (!Get(from[LINK_KIND_NAMES[kind]], {0, TEXT_MAX, 0}, connection.address))
                return false;
        }
    if (connection.kind < 0)
        return false;
    error = GetFields(from, connection, connection.kind, ConnectionFields());
    if (from.contains("file") && !Get(from["file"], {0, TEXT_MAX, 0}, connection.file))
        error = "file";
    if (from.contains("line") && !Get(from["line"], {0, SOURCE_LINE_MAX, 0}, connection.line))
        error = "line";
    const bool good =
        error.empty() && (!from.contains("points") || ReadPoints(from["points"], connection, cells, error));
    if (!good)
        error = "connection " + name + ": " + error;
    return good;
}

} // namespace

std::string LinkBytes(const LinkModel& model)
{
    Json file = {{KIND, VERSION}, {"connections", Json::array()}};
    for (const LinkConnection& connection : model) {
        Json one = {{"name", connection.name}, {LINK_KIND_NAMES[connection.kind], connection.address}};
        PutFields(one, connection, connection.kind, ConnectionFields());
        one["file"] = connection.file;
        one["line"] = connection.line;
        Json points = Json::array();
        for (const LinkPoint& point : connection.points) {
            Json& added = points.emplace_back(Json::object());
            PutFields(added, point, connection.kind, PointFields());
            added["line"] = point.line;
        }
        one["points"] = std::move(points);
        file["connections"].push_back(std::move(one));
    }
    return file.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

bool ReadLinks(const std::string& bytes, LinkModel& model, std::string& error)
{
    model.clear();
    if (bytes.size() > BYTES_MAX || !JsonDepthWithin(bytes, DEPTH_MAX)) {
        error = "too large";
        return false;
    }
    const Json file = Json::parse(bytes, nullptr, false);
    if (!file.is_object() || !file.contains(KIND) || !file.contains("connections") ||
        !file["connections"].is_array()) {
        error = "no links";
        return false;
    }
    if (file[KIND] != VERSION) {
        error = "of another version";
        return false;
    }
    if (file["connections"].size() > static_cast<std::size_t>(LINK_CONNECTIONS_MAX)) {
        error = "more than " + std::to_string(LINK_CONNECTIONS_MAX) + " connections";
        return false;
    }
    int cells = 0;
    for (const Json& one : file["connections"]) {
        LinkConnection& connection = model.emplace_back();
        if (!ReadConnection(one, connection, cells, error)) {
            model.clear();
            return false;
        }
    }
    return true;
}

} // namespace tessary
