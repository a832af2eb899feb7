// "ptn dump".
#include "tools/ptn/emit/Dump.h"

#include "tools/ptn/commands/Command.h"
#include "tools/ptn/common/Files.h"

#include <iostream>
#include <string>

namespace ptn
{

namespace
{

class DumpCommand : public Command
{
  public:
    const char* name() const override { return "dump"; }
    const char* summary() const override
    {
        return "Turn a compiled project, or one pattern, back into sources";
    }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    int dumpProject();
    int dumpPattern();

    std::string source_;
    std::string output_;
};

void DumpCommand::addOptions(CLI::App& line)
{
    line.add_option("WHAT", source_, "Project directory, or a *.ptn file")
        ->required()
        ->check(CLI::ExistingPath);
    line.add_option("-o,--output", output_,
                    "New folder for the sources of a project; file for those of a pattern");
    line.footer("The sources of a project are built at once and compared with it; what they do not give\n"
                "byte for byte is reported. Without -o the source of a pattern is printed.");
}

int DumpCommand::run()
{
    return std::filesystem::is_directory(source_) ? dumpProject() : dumpPattern();
}

int DumpCommand::dumpProject()
{
    if (output_.empty()) {
        std::cerr << "ptn: name a folder for the sources with -o.\n";
        return 1;
    }
    Diagnostics diagnostics;
    const std::optional<int> alike = DumpProject(source_, output_, diagnostics);
    diagnostics.print(std::cerr);
    if (!alike)
        return 1;
    std::cout << output_ << ": the sources build " << *alike << " files of " << source_
              << " byte for byte.\n";
    return diagnostics.warnings() ? 1 : 0;
}

int DumpCommand::dumpPattern()
{
    Diagnostics diagnostics;
    const std::optional<std::string> text = DumpPattern(source_, diagnostics);
    diagnostics.print(std::cerr);
    if (!text)
        return 1;
    if (output_.empty())
        std::cout << *text;
    else
        WriteBytes(output_, *text);
    return 0;
}

} // namespace

std::unique_ptr<Command> MakeDump()
{
    return std::make_unique<DumpCommand>();
}

} // namespace ptn
