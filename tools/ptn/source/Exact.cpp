#include "tools/ptn/source/Exact.h"

#include "base/EucText.h"
#include "pattern/ItemParm.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace ptn
{

namespace
{

constexpr int LOWEST = std::numeric_limits<int>::min();
constexpr int HIGHEST = std::numeric_limits<int>::max();

/// No text of a pattern needs more; it bounds what a source can ask for.
constexpr std::size_t LONGEST = 65536;

// A text, or "{bytes: hex}" for one that is no EUC-JP. No terminator may stand in it.
std::optional<std::string> ExactText(const Source& source, const Subject& what, const Place& place,
                                     Diagnostics& diagnostics)
{
    if (!source.isMap()) {
        const auto text = Text(source, what, diagnostics);
        return text ? ToEuc(*text, LONGEST, what, place, diagnostics) : std::nullopt;
    }
    std::string text;
    for (const Entry& entry : Entries(source, what, diagnostics)) {
        const auto bytes = entry.name == "bytes" ? FromHex(entry.value.text()) : std::nullopt;
        if (!bytes || bytes->find('\0') != std::string::npos) {
            diagnostics.error(entry.place,
                              what + ": write 'bytes' as pairs of hexadecimal digits other than 00.");
            return std::nullopt;
        }
        text = *bytes;
    }
    return text;
}

void ReadExactTexts(const Source& source, const Subject& what, const Place& place, PatternItem& item,
                    Diagnostics& diagnostics)
{
    std::vector<Source> members = source.members();
    if (!source.isList())
        members = {source};
    if (members.empty() || members.size() > item.texts.size()) {
        diagnostics.error(
            place, what + " must be one text, or a list of two or three in the order of the languages.");
        return;
    }
    for (std::size_t language = 0; language < item.texts.size(); ++language)
        if (const auto text =
                ExactText(members[std::min(language, members.size() - 1)], what, place, diagnostics))
            item.texts.at(language) = *text;
}

} // namespace

void ReadParm(const Source& source, const Subject& label, std::int32_t* values, Diagnostics& diagnostics)
{
    const Subject what = label + ": 'parm'";
    for (const Entry& entry : Entries(source, what, diagnostics)) {
        const std::optional<int> index = ParseInteger(entry.name);
        if (!index || *index < 0 || *index >= CONT_PARM) {
            diagnostics.error(entry.place, what,
                              " has no entry '{}'. Write the number of a parameter, from 0 to 29.",
                              entry.name);
            continue;
        }
        if (const auto number = Integer(entry.value, LOWEST, HIGHEST, what, diagnostics))
            values[*index] = *number;
    }
}

bool HasExactRect(const Source& source)
{
    return source.isMap() && source.node()["rect"].IsDefined();
}

void ReadExactItem(const Source& source, const Subject& label, PatternItem& item, Diagnostics& diagnostics)
{
    const Subject what = label + ": 'exact'";
    const auto number = [&](const Entry& entry, std::int32_t& target) {
        target = Integer(entry.value, LOWEST, HIGHEST, what + " " + Quoted(entry.name), diagnostics)
                     .value_or(target);
    };
    item.exact = true;
    for (const Entry& entry : Entries(source, what, diagnostics)) {
        if (entry.name == "rect") {
            if (const auto corners = Integers(entry.value, 4, what + " 'rect'", diagnostics))
                std::copy(corners->begin(), corners->end(), item.record.Parm + PARM_X1);
        } else if (entry.name == "parm") {
            ReadParm(entry.value, what, item.record.Parm, diagnostics);
        } else if (entry.name == "text") {
            ReadExactTexts(entry.value, what + " 'text'", entry.place, item, diagnostics);
        } else if (entry.name == "pattern" || entry.name == "code") {
            const auto text =
                ExactText(entry.value, what + " " + Quoted(entry.name), entry.place, diagnostics);
            (entry.name == "pattern" ? item.name : item.code) = text.value_or("");
        } else if (entry.name == "offset") {
            number(entry, item.record.ID_No);
        } else if (entry.name == "action") {
            number(entry, item.record.ID_Type);
        } else if (entry.name == "reserved") {
            number(entry, item.record.UndfFlag);
        } else {
            const std::vector<std::string> names = {"rect", "parm",   "text",   "pattern",
                                                    "code", "offset", "action", "reserved"};
            ReportUnknown(entry, what + ": unknown", names,
                          "Write rect, parm, text, pattern, code, offset, action or reserved.", diagnostics);
        }
    }
}

void ReadExactHeader(const Source& source, HEDRFILE& header, Diagnostics& diagnostics)
{
    const Subject what = "'exact'";
    for (const Entry& entry : Entries(source, what, diagnostics)) {
        if (entry.name == "version" || entry.name == "reserved") {
            std::int32_t& target = entry.name == "version" ? header.Version : header.UndfFlag;
            target = Integer(entry.value, LOWEST, HIGHEST, what + " " + Quoted(entry.name), diagnostics)
                         .value_or(target);
        } else if (entry.name == "bytes") {
            for (const Entry& part : Entries(entry.value, what + " 'bytes'", diagnostics)) {
                const std::optional<int> offset = ParseInteger(part.name);
                const auto bytes = FromHex(part.value.text());
                if (!offset || *offset < 0 || !bytes ||
                    static_cast<std::size_t>(*offset) + bytes->size() > sizeof header)
                    diagnostics.error(part.place, what + " 'bytes': write an offset into the header's 466 "
                                                         "bytes and pairs of hexadecimal digits.");
                else
                    std::memcpy(reinterpret_cast<char*>(&header) + *offset, bytes->data(), bytes->size());
            }
        } else {
            ReportUnknown(entry, what + ": unknown", {"version", "reserved", "bytes"},
                          "Write version, reserved or bytes.", diagnostics);
        }
    }
}

} // namespace ptn
