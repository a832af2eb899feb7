#include "tools/ptn/model/Profile.h"

#include "base/EucText.h"
#include "config/Edition.h"
#include "config/ProfileText.h"
#include "config/Scaling.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>

namespace ptn
{

using namespace tessary;

namespace
{

/// Fonts of one language are numbered in blocks of this size.
constexpr int FONTS_PER_LANGUAGE = CONT_FONT;

const std::string DIR_MARK = "@DIR@/";
const std::string WINDOW_SECTION = "WINDOW";
const std::string FONT_KEY = "FONTNAME";
const std::string PROGRAM_SECTION = "TESSARY";

/// A key that has a section of its own in the sources, with a name of its own.
struct OwnLine {
    const char* section;
    const char* key;
};
constexpr OwnLine EDITION = {"edition", "EDITION"};
constexpr OwnLine SCALE = {"scale", "SCALE"};
constexpr OwnLine OWN_LINES[] = {EDITION, SCALE};

const OwnLine* LineOfKey(const std::string& key)
{
    const auto* found = std::find_if(std::begin(OWN_LINES), std::end(OWN_LINES),
                                     [&](const OwnLine& line) { return key == line.key; });
    return found == std::end(OWN_LINES) ? nullptr : found;
}

const OwnLine& LineCalled(const std::string& section)
{
    return section == EDITION.section ? EDITION : SCALE;
}

bool IsName(const std::string& name)
{
    return !name.empty() && name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                                   "0123456789_") == std::string::npos;
}

bool FitsField(const std::string& value)
{
    return value.size() <= PROFILE_FIELD_MAX &&
           value.find_first_of(std::string(",;\n\0", 4)) == std::string::npos;
}

// The remembered window positions in a profile that the program has written to; bytes of an older, longer
// profile may follow them.
std::string RememberedWindows(const std::string& profile)
{
    std::string kept;
    for (const ProfileSection& section : ParseProfile(profile))
        if (section.name == WINDOW_SECTION)
            for (const ProfileKey& key : section.keys)
                if (BeginsWith(key.name.c_str(), WINDOW_SECTION))
                    kept += KeyBegin(key.name) + key.value + "\n";
    return kept.empty() ? "" : SectionBegin(WINDOW_SECTION) + "\n" + kept;
}

// Nothing but the plain number: what a panel would make of anything else is a guess.
std::optional<int> KnownEdition(const std::string& text)
{
    for (int edition = 1; edition <= LATEST_EDITION; ++edition)
        if (text == std::to_string(edition))
            return edition;
    return std::nullopt;
}

/// Whether a key of a compiled profile can be a line of its own again.
bool IsKnown(const OwnLine& line, const std::string& value)
{
    return line.key == EDITION.key ? KnownEdition(value).has_value() : ScalingOf(value).has_value();
}

} // namespace

void ProfileSource::read(const Source& section, Diagnostics& diagnostics)
{
    for (const Entry& part : Entries(section, "'profile'", diagnostics)) {
        if (!IsName(part.name) || part.name == WINDOW_SECTION) {
            diagnostics.error(part.place, fmt::format("'profile' can not have a section '{}'{}", part.name,
                                                      part.name == WINDOW_SECTION
                                                          ? ": the program writes it itself. Remove it."
                                                          : ". Use letters, digits and '_' only."));
            continue;
        }
        sections_.push_back(part.name);
        for (const Entry& entry : Entries(part.value, "profile section " + Quoted(part.name), diagnostics))
            readKey(part.name, entry, diagnostics);
    }
    checkLines(diagnostics);
}

void ProfileSource::readKey(const std::string& section, const Entry& entry, Diagnostics& diagnostics)
{
    const Subject what = "profile key " + Quoted(entry.name);
    const OwnLine* const line = section == PROGRAM_SECTION ? LineOfKey(entry.name) : nullptr;
    const auto own = line ? lines_.find(line->section) : lines_.end();
    if (line && own != lines_.end()) {
        const Place& place = own->second.place;
        diagnostics.error(entry.place, what, " is what '{}' is in {}:{}. Remove this one.", line->section,
                          place.file, place.line);
        return;
    }
    if (!IsName(entry.name)) {
        diagnostics.error(entry.place, what + " is no key. Use letters, digits and '_' only.");
        return;
    }
    std::vector<Source> fields = entry.value.members();
    if (!entry.value.isList())
        fields = {entry.value};

    std::string value;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto text = Text(fields[i], what, diagnostics);
        const auto field =
            text ? ToEuc(*text, PROFILE_FIELD_MAX, what, entry.place, diagnostics) : std::nullopt;
        if (!field)
            return;
        if (!FitsField(*field) || (!field->empty() && field->back() == ' ')) {
            diagnostics.error(entry.place, what + ": a value can have no ',' or ';' and no blank at its end. "
                                                  "Write several fields as a list.");
            return;
        }
        value += (i ? "," : "") + *field;
    }
    if (KeyBegin(entry.name).size() + value.size() > PROFILE_LINE_MAX) {
        diagnostics.error(entry.place, what, " is longer than a line of the profile. Shorten it to {} bytes.",
                          PROFILE_LINE_MAX);
        return;
    }
    keys_.push_back({section, entry.name, value, entry.place});
}

const ProfileSource::Key* ProfileSource::find(const std::string& section, const std::string& name) const
{
    const auto place = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) {
        return key.section == section && key.name == name;
    });
    return place == keys_.end() ? nullptr : &*place;
}

void ProfileSource::readLine(const std::string& name, const Source& section, Diagnostics& diagnostics)
{
    lines_[name] = Key{PROGRAM_SECTION, LineCalled(name).key, Utf8ToEuc(section.text()), section.place()};
    checkLines(diagnostics);
}

const ProfileSource::Key* ProfileSource::lineKey(const std::string& name) const
{
    const auto own = lines_.find(name);
    return own != lines_.end() ? &own->second : find(PROGRAM_SECTION, LineCalled(name).key);
}

void ProfileSource::checkLines(Diagnostics& diagnostics) const
{
    checkEdition(diagnostics);
    checkScale(diagnostics);
}

void ProfileSource::checkEdition(Diagnostics& diagnostics) const
{
    const Key* key = lineKey(EDITION.section);
    if (key && !KnownEdition(key->value))
        diagnostics.error(key->place,
                          fmt::format("there is no edition '{}'. Write a number from 1 to {}; 'ptn help "
                                      "editions' tells what they are.",
                                      EucToUtf8(key->value), LATEST_EDITION));
}

void ProfileSource::checkScale(Diagnostics& diagnostics) const
{
    const Key* key = lineKey(SCALE.section);
    if (!key || ScalingOf(key->value))
        return;
    std::vector<std::string> words;
    for (const auto& known : SCALING_WORDS)
        words.emplace_back(known.first);
    const std::string word = EucToUtf8(key->value);
    diagnostics.error(
        key->place, fmt::format("there is no scale '{}'.{} Write 'steps' to enlarge the panel by whole "
                                "numbers, or 'fit' to fill its display; without the line it keeps its size.",
                                word, Suggestion(word, words)));
}

int ProfileSource::edition() const
{
    const Key* key = lineKey(EDITION.section);
    return key ? KnownEdition(key->value).value_or(1) : 1;
}

bool ProfileSource::scaled(Place* place) const
{
    const Key* key = lineKey(SCALE.section);
    if (key && place)
        *place = key->place;
    return key && ScalingOf(key->value);
}

void ProfileSource::checkPatterns(const std::set<std::string>& patterns, Diagnostics& diagnostics) const
{
    for (const char* name : {"PTRNSTART", "PTRNSTOP"})
        if (const Key* key = find("PTRN", name); key && !key->value.empty() && !patterns.count(key->value))
            diagnostics.error(
                key->place,
                fmt::format(
                    "profile key '{}' names a pattern that no screen defines. Use the 'name' of a screen.",
                    name));
}

std::string ProfileSource::bytes(const std::string& folder, const std::string& project,
                                 const Resources& resources, const std::string& before,
                                 Diagnostics& diagnostics) const
{
    std::vector<Key> keys = keys_;
    if (!find(PROGRAM_SECTION, "PROJECT"))
        keys.insert(keys.begin(), {PROGRAM_SECTION, "PROJECT", DIR_MARK + project, {}});
    const auto isProject = [](const Key& key) {
        return key.section == PROGRAM_SECTION && key.name == "PROJECT";
    };
    auto place = std::next(std::find_if(keys.begin(), keys.end(), isProject));
    for (const auto& line : lines_)
        place = std::next(keys.insert(place, line.second));
    for (int language = 0; language < 3; ++language)
        for (int font = 0; font < CONT_FONT; ++font)
            if (const std::string& name = resources.fontNames(font).at(language); !name.empty())
                keys.push_back(
                    {"FONT", FONT_KEY + std::to_string(language * FONTS_PER_LANGUAGE + font), name, {}});

    std::vector<std::string> sections = sections_;
    for (const Key& key : keys)
        if (std::find(sections.begin(), sections.end(), key.section) == sections.end())
            sections.push_back(key.section);

    std::string bytes;
    for (const std::string& section : sections) {
        bytes += SectionBegin(section) + "\n";
        for (const Key& key : keys) {
            if (key.section != section)
                continue;
            std::string value = key.value;
            if (value.compare(0, DIR_MARK.size(), DIR_MARK) == 0) {
                const std::string relative = value.substr(DIR_MARK.size());
                value = folder + "/" + relative;
                if (!FitsField(value)) {
                    value = relative;
                    diagnostics.warning(
                        {folder, 0},
                        fmt::format("this path is too long for the profile or has ',' or ';' in it, so '{}' "
                                    "is written as '{}'. Start the program in this folder.",
                                    key.name, relative));
                }
            }
            bytes += KeyBegin(key.name) + value + "\n";
        }
    }
    return bytes + RememberedWindows(before);
}

std::map<int, std::string> ProfileSource::load(const std::string& bytes, const std::string& folder,
                                               const std::string& project, const std::string& file)
{
    std::map<int, std::string> fonts;
    for (const ProfileSection& section : ParseProfile(bytes)) {
        if (section.name == WINDOW_SECTION)
            continue;
        sections_.push_back(section.name);
        for (const ProfileKey& key : section.keys) {
            const int font = section.name == "FONT" && key.name.compare(0, FONT_KEY.size(), FONT_KEY) == 0
                                 ? ParseInteger(key.name.substr(FONT_KEY.size())).value_or(-1)
                                 : -1;
            const OwnLine* const line = section.name == PROGRAM_SECTION ? LineOfKey(key.name) : nullptr;
            std::string value = key.value;
            if (value.compare(0, folder.size() + 1, folder + "/") == 0)
                value = DIR_MARK + value.substr(folder.size() + 1);
            const bool own = section.name == PROGRAM_SECTION && key.name == "PROJECT" && keys_.empty() &&
                             value == DIR_MARK + project;
            if (font >= 0 && font < 3 * FONTS_PER_LANGUAGE)
                fonts[font] = key.value;
            else if (line && IsKnown(*line, value))
                lines_[line->section] = Key{section.name, key.name, value, {file, key.line}};
            else if (!own)
                keys_.push_back({section.name, key.name, value, {file, key.line}});
        }
    }
    return fonts;
}

void ProfileSource::keepFont(int number, const std::string& name)
{
    keys_.push_back({"FONT", FONT_KEY + std::to_string(number), name, {}});
}

std::string ProfileSource::lineYaml(const std::string& name) const
{
    const auto own = lines_.find(name);
    return own != lines_.end() ? fmt::format("{}: {}\n\n", name, own->second.value) : "";
}

std::string ProfileSource::yaml() const
{
    std::string text;
    for (const std::string& section : sections_) {
        std::string keys;
        for (const Key& key : keys_) {
            if (key.section != section)
                continue;
            std::vector<std::string> fields;
            for (const std::string& field : ProfileFields(key.value))
                fields.push_back(YamlScalar(EucToUtf8(field)));
            keys += "    " + YamlScalar(key.name) + ": " +
                    (fields.size() == 1 ? fields[0] : YamlList(fields)) + "\n";
        }
        text += "  " + YamlScalar(section) + (keys.empty() ? ": {}\n" : ":\n" + keys);
    }
    return text.empty() ? "" : "profile:\n" + text;
}

std::string ProfileSource::value(const std::string& section, const std::string& name, Place* place) const
{
    const Key* key = find(section, name);
    if (key && place)
        *place = key->place;
    return key ? key->value : "";
}

} // namespace ptn
