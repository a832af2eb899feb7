// "ptn run".
#include "tools/ptn/run/Run.h"

#include "tools/ptn/commands/Command.h"

namespace ptn
{

namespace
{

class RunCommand : public Command
{
  public:
    const char* name() const override { return "run"; }
    const char* summary() const override { return "Check, build and show a project that has no code"; }
    void addOptions(CLI::App& line) override;
    int run() override { return Run(job_); }

  private:
    RunJob job_;
};

void RunCommand::addOptions(CLI::App& line)
{
    line.add_option("PROJECT", job_.source, "Folder of sources; it is built into its folder 'build'")
        ->required()
        ->check(CLI::ExistingDirectory);
    line.add_option("--screen", job_.screen, "Screen to begin with, instead of the profile's");
    line.add_flag("-w,--watch", job_.watch,
                  "Show what is saved at once; the cells keep what they have. Mistakes are told,\n"
                  "and the panel goes on with what it has");
    line.footer(
        "The panel is tessary-panel, on the display that DISPLAY names. Its stop button or Ctrl+C ends it,\n"
        "and its exit status is that of this command; 1 when there are mistakes.");
}

} // namespace

std::unique_ptr<Command> MakeRun()
{
    return std::make_unique<RunCommand>();
}

} // namespace ptn
