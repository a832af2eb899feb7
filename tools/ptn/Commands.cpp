#include "tools/ptn/Commands.h"

#include "tools/ptn/Build.h"
#include "tools/ptn/Dump.h"
#include "tools/ptn/Files.h"

#include <iostream>
#include <memory>

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

} // namespace

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
