#include "tools/ptn/yaml/YamlText.h"

#include <cstdio>
#include <yaml-cpp/yaml.h>

namespace ptn
{

namespace
{

// Stricter than YAML, whose own rule lets through what is hard to see, such as a lone carriage return.
bool IsPlain(const std::string& text)
{
    static const char* const LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    if (text.empty() || text == "null" || text == "Null" || text == "NULL")
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char byte = text[i];
        const bool high = (byte & 0x80) != 0;
        const bool first =
            high || std::string(LETTERS).find(byte) != std::string::npos || (byte >= '0' && byte <= '9');
        const bool later = first || std::string("_-+./() ").find(byte) != std::string::npos;
        if (!(i ? later : first))
            return false;
    }
    // Some blanks and marks beyond ASCII would be taken for the end of a line or of the stream.
    for (const char* special :
         {"\xC2\x85", "\xC2\xA0", "\xE2\x80\xA8", "\xE2\x80\xA9", "\xE3\x80\x80", "\xEF\xBB\xBF"})
        if (text.find(special) != std::string::npos)
            return false;
    return text.find("  ") == std::string::npos && text.back() != ' ';
}

} // namespace

std::string YamlScalar(const std::string& utf8)
{
    if (IsPlain(utf8))
        return utf8;
    YAML::Emitter quoted;
    quoted << YAML::DoubleQuoted << utf8;
    return quoted.c_str();
}

std::string YamlList(const std::vector<std::string>& values)
{
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "" : ", ") + value;
    return "[" + list + "]";
}

std::string YamlList(const std::vector<int>& values)
{
    std::vector<std::string> texts;
    for (const int value : values)
        texts.push_back(std::to_string(value));
    return YamlList(texts);
}

std::string YamlMap(const std::vector<std::string>& parts)
{
    std::string map;
    for (const std::string& part : parts)
        map += (map.empty() ? "" : ", ") + part;
    return map.empty() ? "{}" : "{ " + map + " }";
}

std::string YamlTexts(const std::vector<std::string>& utf8)
{
    std::vector<std::string> texts = utf8;
    while (texts.size() > 1 && texts.back() == texts[texts.size() - 2])
        texts.pop_back();
    if (texts.size() == 1)
        return YamlScalar(texts[0]);
    for (std::string& text : texts)
        text = YamlScalar(text);
    return YamlList(texts);
}

std::string Hex(const std::string& bytes)
{
    std::string text;
    for (const char byte : bytes) {
        char pair[4];
        std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned char>(byte));
        text += pair;
    }
    return text;
}

std::optional<std::string> FromHex(const std::string& text)
{
    if (text.size() % 2 || text.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        return std::nullopt;
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); i += 2)
        bytes += static_cast<char>(std::stoi(text.substr(i, 2), nullptr, 16));
    return bytes;
}

} // namespace ptn
