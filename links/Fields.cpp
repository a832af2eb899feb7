#include "links/Fields.h"

namespace tessary
{

const char* const LINK_KIND_NAMES[LINK_KINDS] = {"modbus", "mqtt", "simulate", "socket"};
const char* const PART_NAMES[] = {"value", "text", "color", "blink", "disabled", "hidden", "word", nullptr};
const char* const TYPE_NAMES[] = {"int16",   "uint16",  "int32", "uint32", "int64", "uint64",
                                  "float32", "float64", "bit",   "bcd16",  "text",  nullptr};
const char* const ORDER_NAMES[] = {"ABCD", "CDAB", "BADC", "DCBA", nullptr};
const char* const WAVE_NAMES[] = {"sine",   "ramp",  "triangle", "square", "random",
                                  "walk",   "steps", "constant", "clock",  "counter",
                                  "follow", "flow",  "above",    "below",  nullptr};

const std::array<LookPart, 4> LOOK_PARTS = {{{"color", &LostLook::color, 3},
                                             {"blink", &LostLook::blink, 1},
                                             {"disabled", &LostLook::disabled, 1},
                                             {"hidden", &LostLook::hidden, 1}}};

namespace
{

constexpr unsigned MODBUS = 1U << LINK_MODBUS;
constexpr unsigned MQTT = 1U << LINK_MQTT;
constexpr unsigned SIMULATE = 1U << LINK_SIMULATE;
constexpr unsigned REMOTE = MODBUS | MQTT;
constexpr unsigned POINTS = REMOTE | SIMULATE;

constexpr double ANY = 1e300; ///< no limit
constexpr int HOUR = 3600000;
constexpr int LAST_ADDRESS = 65535;
constexpr int PATH_BYTES = 1000;
constexpr int TOPIC_BYTES = 1000;

} // namespace

const std::vector<Field<LinkPoint>>& PointFields()
{
    using P = LinkPoint;
    static const std::vector<Field<P>> FIELDS = {
        {"data", &P::data, POINTS, 0, 0, "needed", "cell: CODE, or CODE+2; the first one of several"},
        {"count", &P::count, POINTS, 1, LINK_CELLS_MAX, "1",
         "cells that follow each other, with as many values in the plant"},
        {"part", &P::part, POINTS, 0, 0, "value, or text for a text",
         "what of the cell: its number, its text, or a part of the state that items show", FieldForm::Choice,
         PART_NAMES},
        {"write", &P::write, REMOTE, 0, 0, "no", "a change of the cell is sent to the plant"},
        {"period", &P::period, MODBUS | SIMULATE, 10, 24.0 * HOUR, "that of the connection",
         "how often it is asked for; of a wave: its length", FieldForm::Duration},
        {"scale", &P::scale, REMOTE, -ANY, ANY, "1", "cell = plant x scale + offset"},
        {"offset", &P::offset, REMOTE, -ANY, ANY, "0", "see scale"},
        {"values", &P::values, POINTS, 0, 0, "none",
         "{ of the plant: of the cell, ... }; others go unchanged"},
        {"coil", &P::coil, MODBUS, 0, LAST_ADDRESS, "none",
         "address, counted from 0: a bit to read and write"},
        {"discrete", &P::discrete, MODBUS, 0, LAST_ADDRESS, "none", "address: a bit to read"},
        {"holding", &P::holding, MODBUS, 0, LAST_ADDRESS, "none", "address: registers to read and write"},
        {"input", &P::input, MODBUS, 0, LAST_ADDRESS, "none", "address: registers to read"},
        {"type", &P::type, MODBUS, 0, 0, "int16; uint16 with bits; bit for a coil or discrete",
         "what the registers hold", FieldForm::Choice, TYPE_NAMES},
        {"order", &P::order, MODBUS, 0, 0, "ABCD", "of the bytes in the registers; A is the highest one",
         FieldForm::Choice, ORDER_NAMES},
        {"length", &P::length, MODBUS, 1, 246, "needed for a text", "bytes of a text, two in each register"},
        {"bits", &P::bits, MODBUS, 0, 15, "all", "3 or 4-6: these bits of a register, 0 the lowest one"},
        {"topic", &P::topic, MQTT, 1, TOPIC_BYTES, "needed", "of the messages; where it is sent, with write"},
        {"json", &P::json, MQTT, 0, TOPIC_BYTES, "none: the message is the value",
         "JSON pointer, such as /sensor/temperature; the elements of a list, with count"},
        {"read", &P::read, MQTT, 1, TOPIC_BYTES, "none", "with write: the topic that tells the value"},
        {"retain", &P::retain, MQTT, 0, 0, "no", "with write: the broker keeps the value"},
        {"qos", &P::qos, MQTT, 0, 2, "0", "quality of service: 0 once at most, 1 at least once, 2 once"},
        {"wave", &P::wave, SIMULATE, 0, 0, "sine", "how the value changes", FieldForm::Choice, WAVE_NAMES},
        {"from", &P::from, SIMULATE, -ANY, ANY, "0", "lowest or first value; that of constant"},
        {"to", &P::to, SIMULATE, -ANY, ANY, "100", "highest or last value"},
        {"noise", &P::noise, SIMULATE, 0, ANY, "0", "at most so much is added or taken away"},
        {"steps", &P::steps, SIMULATE, -ANY, ANY, "none", "[3, 5, ...]: a period each; no wave is needed"},
        {"times", &P::times, SIMULATE, 0, ANY, "none", "[0, 2.5, ...]: s at which each of the steps begins"},
        {"of", &P::of, SIMULATE, 0, 0, "none", "cell that follow, above and below look at"},
        {"by", &P::by, SIMULATE, 0, 0, "none", "flow: { PUMP+0: 1.5, VALVE: -2 }: change per second x cell"},
        {"rate", &P::rate, SIMULATE, -ANY, ANY, "0", "flow: change per second; follow: at most so much"},
        {"limit", &P::limit, SIMULATE, -ANY, ANY, "0", "above, below: 1 when the cell 'of' is, else 0"},
        {"start", &P::start, SIMULATE, -ANY, ANY, "0", "flow and follow: the first value"},
    };
    return FIELDS;
}

const std::vector<Field<LinkConnection>>& ConnectionFields()
{
    using C = LinkConnection;
    static const std::vector<Field<C>> FIELDS = {
        {"unit", &C::unit, MODBUS, 0, 255, "1", "number of the device"},
        {"period", &C::period, MODBUS | SIMULATE, 100, HOUR, "1 s; simulate 100 ms",
         "how often values are asked for", FieldForm::Duration},
        {"timeout", &C::timeout, REMOTE, 10, 30000, "500 ms; mqtt 5 s", "how long an answer may take",
         FieldForm::Duration},
        {"gap", &C::gap, MODBUS, 0, 120, "8", "unused registers that one request may span"},
        {"status", &C::status, REMOTE, 0, 0, "none",
         "cell: value 0 connecting, 1 connected, 2 lost; its text says what is wrong"},
        {"lost", &C::lost, REMOTE, 0, 0, "as they are",
         "{ color: 3, blink: no, disabled: no, hidden: no }: how items on its cells look while it is lost"},
        {"failed", &C::failed, REMOTE, 0, 80, "a text in Japanese and English",
         "text, or one per language, of the error line for a value that was not written"},
        {"user", &C::user, MQTT, 0, PATH_BYTES, "none", "name for the broker"},
        {"password-file", &C::passwordFile, MQTT, 0, PATH_BYTES, "none",
         "its first line is the password; refused when others may read it", FieldForm::Path},
        {"ca-file", &C::caFile, MQTT, 0, PATH_BYTES, "those of the system",
         "mqtts: certificates that the broker's is verified with", FieldForm::Path},
        {"cert-file", &C::certFile, MQTT, 0, PATH_BYTES, "none", "mqtts: certificate of the panel",
         FieldForm::Path},
        {"key-file", &C::keyFile, MQTT, 0, PATH_BYTES, "none",
         "mqtts: its key; refused when others may read it", FieldForm::Path},
        {"client", &C::client, MQTT, 0, 100, "made up", "what the panel calls itself; no two may be alike"},
        {"online", &C::online, MQTT, 0, TOPIC_BYTES, "none", "topic: 1, retained, while connected; else 0"},
        {"keepalive", &C::keepalive, MQTT, 5000, HOUR, "10 s", "how soon a broker that hangs is noticed",
         FieldForm::Duration},
    };
    return FIELDS;
}

int ChoiceOf(const char* const* choices, const std::string& name)
{
    for (int number = 0; choices[number]; ++number)
        if (name == choices[number])
            return number;
    return -1;
}

} // namespace tessary
