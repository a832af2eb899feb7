// Groups of items that screens use again and again.
#pragma once

#include "tools/ptn/yaml/Source.h"

#include <map>
#include <string>
#include <vector>

namespace ptn
{

class Groups
{
  public:
    struct Group {
        std::map<std::string, Source> parameters; ///< with their defaults; empty ones have to be given
        Source items;
        Place place;
        bool circular = false; ///< it uses itself, which has been reported
    };

    /// Reads a section "groups": "name: {parameters: ..., items: [...]}". Parameters are a list of names, or
    /// a mapping from names to defaults; items ask for them with "$name". A group that uses itself, by others
    /// or not, is reported, used or not.
    /// @param outer  groups that those of the section may use as well; null for none
    void read(const Source& section, const Groups* outer, Diagnostics& diagnostics);

    /// The group, or null.
    const Group* find(const std::string& name) const;
    std::vector<std::string> names() const;

  private:
    void checkCircles(const Groups* outer, Diagnostics& diagnostics);

    std::map<std::string, Group> groups_;
};

} // namespace ptn
