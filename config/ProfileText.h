// What the bytes of a profile mean: lines, sections and keys. For whoever reads or writes profiles; needs
// neither files nor toolkit.
#pragma once

#include "base/Limits.h"

#include <map>
#include <string>
#include <vector>

namespace tessary
{

/// A line without its comment, its trailing blanks (the first character stays) and its terminator.
using ProfileLine = char[PROFILE_LINE_MAX + 1];

/// Takes the line that `bytes` begin with. A NUL byte ends a line as a line feed does.
/// @param size  bytes that are left, the terminator included
/// @param line  receives it
/// @return bytes that the line takes up with all that was left out; 0 when none are left
int TakeProfileLine(const char* bytes, int size, ProfileLine& line);

/// What the line of a section, and the line of a key, begins with: "[section]" and "key=".
std::string SectionBegin(const std::string& section);
std::string KeyBegin(const std::string& key);

/// Whether a line begins with that text.
bool BeginsWith(const char* line, const std::string& text);

/// Whether a line ends the section before it, whatever it begins.
inline bool IsSectionLine(const char* line)
{
    return line[0] == '[';
}

struct ProfileKey {
    std::string name;
    std::string value; ///< all fields
    int line = 0;      ///< from 1, counted by line feeds
};

struct ProfileSection {
    std::string name;
    std::vector<ProfileKey> keys;
    int line = 0; ///< from 1, counted by line feeds
};

/// All sections and keys in the order of the file; of a name that occurs twice the first one only, which is
/// the one that is found by its name.
std::vector<ProfileSection> ParseProfile(const std::string& bytes);

/// The values of a section by key; none when there is no such section.
std::map<std::string, std::string> ProfileValues(const std::string& bytes, const std::string& section);

/// The fields of a value, which commas separate; at least one.
std::vector<std::string> ProfileFields(const std::string& value);

} // namespace tessary
