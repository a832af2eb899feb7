// Paths as texts. A null text counts as an empty one.
#pragma once

namespace tessary
{

/// Longest path in bytes that MakePath and SplitPath produce; their results need SIZE_PATH + 1 bytes.
constexpr int SIZE_PATH = 256;

} // namespace tessary

/// Joins directory, name and extension: "dir/name.ext". An empty name gives the directory itself, an empty
/// directory the bare name; the extension may be given with or without its dot.
/// @param path  receives the path, cut at SIZE_PATH bytes; SIZE_PATH + 1 bytes; may be one of the parts
void MakePath(char* path, const char* dir, const char* name, const char* ext);

/// Splits a path: "/x/y/name.tar.gz" into "/x/y", "name" and "tar.gz". The directory is "." when the path
/// has none and "/" for a file in the root; the name ends at its first dot; of two dots in a row the
/// second is skipped.
/// @param dir, base, ext  receive the parts, each cut at SIZE_PATH bytes; SIZE_PATH + 1 bytes each; null
///                        for a part that is not wanted
void SplitPath(const char* path, char* dir, char* base, char* ext);
