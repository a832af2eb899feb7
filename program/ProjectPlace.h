// Where the project is that the program without code is asked to show.
#pragma once

#include <filesystem>
#include <string>

namespace tessary
{

/// The profile that an argument of the command line means.
struct ProjectPlace {
    std::filesystem::path profile; ///< empty when there is none
    std::string problem;           ///< then: what is wrong and what to do
};

/// @param argument  a profile; or a folder with one in it; or a project directory, whose profile lies beside
/// it
///                  and names it; empty for the working directory
ProjectPlace FindProject(const std::filesystem::path& argument);

} // namespace tessary
