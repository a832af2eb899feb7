#include "tools/ptn/model/Attributes.h"

#include "pattern/RealParm.h"
#include "tools/ptn/common/Names.h"

namespace ptn
{

Attributes::Attributes(std::vector<SchemaTable<ParmSchema>> parms, std::int32_t* values,
                       const Vocabulary& names, Diagnostics& diagnostics)
    : parms_(std::move(parms)), values_(values), names_(names), diagnostics_(diagnostics)
{
    for (const auto& table : parms_)
        for (const ParmSchema& parm : table)
            for (int variant = 0; variant < parm.count; ++variant)
                values_[parm.index + variant] = parm.initial;
}

const ParmSchema* Attributes::find(const std::string& name) const
{
    for (const auto& table : parms_)
        if (const ParmSchema* parm = FindParm(table, name.c_str()))
            return parm;
    return nullptr;
}

std::vector<std::string> Attributes::names() const
{
    std::vector<std::string> names;
    for (const auto& table : parms_)
        for (const ParmSchema& parm : table)
            names.push_back(parm.name);
    return names;
}

void Attributes::apply(const Layer& layer)
{
    for (const bool flags : {false, true})
        for (const Entry& entry : layer.entries)
            if (const ParmSchema* parm = find(entry.name); parm && (parm->kind == ParmKind::Flag) == flags)
                set(*parm, entry, layer.label);
}

void Attributes::set(const ParmSchema& parm, const Entry& entry, const Subject& label)
{
    const Subject what = label + ": " + Quoted(parm.name);
    if (parm.enable >= 0 && entry.value.text() == "none") {
        values_[parm.enable] = 0;
        return;
    }
    const bool variants = parm.count > 1 && entry.value.isList();
    const std::vector<Source> members = entry.value.members();
    if (variants && members.size() != static_cast<std::size_t>(parm.count)) {
        diagnostics_.error(entry.place, what, " has {} values. Write one for all states, or four.",
                           members.size());
        return;
    }
    if (entry.value.isEmpty()) {
        diagnostics_.error(entry.place, what + " has no value. Write one, or remove the line.");
        return;
    }
    for (int variant = 0; variant < parm.count; ++variant) {
        const Source& source = variants ? members[static_cast<std::size_t>(variant)] : entry.value;
        if (const std::optional<int> number = value(parm, source, what))
            values_[parm.index + variant] = *number;
    }
    if (parm.enable >= 0)
        values_[parm.enable] = 1;
}

std::optional<int> Attributes::value(const ParmSchema& parm, const Source& source, const Subject& what)
{
    switch (parm.kind) {
    case ParmKind::OptionalColor:
        if (source.text() == "none")
            return -1;
        [[fallthrough]];
    case ParmKind::Color:
        return names_.resources.colors().find(source, what, diagnostics_);
    case ParmKind::Font:
        return names_.resources.fonts().find(source, what, diagnostics_);
    case ParmKind::Mark:
        return names_.resources.marks().find(source, what, diagnostics_);
    case ParmKind::Flag:
        return Boolean(source, what, diagnostics_);
    case ParmKind::Choice:
        return choice(parm, source, what);
    case ParmKind::Bits:
        return bits(parm, source, what);
    case ParmKind::Real:
        return real(parm, source, what);
    case ParmKind::Message:
        if (source.text() == "none")
            return 0;
        return names_.messages.find(source, what, diagnostics_);
    case ParmKind::Pixels:
    case ParmKind::Count:
    case ParmKind::Number:
        break;
    }
    return Integer(source, parm.minimum, parm.maximum, what, diagnostics_);
}

std::optional<int> Attributes::real(const ParmSchema& parm, const Source& source, const Subject& what)
{
    const std::optional<double> number = Real(source, what, diagnostics_);
    if (!number)
        return std::nullopt;
    if (const std::int32_t bits = ParmOfReal(static_cast<float>(*number)); parm.minimum < 0 || bits > 0)
        return bits;
    diagnostics_.error(source.place(), what, " is {}. Write a number above 0, or remove the line.",
                       source.text());
    return std::nullopt;
}

std::optional<int> Attributes::choice(const ParmSchema& parm, const Source& source, const Subject& what)
{
    const std::optional<int> number = ParseInteger(source.text());
    std::vector<std::string> names;
    std::string list;
    for (const ParmChoice& choice : parm.choices) {
        if (source.text() == choice.name || number == choice.value)
            return choice.value;
        names.push_back(choice.name);
        list += (list.empty() ? "" : ", ") + names.back();
    }
    diagnostics_.error(source.place(), what, " can not be '{}'.{} Write one of: {}.", source.text(),
                       Suggestion(source.text(), names), list);
    return std::nullopt;
}

std::optional<int> Attributes::bits(const ParmSchema& parm, const Source& source, const Subject& what)
{
    if (const std::optional<int> number = ParseInteger(source.text());
        number && (*number & ~parm.maximum) == 0)
        return number;
    std::vector<Source> members = source.members();
    if (!source.isList() && source.text() != "none")
        members = {source};
    int sum = 0;
    for (const Source& member : members) {
        const std::optional<int> bit = choice(parm, member, what);
        if (!bit)
            return std::nullopt;
        sum |= *bit;
    }
    return sum;
}

} // namespace ptn
