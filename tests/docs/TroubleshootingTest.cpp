// The page about troubleshooting has every failure that the framework tells, and quotes none that it does
// not.
#include "tests/docs/Pages.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

using testing::IsEmpty;

namespace
{

constexpr char PAGE[] = "docs/troubleshooting.md";

/// Words of texts that tell of a failure.
bool TellsFailure(const std::string& text)
{
    constexpr const char* words[] = {u8"失敗", u8"エラー", u8"ない", u8"ません", u8"すぎ", " Error"};
    return std::any_of(std::begin(words), std::end(words),
                       [&](const char* word) { return text.find(word) != std::string::npos; });
}

/// What of a literal stands in the log as it is: up to the first value or explanation.
std::string FixedPart(const std::string& literal)
{
    std::string text = literal.substr(0, literal.find_first_of("[%:"));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

bool HasJapanese(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
}

/// The parts of quotations in the page, which "..." separates, that are Japanese.
std::vector<std::string> Quotations()
{
    static const std::regex QUOTATION("`([^`\n]+)`");
    const std::string page = TextOf(PAGE);
    std::vector<std::string> parts;
    for (std::sregex_iterator at(page.begin(), page.end(), QUOTATION), end; at != end; ++at) {
        std::string rest = (*at)[1];
        while (!rest.empty()) {
            const std::size_t dots = rest.find("...");
            const std::string part = FixedPart(rest.substr(0, dots));
            if (HasJapanese(part))
                parts.push_back(part);
            rest = dots == std::string::npos ? "" : rest.substr(dots + 3);
        }
    }
    return parts;
}

} // namespace

TEST(Troubleshooting, has_every_failure_that_the_framework_tells)
{
    const std::string page = TextOf(PAGE);
    std::vector<std::string> missing;
    int seen = 0;
    for (const std::string& file : FrameworkSources()) {
        for (const std::string& literal : Literals(TextOf(file))) {
            const std::string text = FixedPart(literal);
            if (text.empty() || !TellsFailure(text))
                continue;
            ++seen;
            if (page.find(text) == std::string::npos)
                missing.push_back(file + ": " + text);
        }
    }
    EXPECT_THAT(missing, IsEmpty());
    EXPECT_GT(seen, 30);
}

TEST(Troubleshooting, quotes_what_the_framework_tells)
{
    std::string sources;
    for (const std::string& file : FrameworkSources())
        sources += TextOf(file);
    const std::vector<std::string> quotations = Quotations();
    EXPECT_GT(quotations.size(), 30U);
    std::vector<std::string> unknown;
    for (const std::string& text : quotations) {
        if (sources.find(text) == std::string::npos)
            unknown.push_back(text);
    }
    EXPECT_THAT(unknown, IsEmpty());
}
