#include "tests/house/Includes.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

namespace fs = std::filesystem;

namespace
{

enum class Group { framework, plant, program, sample, tool, registration, tests };

/// A folder, or a file, and its place in the order.
struct Area {
    const char* path;
    Group group;
    int level; ///< within its group: an include goes to the same level or to a lower one
    bool toolkit = false;
};

constexpr int CELLS = 3; ///< level of comndata

constexpr Area AREAS[] = {
    {"base", Group::framework, 0},
    {"config", Group::framework, 1},
    {"log", Group::framework, 2},
    {"comndata", Group::framework, CELLS},
    {"draw", Group::framework, 4, true},
    {"pattern", Group::framework, 5},
    {"window", Group::framework, 6, true},
    {"dialogs", Group::framework, 7, true},
    {"shell", Group::framework, 8, true},
    {"tessary.h", Group::framework, 9},
    {"tessary_plant.h", Group::plant, 0},
    {"links", Group::plant, 0},
    {"program", Group::program, 0},
    {"app", Group::sample, 0},
    {"app/ptn", Group::registration, 0}, // the sample's own part of the tool
    {"tools/ptn/system", Group::tool, 0, true},
    {"tools/ptn/common", Group::tool, 0},
    {"tools/ptn/yaml", Group::tool, 1},
    {"tools/ptn/model", Group::tool, 2, true}, // reads pictures
    {"tools/ptn/source", Group::tool, 3},
    {"tools/ptn/compiled", Group::tool, 4},
    {"tools/ptn/emit", Group::tool, 5},
    {"tools/ptn/check", Group::tool, 6},
    {"tools/ptn/render", Group::tool, 7, true},
    {"tools/ptn/run", Group::tool, 8},
    {"tools/ptn/starter", Group::tool, 8},
    {"tools/ptn/starter/program", Group::sample, 0}, // the program of a new project
    {"tools/ptn/commands", Group::tool, 9},
    {"tools/ptn/main.cpp", Group::tool, 10},
    {"docs/programs", Group::sample, 0}, // the examples of the manual
    {"tests/support", Group::tests, 0, true},
    {"tests", Group::tests, 1, true},
    {"bench", Group::tests, 1, true},
    {"fuzz", Group::tests, 1, true},
};

/// The area of a file: the longest path that holds it; null for none.
const Area* areaOf(const std::string& file)
{
    const Area* found = nullptr;
    std::size_t length = 0;
    for (const Area& area : AREAS) {
        const std::string path = area.path;
        const bool inside = file == path || file.compare(0, path.size() + 1, path + "/") == 0;
        if (inside && path.size() > length) {
            found = &area;
            length = path.size();
        }
    }
    return found;
}

bool mayInclude(const Area& from, const Area& to)
{
    if (from.group == to.group)
        return to.level <= from.level;
    switch (from.group) {
    case Group::framework:
        return false;
    case Group::plant: // beside the windows: nothing above the cells
        return to.group == Group::framework && to.level <= CELLS;
    case Group::program:
    case Group::sample:
    case Group::tool:
        return to.group == Group::framework || to.group == Group::plant;
    case Group::registration:
        return to.group != Group::tests;
    case Group::tests:
        return true;
    }
    return false;
}

bool isToolkit(const std::string& header)
{
    if (header == "X11/keysym.h") // numbers of keys: no types, no calls
        return false;
    constexpr const char* folders[] = {"gtk/", "gdk/", "gdk-pixbuf/", "X11/"};
    return std::any_of(std::begin(folders), std::end(folders), [&](const std::string& folder) {
        return header.compare(0, folder.size(), folder) == 0;
    });
}

struct Include {
    std::string header; ///< as it is written
    bool quoted;        ///< "header", not <header>
};

struct Source {
    std::vector<Include> includes;
    bool onlyForwards = false; ///< nothing but one include
};

std::string trimmed(std::string text)
{
    const auto isBlank = [](unsigned char c) { return std::isspace(c) != 0; };
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), isBlank));
    text.erase(std::find_if_not(text.rbegin(), text.rend(), isBlank).base(), text.end());
    return text;
}

/// The text after a preprocessor's word, such as "include"; empty when the line has another one.
std::string directive(const std::string& line, const std::string& word)
{
    if (line.empty() || line[0] != '#')
        return "";
    const std::string text = trimmed(line.substr(1));
    return text.compare(0, word.size(), word) == 0 ? trimmed(text.substr(word.size())) : "";
}

Source readSource(const fs::path& path)
{
    Source source;
    bool other = false;
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) {
        line = trimmed(line);
        if (line.empty() || line.compare(0, 2, "//") == 0 || !directive(line, "pragma").empty())
            continue;
        const std::string name = directive(line, "include");
        const std::size_t end = name.empty() ? std::string::npos : name.find(name[0] == '"' ? '"' : '>', 1);
        if (end == std::string::npos)
            other = true;
        else
            source.includes.push_back({name.substr(1, end - 1), name[0] == '"'});
    }
    source.onlyForwards = !other && source.includes.size() == 1 && path.extension() == ".h";
    return source;
}

/// A part of the program: a source and the header of that name.
std::string partOf(const std::string& file)
{
    return fs::path(file).replace_extension().string();
}

/// The files below a root and what they include.
class Tree
{
  public:
    explicit Tree(const fs::path& root) : root_(root) { read(root); }

    std::vector<std::string> faults()
    {
        for (const auto& [file, source] : sources_)
            checkFile(file, source);
        checkCircles();
        std::sort(faults_.begin(), faults_.end());
        return faults_;
    }

  private:
    using Parts = std::set<std::string>;

    void read(const fs::path& folder)
    {
        for (const auto& entry : fs::directory_iterator(folder)) {
            const fs::path& path = entry.path();
            const std::string name = path.filename().string();
            if (entry.is_directory()) {
                if (name[0] != '.' && name.compare(0, 5, "build") != 0)
                    read(path);
            } else if (path.extension() == ".cpp" || path.extension() == ".h") {
                sources_[path.lexically_relative(root_).generic_string()] = readSource(path);
            }
        }
    }

    /// The file of the tree that an include means; empty when it is none of them.
    std::string target(const std::string& file, const std::string& header) const
    {
        std::string beside = (fs::path(file).parent_path() / header).lexically_normal().generic_string();
        if (sources_.count(beside) > 0)
            return beside;
        return sources_.count(header) > 0 ? header : "";
    }

    void checkFile(const std::string& file, const Source& source)
    {
        const Area* area = areaOf(file);
        if (!area) {
            faults_.push_back(file + ": its folder has no place in the order of the folders");
            return;
        }
        for (const Include& include : source.includes) {
            const std::string included = target(file, include.header);
            const Area* other = areaOf(included);
            const std::string place = file + ": \"" + include.header + "\" is ";
            if (isToolkit(include.header) && !area->toolkit)
                faults_.push_back(place + "of the toolkit");
            if (other && !mayInclude(*area, *other))
                faults_.push_back(place + "above " + area->path);
            if (!included.empty() && sources_.at(included).onlyForwards)
                faults_.push_back(place + "a header that only forwards");
            if (!included.empty())
                uses_[partOf(file)].insert(partOf(included));
        }
    }

    /// Everything that a part reaches by its includes.
    void reach(const std::string& part, Parts& reached) const
    {
        const auto uses = uses_.find(part);
        if (uses == uses_.end())
            return;
        for (const std::string& used : uses->second)
            if (used != part && reached.insert(used).second)
                reach(used, reached);
    }

    void checkCircles()
    {
        std::map<std::string, Parts> reached;
        for (const auto& [part, uses] : uses_)
            reach(part, reached[part]);
        Parts told;
        for (const auto& [part, others] : reached) {
            if (others.count(part) == 0 || told.count(part) > 0)
                continue;
            std::string circle;
            for (const std::string& other : others) { // sorted, the part itself among them
                if (reached.count(other) == 0 || reached.at(other).count(part) == 0)
                    continue;
                circle += (circle.empty() ? "" : ", ") + other;
                told.insert(other);
            }
            faults_.push_back(circle + ": a circle");
        }
    }

    fs::path root_;
    std::map<std::string, Source> sources_;
    std::map<std::string, Parts> uses_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> includeFaults(const std::string& root)
{
    return Tree(root).faults();
}
