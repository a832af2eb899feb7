#include "tools/ptn/source/ProjectSource.h"

#include "base/EucText.h"
#include "tools/ptn/common/CppSource.h"
#include "tools/ptn/common/Identifier.h"

#include <algorithm>
#include <cctype>

namespace ptn
{

namespace fs = std::filesystem;

void KnownPatterns::addSource(const std::string& source)
{
    const CppSource parts = ReadCpp(source);
    for (const std::string& text : parts.texts)
        texts_.insert(Utf8ToEuc(text));
    const std::string scope = "screen::";
    const std::string& code = parts.code;
    for (std::size_t at = code.find(scope); at != std::string::npos; at = code.find(scope, at)) {
        at += scope.size();
        const auto isPart = [](char byte) { return (byte & 0x80) || std::isalnum(byte) || byte == '_'; };
        const auto begin = code.begin() + static_cast<std::ptrdiff_t>(at);
        constants_.emplace(begin, std::find_if_not(begin, code.end(), isPart));
    }
}

std::size_t KnownPatterns::count(const std::string& name) const
{
    const std::string utf8 = EucToUtf8(name);
    const bool known = texts_.count(name) ||
                       std::any_of(constants_.begin(), constants_.end(), [&](const std::string& constant) {
                           return IsIdentifierOf(constant, utf8);
                       });
    return known ? 1 : 0;
}

std::optional<KnownPatterns> QuotedTexts(const fs::path& path, const Place& place, Diagnostics& diagnostics)
{
    std::vector<fs::path> files = {path};
    std::error_code missing;
    if (fs::is_directory(path, missing)) {
        files.clear();
        for (const auto& entry : fs::directory_iterator(path, missing))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
                files.push_back(entry.path());
    }
    KnownPatterns known;
    for (const fs::path& file : files) {
        const std::optional<std::string> source = ReadBytes(file);
        if (!source) {
            diagnostics.error(
                place,
                fmt::format("'registry': '{}' can not be read. Name the source file that knows the patterns.",
                            file.string()));
            return std::nullopt;
        }
        known.addSource(*source);
    }
    return known;
}

} // namespace ptn
