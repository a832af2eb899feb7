// The commands that draw.
#include "tools/ptn/commands/Commands.h"
#include "tools/ptn/render/Render.h"
#include "tools/ptn/render/Watch.h"

#include <iostream>
#include <memory>

namespace ptn
{

namespace
{

struct RenderOptions {
    std::string project;
    std::string pattern;
    std::string output;
    std::string state;
    int language = -1;
    bool all = false;
};

int RunRender(const RenderOptions& options)
{
    if (options.all && !options.pattern.empty()) {
        std::cerr << "ptn: name a screen, or write --all.\n";
        return 1;
    }
    RenderJob job;
    job.project = options.project;
    job.pattern = options.pattern;
    job.all = options.all;
    job.output = options.output;
    job.state = options.state;
    if (options.language >= 0)
        job.language = options.language;
    Diagnostics diagnostics;
    const std::vector<std::filesystem::path> files = Render(job, diagnostics);
    diagnostics.print(std::cerr);
    for (const auto& file : files)
        std::cout << file.lexically_proximate(std::filesystem::current_path()).string() << "\n";
    return diagnostics.failed() ? 1 : 0;
}

int RunWatch(const RenderOptions& options)
{
    WatchJob job;
    job.source = options.project;
    job.pattern = options.pattern;
    if (!options.state.empty())
        job.arguments.insert(job.arguments.end(), {"--state", options.state});
    if (options.language >= 0)
        job.arguments.insert(job.arguments.end(), {"--language", std::to_string(options.language)});
    Diagnostics diagnostics;
    const bool watched = Watch(job, diagnostics);
    diagnostics.print(std::cerr);
    return watched ? 0 : 1;
}

} // namespace

void AddRenderCommand(CLI::App& app, int& status)
{
    const auto options = std::make_shared<RenderOptions>();
    CLI::App* render = app.add_subcommand("render", "Write the picture that the panel would show");
    render->add_option("PROJECT", options->project, "Folder of sources, or project directory")
        ->required()
        ->check(CLI::ExistingDirectory);
    render->add_option("PATTERN", options->pattern,
                       "Name of the screen; without it the one the panel starts with");
    render->add_option("-o,--output", options->output, "PNG file; with --all the folder for them");
    render->add_option("-s,--state", options->state, "YAML file with the clock and the values of cells")
        ->check(CLI::ExistingFile);
    render->add_option("-l,--language", options->language, "Language, instead of the profile's")
        ->check(CLI::Range(0, 2));
    render->add_flag("-a,--all", options->all, "Every screen, and contact-sheet.png with all of them");
    render->footer(
        "Drawn by the framework itself, without what screen classes add. Without $DISPLAY a private\n"
        "Xvfb is started.");
    render->callback([options, &status] { status = RunRender(*options); });
}

void AddWatchCommand(CLI::App& app, int& status)
{
    const auto options = std::make_shared<RenderOptions>();
    CLI::App* watch = app.add_subcommand("watch", "Show a screen in a window and redraw it when it is saved");
    watch->add_option("SRC", options->project, "Folder of sources")
        ->required()
        ->check(CLI::ExistingDirectory);
    watch->add_option("PATTERN", options->pattern,
                      "Name of the screen; without it the one the panel starts with");
    watch->add_option("-s,--state", options->state, "YAML file with the clock and the values of cells")
        ->check(CLI::ExistingFile);
    watch->add_option("-l,--language", options->language, "Language, instead of the profile's")
        ->check(CLI::Range(0, 2));
    watch->footer("Errors stand in place of the picture. Closing the window ends it.");
    watch->callback([options, &status] { status = RunWatch(*options); });
}

} // namespace ptn
