#include "tests/docs/Pages.h"

#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace
{

/// Files with one of the extensions in a folder of the repository, and, when it is asked for, below it.
void AddFiles(const std::string& folder, const std::vector<std::string>& extensions, bool below,
              std::vector<std::string>* files)
{
    const fs::path root = Program::sourceFolder();
    std::error_code missing; // a folder may come later
    for (const auto& entry : fs::directory_iterator(root / folder, missing)) {
        const std::string name = entry.path().lexically_relative(root).generic_string();
        if (entry.is_directory() && below)
            AddFiles(name, extensions, below, files);
        else if (std::count(extensions.begin(), extensions.end(), entry.path().extension()))
            files->push_back(name);
    }
}

} // namespace

std::vector<std::string> Pages()
{
    std::vector<std::string> files;
    AddFiles("", {".md"}, false, &files);
    AddFiles("docs", {".md"}, true, &files);
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::string> FrameworkSources()
{
    std::vector<std::string> files;
    for (const char* folder : {"base", "config", "log", "comndata", "draw", "pattern", "window", "dialogs",
                               "shell", "links", "program"})
        AddFiles(folder, {".cpp", ".h"}, true, &files);
    std::sort(files.begin(), files.end());
    return files;
}

std::string TextOf(const std::string& file)
{
    return readFile(Program::sourceFolder() + "/" + file);
}

std::vector<std::string> Literals(const std::string& source)
{
    static const std::regex LITERAL(R"re("((?:[^"\\]|\\.)*)")re");
    std::vector<std::string> found;
    std::istringstream lines(source);
    for (std::string line; std::getline(lines, line);) {
        line.erase(std::min(line.find("//"), line.size()));
        for (std::sregex_iterator at(line.begin(), line.end(), LITERAL), end; at != end; ++at)
            found.push_back((*at)[1]);
    }
    return found;
}

std::vector<std::string> FencedBlocks(const std::string& page, const std::string& language)
{
    std::vector<std::string> blocks;
    std::istringstream lines(page);
    bool wanted = false;
    bool fenced = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, 3, "```") == 0) {
            fenced = !fenced;
            wanted = fenced && line == "```" + language;
            if (wanted)
                blocks.emplace_back();
        } else if (wanted) {
            blocks.back() += line + "\n";
        }
    }
    return blocks;
}
