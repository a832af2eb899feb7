#include "links/SocketLine.h"

#include "base/EucText.h"

#include <charconv>

namespace tessary
{

namespace
{

SocketRequest Wrong(const std::string& what)
{
    return {SocketRequest::Kind::Error, 0, "error " + what, {}};
}

std::string TakeWord(std::string& rest)
{
    const std::size_t begin = std::min(rest.find_first_not_of(" \t"), rest.size());
    const std::size_t end = std::min(rest.find_first_of(" \t", begin), rest.size());
    std::string word = rest.substr(begin, end - begin);
    rest.erase(0, std::min(rest.find_first_not_of(" \t", end), rest.size()));
    return word;
}

/// A request for the cell of that name; an error when there is none.
SocketRequest ForCell(SocketRequest::Kind kind, const std::string& word, const CellCodes& codes)
{
    const std::size_t plus = word.find('+');
    const std::string code = word.substr(0, plus);
    int offset = 0;
    if (plus != std::string::npos) {
        const char* const end = word.data() + word.size();
        const auto [at, problem] = std::from_chars(word.data() + plus + 1, end, offset);
        if (at != end || problem != std::errc() || offset < 0)
            return Wrong("'" + word + "' is no cell: write NAME or NAME+n");
    }
    const auto found = codes.find(code);
    if (found == codes.end())
        return Wrong("no code '" + code + "': 'list' tells those that there are");
    if (offset >= found->second.second)
        return Wrong("'" + code + "' has " + std::to_string(found->second.second) + " cells");
    return {kind, found->second.first + offset, code + "+" + std::to_string(offset), {}};
}

/// The text between quotes; none when the closing one is missing.
std::optional<std::string> Unquoted(const std::string& quoted)
{
    std::string text;
    for (std::size_t at = 1; at < quoted.size(); ++at) {
        if (quoted[at] == '"')
            return at + 1 == quoted.size() ? std::optional<std::string>(text) : std::nullopt;
        if (quoted[at] == '\\' && at + 1 < quoted.size())
            ++at;
        text += quoted[at];
    }
    return std::nullopt;
}

SocketRequest SetRequest(std::string rest, const CellCodes& codes)
{
    SocketRequest request = ForCell(SocketRequest::Kind::Set, TakeWord(rest), codes);
    if (request.kind == SocketRequest::Kind::Error)
        return request;
    rest.erase(rest.find_last_not_of(" \t") + 1);
    if (rest.empty())
        return Wrong("'set' needs a value behind the name");
    if (rest[0] == '"') {
        const auto text = Unquoted(rest);
        if (!text)
            return Wrong("a closing quote is missing");
        request.value = {0.0, TextFromOutside(*text), true};
    } else if (const auto number = ParseNumber(rest)) {
        request.value = {*number, "", false};
    } else {
        request.value = {0.0, TextFromOutside(rest), true};
    }
    return request;
}

} // namespace

std::vector<SocketRequest> ParseSocketLine(const std::string& line, const CellCodes& codes)
{
    std::string rest = line;
    if (!rest.empty() && rest.back() == '\r')
        rest.pop_back();
    const std::string verb = TakeWord(rest);
    if (verb.empty())
        return {};
    if (verb == "list")
        return {{SocketRequest::Kind::List, 0, "", {}}};
    if (verb == "set")
        return {SetRequest(rest, codes)};
    if (verb != "get" && verb != "watch")
        return {Wrong("unknown '" + verb + "': write get, set, watch or list")};
    if (rest.empty())
        return {Wrong("'" + verb + "' needs a name")};
    std::vector<SocketRequest> requests;
    const auto kind = verb == "get" ? SocketRequest::Kind::Get : SocketRequest::Kind::Watch;
    while (!rest.empty())
        requests.push_back(ForCell(kind, TakeWord(rest), codes));
    return requests;
}

std::string QuotedText(const std::string& utf8)
{
    std::string quoted = "\"";
    for (const char letter : utf8) {
        if (letter == '"' || letter == '\\')
            quoted += '\\';
        quoted += letter;
    }
    return quoted + "\"";
}

std::string CellLine(const std::string& name, double number, const std::string& text)
{
    std::string line = name + " " + NumberText(number);
    if (!text.empty()) {
        std::string utf8 = EucToUtf8(text);
        for (char& letter : utf8)
            if (static_cast<unsigned char>(letter) < ' ')
                letter = ' '; // a line stays one
        line += " " + QuotedText(utf8);
    }
    return line;
}

} // namespace tessary
