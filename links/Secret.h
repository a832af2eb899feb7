// Files that nobody else may read.
#pragma once

#include <string>

namespace tessary
{

/// Whether a file is a regular one, of this user or the administrator, that no group and nobody else can
/// read.
bool IsSecret(const std::string& file);

/// The first line of such a file.
/// @return false when it is none, can not be read, or is longer than a password
bool ReadSecret(const std::string& file, std::string& secret);

} // namespace tessary
