#include "tools/ptn/model/Tables.h"

#include "base/EucText.h"
#include "config/Edition.h"
#include "config/Profile.h"
#include "config/ProfileField.h"
#include "config/ProfileText.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ptn
{

using namespace tessary;

namespace
{

constexpr int MAX_LIMIT = 0xFFFF;

std::string Field(const std::vector<std::string>& fields, std::size_t no)
{
    return no < fields.size() ? fields[no] : "";
}

// What the program reads from a field that is to be of that kind.
std::string Accepted(FieldKind kind, const std::string& text)
{
    char field[SIZE_FIELD];
    CopyText(field, text.c_str());
    CheckBuffer(kind, field);
    return field;
}

int Number(const std::string& field)
{
    return FieldInteger(Accepted(FIELD_INTEGER, field).c_str());
}

int HexNumber(const std::string& field)
{
    return atoh(Accepted(FIELD_HEXA, field).c_str());
}

std::string HexText(int value)
{
    char text[16];
    std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(value));
    return text;
}

// The number behind a key such as "MESG12"; none for anything else.
std::optional<int> KeyNumber(const std::string& key, const std::string& name)
{
    if (key.compare(0, name.size(), name) != 0)
        return std::nullopt;
    const std::optional<int> number = ParseInteger(key.substr(name.size()));
    const bool own = number && *number >= 1 && *number <= CONT_MESGDATA;
    return own && key == name + std::to_string(*number) ? number : std::nullopt;
}

} // namespace

// --- messages ------------------------------------------------------------------------------------------

void MessageTable::read(const Source& section, const CodeTable& codes, Diagnostics& diagnostics)
{
    for (const NumberedEntry& entry : NumberedEntries(section, {"text"}, names_, diagnostics, {"data"})) {
        const Subject what = "message " + Quoted(entry.name);
        const auto texts = Texts(entry.value, what, diagnostics);
        if (!texts)
            continue;
        Row row;
        row.place = entry.place;
        for (std::size_t language = 0; language < row.texts.size(); ++language) {
            const auto text = ToEuc((*texts)[language], PROFILE_FIELD_MAX, what, entry.place, diagnostics);
            row.texts.at(language) = text.value_or("");
            if (text && text->find_first_of(",;") != std::string::npos)
                diagnostics.error(entry.place, what + " has ',' or ';' in it, which ends a field of the "
                                                      "table. Use the wide characters instead.");
            if (text && !text->empty() && text->back() == ' ')
                diagnostics.error(entry.place,
                                  what + " ends with a blank, which the table does not keep. Remove it.");
        }
        if (const auto data = entry.extras.find("data"); data != entry.extras.end())
            if (const auto cell = codes.find(data->second, what + ": 'data'", diagnostics)) {
                row.code = cell->code;
                row.offset = cell->offset;
            }
        rows_[entry.number] = row;
        std::size_t length = 16 + row.code.size();
        for (const std::string& text : row.texts)
            length += text.size() + 1;
        if (length > PROFILE_LINE_MAX)
            diagnostics.error(
                entry.place,
                what + " is longer than a line of the table with its three languages. Shorten it.");
    }
}

std::string MessageTable::bytes() const
{
    std::string bytes = "[MESGDATA]\n";
    for (const auto& row : rows_)
        bytes += "MESG" + std::to_string(row.first) + "=" + row.second.code + "," +
                 (row.second.code.empty() ? "" : std::to_string(row.second.offset)) + "," +
                 row.second.texts[0] + "," + row.second.texts[1] + "," + row.second.texts[2] + "\n";
    return bytes;
}

void MessageTable::load(const std::string& bytes, const Place& place)
{
    for (const auto& key : ProfileValues(bytes, "MESGDATA")) {
        const std::optional<int> number = KeyNumber(key.first, "MESG");
        if (!number)
            continue;
        const std::vector<std::string> fields = ProfileFields(key.second);
        rows_[*number] = {Field(fields, 0),
                          Number(Field(fields, 1)),
                          {Field(fields, 2), Field(fields, 3), Field(fields, 4)},
                          place};
        names_.add("message-" + std::to_string(*number), *number);
    }
}

std::string MessageTable::yaml() const
{
    std::string text;
    for (const auto& row : rows_) {
        std::vector<std::string> texts;
        for (const std::string& one : row.second.texts)
            texts.push_back(EucToUtf8(one));
        std::vector<std::string> parts = {"no: " + std::to_string(row.first), "text: " + YamlTexts(texts)};
        if (!row.second.code.empty())
            parts.push_back("data: " +
                            YamlScalar(EucToUtf8(row.second.code) + "+" + std::to_string(row.second.offset)));
        text += "  " + YamlScalar(names_.nameOf(row.first)) + ": " + YamlMap(parts) + "\n";
    }
    return text.empty() ? "" : "messages:\n" + text;
}

// --- limits --------------------------------------------------------------------------------------------

LimitForm LimitFormOf(int edition)
{
    return Has(Correction::LimitsBind, edition) ? LimitForm::Decimals : LimitForm::Words;
}

namespace
{

double ReadLimit(const Source& source, const Subject& what, LimitForm form, Diagnostics& diagnostics)
{
    if (form == LimitForm::Words)
        return Integer(source, 0, MAX_LIMIT, what, diagnostics).value_or(0);
    return Real(source, what, diagnostics).value_or(0);
}

std::string LimitText(double limit, LimitForm form)
{
    return form == LimitForm::Words ? HexText(static_cast<int>(limit)) : fmt::format("{}", limit);
}

// As the panel reads it.
double LimitNumber(const std::string& field, LimitForm form)
{
    if (form == LimitForm::Words)
        return HexNumber(field);
    const double limit = std::strtod(field.c_str(), nullptr);
    return std::isfinite(limit) ? limit : 0;
}

} // namespace

void LimitTable::readRow(const Source& source, int& number, const CodeTable& codes,
                         const MessageTable& messages, LimitForm form, Diagnostics& diagnostics)
{
    const std::vector<Entry> entries = Entries(source, "limit " + std::to_string(number), diagnostics);
    for (const Entry& entry : entries)
        if (entry.name == "no")
            number = Integer(entry.value, 1, CONT_LIMTDATA, "a limit: 'no'", diagnostics).value_or(number);
    const Subject what = "limit " + std::to_string(number);
    Row row;
    row.place = source.place();
    int count = 1;
    std::optional<CodeTable::Cell> cell;
    const auto message = [&](const Entry& entry) {
        return messages.names().find(entry.value, what + ": " + Quoted(entry.name), diagnostics).value_or(0);
    };
    const auto limit = [&](const Entry& entry) {
        return ReadLimit(entry.value, what + ": " + Quoted(entry.name), form, diagnostics);
    };
    bool bound = false;
    for (const Entry& entry : entries) {
        bound = bound || entry.name == "data";
        if (entry.name == "no")
            continue;
        if (entry.name == "data")
            cell = codes.find(entry.value, what + ": 'data'", diagnostics);
        else if (entry.name == "count")
            count = std::max(1, Integer(entry.value, 0, 999999, what + ": 'count'", diagnostics).value_or(0));
        else if (entry.name == "minimum")
            row.limits.minimum = limit(entry);
        else if (entry.name == "maximum")
            row.limits.maximum = limit(entry);
        else if (entry.name == "below")
            row.errors[0] = message(entry);
        else if (entry.name == "above")
            row.errors[1] = message(entry);
        else
            ReportUnknown(entry, what + ": unknown",
                          {"data", "count", "minimum", "maximum", "below", "above", "no"},
                          "Write data, count, minimum, maximum, below, above or no.", diagnostics);
    }
    if (!bound && (source.isMap() || source.isEmpty()))
        diagnostics.error(source.place(), what + " has no cells. Name the first one with 'data'.");
    if (!cell)
        return;
    if (form == LimitForm::Decimals && row.limits.minimum > row.limits.maximum)
        diagnostics.error(
            source.place(),
            what + " has a 'minimum' above its 'maximum', so every entry is refused. Exchange them.");
    if (count > cell->count - cell->offset)
        diagnostics.error(source.place(), what, " ends beyond its code. Lower 'count' to {}.",
                          cell->count - cell->offset);
    row.code = cell->code;
    row.offsets = {cell->offset + count - 1, cell->offset};
    if (number > CONT_LIMTDATA || !rows_.emplace(number, row).second)
        diagnostics.error(source.place(), what,
                          " has a number that is taken or above {}. Give it another 'no'.", CONT_LIMTDATA);
}

void LimitTable::read(const Source& section, const CodeTable& codes, const MessageTable& messages,
                      LimitForm form, Diagnostics& diagnostics)
{
    if (!section.isEmpty() && !section.isList())
        diagnostics.error(section.place(), "'limits' must be a list. Begin each limit with '-'.");
    int number = 1;
    for (const Source& member : section.members()) {
        readRow(member, number, codes, messages, form, diagnostics);
        ++number;
    }
}

std::optional<ValueRange> LimitTable::rangeOf(const std::string& code, int offset) const
{
    for (const auto& [number, row] : rows_)
        if (row.code == code && offset >= row.offsets[1] && offset <= row.offsets[0])
            return row.limits;
    return std::nullopt;
}

std::string LimitTable::bytes(LimitForm form) const
{
    std::string bytes = "[LIMTDATA]\n";
    for (const auto& entry : rows_) {
        const Row& row = entry.second;
        bytes += fmt::format("LIMT{}={},{},{},{},{},{},{}\n", entry.first, row.code, row.offsets[0],
                             row.offsets[1], LimitText(row.limits.minimum, form),
                             LimitText(row.limits.maximum, form), row.errors[0], row.errors[1]);
    }
    return bytes;
}

void LimitTable::load(const std::string& bytes, LimitForm form, const Place& place)
{
    for (const auto& key : ProfileValues(bytes, "LIMTDATA")) {
        const std::optional<int> number = KeyNumber(key.first, "LIMT");
        if (!number)
            continue;
        const std::vector<std::string> fields = ProfileFields(key.second);
        rows_[*number] = {Field(fields, 0),
                          {Number(Field(fields, 1)), Number(Field(fields, 2))},
                          {LimitNumber(Field(fields, 3), form), LimitNumber(Field(fields, 4), form)},
                          {Number(Field(fields, 5)), Number(Field(fields, 6))},
                          place};
    }
}

std::string LimitTable::yaml(const MessageTable& messages) const
{
    std::string text;
    for (const auto& entry : rows_) {
        const Row& row = entry.second;
        std::vector<std::string> parts = {
            "no: " + std::to_string(entry.first),
            "data: " + YamlScalar(EucToUtf8(row.code) + "+" + std::to_string(row.offsets[1])),
            "count: " + std::to_string(1LL + row.offsets[0] - row.offsets[1]),
            fmt::format("minimum: {}", row.limits.minimum), fmt::format("maximum: {}", row.limits.maximum)};
        if (row.errors[0])
            parts.push_back("below: " + YamlScalar(messages.names().nameOf(row.errors[0])));
        if (row.errors[1])
            parts.push_back("above: " + YamlScalar(messages.names().nameOf(row.errors[1])));
        text += "  - " + YamlMap(parts) + "\n";
    }
    return text.empty() ? "" : "limits:\n" + text;
}

// --- flags ---------------------------------------------------------------------------------------------

void FlagTable::read(const Source& section, const CodeTable& codes, Diagnostics& diagnostics)
{
    given_ = section.isMap();
    for (const Entry& entry : Entries(section, "'flags'", diagnostics)) {
        const Subject what = "flag " + Quoted(entry.name);
        const std::optional<int> byte = ParseInteger(entry.value.text());
        const auto flag = byte && *byte >= 0 && *byte <= 0xFF
                              ? std::optional<int>(*byte)
                              : std::optional<int>(Boolean(entry.value, what, diagnostics).value_or(false));
        const auto cell = codes.find(entry.name, what, entry.place, diagnostics);
        const CodeTable::Row* row = cell ? codes.row(cell->code) : nullptr;
        if (!row)
            continue;
        const bool one = entry.name.find('+') != std::string::npos || ParseInteger(entry.name);
        for (int no = one ? cell->offset : 0; no < (one ? cell->offset + 1 : row->count); ++no)
            flags_[row->first + no] = *flag;
    }
}

std::string FlagTable::bytes(const CodeTable& codes) const
{
    std::string bytes(static_cast<std::size_t>(codes.cells()), '\0');
    for (const auto& flag : flags_)
        if (flag.first >= 0 && flag.first < codes.cells())
            bytes[static_cast<std::size_t>(flag.first)] = static_cast<char>(flag.second);
    return bytes;
}

void FlagTable::load(const std::string& bytes)
{
    given_ = !bytes.empty();
    for (std::size_t no = 0; no < bytes.size(); ++no)
        if (bytes[no])
            flags_[static_cast<int>(no)] = static_cast<unsigned char>(bytes[no]);
}

std::string FlagTable::yaml(const CodeTable& codes) const
{
    if (!given_)
        return "";
    std::string text;
    for (const auto& flag : flags_)
        if (const std::string name = codes.nameOf(flag.first); !name.empty())
            text += "  " + YamlScalar(name) + ": " + std::to_string(flag.second) + "\n";
    return text.empty() ? "flags: {}\n" : "flags:\n" + text;
}

} // namespace ptn
