// What can not work in the links of a project.
#pragma once

#include "links/Model.h"
#include "tools/ptn/model/CodeTable.h"

#include <map>
#include <set>
#include <string>
#include <utility>

namespace ptn
{

/// How messages call a connection.
Subject LinkName(const tessary::LinkConnection& connection);

/// Looks at a connection whose fields have been read, without its points.
void CheckConnection(const tessary::LinkConnection& connection, const Place& place, Diagnostics& diagnostics);

/// Looks at one of its points.
/// @param given  the names of the fields that the source has
void CheckPoint(const tessary::LinkConnection& connection, const tessary::LinkPoint& point,
                const std::set<std::string>& given, const Place& place, Diagnostics& diagnostics);

/// Who writes which parts of which cells.
class CellWriters
{
  public:
    explicit CellWriters(const CodeTable& codes) : codes_(codes) {}

    /// Adds a writer of several cells, and reports cells that are not there, that the clock writes, and those
    /// that have one already.
    void add(const tessary::CellName& first, int count, int part, const Subject& what, const Place& place,
             Diagnostics& diagnostics);

  private:
    const CodeTable& codes_;
    std::map<std::pair<int, int>, Place> writers_; ///< of a cell and part
};

} // namespace ptn
