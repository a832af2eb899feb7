// "ptn new".
#include "tools/ptn/commands/Command.h"
#include "tools/ptn/starter/NewProject.h"

#include <filesystem>
#include <iostream>
#include <string>

namespace ptn
{

namespace
{

/// What cmake is to be told besides, so that it finds Tessary: nothing where that is installed, its place
/// where this program runs in the folder that it was built in.
std::string PlaceOption()
{
    std::error_code unknown;
    const std::filesystem::path folder =
        std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
    const bool isPackage = std::filesystem::exists(folder / "TessaryConfig.cmake", unknown);
    return isPackage ? " -DTessary_DIR=" + folder.string() : "";
}

class NewCommand : public Command
{
  public:
    const char* name() const override { return "new"; }
    const char* summary() const override { return "Make a small project to begin with"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::string folder_;
    bool program_ = false;
};

void NewCommand::addOptions(CLI::App& line)
{
    line.add_option("PROJECT", folder_, "New folder; its name becomes that of the program")->required();
    line.add_flag("--program", program_, "With a program of its own in C++ and its build");
    line.footer("Without --program the project needs no code: 'ptn run' shows it.");
}

int NewCommand::run()
{
    Diagnostics diagnostics;
    const bool made = NewProject(folder_, program_, diagnostics);
    diagnostics.print(std::cerr);
    if (!made)
        return 1;
    std::cout << folder_ << ": screens to begin with"
              << (program_ ? ", a program that shows them, and its build.\n" : ".\n")
              << "To see the first screen:  ptn render " << folder_ << " Main\n";
    if (program_)
        std::cout << "To build and run it:      cmake -S " << folder_ << " -B " << folder_ << "/build"
                  << PlaceOption() << " && cmake --build " << folder_ << "/build\n";
    else
        std::cout << "To run it:                ptn run " << folder_ << "\n";
    return 0;
}

} // namespace

std::unique_ptr<Command> MakeNew()
{
    return std::make_unique<NewCommand>();
}

} // namespace ptn
