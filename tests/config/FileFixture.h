// A temporary folder with the log switched on, for the tests of the file helpers.
#pragma once

#include "log/Logfile.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

class FileFixture : public testing::Test
{
  protected:
    using Lines = std::vector<std::string>;

    FileFixture() { LogfileInit(); }
    ~FileFixture() override { LogfileExit(); }

    /// The folder the tests work in.
    const char* dir() const { return folder_.c_str(); }
    std::string path(const std::string& name) const { return folder_ + "/" + name; }
    void write(const std::string& name, const std::string& bytes) { project_.write(name, bytes); }
    std::string read(const std::string& name) const { return project_.read(name); }
    bool exists(const std::string& name) const { return project_.exists(name); }

    /// Files the process holds open.
    static std::ptrdiff_t openFiles()
    {
        const std::filesystem::directory_iterator files("/proc/self/fd");
        return std::distance(begin(files), end(files));
    }

    /// What was logged: "category text" or, with a caller, "category text @file:line".
    Lines logged()
    {
        Lines lines;
        for (const LogLine& line : project_.log())
            lines.push_back(line.mesg1 + " " + line.mesg2 +
                            (line.file.empty() ? "" : " @" + line.file + ":" + std::to_string(line.line)));
        return lines;
    }

  private:
    Project project_;
    std::string folder_ = project_.folder();
};
