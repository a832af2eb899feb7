// Path texts without a length limit, for the file helpers of this folder.
#pragma once

#include <cstddef>
#include <string>

namespace tessary
{

/// The text, or an empty one for null.
std::string TextOf(const char* text);

/// The longest start of `text` of at most `limit` bytes that splits no two-byte character.
std::string CutText(const std::string& text, std::size_t limit);

/// Joins as MakePath does, without cutting: a cut path could name another file, which must not be
/// read, overwritten or deleted in place of the one that was meant.
std::string JoinPath(const char* dir, const char* name, const char* ext = "");

} // namespace tessary
