// The page about the profile has every key that the sources read or write, and no other.
#include "tests/docs/Pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace
{

using Keys = std::set<std::string>; // "SECTION/KEY"

/// Whether a literal looks like a key, or like the beginning of one whose number follows.
bool IsKey(const std::string& literal)
{
    static const std::regex KEY("[A-Z][A-Z_]{3,}(%03d)?");
    return std::regex_match(literal, KEY);
}

/// Of a call whose key is no literal: those in the same file that may be meant.
void AddComputed(const std::string& section, const std::string& source, Keys* keys)
{
    for (const std::string& literal : Literals(source))
        if (IsKey(literal) && literal != section)
            keys->insert(section + "/" + literal.substr(0, literal.find('%')));
}

Keys KeysOfSources()
{
    static const std::regex CALL(R"re(Profile(?:Read|Write)\w*\(\s*ProfName,\s*"(\w+)",\s*(?:"(\w+)")?)re");
    Keys keys;
    for (const std::string& file : FrameworkSources()) {
        const std::string source = TextOf(file);
        for (std::sregex_iterator at(source.begin(), source.end(), CALL), end; at != end; ++at) {
            if ((*at)[2].matched)
                keys.insert((*at)[1].str() + "/" + (*at)[2].str());
            else
                AddComputed((*at)[1], source, &keys);
        }
    }
    return keys;
}

/// Rows "| `KEY` ..." below headings "## [SECTION]".
Keys KeysOfPage()
{
    static const std::regex HEADING(R"(## \[(\w+)\])");
    static const std::regex ROW(R"(\| `([A-Z_]+)`.*)");
    Keys keys;
    std::string section;
    std::istringstream lines(TextOf("docs/profile.md"));
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_match(line, match, HEADING))
            section = match[1];
        else if (std::regex_match(line, match, ROW))
            keys.insert(section + "/" + match[1].str());
    }
    return keys;
}

} // namespace

TEST(ProfilePage, has_the_keys_of_the_sources)
{
    const Keys keys = KeysOfSources();
    EXPECT_GT(keys.size(), 15U);
    EXPECT_THAT(KeysOfPage(), testing::ElementsAreArray(keys));
}
