// Links of the manual lead somewhere: to files of the repository, and to headings in them.
#include "tests/docs/Pages.h"
#include "tests/support/Program.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace fs = std::filesystem;
using testing::Contains;
using testing::IsEmpty;

namespace
{

/// A page without what stands between lines "```".
std::string WithoutCode(const std::string& page)
{
    std::string text;
    std::istringstream lines(page);
    bool fenced = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, 3, "```") == 0)
            fenced = !fenced;
        else if (!fenced)
            text += line + "\n";
    }
    return text;
}

/// How a link names a heading: lower case, "-" for blanks, no other signs.
std::string AnchorOf(const std::string& heading)
{
    std::string anchor;
    for (const unsigned char c : heading) {
        if (c == ' ')
            anchor += '-';
        else if (std::isalnum(c) || c == '-' || c == '_' || c >= 0x80)
            anchor += static_cast<char>(std::tolower(c));
    }
    return anchor;
}

std::set<std::string> Anchors(const std::string& page)
{
    std::set<std::string> anchors;
    std::istringstream lines(WithoutCode(TextOf(page)));
    for (std::string line; std::getline(lines, line);)
        if (const std::size_t text = line.find_first_not_of('#'); text > 0 && text < line.size())
            anchors.insert(AnchorOf(line.substr(text + 1)));
    return anchors;
}

/// Targets of the links of a page, those into the network left out.
std::vector<std::string> Targets(const std::string& page)
{
    static const std::regex LINK(R"(\]\(([^)\s]+)\))");
    std::vector<std::string> targets;
    const std::string text = WithoutCode(TextOf(page));
    for (std::sregex_iterator at(text.begin(), text.end(), LINK), end; at != end; ++at)
        if (const std::string target = (*at)[1]; target.find("://") == std::string::npos)
            targets.push_back(target);
    return targets;
}

/// The file that a link of a page means, relative to the repository.
std::string FileOf(const std::string& page, const std::string& target)
{
    const std::string file = target.substr(0, target.find('#'));
    return file.empty() ? page : (fs::path(page).parent_path() / file).lexically_normal().generic_string();
}

} // namespace

TEST(Links, lead_to_files_and_headings_that_are_there)
{
    std::vector<std::string> dead;
    int seen = 0;
    for (const std::string& page : Pages()) {
        for (const std::string& target : Targets(page)) {
            ++seen;
            const std::string file = FileOf(page, target);
            const std::size_t mark = target.find('#');
            const bool there = fs::exists(Program::sourceFolder() + "/" + file);
            if (!there || (mark != std::string::npos && Anchors(file).count(target.substr(mark + 1)) == 0))
                dead.push_back(page + ": " + target);
        }
    }
    EXPECT_GT(seen, 50);
    EXPECT_THAT(dead, IsEmpty());
}

TEST(Links, lead_from_the_contents_to_every_page)
{
    std::vector<std::string> linked;
    for (const char* contents : {"docs/README.md", "docs/decisions/README.md"})
        for (const std::string& target : Targets(contents))
            linked.push_back(FileOf(contents, target));
    for (const std::string& page : Pages()) {
        if (page.compare(0, 5, "docs/") == 0 && page != "docs/README.md") {
            EXPECT_THAT(linked, Contains(page));
        }
    }
}
