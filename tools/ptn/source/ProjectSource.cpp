#include "tools/ptn/source/ProjectSource.h"

#include "base/EucText.h"

#include <sstream>

namespace ptn
{

namespace fs = std::filesystem;

std::optional<std::set<std::string>> QuotedTexts(const fs::path& path, const Place& place,
                                                 Diagnostics& diagnostics)
{
    std::vector<fs::path> files = {path};
    std::error_code missing;
    if (fs::is_directory(path, missing)) {
        files.clear();
        for (const auto& entry : fs::directory_iterator(path, missing))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
                files.push_back(entry.path());
    }
    std::set<std::string> texts;
    for (const fs::path& file : files) {
        const std::optional<std::string> source = ReadBytes(file);
        if (!source) {
            diagnostics.error(
                place,
                fmt::format("'registry': '{}' can not be read. Name the source file that knows the patterns.",
                            file.string()));
            return std::nullopt;
        }
        std::istringstream lines(*source);
        for (std::string line; std::getline(lines, line);) {
            for (std::size_t at = line.find('"'); at != std::string::npos; at = line.find('"', at + 1)) {
                const std::size_t end = line.find('"', at + 1);
                if (end == std::string::npos)
                    break;
                texts.insert(Utf8ToEuc(line.substr(at + 1, end - at - 1)));
                at = end;
            }
        }
    }
    return texts;
}

} // namespace ptn
