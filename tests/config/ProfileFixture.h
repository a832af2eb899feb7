// A profile file of a test's own, beside the project's.
#pragma once

#include "tests/support/Project.h"

#include <gtest/gtest.h>

class ProfileFile : public testing::Test
{
  protected:
    ProfileFile() = default;
    explicit ProfileFile(const std::filesystem::path& parent) : project(parent) {}

    const char* file() const { return path_.c_str(); }
    void put(const std::string& bytes) const { writeFile(path_, bytes); }
    std::string bytes() const { return readFile(path_); }

    Project project;

  private:
    const std::string path_ = project.root() + "/test.ini";
};
