// ptn: the authoring tool. Its messages are UTF-8; the texts of this program itself are plain ASCII.
#include "tools/ptn/commands/Command.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/common/Names.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

using namespace ptn;

namespace
{

/// Something could not be read or written.
constexpr int EXIT_ERRORS = 1;
/// The command line is wrong.
constexpr int EXIT_USAGE = 2;

// A first word that is no command; the parser would only say that one is required.
bool IsUnknownCommand(const CLI::App& app, const std::string& word)
{
    if (word.empty() || word[0] == '-' || FindCommand(app, word))
        return false;
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands({}))
        names.push_back(command->get_name());
    std::cerr << "ptn: no command '" << word << "'." << Suggestion(word, names)
              << " Run with --help for more information.\n";
    return true;
}

int Run(int argc, char** argv)
{
    CLI::App app("Makes, checks, shows and takes apart the project of an operator panel.", "ptn");
    app.set_version_flag("--version", TESSARY_VERSION);
    app.require_subcommand(1);

    int status = 0;
    const auto commands = AllCommands();
    for (const auto& command : commands) {
        CLI::App* line = app.add_subcommand(command->name(), command->summary());
        command->addOptions(*line);
        line->callback([&status, &command] { status = command->run(); });
    }
    if (argc > 1 && IsUnknownCommand(app, argv[1]))
        return EXIT_USAGE;
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& problem) {
        return app.exit(problem) == 0 ? 0 : EXIT_USAGE;
    }
    if (std::cout.flush())
        return status;
    std::cerr << "ptn: the output can not be written. Check where it goes.\n";
    return EXIT_ERRORS;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const std::filesystem::filesystem_error& problem) {
        Diagnostics diagnostics;
        ReportUnwritten(problem, diagnostics);
        diagnostics.print(std::cerr);
    } catch (const std::exception& problem) {
        std::cerr << "ptn: " << problem.what() << "\n";
    }
    return EXIT_ERRORS;
}
