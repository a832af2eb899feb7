// The program's entry: everything else lies in the framework's library and in the application.
#include "shell/Options.h"
#include "shell/Program.h"

using namespace tessary;

int main(int argc, char** argv)
{
    if (AnswerOption(argc, argv))
        return 0;
    if (!PrepareProgram(&argc, &argv))
        return 1;
    RunProgram(argv[0]);
}
