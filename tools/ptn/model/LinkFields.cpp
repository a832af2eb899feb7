#include "tools/ptn/model/LinkFields.h"

#include "base/EucText.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/yaml/YamlText.h"

#include <charconv>
#include <cmath>

namespace ptn
{

namespace
{

using Texts = std::vector<std::string>;

constexpr double ENDLESS = 1e300;

/// What a value is read with.
struct Reader {
    const CodeTable& codes;
    Diagnostics& diagnostics;
    FieldForm form;
    const char* const* choices;
    double minimum;
    double maximum;
};

// --- from the sources ----------------------------------------------------------------------------------

std::string RangeText(const Reader& reader)
{
    const bool below = reader.minimum > -ENDLESS;
    const bool above = reader.maximum < ENDLESS;
    if (below && above)
        return fmt::format(" from {} to {}", reader.minimum, reader.maximum);
    return below ? fmt::format(", {} or more", reader.minimum) : "";
}

bool ReadChoice(const Reader& reader, const Source& source, const Subject& what, int& value)
{
    value = tessary::ChoiceOf(reader.choices, source.text());
    if (value >= 0)
        return true;
    Texts names;
    std::string list;
    for (const char* const* name = reader.choices; *name; ++name) {
        names.emplace_back(*name);
        list += (list.empty() ? "" : ", ") + names.back();
    }
    reader.diagnostics.error(source.place(), what, " can not be '{}'.{} Write one of {}.", source.text(),
                             Suggestion(source.text(), names), list);
    return false;
}

// A number and its unit, such as "200 ms"; none when it is no such.
std::optional<double> Milliseconds(const std::string& text)
{
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [at, problem] = std::from_chars(text.data(), end, number);
    const std::string unit = problem == std::errc() ? std::string(at, end) : "";
    const std::string name = unit.substr(std::min(unit.find_first_not_of(' '), unit.size()));
    const std::pair<const char*, double> units[] = {{"ms", 1}, {"s", 1000}, {"min", 60000}, {"h", 3600000}};
    for (const auto& [known, factor] : units)
        if (name == known)
            return number * factor;
    return std::nullopt;
}

std::string DurationText(double milliseconds)
{
    const std::pair<const char*, double> units[] = {{"h", 3600000}, {"min", 60000}, {"s", 1000}};
    for (const auto& [name, factor] : units)
        if (milliseconds >= factor && std::fmod(milliseconds, factor) == 0)
            return fmt::format("{} {}", milliseconds / factor, name);
    return fmt::format("{} ms", milliseconds);
}

bool ReadDuration(const Reader& reader, const Source& source, const Subject& what, int& value)
{
    const auto milliseconds = Milliseconds(source.text());
    if (!milliseconds || !(*milliseconds >= reader.minimum) || *milliseconds > reader.maximum) {
        reader.diagnostics.error(
            source.place(), what,
            " can not be '{}'. Write a time from {} to {}, such as 200 ms, 5 s or 1 min.", source.text(),
            DurationText(reader.minimum), DurationText(reader.maximum));
        return false;
    }
    value = static_cast<int>(std::lround(*milliseconds));
    return true;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, int& value)
{
    if (reader.form == FieldForm::Choice)
        return ReadChoice(reader, source, what, value);
    if (reader.form == FieldForm::Duration)
        return ReadDuration(reader, source, what, value);
    const auto number = Integer(source, static_cast<int>(reader.minimum), static_cast<int>(reader.maximum),
                                what, reader.diagnostics);
    value = number.value_or(0);
    return number.has_value();
}

bool Read(const Reader& reader, const Source& source, const Subject& what, double& value)
{
    const auto number = Real(source, what, reader.diagnostics);
    if (!number)
        return false;
    if (*number < reader.minimum || *number > reader.maximum) {
        reader.diagnostics.error(source.place(), what, " can not be {}. Write a number{}.", source.text(),
                                 RangeText(reader));
        return false;
    }
    value = *number;
    return true;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, bool& value)
{
    const auto flag = Boolean(source, what, reader.diagnostics);
    value = flag.value_or(false);
    return flag.has_value();
}

bool Read(const Reader& reader, const Source& source, const Subject& what, std::string& value)
{
    const auto text = Text(source, what, reader.diagnostics);
    if (!text)
        return false;
    const auto size = static_cast<double>(text->size());
    if (size < reader.minimum || size > reader.maximum) {
        reader.diagnostics.error(source.place(), what, " has {} bytes. Write {} to {}.", text->size(),
                                 reader.minimum, reader.maximum);
        return false;
    }
    value = *text;
    return true;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, std::vector<double>& values)
{
    if (!source.isList() || source.members().empty()) {
        reader.diagnostics.error(source.place(), what + " must be a list of numbers, such as [3, 5.5].");
        return false;
    }
    bool good = true;
    for (const Source& member : source.members())
        good = Read(reader, member, what, values.emplace_back()) && good;
    return good;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, tessary::ValuePairs& values)
{
    bool good = source.isMap();
    if (!good)
        reader.diagnostics.error(source.place(), what + " must be a mapping, such as { 0: 1, 1: 2 }.");
    for (const Entry& entry : good ? Entries(source, what, reader.diagnostics) : std::vector<Entry>()) {
        const Source key = source.child(YAML::Node(entry.name), entry.place);
        const auto plant = Real(key, what, reader.diagnostics);
        const auto cell = Real(entry.value, what, reader.diagnostics);
        if (plant && cell)
            values.emplace_back(*plant, *cell);
        good = good && plant && cell;
    }
    return good;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, tessary::BitRange& bits)
{
    const std::string text = source.text();
    const std::size_t dash = text.find('-');
    const auto first = ParseInteger(text.substr(0, dash));
    const auto last = dash == std::string::npos ? first : ParseInteger(text.substr(dash + 1));
    if (!first || !last || *first < 0 || *last < *first || *last > 15) {
        reader.diagnostics.error(
            source.place(), what,
            " can not be '{}'. Write one bit, such as 3, or several, such as 4-6, from 0 "
            "to 15.",
            text);
        return false;
    }
    bits = {*first, *last};
    return true;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, tessary::CellName& cell)
{
    const auto found = reader.codes.find(source, what, reader.diagnostics);
    if (found)
        cell = {EucToUtf8(found->code), found->offset};
    return found.has_value();
}

bool Read(const Reader& reader, const Source& source, const Subject& what, tessary::CellFactors& factors)
{
    bool good = true;
    for (const Entry& entry : Entries(source, what, reader.diagnostics)) {
        const auto cell = reader.codes.find(entry.name, what, entry.place, reader.diagnostics);
        const auto factor = Real(entry.value, what + " " + Quoted(entry.name), reader.diagnostics);
        if (cell && factor)
            factors.push_back({{EucToUtf8(cell->code), cell->offset}, *factor});
        good = good && cell && factor;
    }
    return good;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, tessary::LostLook& look)
{
    Texts names;
    for (const tessary::LookPart& part : tessary::LOOK_PARTS)
        names.emplace_back(part.name);
    for (const Entry& entry : Entries(source, what, reader.diagnostics)) {
        const Subject part = what + ": " + Quoted(entry.name);
        if (entry.name == "color") {
            if (const auto color = Integer(entry.value, 0, 3, part, reader.diagnostics))
                look.color = *color;
            continue;
        }
        const int place = static_cast<int>(std::find(names.begin(), names.end(), entry.name) - names.begin());
        if (place == static_cast<int>(names.size()))
            ReportUnknown(entry, what + ": unknown", names, "Write color, blink, disabled and hidden.",
                          reader.diagnostics);
        else if (const auto flag = Boolean(entry.value, part, reader.diagnostics))
            look.*tessary::LOOK_PARTS[static_cast<std::size_t>(place)].member = *flag ? 1 : 0;
    }
    return true;
}

bool Read(const Reader& reader, const Source& source, const Subject& what, Texts& texts)
{
    const auto found = ptn::Texts(source, what, reader.diagnostics);
    if (!found)
        return false;
    bool ok = true;
    for (const std::string& text : *found) {
        const std::string euc = Utf8ToEuc(text, &ok);
        if (!ok || static_cast<double>(euc.size()) > reader.maximum) {
            reader.diagnostics.error(source.place(), what,
                                     ": EUC-JP can not hold '{}' in {} bytes. Use other characters, or less.",
                                     text, reader.maximum);
            return false;
        }
    }
    texts = *found;
    return true;
}

// --- to the sources ------------------------------------------------------------------------------------

std::string ValueText(FieldForm form, const char* const* choices, int value)
{
    if (form == FieldForm::Choice)
        return choices[value];
    return form == FieldForm::Duration ? DurationText(value) : std::to_string(value);
}

std::string ValueText(FieldForm, const char* const*, double value)
{
    return fmt::format("{}", value);
}

std::string ValueText(FieldForm, const char* const*, bool value)
{
    return value ? "yes" : "no";
}

std::string ValueText(FieldForm, const char* const*, const std::string& value)
{
    return YamlScalar(value);
}

std::string ValueText(FieldForm, const char* const*, const std::vector<double>& values)
{
    Texts texts;
    for (const double value : values)
        texts.push_back(fmt::format("{}", value));
    return YamlList(texts);
}

std::string ValueText(FieldForm, const char* const*, const tessary::ValuePairs& values)
{
    Texts texts;
    for (const auto& [plant, cell] : values)
        texts.push_back(fmt::format("{}: {}", plant, cell));
    return YamlMap(texts);
}

std::string ValueText(FieldForm, const char* const*, const tessary::BitRange& bits)
{
    return std::to_string(bits[0]) + (bits[1] > bits[0] ? "-" + std::to_string(bits[1]) : "");
}

std::string ValueText(FieldForm, const char* const*, const tessary::CellName& cell)
{
    return YamlScalar(cell.text());
}

std::string ValueText(FieldForm, const char* const*, const tessary::CellFactors& factors)
{
    Texts texts;
    for (const auto& [cell, factor] : factors)
        texts.push_back(fmt::format("{}: {}", YamlScalar(cell.text()), factor));
    return YamlMap(texts);
}

std::string ValueText(FieldForm, const char* const*, const tessary::LostLook& look)
{
    Texts texts;
    for (const tessary::LookPart& part : tessary::LOOK_PARTS)
        if (const int value = look.*part.member; value >= 0)
            texts.push_back(fmt::format("{}: {}", part.name,
                                        part.maximum > 1 ? std::to_string(value)
                                        : value          ? "yes"
                                                         : "no"));
    return YamlMap(texts);
}

std::string ValueText(FieldForm, const char* const*, const Texts& texts)
{
    return YamlTexts(texts);
}

} // namespace

template <class T>
void ReadField(const tessary::Field<T>& field, const Source& source, const Subject& what,
               const CodeTable& codes, T& to, Diagnostics& diagnostics)
{
    const Reader reader{codes, diagnostics, field.form, field.choices, field.minimum, field.maximum};
    std::visit(
        [&](auto member) {
            std::decay_t<decltype(to.*member)> value{};
            if (Read(reader, source, what, value))
                to.*member = std::move(value);
        },
        field.member);
}

template <class T>
std::vector<std::string> FieldTexts(const T& from, int kind, const std::vector<tessary::Field<T>>& fields)
{
    static const T INITIAL;
    std::vector<std::string> texts;
    for (const tessary::Field<T>& field : fields) {
        if (!field.of(kind))
            continue;
        std::visit(
            [&](auto member) {
                // A choice without a name is no value that could be written either.
                const std::string text = ValueText(field.form, field.choices, from.*member);
                if (text != ValueText(field.form, field.choices, INITIAL.*member))
                    texts.push_back(std::string(field.name) + ": " + text);
            },
            field.member);
    }
    return texts;
}

template <class T> std::vector<std::string> FieldNames(int kind, const std::vector<tessary::Field<T>>& fields)
{
    std::vector<std::string> names;
    for (const tessary::Field<T>& field : fields)
        if (field.of(kind))
            names.emplace_back(field.name);
    return names;
}

std::optional<int> CellNumberOf(const CodeTable& codes, const tessary::CellName& name, int element)
{
    const CodeTable::Row* const row = codes.row(Utf8ToEuc(name.code));
    if (!row || name.offset + element >= row->count)
        return std::nullopt;
    return row->first + name.offset + element;
}

template void ReadField(const tessary::Field<tessary::LinkPoint>&, const Source&, const Subject&,
                        const CodeTable&, tessary::LinkPoint&, Diagnostics&);
template std::vector<std::string> FieldTexts(const tessary::LinkPoint&, int,
                                             const std::vector<tessary::Field<tessary::LinkPoint>>&);
template std::vector<std::string> FieldNames(int, const std::vector<tessary::Field<tessary::LinkPoint>>&);
template void ReadField(const tessary::Field<tessary::LinkConnection>&, const Source&, const Subject&,
                        const CodeTable&, tessary::LinkConnection&, Diagnostics&);
template std::vector<std::string> FieldTexts(const tessary::LinkConnection&, int,
                                             const std::vector<tessary::Field<tessary::LinkConnection>>&);
template std::vector<std::string> FieldNames(int,
                                             const std::vector<tessary::Field<tessary::LinkConnection>>&);

} // namespace ptn
