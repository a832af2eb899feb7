// The way back: names for the numbers of a compiled project, and the sections as sources have them.
#include "base/EucText.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/model/MarkArt.h"
#include "tools/ptn/model/Resources.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace ptn
{

namespace
{

template <typename Record, std::size_t N>
void LoadRecords(std::array<Record, N>& records, const std::string& bytes)
{
    for (std::size_t no = 0; no < N && (no + 1) * sizeof(Record) <= bytes.size(); ++no)
        std::memcpy(&records.at(no), bytes.data() + no * sizeof(Record), sizeof(Record));
}

template <typename Record> bool IsZero(const Record& record)
{
    const Record zero{};
    return std::memcmp(&record, &zero, sizeof zero) == 0;
}

// In the shortest form that keeps the value.
std::string ColorText(const COLRDATA& color)
{
    const std::array<int, 3> parts = {color.red, color.green, color.blue};
    const auto all = [&](auto fits) { return std::all_of(parts.begin(), parts.end(), fits); };
    if (!all([](int part) { return part >= 0 && part <= 0xFFFF; }))
        return YamlList(std::vector<int>(parts.begin(), parts.end()));
    const bool narrow = all([](int part) { return part % 257 == 0; });
    std::string text = "\"#";
    for (const int part : parts) {
        char digits[8];
        std::snprintf(digits, sizeof digits, narrow ? "%02X" : "%04X", narrow ? part / 257 : part);
        text += digits;
    }
    return text + "\"";
}

// "name: value" or, when the number does not follow the one before, "name: { no: 5, key: value }".
std::string NumberedLine(const std::string& name, int number, int& next, const char* key,
                         const std::string& value)
{
    const bool follows = number == next;
    next = number + 1;
    return "  " + YamlScalar(name) + ": " +
           (follows ? value : YamlMap({"no: " + std::to_string(number), key + (": " + value)})) + "\n";
}

} // namespace

void Resources::loadColors(const std::string& bytes, const std::set<int>& used)
{
    LoadRecords(colorData_, bytes);
    for (int no = 0; no < CONT_COLR; ++no)
        if (used.count(no) || !IsZero(colorData_.at(no)))
            colors_.add("color-" + std::to_string(no), no);
}

void Resources::loadMarks(const std::string& bytes, const std::set<int>& used)
{
    LoadRecords(markData_, bytes);
    for (int no = 0; no < CONT_MARK; ++no)
        if (used.count(no) || !IsZero(markData_.at(no)))
            marks_.add("mark-" + std::to_string(no), no);
}

bool Resources::loadFont(int number, const std::array<std::string, 3>& names)
{
    bool any = false;
    for (const std::string& name : names) {
        FontDataInit(number, name.c_str());
        const SIZE cell = FontSize[number];
        Diagnostics ignored;
        if (!name.empty() && (cell.cy == 0 || name.find_first_of(",;") != std::string::npos ||
                              ToEuc(EucToUtf8(name), name.size(), "", {}, ignored) != name))
            return false;
        if (!name.empty() && !any)
            fontCells_.at(number) = cell;
        any = any || !name.empty();
    }
    if (!any)
        return false;
    fontNames_.at(number) = names;
    fonts_.add("font-" + std::to_string(number), number);
    return true;
}

std::string Resources::colorsYaml() const
{
    std::string text;
    int next = 0;
    for (const auto& name : colors_.names())
        text += NumberedLine(name.second, name.first, next, "rgb", ColorText(colorData_.at(name.first)));
    return text.empty() ? "" : "colors:\n" + text;
}

std::string Resources::fontsYaml() const
{
    std::string text;
    int next = 0;
    for (const auto& name : fonts_.names()) {
        std::vector<std::string> names;
        for (const std::string& font : fontNames_.at(name.first))
            names.push_back(EucToUtf8(font));
        text += NumberedLine(name.second, name.first, next, "x11", YamlTexts(names));
    }
    return text.empty() ? "" : "fonts:\n" + text;
}

std::string Resources::marksYaml() const
{
    std::string text;
    for (const auto& name : marks_.names()) {
        if (name.first >= CONT_MARK)
            continue;
        const MARKDATA& mark = markData_.at(name.first);
        text += "  " + YamlScalar(name.second) + ":\n    no: " + std::to_string(name.first) + "\n";
        const std::optional<std::string> art = MarkArt(mark, MarkSize(name.first));
        if (!art) {
            text += "    bytes: " + Hex(std::string(mark.mark, mark.mark + SIZE_MARK)) + "\n";
            continue;
        }
        text += art->empty() ? "    art: \"\"\n" : "    art: |\n";
        for (std::size_t at = 0; at < art->size(); at = art->find('\n', at) + 1)
            text += "      " + art->substr(at, art->find('\n', at) + 1 - at);
    }
    return text.empty() ? "" : "marks:\n" + text;
}

} // namespace ptn
