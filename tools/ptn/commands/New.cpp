// "ptn new".
#include "tools/ptn/commands/Command.h"
#include "tools/ptn/starter/NewProject.h"

#include <iostream>
#include <string>

namespace ptn
{

namespace
{

class NewCommand : public Command
{
  public:
    const char* name() const override { return "new"; }
    const char* summary() const override { return "Make a small project to begin with"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::string folder_;
};

void NewCommand::addOptions(CLI::App& line)
{
    line.add_option("PROJECT", folder_, "New folder; its name becomes that of the program")->required();
}

int NewCommand::run()
{
    Diagnostics diagnostics;
    const bool made = NewProject(folder_, diagnostics);
    diagnostics.print(std::cerr);
    if (!made)
        return 1;
    std::cout << folder_ << ": screens to begin with, a program that shows them, and its build.\n"
              << "To see the first screen:  ptn render " << folder_ << " Main\n"
              << "To build and run it:      cmake -S " << folder_ << " -B " << folder_
              << "/build && cmake --build " << folder_ << "/build\n";
    return 0;
}

} // namespace

std::unique_ptr<Command> MakeNew()
{
    return std::make_unique<NewCommand>();
}

} // namespace ptn
