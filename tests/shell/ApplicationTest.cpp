// An application that somebody else builds.
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{

/// The text between two others; empty when there is none.
std::string Between(const std::string& text, const std::string& before, const std::string& after)
{
    const std::size_t begin = text.find(before);
    const std::size_t end = begin == std::string::npos ? begin : text.find(after, begin + before.size());
    return end == std::string::npos ? "" : text.substr(begin + before.size(), end - begin - before.size());
}

} // namespace

TEST(Application, is_built_from_the_readme_as_the_readme_tells)
{
    const Project project;
    const std::string readme = readFile(Program::sourceFolder() + "/README.md");
    writeFile("pump.cpp", Between(readme, "```cpp\n", "```"));
    symlink(Program::buildFolder().c_str(), "build");
    const std::string command = Between(readme, "    g++ pump.cpp ", "\n");
    ASSERT_NE(command, "");
    const int status = std::system(("g++ pump.cpp " + command + " -Wall -Wextra >output 2>&1").c_str());
    EXPECT_EQ(status, 0);
    EXPECT_EQ(readFile("output"), "");
    EXPECT_NE(readFile("pump"), "");
}
