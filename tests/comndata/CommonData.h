// What the tests of the common data share: a project and its log by category.
#pragma once

#include "tests/support/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

class CommonData : public testing::Test
{
  protected:
    /// Messages logged under a category, in order.
    std::vector<std::string> logged(const std::string& category)
    {
        std::vector<std::string> texts;
        for (const LogLine& line : project.log())
            if (line.mesg1 == category)
                texts.push_back(line.mesg2);
        return texts;
    }

    /// Starts the project and forgets what starting logged.
    void start()
    {
        project.start();
        project.clearLog();
    }

    Project project;
};

/// The bytes of one row of a code table.
inline std::string codeRow(const std::string& code, int count, int first, int disp = 0)
{
    return field(code, 22) + int32(count) + int32(first) + int32(disp);
}

/// Bytes for hostile files, the same in every run.
inline std::string randomBytes(std::mt19937& random, std::size_t size)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}
