// The program's entry: everything else lies in the framework's library and in the application.
#include "log/Guard.h"
#include "shell/Options.h"
#include "shell/Program.h"
#include "shell/ProgramEnd.h"

using namespace tessary;

namespace
{

int Run(int argc, char** argv)
{
    if (AnswerOption(argc, argv))
        return 0;
    if (!PrepareProgram(&argc, &argv))
        return 1;
    RunProgram(argv[0]);
}

} // namespace

int main(int argc, char** argv)
{
    EndAtException();
    return Guard([&] { return Run(argc, argv); }, 1);
}
