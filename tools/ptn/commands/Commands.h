// The commands of ptn: their options, and what they print.
#pragma once

#include <CLI/CLI.hpp>

namespace ptn
{

/// The command of that name; null when there is none.
const CLI::App* FindCommand(const CLI::App& app, const std::string& name);

/// Each adds a command to the command line. When the command is given it runs within the parsing, and
/// `status` becomes the exit status: 0, or 1 when there was an error.
void AddNewCommand(CLI::App& app, int& status);
void AddBuildCommand(CLI::App& app, int& status);
void AddDumpCommand(CLI::App& app, int& status);
void AddCheckCommand(CLI::App& app, int& status);
void AddHelpCommand(CLI::App& app, int& status);
void AddRenderCommand(CLI::App& app, int& status);
void AddWatchCommand(CLI::App& app, int& status);

} // namespace ptn
