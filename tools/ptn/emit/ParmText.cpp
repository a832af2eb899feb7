#include "tools/ptn/emit/ParmText.h"

#include "pattern/RealParm.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>

namespace ptn
{

namespace
{

std::string ChoiceName(const ParmSchema& parm, int value)
{
    for (const ParmChoice& choice : parm.choices)
        if (choice.value == value)
            return choice.name;
    return "";
}

std::string BitNames(const ParmSchema& parm, int value)
{
    std::vector<std::string> names;
    for (const ParmChoice& choice : parm.choices)
        if (value & choice.value)
            names.push_back(choice.name);
    return names.empty() ? "none" : YamlList(names);
}

// Empty when there is no text for the value.
std::string ValueText(const ParmSchema& parm, int value, const Vocabulary& names)
{
    switch (parm.kind) {
    case ParmKind::OptionalColor:
        if (value == -1)
            return "none";
        [[fallthrough]];
    case ParmKind::Color:
        return names.resources.colors().nameOf(value);
    case ParmKind::Font:
        return names.resources.fonts().nameOf(value);
    case ParmKind::Mark:
        return names.resources.marks().nameOf(value);
    case ParmKind::Choice:
        return ChoiceName(parm, value);
    case ParmKind::Flag:
        return value == 0 ? "no" : value == 1 ? "yes" : "";
    case ParmKind::Bits:
        return value & ~parm.maximum ? "" : BitNames(parm, value);
    case ParmKind::Real:
        // A 0 that means none can only be left out.
        if (!parm.accepts(value) || (value == 0 && parm.minimum == 0))
            return "";
        return fmt::format("{}", RealParm(value));
    case ParmKind::Message:
        return value ? names.messages.nameOf(value) : "none";
    case ParmKind::Pixels:
    case ParmKind::Count:
    case ParmKind::Number:
        break;
    }
    return value < parm.minimum || value > parm.maximum ? "" : std::to_string(value);
}

// What the build does with attributes, so that it can be told what is still missing.
class Writer
{
  public:
    Writer(const Parms& before, const Parms& wanted) : now_(before), wanted_(wanted) {}

    bool differs(const ParmSchema& parm) const
    {
        return !std::equal(now_.begin() + parm.index, now_.begin() + parm.index + parm.count,
                           wanted_.begin() + parm.index);
    }

    void write(const ParmSchema& parm, const std::string& text)
    {
        texts.push_back(parm.name + (": " + text));
        std::copy_n(wanted_.begin() + parm.index, parm.count, now_.begin() + parm.index);
        if (parm.enable >= 0)
            now_.at(static_cast<std::size_t>(parm.enable)) = 1;
    }

    int now(int index) const { return now_.at(static_cast<std::size_t>(index)); }
    int wanted(int index) const { return wanted_.at(static_cast<std::size_t>(index)); }

    std::vector<std::string> texts;

  private:
    Parms now_;
    const Parms& wanted_;
};

} // namespace

Parms InitialParms(const std::vector<SchemaTable<ParmSchema>>& tables)
{
    Parms values{};
    for (const auto& table : tables)
        for (const ParmSchema& parm : table)
            std::fill_n(values.begin() + parm.index, parm.count, parm.initial);
    return values;
}

std::optional<std::string> ParmText(const ParmSchema& parm, const std::int32_t* values,
                                    const Vocabulary& names)
{
    std::vector<std::string> texts;
    for (int i = 0; i < parm.count; ++i) {
        const std::string text = ValueText(parm, values[parm.index + i], names);
        if (text.empty())
            return std::nullopt;
        texts.push_back(text);
    }
    const bool same = std::count(texts.begin(), texts.end(), texts[0]) == parm.count;
    // A lone "none" would turn the attribute off instead of giving it the value of no colour.
    if (same && texts[0] == "none" && parm.enable >= 0)
        return parm.count > 1 ? std::optional(YamlList(texts)) : std::nullopt;
    return same ? texts[0] : YamlList(texts);
}

std::vector<std::string> AttributeTexts(const std::vector<SchemaTable<ParmSchema>>& tables,
                                        const Parms& before, const Parms& wanted, const Vocabulary& names,
                                        const std::set<int>& skip, std::vector<std::string>& left)
{
    Writer writer(before, wanted);
    for (const auto& table : tables) {
        for (const ParmSchema& parm : table) {
            if (parm.kind == ParmKind::Flag || skip.count(parm.index) || !writer.differs(parm))
                continue;
            if (const auto text = ParmText(parm, wanted.data(), names))
                writer.write(parm, *text);
        }
    }
    for (const auto& table : tables)
        for (const ParmSchema& parm : table)
            if (parm.kind == ParmKind::Flag && !skip.count(parm.index) && writer.differs(parm))
                if (const auto text = ParmText(parm, wanted.data(), names))
                    writer.write(parm, *text);
    for (int index = 0; index < CONT_PARM; ++index)
        if (!skip.count(index) && writer.now(index) != writer.wanted(index))
            left.push_back(std::to_string(index) + ": " + std::to_string(writer.wanted(index)));
    return writer.texts;
}

} // namespace ptn
