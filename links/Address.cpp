#include "links/Address.h"

#include <charconv>

namespace tessary
{

namespace
{

bool TakePrefix(std::string& text, const std::string& prefix)
{
    if (text.compare(0, prefix.size(), prefix) != 0)
        return false;
    text.erase(0, prefix.size());
    return true;
}

std::optional<int> Whole(const std::string& text, int minimum, int maximum)
{
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto [at, problem] = std::from_chars(text.data(), end, value);
    if (text.empty() || at != end || problem != std::errc() || value < minimum || value > maximum)
        return std::nullopt;
    return value;
}

/// HOST[:PORT]; an IPv6 address stands in brackets.
bool SplitHost(std::string text, std::string& host, int& port)
{
    if (!text.empty() && text.back() == '/')
        text.pop_back();
    const std::size_t bracket = text.find(']');
    const bool bracketed = !text.empty() && text[0] == '[' && bracket != std::string::npos;
    const std::size_t colon = text.find(':', bracketed ? bracket : 0);
    host = bracketed ? text.substr(1, bracket - 1) : text.substr(0, colon);
    if (host.empty() || host.find_first_of(" /?#@") != std::string::npos)
        return false;
    if (colon == std::string::npos)
        return !bracketed || bracket + 1 == text.size();
    const auto number = Whole(text.substr(colon + 1), 1, 65535);
    port = number.value_or(0);
    return number.has_value();
}

bool SetOption(ModbusAddress& address, const std::string& name, const std::string& value)
{
    if (name == "parity") {
        address.parity = value == "none" ? 'N' : value == "even" ? 'E' : value == "odd" ? 'O' : '?';
        return address.parity != '?';
    }
    const bool baud = name == "baud";
    int* const member = baud             ? &address.baud
                        : name == "data" ? &address.dataBits
                        : name == "stop" ? &address.stopBits
                                         : nullptr;
    if (!member)
        return false;
    const auto number = Whole(value,
                              baud             ? 110
                              : name == "data" ? 7
                                               : 1,
                              baud             ? 4000000
                              : name == "data" ? 8
                                               : 2);
    *member = number.value_or(0);
    return number.has_value();
}

bool SetOptions(ModbusAddress& address, const std::string& text)
{
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('&', at), text.size());
        const std::string option = text.substr(at, end - at);
        const std::size_t equal = option.find('=');
        if (equal == std::string::npos ||
            !SetOption(address, option.substr(0, equal), option.substr(equal + 1)))
            return false;
        at = end + 1;
    }
    return true;
}

} // namespace

std::optional<ModbusAddress> ParseModbusAddress(const std::string& text, std::string& problem)
{
    std::string rest = text;
    ModbusAddress address;
    if (TakePrefix(rest, "tcp://")) {
        if (SplitHost(rest, address.host, address.port))
            return address;
    } else if (TakePrefix(rest, "rtu://")) {
        address.serial = true;
        const std::size_t mark = rest.find('?');
        address.device = rest.substr(0, mark);
        const bool good = mark == std::string::npos || SetOptions(address, rest.substr(mark + 1));
        if (good && address.device.size() > 1 && address.device[0] == '/')
            return address;
    }
    problem = "Write tcp://HOST:PORT, or rtu:///dev/NAME?baud=19200&parity=even&stop=1 for a serial line.";
    return std::nullopt;
}

std::optional<MqttAddress> ParseMqttAddress(const std::string& text, std::string& problem)
{
    std::string rest = text;
    MqttAddress address;
    if (TakePrefix(rest, "mqtts://")) {
        address.encrypted = true;
        address.port = 8883;
    } else if (!TakePrefix(rest, "mqtt://")) {
        rest.clear();
    }
    if (SplitHost(rest, address.host, address.port))
        return address;
    problem = "Write mqtt://HOST:PORT, or mqtts://HOST:PORT with encryption.";
    return std::nullopt;
}

} // namespace tessary
