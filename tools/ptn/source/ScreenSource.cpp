#include "tools/ptn/source/ScreenSource.h"

#include "base/EucText.h"
#include "base/Limits.h"
#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "pattern/ScreenClass.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/source/Exact.h"
#include "tools/ptn/source/ItemList.h"

#include <algorithm>
#include <map>
#include <set>

namespace ptn
{

using tessary::COORDINATE_MAX;

namespace
{

/// Nothing interprets it when a pattern is loaded; it tells which tool wrote the file.
constexpr int PATTERN_VERSION = 1;

const std::vector<std::string> SCREEN_KEYS = {"name",   "title",  "logo",   "background", "class",
                                              "window", "styles", "groups", "items",      "exact"};

class ScreenReader
{
  public:
    ScreenReader(const ProjectSource& project, Amount& amount, Diagnostics& diagnostics)
        : project_(project), amount_(amount), diagnostics_(diagnostics),
          window_({HeaderParms()}, pattern_.header.Parm1, project.vocabulary(), diagnostics)
    {
        pattern_.header.Version = PATTERN_VERSION;
    }

    std::optional<Pattern> read(const Source& source);

  private:
    void readName(const Source& source, const Place& place);
    void readTitle(const Entry& entry);
    template <std::size_t N> void readBitmap(char (&field)[N], const Entry& entry);
    void readWindow(const Source& source);
    void readClass(const Entry& entry);
    void readParm2(const Source& source);

    const ProjectSource& project_;
    Amount& amount_;
    Diagnostics& diagnostics_;
    Pattern pattern_;
    Attributes window_;
    Styles styles_;
    Groups groups_;
};

std::optional<Pattern> ScreenReader::read(const Source& source)
{
    std::map<std::string, Entry> parts;
    for (const Entry& entry : Entries(source, "the screen", diagnostics_)) {
        if (std::find(SCREEN_KEYS.begin(), SCREEN_KEYS.end(), entry.name) == SCREEN_KEYS.end())
            ReportUnknown(entry, "unknown", SCREEN_KEYS,
                          "A screen has name, title, logo, background, window, styles, groups, items.",
                          diagnostics_);
        parts.emplace(entry.name, entry);
    }
    const auto part = [&](const char* name) { return parts[name].value; };

    if (!parts.count("name")) {
        diagnostics_.error({source.place().file, 0},
                           "the screen has no 'name'. Write the name of its pattern.");
        return std::nullopt;
    }
    pattern_.place = parts["name"].place;
    readName(part("name"), pattern_.place);
    readTitle(parts[parts.count("title") ? "title" : "name"]);
    if (parts.count("logo"))
        readBitmap(pattern_.header.LogoName, parts["logo"]);
    if (parts.count("background"))
        readBitmap(pattern_.header.BmapName, parts["background"]);
    styles_.read(part("styles"), diagnostics_);
    readWindow(part("window"));
    if (parts.count("class"))
        readClass(parts["class"]);
    groups_.read(part("groups"), &project_.groups, diagnostics_);
    pattern_.items = ReadItems(part("items"), "'items'", {project_, styles_, groups_, amount_, diagnostics_});
    if (parts.count("exact"))
        ReadExactHeader(part("exact"), pattern_.header, diagnostics_);
    return pattern_;
}

void ScreenReader::readName(const Source& source, const Place& place)
{
    const auto name = Text(source, "'name'", diagnostics_);
    const auto euc =
        name ? ToEucFileName(*name, SIZE_PTRNNAME, "the name", place, diagnostics_) : std::nullopt;
    // The program takes a pattern's name up to the first dot, and profile keys up to these two.
    if (euc && euc->find_first_of(".,;") != std::string::npos)
        diagnostics_.error(place,
                           fmt::format("the name '{}' has '.', ',' or ';' in it. Write it without.", *name));
    pattern_.name = euc.value_or("");
}

void ScreenReader::readTitle(const Entry& entry)
{
    const auto titles = Texts(entry.value, "'title'", diagnostics_);
    if (!titles)
        return;
    HEDRFILE& header = pattern_.header;
    std::size_t language = 0;
    for (auto* field : {&header.PtrnName1, &header.PtrnName2, &header.PtrnName3})
        if (const auto euc =
                ToEuc((*titles)[language++], SIZE_PTRNNAME, "'title'", entry.place, diagnostics_))
            CopyText(*field, euc->c_str());
}

template <std::size_t N> void ScreenReader::readBitmap(char (&field)[N], const Entry& entry)
{
    const auto name = Text(entry.value, Quoted(entry.name), diagnostics_);
    const auto euc = name ? ToEuc(*name, N - 2, Quoted(entry.name), entry.place, diagnostics_) : std::nullopt;
    if (!euc)
        return;
    CopyText(field, euc->c_str());
    if (!euc->empty() && !project_.bitmaps.count(*euc))
        diagnostics_.error(entry.place,
                           fmt::format("'{}': no file '{}' in 'bitmaps'. Put it there or correct the name.",
                                       entry.name, *name));
}

void ScreenReader::readWindow(const Source& source)
{
    for (const Styles* styles : {&project_.styles, static_cast<const Styles*>(&styles_)})
        if (const Layer* style = styles->find("window"))
            window_.apply(*style);

    const Subject label = "'window'";
    Layer own{label, {}};
    Source unnamed;
    for (const Entry& entry : Entries(source, label, diagnostics_)) {
        if (entry.name == "size" || entry.name == "at") {
            const auto numbers = Integers(entry.value, 2, label + ": " + Quoted(entry.name), diagnostics_);
            if (numbers) {
                const int first = entry.name == "size" ? HEDR_WIDTH : HEDR_LEFT;
                std::copy(numbers->begin(), numbers->end(), pattern_.header.Parm1 + first);
            }
        } else if (entry.name == "parm") {
            unnamed = entry.value;
        } else if (entry.name == "parm2") {
            readParm2(entry.value);
        } else if (window_.find(entry.name)) {
            own.entries.push_back(entry);
        } else {
            std::vector<std::string> names = window_.names();
            names.insert(names.end(), {"size", "at", "parm", "parm2"});
            ReportUnknown(entry, label + ": unknown attribute", names, "Correct or remove it.", diagnostics_);
        }
    }
    window_.apply(own);
    if (!unnamed.isEmpty())
        ReadParm(unnamed, label, pattern_.header.Parm1, diagnostics_);
    for (const int side : {HEDR_WIDTH, HEDR_HEIGHT})
        if (pattern_.header.Parm1[side] < 1 || pattern_.header.Parm1[side] > COORDINATE_MAX)
            diagnostics_.error(source.place(), label,
                               " has a side of {} pixels. Write a 'size' from 1 to {}.",
                               pattern_.header.Parm1[side], COORDINATE_MAX);
}

void ScreenReader::readClass(const Entry& entry)
{
    const auto name = Text(entry.value, "'class'", diagnostics_);
    if (!name)
        return;
    if (const ScreenClass* found = FindScreenClass(name->c_str())) {
        pattern_.header.Parm1[HEDR_CLASS] = found->number;
        return;
    }
    std::vector<std::string> names;
    std::string list;
    for (const ScreenClass& one : ScreenClasses()) {
        list += (names.empty() ? "" : ", ") + std::string(one.name);
        names.push_back(one.name);
    }
    diagnostics_.error(entry.place, fmt::format("no class '{}'.{} The ready-made classes are: {}.", *name,
                                                Suggestion(*name, names), list));
}

void ScreenReader::readParm2(const Source& source)
{
    const auto numbers = Integers(source, CONT_PARM2, "'window': 'parm2'", diagnostics_);
    if (numbers)
        std::copy(numbers->begin(), numbers->end(), pattern_.header.Parm2);
}

} // namespace

std::optional<Pattern> ReadScreen(const Source& source, const ProjectSource& project,
                                  Diagnostics& diagnostics)
{
    Amount amount;
    return ScreenReader(project, amount, diagnostics).read(source);
}

namespace
{

// Reports patterns of the same name. @return the names in EUC-JP
std::set<std::string> CheckNames(const std::vector<Pattern>& patterns, Diagnostics& diagnostics)
{
    std::map<std::string, Place> places;
    std::set<std::string> names;
    for (const Pattern& pattern : patterns) {
        names.insert(pattern.name);
        const auto added = places.emplace(pattern.name, pattern.place);
        if (!added.second)
            diagnostics.error(pattern.place,
                              fmt::format("this name is also that of {}. Give one of them another.",
                                          added.first->second.file));
    }
    return names;
}

void CheckOpened(const std::vector<Pattern>& patterns, const std::set<std::string>& names,
                 Diagnostics& diagnostics)
{
    for (const Pattern& pattern : patterns) {
        for (const PatternItem& item : pattern.items) {
            const ActionSchema* action = FindAction(item.record.ID_Type);
            if (action && action->opens && !item.exact && !names.count(item.name))
                diagnostics.error(item.place, fmt::format("no screen is named '{}', which this item opens. "
                                                          "Correct 'pattern' or add the screen.",
                                                          EucToUtf8(item.name)));
        }
    }
}

} // namespace

ScreenSet ReadScreens(const std::filesystem::path& folder, const ProjectSource& project,
                      Diagnostics& diagnostics)
{
    ScreenSet screens;
    Amount amount;
    CheckReadable(folder / "screens", diagnostics);
    CheckYamlNames(folder / "screens", diagnostics);
    for (const std::string& file : YamlFiles(folder / "screens")) {
        const std::optional<Source> source = ReadYaml(file, diagnostics);
        std::optional<Pattern> pattern;
        if (source)
            pattern = ScreenReader(project, amount, diagnostics).read(*source);
        if (pattern)
            screens.patterns.push_back(std::move(*pattern));
        else
            screens.complete = false;
    }
    const std::set<std::string> names = CheckNames(screens.patterns, diagnostics);
    if (screens.complete) {
        CheckOpened(screens.patterns, names, diagnostics);
        project.profile.checkPatterns(names, diagnostics);
    }
    return screens;
}

} // namespace ptn
