#include "base/BuiltIn.h"
#include "base/Constants.h"
#include "base/EucText.h"
#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/Names.h"

#include <map>
#include <set>

namespace ptn
{

namespace
{

class Screens
{
  public:
    Screens(const std::vector<Pattern>& patterns, const ProjectSource& project, const Place& whole,
            Diagnostics& diagnostics)
        : patterns_(patterns), project_(project), whole_(whole), diagnostics_(diagnostics)
    {
        for (const Pattern& pattern : patterns)
            byName_.emplace(pattern.name, &pattern);
    }

    void checkProfile();
    void checkActions();
    void checkReach();

  private:
    bool knows(const std::string& name) const
    {
        return !project_.registry || project_.registry->count(name) > 0;
    }
    void checkBuiltin(const Place& place, const Subject& label, const char* name);
    void reach(const std::string& name);

    const std::vector<Pattern>& patterns_;
    const ProjectSource& project_;
    const Place& whole_;
    Diagnostics& diagnostics_;
    std::map<std::string, const Pattern*> byName_;
    std::set<std::string> reached_;
};

void Screens::checkProfile()
{
    for (const char* key : {"PTRNSTART", "PTRNSTOP"}) {
        Place place = whole_;
        const std::string name = project_.profile.value("PTRN", key, &place);
        const Subject what = "profile key " + Quoted(key) + ": ";
        if (name.empty())
            diagnostics_.error(place,
                               what + "no pattern is named, so the panel " +
                                   (key == std::string("PTRNSTART") ? "shows nothing" : "ends unseen") +
                                   ". Write the name of a screen.");
        else if (!byName_.count(name))
            diagnostics_.error(place, what, "no screen is named '{}'. Use the 'name' of a screen.",
                               EucToUtf8(name));
        else if (!knows(name))
            diagnostics_.error(place, what, "the program's registry does not know '{}'. Add it there.",
                               EucToUtf8(name));
    }
}

void Screens::checkBuiltin(const Place& place, const Subject& label, const char* name)
{
    if (!byName_.count(name))
        diagnostics_.error(place, label,
                           ": opens the screen '{}', which is not there. Add it, or take the action away.",
                           EucToUtf8(name));
}

void Screens::checkActions()
{
    for (const Pattern& pattern : patterns_) {
        const std::int32_t* window = pattern.header.Parm1;
        const bool logo = window[HEDR_TITLE_HEIGHT] && window[HEDR_LOGO] && pattern.header.LogoName[0];
        if (logo && window[HEDR_LOGO_LEFT])
            checkBuiltin(pattern.place, "the logo", tessary::VERSION_PATTERN);
        if (logo && window[HEDR_LOGO_RIGHT])
            checkBuiltin(pattern.place, "the logo", tessary::MAINTENANCE_PATTERN);
        for (std::size_t i = 0; i < pattern.items.size(); ++i) {
            const PatternItem& item = pattern.items[i];
            const ActionSchema* action = FindAction(item.record.ID_Type);
            const Subject label = ItemName(item, i);
            if (item.record.ID_Type == ACTION_VERSION)
                checkBuiltin(item.place, label, tessary::VERSION_PATTERN);
            if (item.record.ID_Type == ACTION_MAINTENANCE)
                checkBuiltin(item.place, label, tessary::MAINTENANCE_PATTERN);
            if (!action || !action->opens)
                continue;
            // A missing pattern of a source is reported with the source itself.
            if (!byName_.count(item.name) && (item.exact || !item.place.line))
                diagnostics_.error(
                    item.place, label,
                    ": no screen is named '{}', which this item opens. Correct the name or add the screen.",
                    EucToUtf8(item.name));
            else if (byName_.count(item.name) && !knows(item.name))
                diagnostics_.error(
                    item.place, label,
                    ": the program's registry does not know '{}', so nothing opens. Add it there.",
                    EucToUtf8(item.name));
        }
    }
}

void Screens::reach(const std::string& name)
{
    const auto pattern = byName_.find(name);
    if (pattern == byName_.end() || !reached_.insert(name).second)
        return;
    for (const PatternItem& item : pattern->second->items) {
        const ActionSchema* action = FindAction(item.record.ID_Type);
        if (action && action->opens)
            reach(item.name);
    }
}

// What no action leads to may be opened by the program, which then knows its name.
void Screens::checkReach()
{
    for (const char* key : {"PTRNSTART", "PTRNSTOP"})
        reach(project_.profile.value("PTRN", key));
    reach(tessary::VERSION_PATTERN);
    reach(tessary::MAINTENANCE_PATTERN);
    if (project_.registry)
        for (const Pattern& pattern : patterns_)
            if (knows(pattern.name))
                reach(pattern.name);
    for (const Pattern& pattern : patterns_)
        if (!reached_.count(pattern.name))
            diagnostics_.error(pattern.place,
                               fmt::format("the screen '{}' can not be reached: no action of another screen "
                                           "opens it{}. Add an action, or remove the screen.",
                                           EucToUtf8(pattern.name),
                                           project_.registry
                                               ? " and the program's registry does not know it"
                                               : ", and no 'registry' tells what the program opens"));
}

} // namespace

void CheckScreens(const std::vector<Pattern>& patterns, const ProjectSource& project, const Place& whole,
                  Diagnostics& diagnostics)
{
    Screens screens(patterns, project, whole, diagnostics);
    screens.checkProfile();
    screens.checkActions();
    screens.checkReach();
}

} // namespace ptn
