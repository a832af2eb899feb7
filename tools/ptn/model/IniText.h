// The text of a profile file, taken apart as the program's own reader does it.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace ptn
{

struct IniKey {
    std::string name;
    std::string value; ///< all fields, without comment and blanks at the end
    int line = 0;
};

struct IniSection {
    std::string name;
    std::vector<IniKey> keys;
    int line = 0;
};

/// Sections and keys in the order of the file; of a name that occurs twice the first one only.
std::vector<IniSection> ParseIni(const std::string& bytes);

/// The keys of a section by name; none when there is no such section.
std::map<std::string, std::string> IniKeys(const std::string& bytes, const std::string& section);

/// The fields of a value.
std::vector<std::string> IniFields(const std::string& value);

} // namespace ptn
