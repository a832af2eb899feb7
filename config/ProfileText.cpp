#include "config/ProfileText.h"

#include <algorithm>
#include <cstring>

namespace tessary
{

namespace
{

bool IsBlank(char byte)
{
    return byte == ' ' || byte == '\t';
}

template <typename Named> bool Has(const std::vector<Named>& all, const std::string& name)
{
    return std::any_of(all.begin(), all.end(), [&](const Named& one) { return one.name == name; });
}

} // namespace

int TakeProfileLine(const char* bytes, int size, ProfileLine& line)
{
    int taken = 0;
    int length = 0;
    for (const int most = std::min(size, PROFILE_LINE_MAX); taken < most;) {
        const char byte = bytes[taken++];
        if (byte == '\0' || byte == '\n')
            break;
        // The rest of the line is taken behind this terminator, where it can not be seen.
        line[length++] = byte == ';' ? '\0' : byte;
    }
    line[length] = '\0';
    for (std::size_t last = std::strlen(line); last-- > 1 && IsBlank(line[last]);)
        line[last] = '\0';
    return taken;
}

std::string SectionBegin(const std::string& section)
{
    return "[" + section + "]";
}

std::string KeyBegin(const std::string& key)
{
    return key + "=";
}

bool BeginsWith(const char* line, const std::string& text)
{
    return std::strncmp(line, text.c_str(), text.size()) == 0;
}

std::vector<ProfileSection> ParseProfile(const std::string& bytes)
{
    std::vector<ProfileSection> sections;
    bool inside = false;
    int number = 1;
    ProfileLine line;
    const int size = static_cast<int>(bytes.size());
    for (int at = 0, taken = 0; (taken = TakeProfileLine(bytes.data() + at, size - at, line)) > 0;
         at += taken) {
        const std::string text = line;
        const std::size_t bracket = text.find(']');
        const std::size_t equals = text.find('=');
        if (IsSectionLine(line)) {
            const std::string name = text.substr(1, bracket - 1);
            inside = bracket != std::string::npos && !Has(sections, name);
            if (inside)
                sections.push_back({name, {}, number});
        } else if (inside && equals != std::string::npos && equals > 0 &&
                   !Has(sections.back().keys, text.substr(0, equals))) {
            sections.back().keys.push_back({text.substr(0, equals), text.substr(equals + 1), number});
        }
        number += bytes[static_cast<std::size_t>(at + taken) - 1] == '\n';
    }
    return sections;
}

std::map<std::string, std::string> ProfileValues(const std::string& bytes, const std::string& section)
{
    std::map<std::string, std::string> values;
    for (const ProfileSection& one : ParseProfile(bytes))
        if (one.name == section)
            for (const ProfileKey& key : one.keys)
                values[key.name] = key.value;
    return values;
}

std::vector<std::string> ProfileFields(const std::string& value)
{
    std::vector<std::string> fields;
    std::size_t at = 0;
    for (std::size_t comma = value.find(','); comma != std::string::npos; comma = value.find(',', at)) {
        fields.push_back(value.substr(at, comma - at));
        at = comma + 1;
    }
    fields.push_back(value.substr(at));
    return fields;
}

} // namespace tessary
