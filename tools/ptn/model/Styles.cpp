#include "tools/ptn/model/Styles.h"

#include "tools/ptn/common/Names.h"

#include <set>

namespace ptn
{

namespace
{

using Tables = std::vector<SchemaTable<ParmSchema>>;

// The tables whose attributes a style of that name may set.
Tables TablesOf(const std::string& style)
{
    if (style == "window")
        return {HeaderParms()};
    if (style == "item")
        return {CommonParms()};
    if (const ItemClass* type = FindItemClass(style.c_str()))
        return {type->parms, CommonParms()};
    Tables all = {CommonParms()};
    for (const ItemClass& type : ItemClasses())
        all.push_back(type.parms);
    return all;
}

// What a style of items may say beside parameters.
const std::set<std::string> ITEM_KEYS = {"size", "action"};

bool Knows(const Tables& tables, const std::string& name)
{
    for (const auto& table : tables)
        if (FindParm(table, name.c_str()))
            return true;
    return false;
}

std::vector<std::string> Names(const Tables& tables)
{
    std::set<std::string> names = ITEM_KEYS;
    for (const auto& table : tables)
        for (const ParmSchema& parm : table)
            names.insert(parm.name);
    return {names.begin(), names.end()};
}

} // namespace

void Styles::read(const Source& section, Diagnostics& diagnostics)
{
    for (const Entry& style : Entries(section, "'styles'", diagnostics)) {
        Layer layer{"style " + Quoted(style.name), {}};
        const Tables tables = TablesOf(style.name);
        for (const Entry& entry : Entries(style.value, layer.label, diagnostics)) {
            if (Knows(tables, entry.name) || (style.name != "window" && ITEM_KEYS.count(entry.name)))
                layer.entries.push_back(entry);
            else
                ReportUnknown(entry, layer.label + ": unknown attribute", Names(tables),
                              "Correct or remove it.", diagnostics);
        }
        styles_[style.name] = layer;
    }
}

const Layer* Styles::find(const std::string& name) const
{
    const auto place = styles_.find(name);
    return place == styles_.end() ? nullptr : &place->second;
}

std::vector<std::string> Styles::names() const
{
    std::vector<std::string> names;
    for (const auto& style : styles_)
        names.push_back(style.first);
    return names;
}

} // namespace ptn
