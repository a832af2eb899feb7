// The table of commands. A new one is a file here with its class, and a line below.
#include "tools/ptn/commands/Command.h"

// Each line NAME stands for the function MakeNAME, which the file NAME.cpp defines.
#define PTN_COMMANDS(LINE)                                                                                   \
    LINE(New)                                                                                                \
    LINE(Build)                                                                                              \
    LINE(Check)                                                                                              \
    LINE(Dump)                                                                                               \
    LINE(Render)                                                                                             \
    LINE(Watch)                                                                                              \
    LINE(Run)                                                                                                \
    LINE(Log)                                                                                                \
    LINE(Cell)                                                                                               \
    LINE(Help)

namespace ptn
{

#define DECLARE(NAME) std::unique_ptr<Command> Make##NAME();
PTN_COMMANDS(DECLARE)
#undef DECLARE

std::vector<std::unique_ptr<Command>> AllCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
#define ADD(NAME) commands.push_back(Make##NAME());
    PTN_COMMANDS(ADD)
#undef ADD
    return commands;
}

const CLI::App* FindCommand(const CLI::App& app, const std::string& name)
{
    const auto found = app.get_subcommands([&](const CLI::App* one) { return one->get_name() == name; });
    return found.empty() ? nullptr : found.front();
}

} // namespace ptn
