#include "tools/ptn/commands/Commands.h"

#include "tools/ptn/check/Check.h"
#include "tools/ptn/commands/Help.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/compiled/Build.h"
#include "tools/ptn/emit/Dump.h"
#include "tools/ptn/starter/NewProject.h"

#include <iostream>
#include <memory>

namespace ptn
{

namespace
{

struct Paths {
    std::string source;
    std::string output;
    bool quiet = false;
};

int RunBuild(const Paths& paths)
{
    Diagnostics diagnostics;
    const std::optional<OutputReport> report = Build(paths.source, paths.output, diagnostics);
    diagnostics.print(std::cerr);
    if (!report) {
        std::cerr << diagnostics.errors() << (diagnostics.errors() == 1 ? " error" : " errors") << "; "
                  << paths.output << " is unchanged.\n";
        return 1;
    }
    if (!paths.quiet)
        std::cout << paths.output << ": " << report->files << " files, " << report->written << " written, "
                  << report->removed << " removed.\n";
    return 0;
}

int DumpToFolder(const Paths& paths, Diagnostics& diagnostics)
{
    if (paths.output.empty()) {
        std::cerr << "ptn: name a folder for the sources with -o.\n";
        return 1;
    }
    const std::optional<int> alike = DumpProject(paths.source, paths.output, diagnostics);
    diagnostics.print(std::cerr);
    if (!alike)
        return 1;
    std::cout << paths.output << ": the sources build " << *alike << " files of " << paths.source
              << " byte for byte.\n";
    return diagnostics.warnings() ? 1 : 0;
}

int DumpToFile(const Paths& paths, Diagnostics& diagnostics)
{
    const std::optional<std::string> text = DumpPattern(paths.source, diagnostics);
    diagnostics.print(std::cerr);
    if (!text)
        return 1;
    if (paths.output.empty())
        std::cout << *text;
    else
        WriteBytes(paths.output, *text);
    return 0;
}

int RunDump(const Paths& paths)
{
    Diagnostics diagnostics;
    return std::filesystem::is_directory(paths.source) ? DumpToFolder(paths, diagnostics)
                                                       : DumpToFile(paths, diagnostics);
}

int RunCheck(const std::string& folder, const std::string& registry)
{
    Diagnostics diagnostics;
    const int patterns = Check(folder, registry, diagnostics);
    diagnostics.print(std::cerr);
    const int found = diagnostics.errors() + diagnostics.warnings();
    std::cout << folder << ": " << patterns << (patterns == 1 ? " screen, " : " screens, ")
              << (found ? std::to_string(found) : std::string("nothing")) << " found.\n";
    return found ? 1 : 0;
}

// Of a command, of the attributes of a type, or of everything.
int RunHelp(const CLI::App& app, const std::string& topic, const std::string& type)
{
    if (topic.empty()) {
        std::cout << app.get_formatter()->make_help(&app, app.get_name(), CLI::AppFormatMode::Normal);
        return 0;
    }
    if (const CLI::App* command = FindCommand(app, topic)) {
        std::cout << command->help(app.get_name());
        return 0;
    }
    if (PrintAttributes(topic == "attributes" ? type : topic, std::cout))
        return 0;
    std::cerr << "ptn: no type '" << (topic == "attributes" ? type : topic) << "'. The types are:\n";
    PrintAttributes("", std::cerr);
    return 1;
}

int RunNew(const std::string& folder)
{
    Diagnostics diagnostics;
    const bool made = NewProject(folder, diagnostics);
    diagnostics.print(std::cerr);
    if (!made)
        return 1;
    std::cout << folder << ": screens to begin with, a program that shows them, and its build.\n"
              << "To see the first screen:  ptn render " << folder << " Main\n"
              << "To build and run it:      cmake -S " << folder << " -B " << folder
              << "/build && cmake --build " << folder << "/build\n";
    return 0;
}

} // namespace

const CLI::App* FindCommand(const CLI::App& app, const std::string& name)
{
    const auto found = app.get_subcommands([&](const CLI::App* one) { return one->get_name() == name; });
    return found.empty() ? nullptr : found.front();
}

void AddNewCommand(CLI::App& app, int& status)
{
    const auto folder = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("new", "Make a small project to begin with");
    command->add_option("PROJECT", *folder, "New folder; its name becomes that of the program")->required();
    command->callback([=, &status] { status = RunNew(*folder); });
}

void AddBuildCommand(CLI::App& app, int& status)
{
    const auto paths = std::make_shared<Paths>();
    CLI::App* build = app.add_subcommand("build", "Compile a folder of sources into a project directory");
    build->add_option("SRC", paths->source, "Folder with *.yaml, screens/*.yaml and bitmaps/")
        ->required()
        ->check(CLI::ExistingDirectory);
    build->add_option("OUT", paths->output, "Project directory; the profile is written beside it")
        ->required();
    build->add_flag("-q,--quiet", paths->quiet, "Say nothing unless something is wrong");
    build->footer(
        "Nothing is changed unless all sources are right. Files that are up to date keep their time;\n"
        "files that the panel writes itself, and its remembered window positions, are kept.");
    build->callback([paths, &status] { status = RunBuild(*paths); });
}

void AddDumpCommand(CLI::App& app, int& status)
{
    const auto paths = std::make_shared<Paths>();
    CLI::App* dump = app.add_subcommand("dump", "Turn a compiled project, or one pattern, back into sources");
    dump->add_option("WHAT", paths->source, "Project directory, or a *.ptn file")
        ->required()
        ->check(CLI::ExistingPath);
    dump->add_option("-o,--output", paths->output,
                     "New folder for the sources of a project; file for those of a pattern");
    dump->footer("The sources of a project are built at once and compared with it; what they do not give\n"
                 "byte for byte is reported. Without -o the source of a pattern is printed.");
    dump->callback([paths, &status] { status = RunDump(*paths); });
}

void AddCheckCommand(CLI::App& app, int& status)
{
    const auto folder = std::make_shared<std::string>();
    const auto registry = std::make_shared<std::string>();
    CLI::App* check = app.add_subcommand("check", "Look for mistakes in sources or in a compiled project");
    check->add_option("WHAT", *folder, "Folder of sources, or project directory")
        ->required()
        ->check(CLI::ExistingDirectory);
    check
        ->add_option("--registry", *registry,
                     "C++ source, or folder of sources, that knows the patterns by name; instead of the\n"
                     "project's section 'registry'")
        ->check(CLI::ExistingPath);
    check->footer("Ends with status 1 when it has found something.");
    check->callback([=, &status] { status = RunCheck(*folder, *registry); });
}

void AddHelpCommand(CLI::App& app, int& status)
{
    const auto topic = std::make_shared<std::string>();
    const auto type = std::make_shared<std::string>();
    CLI::App* help = app.add_subcommand("help", "Explain commands, and the attributes of items and windows");
    help->add_option("TOPIC", *topic, "A command, or attributes");
    help->add_option("TYPE", *type, "Of attributes: item type, or window");
    help->callback([=, &app, &status] { status = RunHelp(app, *topic, *type); });
}

} // namespace ptn
