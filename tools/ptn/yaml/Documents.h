// What stands in a YAML text behind its first document.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <string>
#include <yaml-cpp/yaml.h>

namespace ptn
{

/// Reports what would not be read: further documents that are not empty, and a place where no value ends or
/// begins, which the reader of YAML finds again and again, as the beginning of one empty document after the
/// other.
/// @param first  the text's first document
/// @throws YAML::Exception  where the rest is no YAML
void CheckDocuments(const std::string& file, const std::string& text, const YAML::Node& first,
                    Diagnostics& diagnostics);

} // namespace ptn
