// The pages of the manual and the sources that they speak of, as texts (UTF-8).
#pragma once

#include <string>
#include <vector>

/// The Markdown pages of the repository, relative to its folder, sorted: docs/ with its folders, and those
/// beside it.
std::vector<std::string> Pages();

/// The sources and headers of the framework, relative to the repository's folder, sorted.
std::vector<std::string> FrameworkSources();

/// A file of the repository; empty when it is missing.
std::string TextOf(const std::string& file);

/// Texts between quotation marks, as they are written in a source. Comments are left out.
std::vector<std::string> Literals(const std::string& source);

/// What stands between a line "```<language>" and the next "```", line feeds included.
std::vector<std::string> FencedBlocks(const std::string& page, const std::string& language);
