// Writing YAML: values of the sources as text.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// A text as a scalar that reads back as the same text, quoted only when it has to be.
/// @param utf8  may hold anything but broken UTF-8
std::string YamlScalar(const std::string& utf8);

/// "[a, b]" of values that are written already.
std::string YamlList(const std::vector<std::string>& values);
std::string YamlList(const std::vector<int>& values);

/// "{ a: 1, b: 2 }" of "key: value" parts that are written already.
std::string YamlMap(const std::vector<std::string>& parts);

/// Texts in three languages in their shortest form: one for all, or a list.
std::string YamlTexts(const std::vector<std::string>& utf8);

/// Bytes as pairs of hexadecimal digits, and back; none when the text is no such pairs.
std::string Hex(const std::string& bytes);
std::optional<std::string> FromHex(const std::string& text);

} // namespace ptn
