// "ptn build".
#include "tools/ptn/compiled/Build.h"

#include "tools/ptn/commands/Command.h"

#include <iostream>
#include <string>

namespace ptn
{

namespace
{

class BuildCommand : public Command
{
  public:
    const char* name() const override { return "build"; }
    const char* summary() const override { return "Compile a folder of sources into a project directory"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::string source_;
    std::string output_;
    std::filesystem::path header_;
    bool quiet_ = false;
    bool reseed_ = false;
};

void BuildCommand::addOptions(CLI::App& line)
{
    line.add_option("SRC", source_, "Folder with *.yaml, screens/*.yaml and bitmaps/")
        ->required()
        ->check(CLI::ExistingDirectory);
    line.add_option("OUT", output_, "Project directory; the profile is written beside it")->required();
    line.add_option(
        "--header", header_,
        "C++ header with the cells and screens as constants; otherwise cells.h beside the profile");
    line.add_flag(
        "--reseed", reseed_,
        "Write log flags and wiring table anew, whatever the panel has saved; a copy of that stays");
    line.add_flag("-q,--quiet", quiet_, "Say nothing unless something is wrong");
    line.footer(
        "Nothing is changed unless all sources are right. Files that are up to date keep their time;\n"
        "files that the panel writes itself, and its remembered window positions, are kept.");
}

int BuildCommand::run()
{
    Diagnostics diagnostics;
    std::optional<OutputReport> report;
    try {
        if (header_.empty())
            header_ = DefaultHeader(output_);
        report = Build(source_, output_, header_, diagnostics, reseed_ ? Reseed::Always : Reseed::Never);
    } catch (const std::filesystem::filesystem_error& problem) {
        ReportUnwritten(problem, diagnostics);
    }
    diagnostics.print(std::cerr);
    if (!report) {
        std::cerr << diagnostics.errors() << (diagnostics.errors() == 1 ? " error" : " errors") << "; "
                  << output_ << " is unchanged.\n";
        return 1;
    }
    if (!quiet_)
        std::cout << output_ << ": " << report->files << " files, " << report->written << " written, "
                  << report->removed << " removed.\n";
    return 0;
}

} // namespace

std::unique_ptr<Command> MakeBuild()
{
    return std::make_unique<BuildCommand>();
}

} // namespace ptn
