// "ptn check".
#include "tools/ptn/check/Check.h"

#include "tools/ptn/commands/Command.h"

#include <iostream>
#include <string>

namespace ptn
{

namespace
{

class CheckCommand : public Command
{
  public:
    const char* name() const override { return "check"; }
    const char* summary() const override { return "Look for mistakes in sources or in a compiled project"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::string folder_;
    std::string registry_;
};

void CheckCommand::addOptions(CLI::App& line)
{
    line.add_option("WHAT", folder_, "Folder of sources, or project directory")
        ->required()
        ->check(CLI::ExistingDirectory);
    line.add_option("--registry", registry_,
                    "C++ source, or folder of sources, that knows the patterns by name; instead of the\n"
                    "project's section 'registry'")
        ->check(CLI::ExistingPath);
    line.footer(
        "Ends with status 1 when it has found something. Where a screen depends on what a later edition\n"
        "corrects, a warning says so before the result (ptn help editions); it does not count.");
}

int CheckCommand::run()
{
    Diagnostics diagnostics(Doubts::Told);
    Diagnostics remarks;
    const int patterns = Check(folder_, registry_, diagnostics, remarks);
    diagnostics.print(std::cerr);
    remarks.print(std::cout);
    const int found = diagnostics.errors() + diagnostics.warnings();
    std::cout << folder_ << ": " << patterns << (patterns == 1 ? " screen, " : " screens, ")
              << (found ? std::to_string(found) : std::string("nothing")) << " found";
    if (remarks.warnings())
        std::cout << ", " << remarks.warnings() << (remarks.warnings() == 1 ? " warning" : " warnings")
                  << " about its edition";
    std::cout << ".\n";
    return found ? 1 : 0;
}

} // namespace

std::unique_ptr<Command> MakeCheck()
{
    return std::make_unique<CheckCommand>();
}

} // namespace ptn
