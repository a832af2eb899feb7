#include "shell/Options.h"

#include "shell/Refusal.h"
#include "shell/Toolkit.h"

#include <cstdio>
#include <gtk/gtk.h>
#include <string>

namespace tessary
{

namespace
{

std::string ProgramName(const char* path)
{
    const std::string name = path;
    return name.substr(name.rfind('/') + 1);
}

} // namespace

const char* const PANEL_HELP = R"([--help] [--version] [--display DISPLAY]

Shows an operator panel. Its profile, which names the project, has the program's name with the extension
"ini" and lies beside the program.

  --display DISPLAY  the X server, such as :0; otherwise $DISPLAY names it
  --help             this text
  --version          the version

SIGTERM, SIGINT and SIGHUP end the panel in good order: an entry in progress is discarded, the places of the
windows are saved and the log is closed.

Status: 0 after such an end and after a stop by the operator; 1 when the display can not be opened or the
profile asks for an edition that this version does not know. What stops a start is told on standard error.
)";

bool AnswerOption(int argc, char** argv, const char* help)
{
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        if (option == "--help") {
            std::printf("Usage: %s %s", ProgramName(argv[0]).c_str(), help);
            return true;
        }
        if (option == "--version") {
            std::printf("%s (Tessary) %s\n", ProgramName(argv[0]).c_str(), TESSARY_VERSION);
            return true;
        }
    }
    return false;
}

bool StartToolkit(int* argc, char*** argv)
{
    if (OpenToolkit(argc, argv))
        return true;
    const char* asked = gdk_get_display_arg_name();
    if (!asked)
        asked = g_getenv("DISPLAY");
    if (asked && *asked)
        Tell(
            "The display '" + std::string(asked) +
            "' can not be opened. Start its X server, or name another one with DISPLAY or --display; it also "
            "has to let this user in (see xhost and XAUTHORITY).");
    else
        Tell("There is no display. Set DISPLAY to the X server, such as DISPLAY=:0, or name it with "
             "--display.");
    return false;
}

} // namespace tessary
