#include "tools/ptn/model/Resources.h"

#include "base/Limits.h"
#include "tools/ptn/common/Bytes.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/model/MarkArt.h"
#include "tools/ptn/model/MarkImage.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <optional>

namespace ptn
{

namespace
{

constexpr const char* BUILTIN_MARKS[CONT_BUILTINMARK] = {"radio-off", "radio-on", "check-off", "check-on"};

std::optional<COLRDATA> ParseColor(const Source& source)
{
    if (source.isList()) {
        std::vector<int> parts;
        for (const Source& member : source.members())
            if (const std::optional<int> part = ParseInteger(member.text()))
                parts.push_back(*part);
        if (parts.size() != 3 || source.members().size() != 3)
            return std::nullopt;
        return COLRDATA{parts[0], parts[1], parts[2]};
    }
    const std::string text = source.text();
    const std::size_t digits = text.size() / 3;
    if (text.empty() || text[0] != '#' || text.size() != digits * 3 + 1 || (digits != 2 && digits != 4) ||
        text.find_first_not_of("0123456789abcdefABCDEF", 1) != std::string::npos)
        return std::nullopt;
    const auto component = [&](std::size_t no) {
        const int value = std::stoi(text.substr(1 + no * digits, digits), nullptr, 16);
        // Two digits stand for the whole scale: FF is 65535.
        return digits == 2 ? value * 257 : value;
    };
    return COLRDATA{component(0), component(1), component(2)};
}

std::optional<MARKDATA> ReadMark(const NumberedEntry& entry, SIZE size, const std::filesystem::path& folder,
                                 const Subject& what, Diagnostics& diagnostics)
{
    const auto text = Text(entry.value, what, diagnostics);
    if (!text)
        return std::nullopt;
    const Place place = entry.value.place();
    if (entry.key == "art")
        return ReadMarkArt(*text, size, what, place, diagnostics);
    if (entry.key == "image")
        return ReadMarkImage(folder / *text, size, what, place, diagnostics);
    MARKDATA mark{};
    const auto bytes = FromHex(*text);
    if (!bytes || bytes->size() != sizeof mark.mark) {
        diagnostics.error(place, what + ": 'bytes' must be 512 pairs of hexadecimal digits.");
        return std::nullopt;
    }
    std::copy(bytes->begin(), bytes->end(), mark.mark);
    return mark;
}

} // namespace

Resources::Resources()
{
    for (int mark = 0; mark < CONT_BUILTINMARK; ++mark)
        marks_.add(BUILTIN_MARKS[mark], CONT_MARK + mark);
}

void Resources::readColors(const Source& section, Diagnostics& diagnostics)
{
    for (const NumberedEntry& entry : NumberedEntries(section, {"rgb"}, colors_, diagnostics)) {
        const std::optional<COLRDATA> color = ParseColor(entry.value);
        if (color)
            colorData_.at(entry.number) = *color;
        else
            diagnostics.error(
                entry.place,
                fmt::format("color '{}' is no colour. Write it as \"#RRGGBB\", in quotes.", entry.name));
    }
}

void Resources::readFonts(const Source& section, Diagnostics& diagnostics)
{
    for (const NumberedEntry& entry : NumberedEntries(section, {"x11"}, fonts_, diagnostics)) {
        const Subject what = "font " + Quoted(entry.name);
        const auto names = Texts(entry.value, what, diagnostics);
        fontPlaces_.at(entry.number) = entry.place;
        for (std::size_t language = 0; names && language < names->size(); ++language) {
            const auto name =
                ToEuc((*names)[language], tessary::PROFILE_FIELD_MAX, what, entry.place, diagnostics);
            if (!name)
                continue;
            if (name->find_first_of(",;") != std::string::npos) {
                diagnostics.error(entry.place,
                                  what + " has ',' or ';' in its X name, which ends a field of the profile. "
                                         "Write one name, with '*' for what may vary.");
                continue;
            }
            FontDataInit(entry.number, name->c_str());
            const bool missing = name->empty() && entry.value.isList();
            if (!missing && FontSize[entry.number].cy == 0)
                diagnostics.error(entry.place,
                                  what + " has no size in its X name. Write the pixel size after the seventh "
                                         "'-', as in -*-fixed-medium-r-normal--16-*.");
            if (fontCells_.at(entry.number).cy == 0)
                fontCells_.at(entry.number) = FontSize[entry.number];
            fontNames_.at(entry.number).at(language) = *name;
        }
    }
}

void Resources::readMarks(const Source& section, const std::filesystem::path& folder,
                          Diagnostics& diagnostics)
{
    for (const NumberedEntry& entry :
         NumberedEntries(section, {"art", "image", "bytes"}, marks_, diagnostics)) {
        const Subject what = "mark " + Quoted(entry.name) + " (" + std::to_string(entry.number) + ")";
        if (const auto mark = ReadMark(entry, MarkSize(entry.number), folder, what, diagnostics))
            markData_.at(entry.number) = *mark;
    }
}

SIZE Resources::fontCell(int font) const
{
    return font >= 0 && font < CONT_FONT ? fontCells_.at(font) : SIZE{0, 0};
}

std::string Resources::colorBytes() const
{
    std::string bytes;
    for (const COLRDATA& color : colorData_)
        AppendRecord(bytes, color);
    return bytes;
}

std::string Resources::markBytes() const
{
    std::string bytes;
    for (const MARKDATA& mark : markData_)
        AppendRecord(bytes, mark);
    return bytes;
}

} // namespace ptn
