// "ptn watch".
#include "tools/ptn/render/Watch.h"

#include "tools/ptn/commands/Command.h"
#include "tools/ptn/commands/ScreenOptions.h"

#include <iostream>
#include <string>

namespace ptn
{

namespace
{

class WatchCommand : public Command
{
  public:
    const char* name() const override { return "watch"; }
    const char* summary() const override
    {
        return "Show a screen in a window and redraw it when it is saved";
    }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::string source_;
    ScreenOptions screen_;
};

void WatchCommand::addOptions(CLI::App& line)
{
    line.add_option("SRC", source_, "Folder of sources")->required()->check(CLI::ExistingDirectory);
    screen_.addPattern(line);
    screen_.addContent(line);
    line.footer(
        "Errors stand in place of the picture, and what 'ptn check' finds beside it. Closing the window\n"
        "ends it.");
}

int WatchCommand::run()
{
    WatchJob job;
    job.source = source_;
    job.pattern = screen_.pattern;
    if (!screen_.state.empty())
        job.arguments.insert(job.arguments.end(), {"--state", screen_.state});
    if (screen_.language >= 0)
        job.arguments.insert(job.arguments.end(), {"--language", std::to_string(screen_.language)});
    Diagnostics diagnostics;
    const bool watched = Watch(job, diagnostics);
    diagnostics.print(std::cerr);
    return watched ? 0 : 1;
}

} // namespace

std::unique_ptr<Command> MakeWatch()
{
    return std::make_unique<WatchCommand>();
}

} // namespace ptn
