// Texts of the sources in the character set of the running system.
#pragma once

#include "tools/ptn/common/Diagnostics.h"

#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// What to do about characters that can not be used: the names of those that look the same, where each has
/// one.
std::string Remedy(const std::vector<std::string>& characters);

/// The first character of a text, in UTF-8, that no font of a panel has; none when they have all.
/// @param euc  EUC-JP
std::optional<std::string> NotInFonts(const std::string& euc);

/// Converts UTF-8 to EUC-JP for a text field of a file.
/// Refused, with an error that names the characters or the length: a character that EUC-JP lacks, a
/// control character, more than `limit` bytes.
/// @param what  how messages call the text
std::optional<std::string> ToEuc(const std::string& utf8, std::size_t limit, const Subject& what,
                                 const Place& place, Diagnostics& diagnostics);

/// A pattern's or a bitmap's name, which is also a file name: not empty, no '/', no leading '.'.
std::optional<std::string> ToEucFileName(const std::string& utf8, std::size_t limit, const Subject& what,
                                         const Place& place, Diagnostics& diagnostics);

} // namespace ptn
