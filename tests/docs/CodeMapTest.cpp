// The code map in CONTRIBUTING.md names files and folders that are there.
#include "tests/docs/Pages.h"
#include "tests/support/Program.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

TEST(CodeMap, names_places_that_are_there)
{
    static const std::regex PATH("`([A-Za-z/]+(?:/|\\.[a-z]+))`");
    const std::string page = TextOf("CONTRIBUTING.md");
    const std::size_t begin = page.find("## I want to");
    ASSERT_NE(begin, std::string::npos);
    const std::string map = page.substr(begin, page.find("\n## ", begin) - begin);

    std::vector<std::string> missing;
    int seen = 0;
    for (std::sregex_iterator at(map.begin(), map.end(), PATH), end; at != end; ++at) {
        ++seen;
        if (!std::filesystem::exists(Program::sourceFolder() + "/" + (*at)[1].str()))
            missing.push_back((*at)[1]);
    }
    EXPECT_THAT(missing, testing::IsEmpty());
    EXPECT_GT(seen, 40);
}
