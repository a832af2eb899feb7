// Which screen to draw, and how: what the commands that draw have in common.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace ptn
{

struct ScreenOptions {
    std::string pattern;
    std::string state;
    int language = -1; ///< -1: that of the profile

    /// The positional argument.
    void addPattern(CLI::App& line)
    {
        line.add_option("PATTERN", pattern, "Name of the screen; without it the one the panel starts with");
    }

    /// The options for what it shows.
    void addContent(CLI::App& line)
    {
        line.add_option("-s,--state", state, "YAML file with the clock and the values of cells")
            ->check(CLI::ExistingFile);
        line.add_option("-l,--language", language, "Language, instead of the profile's")
            ->check(CLI::Range(0, 2));
    }
};

} // namespace ptn
