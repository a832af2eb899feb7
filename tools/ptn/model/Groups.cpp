#include "tools/ptn/model/Groups.h"

#include "tools/ptn/common/Names.h"

#include <set>

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

// The groups that a part of a group uses by their names.
void AddUsed(const Source& source, std::set<std::string>& used)
{
    for (const Source& member : source.members())
        AddUsed(member, used);
    if (source.isMap())
        for (const auto& pair : source.node()) {
            const Source value = source.child(pair.second);
            if (pair.first.IsScalar() && pair.first.Scalar() == "use" && value.isText())
                used.insert(value.text());
            else
                AddUsed(value, used);
        }
}

/// Looks for the way from a group back to itself.
class Circle
{
  public:
    Circle(const Groups& groups, const Groups* outer) : groups_(groups), outer_(outer) {}

    /// The names from the group on, itself at the end; empty without a way back.
    std::vector<std::string> from(const std::string& name)
    {
        start_ = name;
        return follows(name) ? way_ : std::vector<std::string>();
    }

  private:
    bool follows(const std::string& name)
    {
        const Groups::Group* group = groups_.find(name);
        if (!group && outer_)
            group = outer_->find(name);
        if (!group || !seen_.insert(name).second)
            return false;
        way_.push_back(name);
        std::set<std::string> used;
        AddUsed(group->items, used);
        for (const std::string& next : used) {
            if (next == start_) {
                way_.push_back(next);
                return true;
            }
            if (follows(next))
                return true;
        }
        way_.pop_back();
        return false;
    }

    const Groups& groups_;
    const Groups* outer_;
    std::string start_;
    std::set<std::string> seen_;
    std::vector<std::string> way_;
};

} // namespace

void Groups::checkCircles(const Groups* outer, Diagnostics& diagnostics)
{
    for (auto& [name, group] : groups_) {
        const std::vector<std::string> way = Circle(*this, outer).from(name);
        if (way.empty() || group.circular)
            continue;
        std::string list;
        for (const std::string& one : way) {
            list += (list.empty() ? "" : " > ") + one;
            if (const auto own = groups_.find(one); own != groups_.end())
                own->second.circular = true;
        }
        diagnostics.error(group.place, "group " + Quoted(name),
                          " uses itself: {}. A group can not use itself. Take one of these uses away.", list);
    }
}

void Groups::read(const Source& section, const Groups* outer, Diagnostics& diagnostics)
{
    for (const Entry& entry : Entries(section, "'groups'", diagnostics)) {
        const Subject what = "group " + Quoted(entry.name);
        Group group;
        group.place = entry.place;
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
    checkCircles(outer, diagnostics);
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
