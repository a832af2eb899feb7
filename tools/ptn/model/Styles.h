// Named groups of attributes, and the defaults of item types and windows.
#pragma once

#include "tools/ptn/model/Attributes.h"

#include <map>
#include <string>
#include <vector>

namespace ptn
{

class Styles
{
  public:
    /// Reads a section "styles". A style named "item" holds defaults of all items, one named after an item
    /// type those of the type, "window" those of windows; others are asked for with "style: name". Beside
    /// parameters, styles of items may have "size" and "action".
    void read(const Source& section, Diagnostics& diagnostics);

    /// The style, or null.
    const Layer* find(const std::string& name) const;
    std::vector<std::string> names() const;

  private:
    std::map<std::string, Layer> styles_;
};

} // namespace ptn
