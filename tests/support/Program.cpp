#include "tests/support/Program.h"

#include "tests/support/Project.h"
#include "tests/support/Sanitizer.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

std::string Program::buildFolder()
{
    return TESSARY_BUILD;
}

std::string Program::sourceFolder()
{
    return TESSARY_SOURCE;
}

Program::Program(const std::string& name, const std::string& argv0, const std::vector<std::string>& arguments)
{
    const std::string path = std::filesystem::path(buildFolder()) / name;
    std::string file = "/tmp/tessary-output-XXXXXX";
    const int output = mkstemp(file.data());
    outputFile_ = file;
    writeFile(file + ".lsan", LEAK_SUPPRESSIONS);

    std::vector<char*> argv{const_cast<char*>(argv0.c_str())};
    for (const auto& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);

    pid_ = fork();
    if (pid_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        setenv("LSAN_OPTIONS", ("suppressions=" + file + ".lsan:print_suppressions=0").c_str(), 1);
        setenv("UBSAN_OPTIONS", "print_stacktrace=1", 1);
        dup2(output, STDOUT_FILENO);
        dup2(output, STDERR_FILENO);
        execv(path.c_str(), argv.data());
        std::perror(path.c_str());
        _exit(127);
    }
    close(output);
}

Program::~Program()
{
    if (pid_ > 0 && !status()) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    unlink(outputFile_.c_str());
    unlink((outputFile_ + ".lsan").c_str());
}

std::optional<int> Program::status()
{
    int state = 0;
    if (!status_ && pid_ > 0 && waitpid(pid_, &state, WNOHANG) == pid_)
        status_ = WIFEXITED(state) ? WEXITSTATUS(state) : 256 + WTERMSIG(state);
    return status_;
}

std::string Program::output() const
{
    return readFile(outputFile_);
}
