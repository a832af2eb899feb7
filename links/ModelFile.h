// The links of a project as a file.
#pragma once

#include "links/Model.h"

#include <string>

namespace tessary
{

/// The compiled file, "PtrnLink" of a project directory: JSON with nothing but what is not the default.
std::string LinkBytes(const LinkModel& model);

/// Reads it. Nothing in it is believed: kind and version, sizes, names and ranges are looked at.
/// @param error  receives what is wrong, with the place in the file
/// @return false when anything is wrong; `model` is empty then
bool ReadLinks(const std::string& bytes, LinkModel& model, std::string& error);

} // namespace tessary
