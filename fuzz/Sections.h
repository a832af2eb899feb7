// A section of a project as the authoring tool knows it, in a target.
#pragma once

#include <string>

namespace fuzz
{

/// Loads the file of a section from bytes as "ptn dump" does, writes it as sources and as a file again, and
/// reads the sources.
/// @param name  of the section, such as "colors"
void LoadSection(const char* name, const std::string& bytes);

} // namespace fuzz
