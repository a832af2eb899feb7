// From a file to its top node, and what is wrong with a file as a whole.
#include "tools/ptn/common/Files.h"
#include "tools/ptn/yaml/Documents.h"
#include "tools/ptn/yaml/Source.h"

#include <algorithm>

namespace ptn
{

namespace
{

/// Marks that begin or part values, which tell how much a text may become in memory.
constexpr std::ptrdiff_t MOST_MARKS = 500'000;
/// The reader takes its time for each byte, whatever stands there.
constexpr std::size_t MOST_BYTES = 16'000'000;
/// Values that aliases may stand for beside those that are written.
constexpr long long MOST_REPEATED = 200'000;
constexpr int DEEPEST = 500;

// What mostly is behind a message of the YAML reader, which knows only what it had expected.
const char* YamlRemedy(const std::string& problem, const std::string& text)
{
    const auto has = [&](const char* part) { return problem.find(part) != std::string::npos; };
    if (text.find("\n\t") != std::string::npos || text.compare(0, 1, "\t") == 0)
        return "Indent with blanks, not with tabs.";
    if (has("flow"))
        return "Look for a missing ',', '}', ']' or quote; a text with '#' or ': ' in it needs quotes.";
    if (has("unknown token"))
        return "A text that begins with '@', '%' or '`' needs quotes.";
    if (has("illegal map value"))
        return "A text with ': ' in it needs quotes.";
    if (has("alias") || has("anchor"))
        return "A text that begins with '*' or '&' needs quotes.";
    return "Look at this line and the one before it; what belongs together is indented alike.";
}

// Bytes of the UTF-8 character at `at`; 0 when there is none.
std::size_t Utf8Length(const std::string& text, std::size_t at)
{
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
    };
    const unsigned first = byte(at);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (first > 0xF4)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(at + i) & 0xC0) != 0x80)
            return 0;
    return length;
}

// Reports a file of another character set.
// @return whether it is worth reading: a single wrong byte is also told where it stands
bool CheckUtf8(const std::string& file, const std::string& text, Diagnostics& diagnostics)
{
    int wrong = 0;
    for (std::size_t at = 0; at < text.size() && wrong < 2;) {
        const std::size_t length = Utf8Length(text, at);
        if (!length && wrong++ == 0) {
            const auto here = text.begin() + static_cast<std::ptrdiff_t>(at);
            diagnostics.error(
                {file, 1 + static_cast<int>(std::count(text.begin(), here, '\n'))},
                fmt::format("not UTF-8: the byte {:02X} in this line is no character of it. Save the "
                            "file as UTF-8.",
                            static_cast<unsigned char>(*here)));
        }
        at += std::max<std::size_t>(1, length);
    }
    return wrong < 2;
}

bool CheckAmount(const std::string& file, const std::string& text, Diagnostics& diagnostics)
{
    const auto marks = std::count_if(text.begin(), text.end(), [](char byte) {
        return byte == ',' || byte == '\n' || byte == ':' || byte == '[' || byte == '{' || byte == '-';
    });
    if (marks <= MOST_MARKS && text.size() <= MOST_BYTES)
        return true;
    diagnostics.error({file, 0},
                      "holds more than a project can need. Write less, or use 'repeat' and groups.");
    return false;
}

// Whether a node has more in it than that, with aliases written out; one that is an alias of itself has.
bool HasMoreThan(long long& most, const YAML::Node& node, int depth)
{
    if (--most < 0 || depth > DEEPEST)
        return true;
    for (const auto& member : node) {
        if (member.IsDefined() && HasMoreThan(most, member, depth + 1))
            return true;
        if (member.first.IsDefined() &&
            (HasMoreThan(most, member.first, depth + 1) || HasMoreThan(most, member.second, depth + 1)))
            return true;
    }
    return false;
}

// Aliases can stand for any amount, which everybody who walks along a document would have to go through.
bool CheckAliases(const std::string& file, const std::string& text, const YAML::Node& document,
                  Diagnostics& diagnostics)
{
    long long most = MOST_REPEATED + static_cast<long long>(text.size());
    if (text.find('*') == std::string::npos || !HasMoreThan(most, document, 0))
        return true;
    diagnostics.error({file, 0},
                      "its aliases ('*name') stand for themselves or for more than a project can need. "
                      "Write out what they stand for, or use groups.");
    return false;
}

} // namespace

std::optional<Source> ReadYaml(const std::string& file, Diagnostics& diagnostics)
{
    const std::optional<std::string> bytes = ReadBytes(file);
    if (!bytes) {
        diagnostics.error({file, 0}, WhyUnread(file));
        return std::nullopt;
    }
    return ParseYaml(file, *bytes, diagnostics);
}

std::optional<Source> ParseYaml(const std::string& file, const std::string& text, Diagnostics& diagnostics)
{
    if (!CheckUtf8(file, text, diagnostics) || !CheckAmount(file, text, diagnostics))
        return std::nullopt;
    try {
        const YAML::Node document = YAML::Load(text);
        CheckDocuments(file, text, document, diagnostics);
        if (!CheckAliases(file, text, document, diagnostics))
            return std::nullopt;
        return Source(std::make_shared<const std::string>(file), document);
    } catch (const YAML::Exception& problem) {
        // Without a position the mark's line is -1.
        diagnostics.error({file, problem.mark.line + 1},
                          fmt::format("not valid YAML: {}. {}", problem.msg, YamlRemedy(problem.msg, text)));
        return std::nullopt;
    }
}

} // namespace ptn
