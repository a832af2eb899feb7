// "ptn render".
#include "tools/ptn/render/Render.h"

#include "tools/ptn/commands/Command.h"
#include "tools/ptn/commands/ScreenOptions.h"

#include <iostream>
#include <string>

namespace ptn
{

namespace
{

class RenderCommand : public Command
{
  public:
    const char* name() const override { return "render"; }
    const char* summary() const override { return "Write the picture that the panel would show"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    std::string project_;
    ScreenOptions screen_;
    std::string output_;
    bool all_ = false;
};

void RenderCommand::addOptions(CLI::App& line)
{
    line.add_option("PROJECT", project_, "Folder of sources, or project directory")
        ->required()
        ->check(CLI::ExistingDirectory);
    screen_.addPattern(line);
    line.add_option("-o,--output", output_, "PNG file; with --all the folder for them");
    screen_.addContent(line);
    line.add_flag("-a,--all", all_, "Every screen, and contact-sheet.png with all of them");
    line.footer("Drawn by the framework itself, without what screen classes add. Without $DISPLAY a private\n"
                "Xvfb is started.");
}

int RenderCommand::run()
{
    if (all_ && !screen_.pattern.empty()) {
        std::cerr << "ptn: name a screen, or write --all.\n";
        return 1;
    }
    RenderJob job;
    job.project = project_;
    job.pattern = screen_.pattern;
    job.all = all_;
    job.output = output_;
    job.state = screen_.state;
    if (screen_.language >= 0)
        job.language = screen_.language;
    Diagnostics diagnostics;
    const std::vector<std::filesystem::path> files = Render(job, diagnostics);
    diagnostics.print(std::cerr);
    for (const auto& file : files)
        std::cout << file.lexically_proximate(std::filesystem::current_path()).string() << "\n";
    return diagnostics.failed() ? 1 : 0;
}

} // namespace

std::unique_ptr<Command> MakeRender()
{
    return std::make_unique<RenderCommand>();
}

} // namespace ptn
