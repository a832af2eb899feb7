// Values in the messages of MQTT.
#include "base/EucText.h"
#include "links/Json.h"
#include "links/Values.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

namespace tessary
{

namespace
{

using Json = nlohmann::json;

constexpr int DEPTH_MAX = 32;

std::optional<LinkValue> Scaled(const LinkPoint& point, double number)
{
    const double cell = ToCell(point, number);
    if (!std::isfinite(cell))
        return std::nullopt;
    return LinkValue{cell, "", false};
}

std::optional<LinkValue> FromText(const LinkPoint& point, std::string_view text)
{
    if (point.part != PART_TEXT)
        if (const auto number = ParseNumber(text))
            return Scaled(point, *number);
    if (point.part != PART_TEXT && point.part != PART_VALUE)
        return std::nullopt; // a part of the state has no text
    return LinkValue{0.0, TextFromOutside(text), true};
}

std::optional<LinkValue> FromJson(const LinkPoint& point, const Json& json)
{
    if (json.is_string())
        return FromText(point, json.get_ref<const std::string&>());
    if (json.is_boolean())
        return Scaled(point, json.get<bool>() ? 1.0 : 0.0);
    if (json.is_number())
        return Scaled(point, json.get<double>());
    return std::nullopt;
}

/// What a message that is JSON holds for each of the point's cells.
void FromJsonMessage(const LinkPoint& point, const Json& message, MessageValues& values)
{
    const Json::json_pointer pointer(point.json);
    if (!message.contains(pointer))
        return;
    const Json& found = message.at(pointer);
    if (point.count == 1)
        values[0] = FromJson(point, found);
    else if (found.is_array())
        for (std::size_t i = 0; i < std::min(found.size(), values.size()); ++i)
            values[i] = FromJson(point, found[i]);
}

} // namespace

MessageValues FromMessage(const LinkPoint& point, std::string_view message)
{
    MessageValues values(static_cast<std::size_t>(point.count));
    if (message.size() > MESSAGE_MAX)
        return values;
    if (point.json.empty() && point.count == 1) {
        values[0] = FromText(point, message);
        return values;
    }
    if (!JsonDepthWithin(message, DEPTH_MAX))
        return values;
    const Json json = Json::parse(message, nullptr, false);
    try {
        if (!json.is_discarded())
            FromJsonMessage(point, json, values);
    } catch (const Json::exception&) { // an index that is no number, for one
    }
    return values;
}

std::string IntoMessage(const LinkPoint& point, const LinkValue& value)
{
    const auto number = value.isText ? std::nullopt : NumberOf(value);
    const double plant = number ? ToPlant(point, *number) : 0.0;
    const std::string text = EucToUtf8(value.text);
    if (point.json.empty())
        return number ? NumberText(plant) : text;
    Json json;
    try {
        json[Json::json_pointer(point.json)] = number ? Json(plant) : Json(text);
    } catch (const Json::exception&) {
        return "";
    }
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace tessary
