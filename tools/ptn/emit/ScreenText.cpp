#include "tools/ptn/emit/ScreenText.h"

#include "base/EucText.h"
#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "pattern/ScreenClass.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/emit/ParmText.h"
#include "tools/ptn/source/Placement.h"
#include "tools/ptn/source/ScreenSource.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace ptn
{

namespace
{

const std::set<int> CORNERS = {PARM_X1, PARM_Y1, PARM_X2, PARM_Y2};
/// What "size" and "at" of a window say.
const std::set<int> WINDOW_PLACE = {HEDR_WIDTH, HEDR_HEIGHT, HEDR_LEFT, HEDR_TOP};

/// The ready-made class that a header names; null when there is none, or nothing to say of it.
const ScreenClass* ClassOf(const HEDRFILE& header)
{
    const int number = header.Parm1[HEDR_CLASS];
    return number == SCREEN_PLAIN ? nullptr : FindScreenClass(number);
}

Parms ToParms(const std::int32_t* values)
{
    Parms parms{};
    std::copy_n(values, CONT_PARM, parms.begin());
    return parms;
}

std::vector<SchemaTable<ParmSchema>> TablesOf(int type)
{
    const ItemClass* schema = FindItemClass(type);
    return schema ? std::vector<SchemaTable<ParmSchema>>{schema->parms, CommonParms()}
                  : std::vector<SchemaTable<ParmSchema>>{CommonParms()};
}

// Whether a source can have the text within that many bytes.
bool IsSourceText(const std::string& euc, std::size_t limit)
{
    Diagnostics ignored;
    return ToEuc(EucToUtf8(euc), limit, "", {}, ignored) == euc;
}

// A text of "exact".
std::string ExactText(const std::string& euc)
{
    constexpr std::size_t longest = 65536;
    return IsSourceText(euc, longest) ? YamlScalar(EucToUtf8(euc)) : YamlMap({"bytes: " + Hex(euc)});
}

class ItemWriter
{
  public:
    ItemWriter(const PatternItem& item, const ProjectSource& project, const Defaults& defaults,
               const std::set<std::string>& patterns)
        : item_(item), project_(project), patterns_(patterns), schema_(FindItemClass(item.record.Type)),
          facts_(item, project.resources)
    {
        const auto styled = schema_ ? defaults.find(schema_->name) : defaults.end();
        before_ = styled != defaults.end() ? styled->second : InitialParms(TablesOf(item.record.Type));
    }

    std::string text();

  private:
    bool isPlaced() const;
    bool hasPlainTexts() const;
    void writePlace(bool exact);
    void writeTexts();
    void writeAction();
    void writeCell();

    const PatternItem& item_;
    const ProjectSource& project_;
    const std::set<std::string>& patterns_;
    const ItemClass* schema_;
    ItemFacts facts_;
    Parms before_{};
    std::vector<std::string> parts_;
    std::vector<std::string> exact_;
};

// What the build works out from attributes it can only do when these say all.
void ItemWriter::writePlace(bool exact)
{
    const std::int32_t* parm = item_.record.Parm;
    const std::vector<int> rect(parm, parm + 4);
    if (exact) {
        exact_.push_back("rect: " + YamlList(rect));
        return;
    }
    const std::optional<SIZE> natural = facts_.naturalSize();
    if (natural && rect[0] + natural->cx == rect[2] && rect[1] + natural->cy == rect[3])
        parts_.push_back("at: " + YamlList(std::vector<int>{rect[0], rect[1]}));
    else
        parts_.push_back("rect: " + YamlList(rect));
}

// Whether the build takes the corners from the attributes, and could not refuse them.
bool ItemWriter::isPlaced() const
{
    const std::int32_t* parm = item_.record.Parm;
    const bool upright = parm[PARM_X1] <= parm[PARM_X2] && parm[PARM_Y1] <= parm[PARM_Y2];
    return upright && Placement::reaches(parm, 0, 0) && facts_.fits();
}

bool ItemWriter::hasPlainTexts() const
{
    bool plain = schema_ && schema_->text != ItemText::None;
    for (const std::string& text : item_.texts) {
        plain = plain && IsSourceText(text, SIZE_PTRNTEXT);
        if (plain && schema_->text == ItemText::BitmapName && !text.empty())
            plain = project_.bitmaps.count(text) > 0;
    }
    return plain;
}

void ItemWriter::writeTexts()
{
    std::vector<std::string> texts;
    for (const std::string& text : item_.texts)
        texts.push_back(EucToUtf8(text));
    if (item_.texts[0].empty() && item_.texts[1].empty() && item_.texts[2].empty())
        return;
    if (hasPlainTexts()) {
        parts_.push_back("text: " + YamlTexts(texts));
        return;
    }
    for (std::size_t language = 0; language < texts.size(); ++language)
        texts[language] = ExactText(item_.texts.at(language));
    exact_.push_back("text: " + YamlList(texts));
}

void ItemWriter::writeAction()
{
    const ActionSchema* action = FindAction(item_.record.ID_Type);
    const bool opens = action && action->opens;
    if (opens && (!patterns_.count(item_.name) || !IsSourceText(item_.name, SIZE_ID_NAME))) {
        exact_.push_back("action: " + std::to_string(item_.record.ID_Type));
        if (!item_.name.empty())
            exact_.push_back("pattern: " + ExactText(item_.name));
        return;
    }
    if (item_.record.ID_Type || (schema_ && schema_->onlyActs))
        parts_.push_back("action: " + (action ? action->name : std::to_string(item_.record.ID_Type)));
    if (item_.name.empty())
        return;
    const bool plain = IsSourceText(item_.name, SIZE_ID_NAME);
    (plain ? parts_ : exact_).push_back("pattern: " + ExactText(item_.name));
}

void ItemWriter::writeCell()
{
    const CodeTable::Row* row = project_.codes.row(item_.code);
    const bool named = row && !ParseInteger(row->name) && row->name.find('+') == std::string::npos &&
                       IsSourceText(item_.code, SIZE_ID_CODE);
    if (!item_.code.empty() && named && item_.record.ID_No >= 0 && item_.record.ID_No < row->count) {
        parts_.push_back("data: " + YamlScalar(row->name + "+" + std::to_string(item_.record.ID_No)));
        return;
    }
    if (!item_.code.empty())
        exact_.push_back("code: " + ExactText(item_.code));
    if (item_.record.ID_No)
        exact_.push_back("offset: " + std::to_string(item_.record.ID_No));
}

std::string ItemWriter::text()
{
    const int type = item_.record.Type;
    parts_ = {"type: " + (schema_ ? schema_->name : std::to_string(type))};
    const Parms wanted = ToParms(item_.record.Parm);
    std::vector<std::string> left;
    const auto attributesFrom = [&](const Parms& before) {
        left.clear();
        return AttributeTexts(TablesOf(type), before, wanted, project_.vocabulary(), CORNERS, left);
    };
    // The build measures a text without a width, unless its corners or texts are exact: those come later.
    Parms measured = before_;
    if (schema_ && schema_->measuredParm >= 0 && hasPlainTexts()) {
        int& width = measured.at(static_cast<std::size_t>(schema_->measuredParm));
        width = width == 0 ? facts_.longestText() : width;
    }
    std::vector<std::string> attributes = attributesFrom(measured);
    const bool width0 = measured != before_ && wanted.at(schema_->measuredParm) == 0;
    const bool exact = !left.empty() || width0 || !isPlaced();
    if (exact)
        attributes = attributesFrom(before_);
    writePlace(exact);
    parts_.insert(parts_.end(), attributes.begin(), attributes.end());
    if (!left.empty())
        exact_.push_back("parm: " + YamlMap(left));
    writeTexts();
    writeCell();
    writeAction();
    if (item_.record.UndfFlag)
        exact_.push_back("reserved: " + std::to_string(item_.record.UndfFlag));
    if (!exact_.empty())
        parts_.push_back("exact: " + YamlMap(exact_));

    constexpr std::size_t width = 110;
    std::string text = "  - { ";
    std::size_t line = text.size();
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const std::string part = parts_[i] + (i + 1 < parts_.size() ? "," : "");
        if (line + part.size() > width && i > 0) {
            text.replace(text.size() - 1, 1, "\n      ");
            line = 6;
        }
        text += part + " ";
        line += part.size() + 1;
    }
    return text + "}\n";
}

std::string WindowText(const Pattern& pattern, const ProjectSource& project, const Defaults& defaults)
{
    const auto styled = defaults.find("window");
    const Parms before = styled != defaults.end() ? styled->second : InitialParms({HeaderParms()});
    Parms wanted = ToParms(pattern.header.Parm1);
    if (ClassOf(pattern.header)) // which "class" says
        wanted.at(HEDR_CLASS) = before.at(HEDR_CLASS);
    std::string text;
    const auto pair = [&](const char* name, std::size_t first, int lowest) {
        const bool same =
            before.at(first) == wanted.at(first) && before.at(first + 1) == wanted.at(first + 1);
        const auto inside = [&](int value) { return value >= lowest && value <= 32767; };
        if (!same && inside(wanted.at(first)) && inside(wanted.at(first + 1)))
            text += std::string("  ") + name + ": " +
                    YamlList(std::vector<int>{wanted.at(first), wanted.at(first + 1)}) + "\n";
    };
    pair("size", HEDR_WIDTH, 1);
    pair("at", HEDR_LEFT, -32768);
    std::vector<std::string> left;
    for (const std::string& part :
         AttributeTexts({HeaderParms()}, before, wanted, project.vocabulary(), WINDOW_PLACE, left))
        text += "  " + part + "\n";
    if (!left.empty())
        text += "  parm: " + YamlMap(left) + "\n";
    const std::vector<int> more(pattern.header.Parm2, pattern.header.Parm2 + CONT_PARM2);
    if (std::any_of(more.begin(), more.end(), [](int value) { return value != 0; }))
        text += "  parm2: " + YamlList(more) + "\n";
    return text.empty() ? "" : "window:\n" + text;
}

template <std::size_t N> std::string FieldOf(const char (&field)[N])
{
    return std::string(field, BoundedLength(field, N));
}

std::string HeaderText(const Pattern& pattern, const ProjectSource& project, const Defaults& defaults)
{
    const HEDRFILE& header = pattern.header;
    std::string text = "name: " + YamlScalar(EucToUtf8(pattern.name)) + "\n";
    const std::array<std::string, 3> titles = {FieldOf(header.PtrnName1), FieldOf(header.PtrnName2),
                                               FieldOf(header.PtrnName3)};
    if (std::all_of(titles.begin(), titles.end(),
                    [](const std::string& title) { return IsSourceText(title, SIZE_PTRNNAME); })) {
        std::vector<std::string> utf8;
        for (const std::string& title : titles)
            utf8.push_back(EucToUtf8(title));
        text += "title: " + YamlTexts(utf8) + "\n";
    }
    const auto bitmap = [&](const char* key, const std::string& name, std::size_t limit) {
        if (!name.empty() && project.bitmaps.count(name) && IsSourceText(name, limit))
            text += key + (": " + YamlScalar(EucToUtf8(name))) + "\n";
    };
    bitmap("logo", FieldOf(header.LogoName), SIZE_LOGONAME);
    bitmap("background", FieldOf(header.BmapName), SIZE_BMAPNAME);
    if (const ScreenClass* screenClass = ClassOf(header))
        text += "class: " + YamlScalar(screenClass->name) + "\n";
    return text + WindowText(pattern, project, defaults);
}

// Where a header that was built differs from the one that is wanted.
std::string HeaderPatches(const HEDRFILE& built, const HEDRFILE& wanted)
{
    const auto bytes = [](const HEDRFILE& header) {
        return std::string(reinterpret_cast<const char*>(&header), sizeof header);
    };
    const std::string from = bytes(built);
    const std::string to = bytes(wanted);
    std::vector<std::string> patches;
    for (std::size_t at = 0; at < to.size(); ++at) {
        // The counts at its end are those of the items.
        const bool counts = at >= offsetof(HEDRFILE, DataCount) && at < offsetof(HEDRFILE, UndfFlag);
        if (from[at] == to[at] || counts)
            continue;
        std::size_t end = at + 1;
        while (end < offsetof(HEDRFILE, DataCount) && end < to.size() && from[end] != to[end])
            ++end;
        patches.push_back(std::to_string(at) + ": \"" + Hex(to.substr(at, end - at)) + "\"");
        at = end - 1;
    }
    return patches.empty() ? "" : "exact:\n  bytes: " + YamlMap(patches) + "\n";
}

} // namespace

Defaults CommonStyles(const std::vector<Pattern>& patterns, const Vocabulary& names, std::string& text)
{
    Defaults defaults;
    std::string styles;
    const auto learn = [&](const std::string& name, const std::vector<SchemaTable<ParmSchema>>& tables,
                           const std::vector<const std::int32_t*>& examples, const std::set<int>& skip) {
        Parms common = InitialParms(tables);
        const Parms initial = common;
        for (const auto& table : tables) {
            for (const ParmSchema& parm : table) {
                std::map<std::vector<int>, std::size_t> counts;
                for (const std::int32_t* values : examples)
                    ++counts[std::vector<int>(values + parm.index, values + parm.index + parm.count)];
                for (const auto& count : counts)
                    if (2 * count.second > examples.size() && !skip.count(parm.index))
                        std::copy(count.first.begin(), count.first.end(), common.begin() + parm.index);
            }
        }
        std::vector<std::string> left;
        const std::vector<std::string> parts = AttributeTexts(tables, initial, common, names, skip, left);
        if (parts.empty() || examples.size() < 2)
            return;
        styles += "  " + name + ":\n";
        for (const std::string& part : parts)
            styles += "    " + part + "\n";
        // What the style can not say is not common either.
        for (const std::string& one : left) {
            const std::size_t index = static_cast<std::size_t>(std::stoi(one));
            common.at(index) = initial.at(index);
        }
        defaults[name] = common;
    };

    std::map<int, std::vector<const std::int32_t*>> items;
    std::vector<const std::int32_t*> windows;
    for (const Pattern& pattern : patterns) {
        windows.push_back(pattern.header.Parm1);
        for (const PatternItem& item : pattern.items)
            items[item.record.Type].push_back(item.record.Parm);
    }
    learn("window", {HeaderParms()}, windows, WINDOW_PLACE);
    for (const auto& type : items)
        if (const ItemClass* schema = FindItemClass(type.first)) {
            std::set<int> skip = CORNERS;
            if (schema->measuredParm >= 0)
                skip.insert(schema->measuredParm);
            learn(schema->name, TablesOf(type.first), type.second, skip);
        }
    text = styles.empty() ? "" : "styles:\n" + styles;
    return defaults;
}

std::string ScreenText(const Pattern& pattern, const ProjectSource& project, const Defaults& defaults,
                       const std::set<std::string>& patterns)
{
    const std::string head = HeaderText(pattern, project, defaults);
    std::string items = pattern.items.empty() ? "" : "\nitems:\n";
    for (const PatternItem& item : pattern.items)
        items += ItemWriter(item, project, defaults, patterns).text();

    // The header as the build would make it of what is written so far.
    Diagnostics ignored;
    ProjectSource bare;
    bare.resources = project.resources;
    bare.bitmaps = project.bitmaps;
    bare.styles = project.styles;
    const std::optional<Source> source = ParseYaml("", head, ignored);
    const std::optional<Pattern> built = source ? ReadScreen(*source, bare, ignored) : std::nullopt;
    return head + (built ? HeaderPatches(built->header, pattern.header) : "") + items;
}

} // namespace ptn
