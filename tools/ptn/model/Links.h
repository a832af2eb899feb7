// The links of a project: which cells go with which values of the plant.
#pragma once

#include "links/Model.h"
#include "tools/ptn/model/CodeTable.h"

#include <filesystem>
#include <string>

namespace ptn
{

class LinkTable
{
  public:
    /// Reads the section "links": "name: { modbus: ..., points: [...] }" and the like; what can not work is
    /// reported.
    /// @param folder  of the sources, for files that points name
    void read(const Source& section, const CodeTable& codes, const std::filesystem::path& folder,
              Diagnostics& diagnostics);

    bool empty() const { return links_.empty(); }

    /// The file "PtrnLink", and the reverse.
    std::string bytes() const;
    void load(const std::string& bytes, const Place& place, Diagnostics& diagnostics);
    /// Whether two such files have the same links, wherever in the sources those stand.
    static bool same(const std::string& one, const std::string& other);
    /// The section "links".
    std::string yaml() const;

  private:
    tessary::LinkModel links_;
};

} // namespace ptn
