// Fields of links in the sources: from YAML to the model and back.
#pragma once

#include "links/Fields.h"
#include "tools/ptn/model/CodeTable.h"

#include <string>
#include <vector>

namespace ptn
{

/// Reads the value of a field; what is wrong is reported.
/// @param what  how messages call it
template <class T>
void ReadField(const tessary::Field<T>& field, const Source& source, const Subject& what,
               const CodeTable& codes, T& to, Diagnostics& diagnostics);

/// "name: value" of every field of a kind that has not its default.
template <class T>
std::vector<std::string> FieldTexts(const T& from, int kind, const std::vector<tessary::Field<T>>& fields);

/// The names of all fields of a kind of connections.
template <class T>
std::vector<std::string> FieldNames(int kind, const std::vector<tessary::Field<T>>& fields);

/// The cell of a name that is given; none, and nothing said, when there is no such.
std::optional<int> CellNumberOf(const CodeTable& codes, const tessary::CellName& name, int element);

} // namespace ptn
