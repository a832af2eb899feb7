#include "base/BuiltIn.h"
#include "base/EucText.h"
#include "pattern/ItemParm.h"
#include "tools/ptn/check/Check.h"

#include <algorithm>
#include <map>
#include <set>

namespace ptn
{

namespace
{

class WaysBack
{
  public:
    WaysBack(const std::vector<Pattern>& patterns, const ProjectSource& project)
        : patterns_(patterns), start_(project.profile.value("PTRN", "PTRNSTART")),
          stop_(project.profile.value("PTRN", "PTRNSTOP"))
    {
        for (const Pattern& pattern : patterns)
            for (const PatternItem& item : pattern.items)
                add(pattern, item);
    }

    void check(Diagnostics& diagnostics) const
    {
        for (const Pattern& pattern : patterns_) {
            const std::string name = EucToUtf8(pattern.name);
            if (const auto parent = blocking_.find(pattern.name);
                parent != blocking_.end() && !hasWayOut(pattern))
                diagnostics.error(
                    pattern.place,
                    fmt::format("nothing in the screen '{}' closes it, while it blocks '{}' that opens "
                                "it. Give it a button with the action close, or write 'modeless: yes'.",
                                name, EucToUtf8(parent->second)));
            if (isDeadEnd(pattern)) // every screen begins so, while it is being written
                diagnostics.warning(
                    pattern.place,
                    fmt::format("nothing leads away from the screen '{}' again. Give it a button with "
                                "an action such as open-application.",
                                name));
        }
    }

  private:
    void add(const Pattern& pattern, const PatternItem& item)
    {
        const int action = item.record.ID_Type;
        if (action == ACTION_OPEN_TOP)
            screens_.insert(item.name);
        const bool child = action == ACTION_OPEN_CHILD1 || action == ACTION_OPEN_CHILD2;
        if ((child && isModal(item.name)) || action == ACTION_OPEN_SYSTEM)
            blocking_.emplace(item.name, pattern.name);
        if (action == ACTION_VERSION)
            blocking_.emplace(tessary::VERSION_PATTERN, pattern.name);
        if (action == ACTION_MAINTENANCE)
            blocking_.emplace(tessary::MAINTENANCE_PATTERN, pattern.name);
        if (child || action == ACTION_OPEN_SYSTEM)
            opened_[pattern.name].insert(item.name);
    }

    const Pattern* find(const std::string& name) const
    {
        const auto found = std::find_if(patterns_.begin(), patterns_.end(),
                                        [&](const Pattern& pattern) { return pattern.name == name; });
        return found == patterns_.end() ? nullptr : &*found;
    }

    bool isModal(const std::string& name) const
    {
        const Pattern* pattern = find(name);
        return pattern && pattern->header.Parm1[HEDR_MODELESS] == 0;
    }

    // What a message does is up to the program.
    static bool leads(const PatternItem& item, const std::string& from)
    {
        switch (item.record.ID_Type) {
        case ACTION_OPEN_TOP:
            return item.name != from;
        case ACTION_CLOSE_SELF:
        case ACTION_CLOSE_SYSTEM:
        case ACTION_STOP:
        case ACTION_MESSAGE_SELF:
        case ACTION_MESSAGE_CHILD1:
        case ACTION_MESSAGE_CHILD2:
        case ACTION_MESSAGE_PARENT:
            return true;
        default:
            return false;
        }
    }

    static bool hasWayOut(const Pattern& pattern)
    {
        return std::any_of(pattern.items.begin(), pattern.items.end(),
                           [&](const PatternItem& item) { return leads(item, pattern.name); });
    }

    // A window that the screen opens may lead away as well, except by being closed.
    bool isDeadEnd(const Pattern& pattern) const
    {
        if (!screens_.count(pattern.name) || pattern.name == start_ || pattern.name == stop_ ||
            hasWayOut(pattern))
            return false;
        const auto opened = opened_.find(pattern.name);
        if (opened == opened_.end())
            return true;
        return std::none_of(opened->second.begin(), opened->second.end(), [&](const std::string& name) {
            const Pattern* window = find(name);
            return window &&
                   std::any_of(window->items.begin(), window->items.end(), [&](const PatternItem& item) {
                       const int action = item.record.ID_Type;
                       return action != ACTION_CLOSE_SELF && action != ACTION_CLOSE_SYSTEM &&
                              leads(item, pattern.name);
                   });
        });
    }

    const std::vector<Pattern>& patterns_;
    std::string start_;
    std::string stop_;
    std::set<std::string> screens_;                       ///< that actions open as application windows
    std::map<std::string, std::string> blocking_;         ///< windows over others, and what opens them
    std::map<std::string, std::set<std::string>> opened_; ///< windows over others, by what opens them
};

} // namespace

void CheckWaysBack(const std::vector<Pattern>& patterns, const ProjectSource& project,
                   Diagnostics& diagnostics)
{
    WaysBack(patterns, project).check(diagnostics);
}

} // namespace ptn
