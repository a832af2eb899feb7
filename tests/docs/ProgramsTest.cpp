// The programs of the manual. That they compile is the build's part: they are in the library manual_programs.
#include "tests/docs/Pages.h"
#include "tests/support/Program.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

std::vector<std::string> Programs()
{
    std::vector<std::string> texts;
    for (const auto& entry : std::filesystem::directory_iterator(Program::sourceFolder() + "/docs/programs"))
        texts.push_back(TextOf("docs/programs/" + entry.path().filename().string()));
    return texts;
}

} // namespace

TEST(Programs, stand_in_the_manual_as_they_are_compiled)
{
    const std::vector<std::string> shown = FencedBlocks(TextOf("docs/writing-programs.md"), "cpp");
    EXPECT_THAT(shown, testing::UnorderedElementsAreArray(Programs()));
}
