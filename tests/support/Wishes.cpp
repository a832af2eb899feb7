#include "tests/support/Wishes.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <optional>

namespace
{

/// Ends the process when the variable is set to anything but a number of 32 bits: a test that ran with
/// another seed than was meant would tell nothing.
std::optional<unsigned> number(const char* variable)
{
    const char* const text = std::getenv(variable);
    if (!text)
        return std::nullopt;
    const char* const end = text + std::strlen(text);
    unsigned value = 0;
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc() || stop != end) {
        std::fprintf(stderr, "%s=%s: give a number of 0 to 4294967295.\n", variable, text);
        std::exit(1);
    }
    return value;
}

} // namespace

std::vector<unsigned> seeds(unsigned count)
{
    if (const auto given = number("TESSARY_SEED"))
        return {*given};
    std::vector<unsigned> all(count);
    std::iota(all.begin(), all.end(), 1u);
    return all;
}

std::string seedText(unsigned seed)
{
    return "TESSARY_SEED=" + std::to_string(seed);
}

int stepCount(int usual)
{
    return number("TESSARY_STEPS").value_or(usual);
}

bool renewsGoldens()
{
    const char* const text = std::getenv("TESSARY_RENEW_GOLDENS");
    return text && *text && std::strcmp(text, "0") != 0;
}

const char* const RENEW_COMMAND = "TESSARY_RENEW_GOLDENS=1 ctest --preset sanitize -R Golden";
