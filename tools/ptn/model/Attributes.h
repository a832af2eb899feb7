// Attributes of items and windows: from their names in the sources to Parm.
#pragma once

#include "pattern/ItemTable.h"
#include "tools/ptn/model/Resources.h"
#include "tools/ptn/yaml/Source.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ptn
{

/// Some attributes that are set together: a style, or an item's own. Later layers override earlier ones.
struct Layer {
    Subject label; ///< how messages call it
    std::vector<Entry> entries;
};

/// What the names in the values of attributes stand for.
struct Vocabulary {
    const Resources& resources;
    const NameTable& messages;
};

/// Fills one Parm array from layers of attributes.
class Attributes
{
  public:
    /// @param parms   what the attributes of this type are called; several tables may share one array
    /// @param values  CONT_PARM entries, owned by the caller; the defaults are put in at once
    Attributes(std::vector<SchemaTable<ParmSchema>> parms, std::int32_t* values, const Vocabulary& names,
               Diagnostics& diagnostics);

    /// The attribute of that name; null when this type has none.
    const ParmSchema* find(const std::string& name) const;
    /// All names, for suggestions.
    std::vector<std::string> names() const;

    /// Puts the attributes of a layer over those before; every entry must have a name that `find` knows.
    /// A value sets the flag that enables it, "none" clears it; a flag of the same layer has the last word.
    void apply(const Layer& layer);

  private:
    void set(const ParmSchema& parm, const Entry& entry, const Subject& label);
    std::optional<int> value(const ParmSchema& parm, const Source& source, const Subject& what);
    std::optional<int> real(const ParmSchema& parm, const Source& source, const Subject& what);
    std::optional<int> choice(const ParmSchema& parm, const Source& source, const Subject& what);
    std::optional<int> bits(const ParmSchema& parm, const Source& source, const Subject& what);

    std::vector<SchemaTable<ParmSchema>> parms_;
    std::int32_t* values_;
    Vocabulary names_;
    Diagnostics& diagnostics_;
};

} // namespace ptn
