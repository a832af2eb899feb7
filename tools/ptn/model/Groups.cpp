#include "tools/ptn/model/Groups.h"

#include "tools/ptn/common/Names.h"

namespace ptn
{

namespace
{

std::map<std::string, Source> Parameters(const Source& source, const Subject& what, Diagnostics& diagnostics)
{
    std::map<std::string, Source> parameters;
    const auto add = [&](const std::string& name, const Place& place, const Source& value) {
        const std::vector<std::string> names = ArgumentNames("${" + name + "}");
        if (names.size() == 1 && names[0] == name)
            parameters[name] = value;
        else
            diagnostics.error(place, what,
                              ": '{}' is no name of a parameter. Use letters, digits and '_' only.", name);
    };
    if (source.isList())
        for (const Source& name : source.members())
            add(name.text(), name.place(), Source());
    else
        for (const Entry& entry : Entries(source, what + ": 'parameters'", diagnostics))
            add(entry.name, entry.place, entry.value);
    return parameters;
}

// Reports every "$name" that no parameter stands for.
void CheckNames(const Source& source, const Subject& what, const std::map<std::string, Source>& parameters,
                Diagnostics& diagnostics)
{
    std::vector<std::string> known;
    for (const auto& parameter : parameters)
        known.push_back(parameter.first);
    for (const std::string& name : ArgumentNames(source.text()))
        if (!parameters.count(name))
            diagnostics.error(source.place(), what, ": no parameter '{}'.{} Add it to 'parameters'.", name,
                              Suggestion(name, known));
    if (source.isList())
        for (const Source& member : source.members())
            CheckNames(member, what, parameters, diagnostics);
    if (source.isMap())
        for (const auto& pair : source.node())
            CheckNames(source.child(pair.second), what, parameters, diagnostics);
}

} // namespace

void Groups::read(const Source& section, Diagnostics& diagnostics)
{
    for (const Entry& entry : Entries(section, "'groups'", diagnostics)) {
        const Subject what = "group " + Quoted(entry.name);
        Group group;
        for (const Entry& part : Entries(entry.value, what, diagnostics)) {
            if (part.name == "parameters")
                group.parameters = Parameters(part.value, what, diagnostics);
            else if (part.name == "items")
                group.items = part.value;
            else
                ReportUnknown(part, what + ": unknown", {"parameters", "items"},
                              "Write 'parameters' and 'items'.", diagnostics);
        }
        if (!group.items.isList())
            diagnostics.error(entry.place, what + " has no list of 'items'. Begin each item with '-'.");
        CheckNames(group.items, what, group.parameters, diagnostics);
        groups_[entry.name] = group;
    }
}

const Groups::Group* Groups::find(const std::string& name) const
{
    const auto place = groups_.find(name);
    return place == groups_.end() ? nullptr : &place->second;
}

std::vector<std::string> Groups::names() const
{
    std::vector<std::string> names;
    for (const auto& group : groups_)
        names.push_back(group.first);
    return names;
}

} // namespace ptn
