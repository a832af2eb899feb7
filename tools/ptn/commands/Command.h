// What every command of ptn is.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <vector>

namespace ptn
{

/// One command: its options, what it does with them, and what it prints.
class Command
{
  public:
    Command() = default;
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    virtual const char* name() const = 0;
    /// One line for the list of commands.
    virtual const char* summary() const = 0;

    /// Adds the options to its part of the command line; what is given there goes into this object.
    virtual void addOptions(CLI::App& line) = 0;

    /// Runs with the options that were given.
    /// @return the exit status: 0, or 1 when something is wrong
    virtual int run() = 0;
};

/// New objects of all commands, in the order in which the help lists them.
std::vector<std::unique_ptr<Command>> AllCommands();

/// The part of the command line that belongs to the command of that name; null when there is none.
const CLI::App* FindCommand(const CLI::App& app, const std::string& name);

} // namespace ptn
