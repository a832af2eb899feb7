// tessary-panel: the panel of a project without code of its own.
#include "base/EucText.h"
#include "log/Guard.h"
#include "program/Hooks.h"
#include "program/ProjectPlace.h"
#include "program/Reload.h"
#include "shell/Options.h"
#include "shell/Program.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"

#include <glib.h>
#include <optional>

using namespace tessary;

namespace
{

/// The command line is wrong.
constexpr int EXIT_USAGE = 2;

constexpr char HELP[] = R"([--screen NAME] [--display DISPLAY] [PROFILE | FOLDER]
       tessary-panel --help | --version

Shows the panel of a project that has no code of its own: every screen of the project, each with the ready-made
class that its source picks.

  PROFILE            the project's profile, *.ini
  FOLDER             the folder of the profile, or the project directory that it names; without either, the
                     working directory
  --screen NAME      the screen to begin with, instead of the profile's
  --display DISPLAY  the X server, such as :0; otherwise $DISPLAY names it
  --help             this text
  --version          the version

The program works in the folder of the profile. SIGTERM, SIGINT and SIGHUP end the panel in good order: an entry
in progress is discarded, the places of the windows are saved and the log is closed. SIGUSR1 has it show again
what "ptn build" has changed of the project; the cells keep what they have.

Status: 0 after such an end and after a stop by the operator; 1 when the display or the project can not be shown;
2 when the command line is wrong. What stops a start is told on standard error.
)";

/// Takes --screen out of the list, before the toolkit looks for a number behind it.
/// @return the name, empty without one; nothing when it is missing, which is told
std::optional<std::string> TakeScreen(int* argc, char** argv)
{
    const std::string option = "--screen";
    std::string screen;
    int kept = 1;
    for (int i = 1; i < *argc; ++i) {
        const std::string word = argv[i];
        if (word == option && i + 1 < *argc) {
            screen = argv[++i];
        } else if (word == option) {
            Tell("--screen needs the name of a screen.");
            return std::nullopt;
        } else if (word.compare(0, option.size() + 1, option + "=") == 0) {
            screen = word.substr(option.size() + 1);
        } else {
            argv[kept++] = argv[i];
        }
    }
    *argc = kept;
    argv[kept] = nullptr;
    return screen;
}

/// The profile or folder, empty without one, in what the toolkit has left of the list; nothing when something
/// else is there too, which is told.
std::optional<std::string> TakeProject(int argc, char** argv)
{
    std::string project;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (!word.empty() && word[0] == '-') {
            Tell("Unknown option '" + word + "'. --help tells those that there are.");
            return std::nullopt;
        }
        if (!project.empty()) {
            Tell("Name one profile or folder, not '" + project + "' and '" + word + "'.");
            return std::nullopt;
        }
        project = word;
    }
    return project;
}

/// Tables are read from where the program works.
bool WorkBeside(const std::filesystem::path& profile)
{
    std::error_code problem;
    std::filesystem::current_path(profile.parent_path(), problem);
    if (problem)
        Tell("'" + profile.parent_path().string() + "' can not be entered: " + problem.message() +
             ". Check the rights of the folder.");
    return !problem;
}

int Run(int argc, char** argv)
{
    if (AnswerOption(argc, argv, HELP))
        return 0;
    WatchReload();
    g_set_prgname("tessary-panel");
    const std::optional<std::string> screen = TakeScreen(&argc, argv);
    if (!screen)
        return EXIT_USAGE;
    if (!PrepareProgram(&argc, &argv))
        return 1;
    const std::optional<std::string> project = TakeProject(argc, argv);
    if (!project)
        return EXIT_USAGE;
    const ProjectPlace place = FindProject(*project);
    if (place.profile.empty())
        Tell(place.problem);
    if (place.profile.empty() || !WorkBeside(place.profile))
        return 1;
    StartScreen = Utf8ToEuc(*screen);
    std::string program = place.profile.filename().string();
    RunProgram(program.data(), StartScreen);
}

} // namespace

int main(int argc, char** argv)
{
    EndAtException();
    return Guard([&] { return Run(argc, argv); }, 1);
}
