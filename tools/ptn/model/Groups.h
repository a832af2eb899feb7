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
    };

    /// Reads a section "groups": "name: {parameters: ..., items: [...]}". Parameters are a list of names, or
    /// a mapping from names to defaults; items ask for them with "$name".
    void read(const Source& section, Diagnostics& diagnostics);

    /// The group, or null.
    const Group* find(const std::string& name) const;
    std::vector<std::string> names() const;

  private:
    std::map<std::string, Group> groups_;
};

} // namespace ptn
