// Parameters as attributes: the reverse of Attributes.
#pragma once

#include "pattern/ItemTable.h"
#include "tools/ptn/model/Attributes.h"

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ptn
{

using Parms = std::array<std::int32_t, CONT_PARM>;

/// The values that the schema gives when nothing else does.
Parms InitialParms(const std::vector<SchemaTable<ParmSchema>>& tables);

/// The value of an attribute as a source has it; none when its name can not say it.
std::optional<std::string> ParmText(const ParmSchema& parm, const std::int32_t* values,
                                    const Vocabulary& names);

/// "name: value" for each attribute that leads from `before` to `wanted`.
/// @param skip  parameters that are said in another way
/// @param left  receives "index: value" of those that no attribute can say
std::vector<std::string> AttributeTexts(const std::vector<SchemaTable<ParmSchema>>& tables,
                                        const Parms& before, const Parms& wanted, const Vocabulary& names,
                                        const std::set<int>& skip, std::vector<std::string>& left);

} // namespace ptn
