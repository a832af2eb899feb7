// ptn: the authoring tool. Its messages are UTF-8; the texts of this program itself are plain ASCII.
#include "tools/ptn/Build.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace
{

/// The sources have errors, or something could not be read or written.
constexpr int EXIT_ERRORS = 1;
/// The command line is wrong.
constexpr int EXIT_USAGE = 2;

int RunBuild(const std::string& source, const std::string& output, bool quiet)
{
    Diagnostics diagnostics;
    const std::optional<OutputReport> report = Build(source, output, diagnostics);
    diagnostics.print(std::cerr);
    if (!report) {
        std::cerr << diagnostics.errors() << (diagnostics.errors() == 1 ? " error" : " errors") << "; "
                  << output << " is unchanged.\n";
        return EXIT_ERRORS;
    }
    if (!quiet)
        std::cout << output << ": " << report->files << " files, " << report->written << " written, "
                  << report->removed << " removed.\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Makes the project of an operator panel from readable sources.", "ptn");
    app.set_version_flag("--version", PTN_VERSION);
    app.require_subcommand(1);

    std::string source;
    std::string output;
    bool quiet = false;
    CLI::App* build = app.add_subcommand("build", "Compile a folder of sources into a project directory");
    build->add_option("SRC", source, "Folder with *.yaml, screens/*.yaml and bitmaps/")
        ->required()
        ->check(CLI::ExistingDirectory);
    build->add_option("OUT", output, "Project directory; the profile is written beside it")->required();
    build->add_flag("-q,--quiet", quiet, "Say nothing unless something is wrong");
    build->footer(
        "Nothing is changed unless all sources are right. Files that are up to date keep their time;\n"
        "files that the panel writes itself, and its remembered window positions, are kept.");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& problem) {
        const int status = app.exit(problem);
        return status == 0 ? 0 : EXIT_USAGE;
    }
    try {
        return RunBuild(source, output, quiet);
    } catch (const std::exception& problem) {
        std::cerr << "ptn: " << problem.what() << "\n";
        return EXIT_ERRORS;
    }
}
