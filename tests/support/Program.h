// A program started beside the test, on the test's own X server.
#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

class Program
{
  public:
    /// Starts `<build folder>/<name>`, or `<name>` when that begins with '/', in the present working
    /// directory. What it prints is kept.
    /// @param argv0      what the program sees as its own path
    /// @param arguments  further arguments
    Program(const std::string& name, const std::string& argv0,
            const std::vector<std::string>& arguments = {});
    /// Ends the program when it still runs.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    pid_t pid() const { return pid_; }
    /// The exit status once the program has ended: 0..255, or 256 and the number of the signal that ended it.
    std::optional<int> status();
    /// What the program has printed on standard output and standard error so far.
    std::string output() const;

    /// The build folder of the tests.
    static std::string buildFolder();
    /// The folder of the sources.
    static std::string sourceFolder();

  private:
    pid_t pid_ = -1;
    std::optional<int> status_;
    std::string outputFile_;
};
