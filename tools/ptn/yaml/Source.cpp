#include "tools/ptn/yaml/Source.h"

#include "tools/ptn/common/Names.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <set>

namespace ptn
{

namespace
{

/// "$name" or "${name}" within a text.
struct Placeholder {
    std::size_t at = 0;
    std::size_t length = 0;
    std::string name;
};

std::optional<Placeholder> NextPlaceholder(const std::string& text, std::size_t from)
{
    static const char* const LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
    for (std::size_t at = text.find('$', from); at != std::string::npos; at = text.find('$', at + 1)) {
        const bool braces = text.compare(at + 1, 1, "{") == 0;
        const std::size_t begin = at + (braces ? 2 : 1);
        const std::size_t end = std::min(text.find_first_not_of(LETTERS, begin), text.size());
        if (end > begin && (!braces || text.compare(end, 1, "}") == 0))
            return Placeholder{at, end + (braces ? 1 : 0) - at, text.substr(begin, end - begin)};
    }
    return std::nullopt;
}

} // namespace

std::vector<std::string> ArgumentNames(const std::string& text)
{
    std::vector<std::string> names;
    for (auto found = NextPlaceholder(text, 0); found;
         found = NextPlaceholder(text, found->at + found->length))
        names.push_back(found->name);
    return names;
}

Source::Source(std::shared_ptr<const std::string> file, const YAML::Node& node,
               std::shared_ptr<const Arguments> arguments, std::shared_ptr<const std::string> use)
    : file_(std::move(file)), node_(node), arguments_(std::move(arguments)), use_(std::move(use))
{
    // Marks count from 0; nodes that were not read from a file have none.
    if (node.IsDefined() && node.Mark().line >= 0)
        line_ = node.Mark().line + 1;
    if (arguments_ && isText())
        fillIn();
}

void Source::fillIn()
{
    std::string text = node_.Scalar();
    bool changed = false;
    for (std::size_t at = 0; const auto found = NextPlaceholder(text, at);) {
        const auto argument = arguments_->find(found->name);
        if (argument == arguments_->end()) {
            at = found->at + found->length;
            continue;
        }
        if (found->length == text.size() && !changed) {
            const Source whole = argument->second;
            *this = whole;
            return;
        }
        const std::string value = argument->second.text();
        text.replace(found->at, found->length, value);
        at = found->at + value.size();
        changed = true;
    }
    if (changed)
        node_.reset(YAML::Node(text));
}

Source Source::with(std::shared_ptr<const Arguments> arguments, const Place& use) const
{
    // The outermost use, which is that of a screen.
    const bool elsewhere = !use.use.empty() || !file_ || use.file != *file_;
    const std::string place = use.use.empty() ? use.file + ":" + std::to_string(use.line) : use.use;
    Source made(file_, node_, std::move(arguments),
                elsewhere ? std::make_shared<const std::string>(place) : nullptr);
    made.line_ = made.line_ ? made.line_ : line_;
    return made;
}

Source& Source::operator=(const Source& other)
{
    if (this == &other)
        return *this;
    file_ = other.file_;
    node_.reset(other.node_);
    line_ = other.line_;
    arguments_ = other.arguments_;
    use_ = other.use_;
    return *this;
}

Place Source::place() const
{
    return {file_ ? *file_ : std::string(), line_, use_ ? *use_ : std::string()};
}

Source Source::child(const YAML::Node& node, const Place& key) const
{
    Source made(file_, node, arguments_, use_);
    if (made.isEmpty())
        made.line_ = key.line;
    return made;
}

std::vector<Source> Source::members() const
{
    std::vector<Source> members;
    if (isList())
        for (const YAML::Node& node : node_)
            members.push_back(child(node));
    return members;
}

std::vector<Entry> Entries(const Source& source, const Subject& what, Diagnostics& diagnostics)
{
    std::vector<Entry> entries;
    if (source.isEmpty())
        return entries;
    if (!source.isMap()) {
        diagnostics.error(source.place(), what + " must be a mapping: write one 'name: value' per line.");
        return entries;
    }
    std::set<std::string> names;
    for (const auto& pair : source.node()) {
        const Source key = source.child(pair.first);
        if (!key.isText()) {
            diagnostics.error(key.place(),
                              what + " has a key that is not a plain name. Write a name before the ':'.");
            continue;
        }
        const std::string name = key.text();
        if (!names.insert(name).second) {
            diagnostics.error(key.place(), what, " has '{}' twice. Remove one of them.", name);
            continue;
        }
        entries.push_back({name, key.place(), source.child(pair.second, key.place())});
    }
    return entries;
}

void ReportUnknown(const Entry& entry, const Subject& what, const std::vector<std::string>& known,
                   const std::string& remedy, Diagnostics& diagnostics)
{
    diagnostics.error(entry.place, what, " '{}'.{} {}", entry.name, Suggestion(entry.name, known), remedy);
}

std::optional<int> ParseInteger(const std::string& text)
{
    const std::size_t sign = !text.empty() && text[0] == '-' ? 1 : 0;
    const bool hex = text.compare(sign, 2, "0x") == 0;
    const std::size_t digits = sign + (hex ? 2 : 0);
    const char* allowed = hex ? "0123456789abcdefABCDEF" : "0123456789";
    if (digits >= text.size() || text.find_first_not_of(allowed, digits) != std::string::npos)
        return std::nullopt;
    errno = 0;
    const long long value = std::strtoll(text.c_str(), nullptr, hex ? 16 : 10);
    if (errno || value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(value);
}

std::optional<double> Real(const Source& source, const Subject& what, Diagnostics& diagnostics)
{
    const std::string text = source.text();
    const char* end = text.data() + text.size();
    double value = 0;
    const auto [at, problem] = std::from_chars(text.data(), end, value);
    if (text.empty() || at != end || problem != std::errc() || !std::isfinite(static_cast<float>(value))) {
        diagnostics.error(source.place(), what, " can not be '{}'. Write a number, such as 10 or -2.5.",
                          text);
        return std::nullopt;
    }
    return value;
}

std::optional<int> Integer(const Source& source, int minimum, int maximum, const Subject& what,
                           Diagnostics& diagnostics)
{
    const std::optional<int> value = source.isText() ? ParseInteger(source.text()) : std::nullopt;
    if (!value || *value < minimum || *value > maximum) {
        const std::string found = source.isText() ? Quoted(source.text()) : "this";
        diagnostics.error(source.place(), what, " can not be {}. Write a whole number from {} to {}.", found,
                          minimum, maximum);
        return std::nullopt;
    }
    return value;
}

std::optional<bool> Boolean(const Source& source, const Subject& what, Diagnostics& diagnostics)
{
    const std::string text = source.text();
    for (const char* word : {"true", "yes", "on", "1"})
        if (text == word)
            return true;
    for (const char* word : {"false", "no", "off", "0"})
        if (text == word)
            return false;
    diagnostics.error(source.place(), what + " must be true or false.");
    return std::nullopt;
}

std::optional<std::vector<int>> Integers(const Source& source, std::size_t count, const Subject& what,
                                         Diagnostics& diagnostics)
{
    std::vector<int> values;
    for (const Source& member : source.members())
        if (const std::optional<int> value = member.isText() ? ParseInteger(member.text()) : std::nullopt)
            values.push_back(*value);
    if (values.size() != count || source.members().size() != count) {
        diagnostics.error(source.place(), what, " must be a list of {} whole numbers, such as [{}].", count,
                          count == 4 ? "8, 8, 80, 32" : "8, 8");
        return std::nullopt;
    }
    return values;
}

std::optional<std::string> Text(const Source& source, const Subject& what, Diagnostics& diagnostics)
{
    if (source.isText() || source.isEmpty())
        return source.text();
    diagnostics.error(source.place(), what + " must be a text.");
    return std::nullopt;
}

std::optional<std::vector<std::string>> Texts(const Source& source, const Subject& what,
                                              Diagnostics& diagnostics)
{
    std::vector<std::string> texts;
    if (source.isList()) {
        for (const Source& member : source.members())
            if (member.isText() || member.isEmpty())
                texts.push_back(member.text());
        if (texts.size() != source.members().size() || texts.empty() || texts.size() > 3) {
            diagnostics.error(
                source.place(),
                what + " must be one text, or a list of two or three in the order of the languages.");
            return std::nullopt;
        }
    } else {
        const std::optional<std::string> text = Text(source, what, diagnostics);
        if (!text)
            return std::nullopt;
        texts.push_back(*text);
    }
    texts.resize(3, texts.back());
    return texts;
}

} // namespace ptn
