#include "tools/ptn/model/IniText.h"

#include <algorithm>
#include <sstream>

namespace ptn
{

namespace
{

template <typename Row> bool Has(const std::vector<Row>& rows, const std::string& name)
{
    return std::any_of(rows.begin(), rows.end(), [&](const Row& row) { return row.name == name; });
}

std::string WithoutComment(std::string line)
{
    line.erase(std::min(line.find(';'), line.size()));
    const std::size_t last = line.find_last_not_of(" \t");
    line.erase(last == std::string::npos ? std::min<std::size_t>(1, line.size()) : last + 1);
    return line;
}

} // namespace

std::vector<IniSection> ParseIni(const std::string& bytes)
{
    std::vector<IniSection> sections;
    std::istringstream lines(bytes);
    bool inside = false;
    int number = 0;
    for (std::string text; std::getline(lines, text);) {
        ++number;
        const std::string line = WithoutComment(text);
        const std::size_t equals = line.find('=');
        if (line.compare(0, 1, "[") == 0) {
            const std::string name = line.substr(1, line.find(']') - 1);
            inside = line.find(']') != std::string::npos && !Has(sections, name);
            if (inside)
                sections.push_back({name, {}, number});
        } else if (inside && equals != std::string::npos && equals > 0 &&
                   !Has(sections.back().keys, line.substr(0, equals))) {
            sections.back().keys.push_back({line.substr(0, equals), line.substr(equals + 1), number});
        }
    }
    return sections;
}

std::map<std::string, std::string> IniKeys(const std::string& bytes, const std::string& section)
{
    std::map<std::string, std::string> keys;
    for (const IniSection& part : ParseIni(bytes))
        if (part.name == section)
            for (const IniKey& key : part.keys)
                keys[key.name] = key.value;
    return keys;
}

std::vector<std::string> IniFields(const std::string& value)
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

} // namespace ptn
