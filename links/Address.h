// Where a connection goes, as the sources write it.
#pragma once

#include <optional>
#include <string>

namespace tessary
{

/// "tcp://HOST[:PORT]" or "rtu:///dev/NAME[?baud=19200&parity=even&data=8&stop=1]".
struct ModbusAddress {
    bool serial = false;
    std::string host;
    int port = 502;
    std::string device;
    int baud = 19200;
    char parity = 'E'; ///< N, E or O
    int dataBits = 8;
    int stopBits = 1;
};

/// "mqtt://HOST[:PORT]", or "mqtts://..." with encryption.
struct MqttAddress {
    bool encrypted = false;
    std::string host;
    int port = 1883; ///< 8883 with encryption
};

/// @param problem  receives what is wrong and how it is to be written
std::optional<ModbusAddress> ParseModbusAddress(const std::string& text, std::string& problem);
std::optional<MqttAddress> ParseMqttAddress(const std::string& text, std::string& problem);

/// Longest path of a socket that a system takes.
constexpr std::size_t SOCKET_PATH_MAX = 107;

} // namespace tessary
